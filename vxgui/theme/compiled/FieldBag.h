#pragma once

#include <array>

#include "vxgui/platform/ole.h"
#include "vxgui/platform/ole_bag.h"

/// Fields as values of a property bag.
namespace vxgui::compiled {

/// Puts each field that it is called with into a bag.
class VXGUI_LOCAL FieldWriter {
public:
    explicit FieldWriter(const Ref<ole::PropertyBag>& bag) : bag_(bag) {}

    void operator()(const String& name, int32_t field) const { bag_->WriteProperty(name, field); }
    void operator()(const String& name, uint32_t field) const {
        bag_->WriteProperty(name, static_cast<int32_t>(field));
    }
    void operator()(const String& name, uint8_t field) const {
        bag_->WriteProperty(name, int32_t{field});
    }
    void operator()(const String& name, const String& field) const {
        bag_->WriteProperty(name, field);
    }
    template <size_t Size>
    void operator()(const String& name, const std::array<uint8_t, Size>& field) const {
        bag_->WriteProperty(name, ByteArray(field.begin(), field.end()));
    }

private:
    Ref<ole::PropertyBag> bag_;
};

/// Sets each field that it is called with; one that the bag lacks keeps its value. Raises for a
/// value of the wrong kind. It stands for the bag, which must outlive it.
class VXGUI_LOCAL FieldReader {
public:
    explicit FieldReader(ole::BagReader& bag) : bag_(&bag) {}

    void operator()(std::string_view name, int32_t& field) const;
    void operator()(std::string_view name, uint32_t& field) const;
    void operator()(std::string_view name, uint8_t& field) const;
    void operator()(std::string_view name, String& field) const;
    template <size_t Size>
    void operator()(std::string_view name, std::array<uint8_t, Size>& field) const {
        Copy(name, field.data(), Size);
    }

private:
    void Copy(std::string_view name, uint8_t* field, size_t size) const;

    ole::BagReader* bag_;
};

}  // namespace vxgui::compiled
