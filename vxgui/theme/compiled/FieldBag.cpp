#include "vxgui/theme/compiled/FieldBag.h"

#include <algorithm>

#include "vxgui/base/VariantValue.h"
#include "vxgui/theme/compiled/Container.h"

namespace vxgui::compiled {
namespace {

constexpr char kSource[] = "FieldReader";

}  // namespace

void FieldReader::operator()(const String& name, int32_t& field) const {
    field = IntegerFrom(bag_->ReadProperty(name, field), kSource);
}

void FieldReader::operator()(const String& name, uint32_t& field) const {
    const auto before = static_cast<int32_t>(field);
    field = static_cast<uint32_t>(IntegerFrom(bag_->ReadProperty(name, before), kSource));
}

void FieldReader::operator()(const String& name, uint8_t& field) const {
    field = ByteFrom(bag_->ReadProperty(name, int32_t{field}), kSource);
}

void FieldReader::operator()(const String& name, String& field) const {
    field = TextFrom(bag_->ReadProperty(name, field), kSource);
}

void FieldReader::Copy(const String& name, uint8_t* field, size_t size) const {
    const Variant value = bag_->ReadProperty(name);
    if (value.IsEmpty()) return;
    const auto* bytes = value.As<ByteArray>();
    if (!bytes || bytes->size() != size) RaiseDamaged("damaged: a frame table has another size");
    std::copy(bytes->begin(), bytes->end(), field);
}

}  // namespace vxgui::compiled
