#include <algorithm>

#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Image.h"
#include "vxgui/platform/gdiplus/codec/CodecList.h"
#include "vxgui/platform/gdiplus/codec/ImageSaver.h"
#include "vxgui/platform/gdiplus/codec/ParameterList.h"
#include "vxgui/platform/gdiplus_codecs.h"

namespace vxgui::gdiplus {
namespace {

GpStatus GetSize(DWORD flags, UINT* count, UINT* size) {
    if (!count || !size) return InvalidParameter;
    return Flat([&] {
        *count = static_cast<UINT>(CodecsWith(flags).size());
        *size = *count * static_cast<UINT>(sizeof(ImageCodecInfo));
        return Ok;
    });
}

GpStatus GetAll(DWORD flags, UINT count, UINT size, ImageCodecInfo* codecs) {
    if (!codecs) return InvalidParameter;
    return Flat([&] {
        const std::vector<ImageCodecInfo> all = CodecsWith(flags);
        if (count != all.size() || size != all.size() * sizeof(ImageCodecInfo)) {
            return InvalidParameter;
        }
        std::ranges::copy(all, codecs);
        return Ok;
    });
}

// Runs `body(parameters)` for an encoder that takes any.
template <class Body>
GpStatus OnParameters(GpImage* image, const CLSID* encoder, Body body) {
    if (!encoder) return InvalidParameter;
    return FlatOn<Image>(image, [&](Image&) -> GpStatus {
        if (!IsEncoder(*encoder)) return UnknownImageFormat;
        const std::span<const KnownParameter> parameters = ParametersOf(*encoder);
        return parameters.empty() ? NotImplemented : body(parameters);
    });
}

}  // namespace

extern "C" {

GpStatus GdipGetImageEncodersSize(UINT* count, UINT* size) {
    return GetSize(ImageCodecFlagsEncoder, count, size);
}

GpStatus GdipGetImageEncoders(UINT count, UINT size, ImageCodecInfo* encoders) {
    return GetAll(ImageCodecFlagsEncoder, count, size, encoders);
}

GpStatus GdipGetImageDecodersSize(UINT* count, UINT* size) {
    return GetSize(ImageCodecFlagsDecoder, count, size);
}

GpStatus GdipGetImageDecoders(UINT count, UINT size, ImageCodecInfo* decoders) {
    return GetAll(ImageCodecFlagsDecoder, count, size, decoders);
}

GpStatus GdipGetEncoderParameterListSize(GpImage* image, const CLSID* encoder, UINT* size) {
    if (!size) return InvalidParameter;
    return OnParameters(image, encoder, [&](std::span<const KnownParameter> parameters) {
        *size = static_cast<UINT>(RecordSize(parameters));
        return Ok;
    });
}

GpStatus GdipGetEncoderParameterList(GpImage* image, const CLSID* encoder, UINT size,
                                     EncoderParameters* list) {
    if (!list) return InvalidParameter;
    return OnParameters(image, encoder, [&](std::span<const KnownParameter> parameters) {
        if (size != RecordSize(parameters)) return InvalidParameter;
        StoreParameters(parameters, list);
        return Ok;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
