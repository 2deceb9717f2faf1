#include "vxgui/platform/gdiplus/codec/ParameterList.h"

#include <algorithm>
#include <cstddef>

namespace vxgui::gdiplus {
namespace {

using Parameters = std::vector<KnownParameter>;

const Parameters& OfJpeg() {
    static const Parameters parameters = {
        {EncoderTransformation,
         EncoderParameterValueTypeLong,
         {EncoderValueTransformRotate90, EncoderValueTransformRotate180,
          EncoderValueTransformRotate270, EncoderValueTransformFlipHorizontal,
          EncoderValueTransformFlipVertical}},
        {EncoderQuality, EncoderParameterValueTypeLongRange, {0, 100}},
    };
    return parameters;
}

const Parameters& OfTiff() {
    static const Parameters parameters = {
        {EncoderCompression,
         EncoderParameterValueTypeLong,
         {EncoderValueCompressionLZW, EncoderValueCompressionCCITT3, EncoderValueCompressionCCITT4,
          EncoderValueCompressionRle, EncoderValueCompressionNone}},
        {EncoderColorDepth, EncoderParameterValueTypeLong, {1, 4, 8, 24, 32}},
        {EncoderSaveFlag, EncoderParameterValueTypeLong, {EncoderValueMultiFrame}},
    };
    return parameters;
}

}  // namespace

std::span<const KnownParameter> ParametersOf(const CLSID& encoder) {
    if (encoder == CodecJPEG) return OfJpeg();
    if (encoder == CodecTIFF) return OfTiff();
    return {};
}

size_t RecordSize(std::span<const KnownParameter> parameters) {
    size_t size = offsetof(EncoderParameters, Parameter);
    for (const KnownParameter& each : parameters) {
        size += sizeof(EncoderParameter) + each.values.size() * sizeof(UINT32);
    }
    return size;
}

// A range counts as one value.
void StoreParameters(std::span<const KnownParameter> parameters, EncoderParameters* to) {
    to->Count = static_cast<UINT>(parameters.size());
    auto* record = reinterpret_cast<EncoderParameter*>(reinterpret_cast<uint8_t*>(to) +
                                                       offsetof(EncoderParameters, Parameter));
    auto* value = reinterpret_cast<UINT32*>(record + parameters.size());
    for (const KnownParameter& each : parameters) {
        const bool range = each.type == EncoderParameterValueTypeLongRange;
        *record++ = {each.id, range ? 1 : static_cast<DWORD>(each.values.size()),
                     static_cast<DWORD>(each.type), value};
        value = std::ranges::copy(each.values, value).out;
    }
}

}  // namespace vxgui::gdiplus
