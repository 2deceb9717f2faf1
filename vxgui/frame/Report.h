#pragma once

#include <new>

#include "vxgui/base/Error.h"

namespace vxgui {

/// What a failed procedure knows of its failure: the run-time error, if there is one, and the
/// number of the failing line, 0 where lines have no numbers.
struct Failure {
    int32_t number = 0;
    String description;
    int32_t line = 0;

    Failure() = default;
    Failure(const Error& error, int32_t line = 0)
        : number(error.Number()), description(error.Description()), line(line) {}
};

/// Shows the user the standard box for a failure that no caller expects: the procedure, the
/// run-time error, and the last platform error of the thread. It returns when the box has been
/// read, and changes nothing.
void ReportUnexpectedError(const String& moduleName, const String& procedureName,
                           const Failure& failure);

/// The wrapper of one module, which adds the module's name. A module that reports has one:
///
///     constexpr ErrorReporter ReportError{"modDraw"};
class ErrorReporter {
public:
    constexpr explicit ErrorReporter(const char* moduleName) : moduleName_(moduleName) {}

    void operator()(const char* procedureName, const Failure& failure) const {
        ReportUnexpectedError(moduleName_, procedureName, failure);
    }

    /// Runs `body`; a failure in it is reported, and the answer is then false.
    template <class Body>
    bool Guard(const char* procedureName, Body&& body) const {
        try {
            body();
            return true;
        } catch (const Error& error) {
            Tell(procedureName, [&] { return Failure(error); });
        } catch (const std::bad_alloc&) {
            Tell(procedureName, [&] {
                return Failure(Error(ErrorNumber::OutOfMemory, moduleName_, "Out of memory"));
            });
        }
        return false;
    }

private:
    // Nothing is shown where there is no memory even for the report.
    template <class Make>
    void Tell(const char* procedureName, Make make) const {
        try {
            (*this)(procedureName, make());
        } catch (const std::bad_alloc&) {
        }
    }

    const char* moduleName_;
};

}  // namespace vxgui
