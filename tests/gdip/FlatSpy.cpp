#include "tests/gdip/FlatSpy.h"

#include <cstdio>

#include "vxgui/base/String.h"
#include "vxgui/frame/modGdiplus.h"

namespace vxgui::test {
namespace {

gdiplus::Status gAnswer = gdiplus::Ok;
int gStored = 0;
bool gHandsOut = true;
std::string gCalls;

template <class T>
concept Number = std::is_arithmetic_v<T> || std::is_enum_v<T>;
template <class T>
concept Complete = requires {
    sizeof(T);
};

std::string Shown(double number) {
    char text[32];
    std::snprintf(text, sizeof text, "%.10g", number);
    return text;
}
std::string Shown(const gdiplus::GpPoint& p) { return "{" + Shown(p.X) + " " + Shown(p.Y) + "}"; }
std::string Shown(const gdiplus::GpPointF& p) { return "{" + Shown(p.X) + " " + Shown(p.Y) + "}"; }
template <class Rect>
requires requires(Rect r) { r.Width, r.X; }
std::string Shown(const Rect& r) {
    return "{" + Shown(r.X) + " " + Shown(r.Y) + " " + Shown(r.Width) + " " + Shown(r.Height) + "}";
}
std::string Shown(const gdiplus::CLSID& id) { return "{" + Shown(id.Data1) + "}"; }

std::string ShownHandle(const volatile void* handle) {
    return "#" + Shown(static_cast<double>(reinterpret_cast<uintptr_t>(handle)));
}

/// What a pointer leads to, where that is something to read.
template <class T>
std::string ShownTarget(T* pointer) {
    using Plain = std::remove_const_t<T>;
    if constexpr (std::is_same_v<T, const gdiplus::WCHAR>) {
        return "'" + String(pointer).Utf8() + "'";
    } else if constexpr (Number<Plain>) {
        return std::is_const_v<T> ? "{" + Shown(static_cast<double>(*pointer)) + "}" : "out";
    } else if constexpr (requires { Shown(*pointer); }) {
        return Shown(*pointer);
    } else {
        return std::is_const_v<T> ? "record" : "out";
    }
}

template <class T>
std::string ShownArgument(T argument) {
    if constexpr (Number<T>) {
        return Shown(static_cast<double>(argument));
    } else if constexpr (!std::is_pointer_v<T>) {
        return Shown(argument);
    } else {
        using Target = std::remove_pointer_t<T>;
        if (!argument) return "0";
        if constexpr (std::is_function_v<Target>)
            return "function";
        else if constexpr (!Complete<Target> || std::is_same_v<Target, gdiplus::IStream>) {
            return ShownHandle(argument);
        } else {
            return ShownTarget(argument);
        }
    }
}

/// Stores a number or a handle where a call was asked for one.
template <class T>
void StoreIn(T argument) {
    if constexpr (std::is_pointer_v<T>) {
        using Target = std::remove_pointer_t<T>;
        if constexpr (std::is_pointer_v<Target> && !std::is_const_v<Target>) {
            if (argument && gHandsOut) *argument = reinterpret_cast<Target>(FlatSpy::kMade);
        } else if constexpr (Number<Target> && !std::is_const_v<Target>) {
            if (argument) *argument = static_cast<Target>(gStored);
        }
    }
}

template <class Stub>
struct Spied;

template <class Binder, class R, class... A>
struct Spied<Stub<Binder, R(A...)>> {
    static void Install(const char* name) {
        using Target = R (*)(A...);
        name_ = name;
        static_cast<std::atomic<Target>*>(Stub<Binder, R(A...)>::Place())->store(&Call);
    }
    static R Call(A... arguments) {
        std::string shown;
        ((shown += (shown.empty() ? "" : ", ") + ShownArgument(arguments)), ...);
        gCalls += (gCalls.empty() ? "" : "; ") + std::string(name_) + "(" + shown + ")";
        if (gAnswer == gdiplus::Ok) (StoreIn(arguments), ...);
        if constexpr (std::is_same_v<R, gdiplus::GpStatus>)
            return gAnswer;
        else
            return R();
    }

    static inline const char* name_ = "";
};

}  // namespace

FlatSpy::FlatSpy() {
#define VXGUI_SPY(Name) Spied<std::remove_const_t<decltype(flat::Name)>>::Install(#Name);
    VXGUI_GDIPLUS_FUNCTIONS(VXGUI_SPY)
#undef VXGUI_SPY
    Answer(gdiplus::Ok);
    Store(0);
    gHandsOut = true;
    Taken();
}

FlatSpy::~FlatSpy() { UnbindAllStubs(); }

void FlatSpy::Answer(gdiplus::Status status) { gAnswer = status; }
void FlatSpy::HandOutNothing() { gHandsOut = false; }
void FlatSpy::Store(int number) { gStored = number; }
std::string FlatSpy::Taken() { return std::exchange(gCalls, {}); }

}  // namespace vxgui::test
