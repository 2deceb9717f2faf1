#pragma once

#include <cstdint>
#include <exception>
#include <string>

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"

namespace vxgui {

/// The numbers of the run-time errors that the interface raises.
enum class ErrorNumber : int32_t {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    Subscript = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    PathNotFound = 76,
    ObjectNotSet = 91,
    DuplicateKey = 457,
};

/// The one exception of the library: what "raises" throws this and nothing else.
class VXPLATFORM_API Error : public std::exception {
public:
    Error(ErrorNumber number, String source, String description)
        : Error(static_cast<int32_t>(number), std::move(source), std::move(description)) {}
    Error(int32_t number, String source, String description);
    ~Error() override;

    int32_t Number() const { return number_; }
    const String& Source() const { return source_; }
    const String& Description() const { return description_; }
    /// "source: description", as UTF-8.
    const char* what() const noexcept override { return what_.c_str(); }

private:
    int32_t number_;
    String source_;
    String description_;
    std::string what_;
};

}  // namespace vxgui
