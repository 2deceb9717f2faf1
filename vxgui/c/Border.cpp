#include "vxgui/c/Border.h"

#include <new>

namespace vxgui::c {
namespace {

/// Its text outlives its allocation's failure: a text of the program is told then.
struct Kept {
    std::string text;
    const char* shown = "";
};
thread_local Kept kept;

}  // namespace

const char* LastError() noexcept { return kept.shown; }

void KeepError(const std::string& text) noexcept {
    try {
        kept.text = text;
        kept.shown = kept.text.c_str();
    } catch (...) {
        kept.shown = "error: no memory is left; a smaller skin or picture was expected";
    }
}

void KeepCurrentException() noexcept {
    try {
        throw;
    } catch (const std::bad_alloc&) {
        kept.shown = "error: no memory is left; a smaller skin or picture was expected";
    } catch (const std::exception& error) {
        KeepError(error.what());
    } catch (...) {
        kept.shown = "error: of no kind that is known";
    }
}

}  // namespace vxgui::c
