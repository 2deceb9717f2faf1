#include <mutex>
#include <unordered_set>

#include "vxgui/platform/gdiplus.h"
#include "vxgui/platform/gdiplus/FlatCall.h"

namespace vxgui::gdiplus {
namespace {

struct Tokens {
    std::mutex mutex;
    std::unordered_set<ULONG_PTR> live;
    ULONG_PTR last = 0;
};

Tokens& TheTokens() {
    static Tokens* const tokens = new Tokens;
    return *tokens;
}

// A host that wants no background thread of ours runs these around its message loop. We have
// none, so that there is nothing to do.
GpStatus Hook(ULONG_PTR* token) {
    if (token) *token = 0;
    return Ok;
}
void Unhook(ULONG_PTR) {}

GpStatus Start(ULONG_PTR* token) {
    Tokens& tokens = TheTokens();
    const std::lock_guard lock(tokens.mutex);
    tokens.live.insert(++tokens.last);
    *token = tokens.last;
    return Ok;
}

}  // namespace

bool IsStarted() {
    const std::lock_guard lock(TheTokens().mutex);
    return !TheTokens().live.empty();
}

extern "C" {

GpStatus GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                        GdiplusStartupOutput* output) {
    if (!token || !input) return InvalidParameter;
    if (input->GdiplusVersion != 1 && input->GdiplusVersion != 2) return UnsupportedGdiplusVersion;
    if (input->SuppressBackgroundThread && !output) return InvalidParameter;
    if (input->SuppressBackgroundThread) {
        *output = {reinterpret_cast<void*>(Hook), reinterpret_cast<void*>(Unhook)};
    }
    return Flat([&] { return Start(token); });
}

void GdiplusShutdown(ULONG_PTR token) {
    const std::lock_guard lock(TheTokens().mutex);
    TheTokens().live.erase(token);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
