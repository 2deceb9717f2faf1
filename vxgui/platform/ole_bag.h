#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "vxgui/base/Variant.h"

namespace vxgui::ole {

/// Reads the values of a property bag's contents where they stand, for many small bags that are
/// read once: one reader serves for all of them, one after the other.
class VXPLATFORM_API BagReader {
public:
    BagReader();
    ~BagReader();
    BagReader(const BagReader&) = delete;
    BagReader& operator=(const BagReader&) = delete;

    /// Takes contents, which must stay as long as they are read. Raises for what
    /// `PropertyBag::Contents` refuses, and holds nothing then.
    void Open(std::span<const uint8_t> contents);
    /// The value under a name in ASCII, without regard to case; empty when there is none. Quickest
    /// in the order in which the values stand.
    Variant ReadProperty(std::string_view name);
    bool Has(std::string_view name);
    /// The same for an integer, without a variant: stores it, or stores nothing where nothing
    /// stands under the name. False for a value of another kind.
    bool ReadInteger(std::string_view name, int32_t* value);
    /// The same for bytes, as a view of the contents.
    bool ReadBytes(std::string_view name, std::span<const uint8_t>* value);

private:
    struct Store;
    std::unique_ptr<Store> store_;
};

}  // namespace vxgui::ole
