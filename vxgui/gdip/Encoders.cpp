#include "vxgui/gdip/Encoders.h"

#include <algorithm>
#include <array>
#include <vector>

#include "vxgui/frame/modGdiplus.h"

namespace vxgui {
namespace {

// What a record took where this interface began; the extra records of a larger one do no harm.
constexpr UINT kRecordSize = 76;

struct KnownEncoder {
    const char* mime;
    gdiplus::CLSID id;  ///< all 0 until it is looked up
};
thread_local std::array<KnownEncoder, 5> knownEncoders = {{
    {"image/bmp", {}},
    {"image/jpeg", {}},
    {"image/gif", {}},
    {"image/tiff", {}},
    {"image/png", {}},
}};

std::vector<gdiplus::ImageCodecInfo> Encoders() {
    UINT count = 0, size = 0;
    flat::GdipGetImageEncodersSize(&count, &size);
    if (count == 0) return {};
    std::vector<gdiplus::ImageCodecInfo> records(std::max(size / kRecordSize + 1, count));
    flat::GdipGetImageEncoders(count, size, records.data());
    records.resize(count);
    return records;
}

}  // namespace

bool GetEncoderClsid(const String& mime, gdiplus::CLSID& id) {
    bool found = false;
    for (const gdiplus::ImageCodecInfo& each : Encoders()) {
        if (!each.MimeType || String(each.MimeType) != mime) continue;
        id = each.Clsid;
        found = true;
    }
    return found;
}

bool GetCachedEncoder(const String& mime, gdiplus::CLSID& id) {
    for (KnownEncoder& each : knownEncoders) {
        if (mime != each.mime) continue;
        if (each.id.Data1 == 0 && !GetEncoderClsid(mime, each.id)) return false;
        id = each.id;
        return true;
    }
    return GetEncoderClsid(mime, id);
}

void BuildEncoderParameters(gdiplus::EncoderParameters& params, const String& mime, int32_t quality,
                            int32_t& value) {
    params = {};
    const bool tiff = mime == "image/tiff";
    if (!tiff && mime != "image/jpeg") return;
    value = tiff ? int32_t{gdiplus::EncoderValueFlush} : std::clamp(quality, 0, 100);
    params.Count = 1;
    params.Parameter[0] = {tiff ? gdiplus::EncoderSaveFlag : gdiplus::EncoderQuality, 1,
                           gdiplus::EncoderParameterValueTypeLong, &value};
}

}  // namespace vxgui
