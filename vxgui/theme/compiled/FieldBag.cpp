#include "vxgui/theme/compiled/FieldBag.h"

#include <cstring>

#include "vxgui/base/Rounding.h"
#include "vxgui/base/VariantValue.h"
#include "vxgui/theme/compiled/Container.h"

namespace vxgui::compiled {
namespace {

constexpr char kSource[] = "FieldReader";

}  // namespace

void FieldReader::operator()(std::string_view name, int32_t& field) const {
    if (!bag_->ReadInteger(name, &field)) field = IntegerFrom(bag_->ReadProperty(name), kSource);
}

void FieldReader::operator()(std::string_view name, uint32_t& field) const {
    auto number = static_cast<int32_t>(field);
    (*this)(name, number);
    field = static_cast<uint32_t>(number);
}

void FieldReader::operator()(std::string_view name, uint8_t& field) const {
    int32_t whole = field;
    if (!bag_->ReadInteger(name, &whole)) {
        field = ByteFrom(bag_->ReadProperty(name), kSource);
    } else {
        field = RoundHalfEvenChecked<uint8_t>(whole, kSource);
    }
}

void FieldReader::operator()(std::string_view name, String& field) const {
    const Variant value = bag_->ReadProperty(name);
    if (!value.IsEmpty()) field = TextFrom(value, kSource);
}

void FieldReader::Copy(std::string_view name, uint8_t* field, size_t size) const {
    std::span<const uint8_t> bytes(field, size);
    if (!bag_->ReadBytes(name, &bytes) || bytes.size() != size)
        RaiseDamaged("damaged: a frame table has another size");
    std::memmove(field, bytes.data(), size);  // onto itself where nothing stands
}

}  // namespace vxgui::compiled
