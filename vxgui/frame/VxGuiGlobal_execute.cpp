#include "vxgui/base/Attempt.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/theme/ThemeSet.h"

namespace vxgui {

namespace {

Error WrongType() { return Error(ErrorNumber::TypeMismatch, "VxGuiGlobal", "Type mismatch"); }

const Variant& Operand(const VariantArray& P, size_t index) {
    if (index < P.size()) return P[index];
    throw Error(ErrorNumber::Subscript, "VxGuiGlobal", "Subscript out of range");
}

String Text(const Variant& operand) {
    if (const String* text = operand.As<String>()) return *text;
    throw WrongType();
}

template <class T>
Ref<T> ObjectOf(const Variant& operand) {
    const Ref<Object>* object = operand.As<Ref<Object>>();
    auto* wanted = object ? dynamic_cast<T*>(object->get()) : nullptr;
    if (!wanted) throw WrongType();
    return Ref<T>(wanted);
}

Variant Run(const VariantArray& P) {
    if (Text(Operand(P, 0)) != String("LoadThemeSet")) return {};
    return ThemeSetFromDefine(ObjectOf<ThemeSet>(Operand(P, 1)),
                              ObjectOf<core7::DefineFile>(Operand(P, 2)), Text(Operand(P, 3)));
}

}  // namespace

Variant VxGuiGlobal::Execute(const VariantArray& P) {
    Variant result;
    Attempt([&] { result = Run(P); });
    return result;
}

}  // namespace vxgui
