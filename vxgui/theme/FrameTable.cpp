#include "vxgui/theme/FrameTable.h"

#include <optional>

#include "vxgui/base/NumberText.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/theme/ThemeEnums.h"

namespace vxgui {
namespace {

// A row for each order, a column for each state.
constexpr uint8_t kNamedOrders[2][FrameTable::kStates] = {
    {0, 3, 1, 2, 4, 5, 6, 7, 3},
    {0, 1, 2, 3, 4, 5, 6, 7, 1},
};

bool IsState(int32_t state) { return state >= 0 && state < FrameTable::kStates; }

std::optional<double> NumberOf(const Variant& value) {
    if (const auto* number = value.As<int32_t>()) return *number;
    if (const auto* number = value.As<double>()) return *number;
    if (const auto* number = value.As<float>()) return *number;
    if (const auto* flag = value.As<bool>()) return *flag ? -1 : 0;
    if (const auto* text = value.As<String>(); text && IsNumeric(*text))
        return LeadingNumber(*text);
    return std::nullopt;
}

void Store(uint8_t& entry, std::optional<double> number) {
    if (!number) return;
    if (*number < 0) {
        entry = FrameTable::kNoFrame;
    } else if (*number < 256) {
        entry = RoundHalfEvenChecked<uint8_t>(*number, "ThemeItem");
    }
}

}  // namespace

int32_t FrameTable::RawFrame(int32_t state) const {
    if (!IsState(state)) return 0;
    if (order == -1) return frames[static_cast<size_t>(state)];
    return order == 0 || order == 1 ? kNamedOrders[order][state] : 0;
}

void FrameTable::Assign(const Variant& list) {
    const auto* values = list.As<VariantArray>();
    const auto* bytes = list.As<ByteArray>();
    if (!values && !bytes) return;
    order = -1;
    const size_t count = std::min(values ? values->size() : bytes->size(), frames.size());
    for (size_t i = 0; i < count; ++i)
        Store(frames[i], values ? NumberOf((*values)[i]) : (*bytes)[i]);
}

int32_t BorrowedState(int32_t state) {
    switch (state) {
        case E_ItemStateMouseOver:
        case E_ItemStatePressed:
        case E_ItemStateDisabled:
            return E_ItemStateNormal;
        case E_ItemStateDefault:
        case E_ItemStateFocusMouseOver:
            return E_ItemStateMouseOver;
        case E_ItemStateFocus:
            return E_ItemStateDefault;
        case E_ItemStateFocusPressed:
            return E_ItemStatePressed;
        default:
            return -1;
    }
}

}  // namespace vxgui
