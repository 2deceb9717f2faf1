#include "vxgui/platform/gdiplus/codec/SaveOptions.h"

#include <algorithm>

namespace vxgui::gdiplus {
namespace {

std::optional<int64_t> NumberOf(const EncoderParameter& parameter) {
    if (!parameter.Value || parameter.NumberOfValues == 0) return std::nullopt;
    switch (parameter.Type) {
        case EncoderParameterValueTypeByte:
            return *static_cast<const uint8_t*>(parameter.Value);
        case EncoderParameterValueTypeShort:
            return *static_cast<const uint16_t*>(parameter.Value);
        case EncoderParameterValueTypeLong:
            return *static_cast<const uint32_t*>(parameter.Value);
        default:
            return std::nullopt;
    }
}

void Take(const GUID& id, int64_t number, SaveOptions* options) {
    const auto value = static_cast<EncoderValue>(number);
    if (id == EncoderQuality) {
        options->quality = static_cast<int>(std::clamp<int64_t>(number, 0, 100));
    } else if (id == EncoderTransformation) {
        options->transform = value;
    } else if (id == EncoderCompression) {
        options->compression = value;
    } else if (id == EncoderColorDepth) {
        options->depth = static_cast<UINT>(number);
    } else if (id == EncoderSaveFlag) {
        options->flag = value;
    }
}

}  // namespace

std::optional<SaveOptions> ReadOptions(const EncoderParameters* parameters) {
    SaveOptions options;
    for (UINT i = 0; parameters && i < parameters->Count; ++i) {
        const EncoderParameter& each = (&parameters->Parameter[0])[i];
        const std::optional<int64_t> number = NumberOf(each);
        if (!number) return std::nullopt;
        Take(each.Guid, *number, &options);
    }
    return options;
}

}  // namespace vxgui::gdiplus
