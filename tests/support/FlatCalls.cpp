#include "tests/support/FlatCalls.h"

#include <algorithm>
#include <map>
#include <sstream>

#include "vxgui/base/String.h"
#include "vxgui/platform/gdiplus.h"

namespace vxgui::test {
namespace {

struct Record {
    std::vector<std::string> lines;
    std::map<std::string, gdiplus::Status> answers;
};

Record& TheRecord() {
    static Record record;
    return record;
}

template <class T>
std::string Say(const T& value) {
    std::ostringstream text;
    if constexpr (std::is_enum_v<T>) {
        text << static_cast<std::underlying_type_t<T>>(value);
    } else if constexpr (std::is_arithmetic_v<T>) {
        text << +value;
    } else if constexpr (std::is_pointer_v<T>) {
        text << (value ? "*" : "0");
    } else {
        text << "?";
    }
    return text.str();
}

std::string Say(const char16_t* text) {
    return text ? "\"" + String(text).Utf8() + "\"" : std::string("0");
}

template <class Rect>
std::string SayRect(const Rect* r) {
    if (!r) return "0";
    return "[" + Say(r->X) + " " + Say(r->Y) + " " + Say(r->Width) + " " + Say(r->Height) + "]";
}
std::string Say(const gdiplus::GpRectF* r) { return SayRect(r); }
std::string Say(const gdiplus::GpRect* r) { return SayRect(r); }

std::string Say(const gdi::LOGFONTA* font) {
    if (!font) return "0";
    return "[" + Say(font->lfHeight) + " " + Say(font->lfWeight) + " " + font->lfFaceName + "]";
}

std::string Say(const gdiplus::ColorMatrix* matrix) {
    if (!matrix) return "0";
    std::string text;
    for (const auto& row : matrix->m) {
        for (const float value : row) text += (text.empty() ? "[" : " ") + Say(value);
    }
    return text + "]";
}

std::string Say(const gdiplus::GUID& id) {
    char text[48];
    const BYTE* d = id.Data4;
    std::snprintf(text, sizeof text, "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", id.Data1,
                  id.Data2, id.Data3, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]);
    return text;
}

template <size_t kSize>
struct Name {
    char text[kSize];
    consteval Name(const char (&name)[kSize]) { std::copy_n(name, kSize, text); }
};

template <class Signature>
struct Watched;
template <class R, class... A>
struct Watched<R(A...)> {
    template <Name kName, R (*kTarget)(A...)>
    static R Call(A... arguments) {
        std::string line;
        ((line += (line.empty() ? "" : ", ") + Say(arguments)), ...);
        TheRecord().lines.push_back(std::string(kName.text) + "(" + line + ")");
        if constexpr (std::is_same_v<R, gdiplus::Status>) {
            const auto answer = TheRecord().answers.find(kName.text);
            if (answer != TheRecord().answers.end()) return answer->second;
        }
        return kTarget(arguments...);
    }
};

const std::map<std::string, kernel::FARPROC>& AllWatched() {
#define VXGUI_WATCHED(Function)                    \
    {#Function, reinterpret_cast<kernel::FARPROC>( \
                    &Watched<decltype(gdiplus::Function)>::Call<#Function, &gdiplus::Function>)},
    static const std::map<std::string, kernel::FARPROC> all = {
        VXGUI_GDIPLUS_FUNCTIONS(VXGUI_WATCHED)};
#undef VXGUI_WATCHED
    return all;
}

}  // namespace

void FlatCalls::Begin() { TheRecord() = {}; }

std::vector<std::string> FlatCalls::Take() { return std::exchange(TheRecord().lines, {}); }

std::vector<std::string> FlatCalls::TakeOf(const std::vector<std::string>& names) {
    std::vector<std::string> lines = Take();
    std::erase_if(lines, [&](const std::string& line) {
        return std::find(names.begin(), names.end(), line.substr(0, line.find('('))) == names.end();
    });
    return lines;
}

void FlatCalls::Answer(const std::string& name, gdiplus::Status status) {
    TheRecord().answers[name] = status;
}

void FlatCalls::AnswerNothing() { TheRecord().answers.clear(); }

kernel::FARPROC FlatCalls::GetProcAddress(kernel::HMODULE module, const char* name) {
    if (reinterpret_cast<uintptr_t>(name) >= 0x10000) {
        const auto watched = AllWatched().find(name);
        if (watched != AllWatched().end()) return watched->second;
    }
    return kernel::RealKernel().GetProcAddress(module, name);
}

}  // namespace vxgui::test
