#include "vxgui/frame/ErrorBox.h"
#include "vxgui/frame/PictureHelpers.h"
#include "vxgui/gdip/Encoders.h"
#include "vxgui/gdip/GpImage.h"

namespace vxgui {
namespace {

// Runs `save(encoder, parameters)` for a mime type; one without an encoder is shown.
template <class Save>
bool SaveAs(const String& mime, int32_t quality, Save save) {
    gdiplus::CLSID encoder{};
    if (!GetEncoderClsid(mime, encoder)) {
        ShowErrorBox(String("bmp jpeg gif tiff png:") + mime);
        return false;
    }
    gdiplus::EncoderParameters parameters;
    int32_t value = 0;
    BuildEncoderParameters(parameters, mime, quality, value);
    return save(&encoder, &parameters);
}

bool ReadWhole(ole::IStream& stream, ByteArray& bytes) {
    bytes.resize(stream.Size());
    stream.Seek(0, ole::SeekOrigin::Set);
    return stream.Read(bytes.data(), static_cast<uint32_t>(bytes.size())) == bytes.size();
}

}  // namespace

bool GpImage::Save(const String& Filename, const gdiplus::CLSID* ClsidEncoder,
                   const gdiplus::EncoderParameters* EncoderParams) {
    return Check(flat::GdipSaveImageToFile(handle_, Filename.data(), ClsidEncoder, EncoderParams));
}

bool GpImage::SaveToStream(gdiplus::IStream* Stream, const gdiplus::CLSID* ClsidEncoder,
                           const gdiplus::EncoderParameters* EncoderParams) {
    const KeepAlive keep(this);
    return Check(flat::GdipSaveImageToStream(handle_, Stream, ClsidEncoder, EncoderParams));
}

// The stream is asked for with nothing in it, for which there is none: it ends there, on purpose.
bool GpImage::SaveToByteArray(ByteArray& Bytes, const gdiplus::CLSID* ClsidEncoder,
                              const gdiplus::EncoderParameters* EncoderParams) {
    const Ref<ole::IStream> stream = MemoryToStream(nullptr, 0);
    return stream && SaveToStream(stream.get(), ClsidEncoder, EncoderParams) &&
           ReadWhole(*stream, Bytes);
}

bool GpImage::SaveCached(const String& filename, const char* mime) {
    gdiplus::CLSID encoder{};
    return GetCachedEncoder(mime, encoder) && Save(filename, &encoder);
}

bool GpImage::SaveWithQuality(const String& filename, const char* mime, int32_t quality) {
    return quality ? SaveToFile(filename, mime, quality) : SaveCached(filename, mime);
}

bool GpImage::SaveToFile_Bmp(const String& Filename) { return SaveCached(Filename, "image/bmp"); }
bool GpImage::SaveToFile_Png(const String& Filename) { return SaveCached(Filename, "image/png"); }
bool GpImage::SaveToFile_Jpeg(const String& Filename, int32_t Quality) {
    return SaveWithQuality(Filename, "image/jpeg", Quality);
}
bool GpImage::SaveToFile_Gif(const String& Filename, int32_t Quality) {
    return SaveWithQuality(Filename, "image/gif", Quality);
}
bool GpImage::SaveToFile_Tiff(const String& Filename, int32_t Quality) {
    return SaveWithQuality(Filename, "image/tiff", Quality);
}

bool GpImage::SaveToFile(const String& Filename, const String& FileFormat, int32_t JpgQuality) {
    const KeepAlive keep(this);
    return SaveAs(FileFormat, JpgQuality, [&](const auto* encoder, const auto* parameters) {
        return Save(Filename, encoder, parameters);
    });
}

bool GpImage::GetByteArray(ByteArray& Bytes, const String& FileFormat, int32_t JpgQuality) {
    const KeepAlive keep(this);
    return SaveAs(FileFormat, JpgQuality, [&](const auto* encoder, const auto* parameters) {
        return SaveToByteArray(Bytes, encoder, parameters);
    });
}

bool GpImage::SaveAdd(const gdiplus::EncoderParameters* EncoderParams) {
    return Check(flat::GdipSaveAdd(handle_, EncoderParams));
}

bool GpImage::SaveAddImage(gdiplus::GpImage* hNewImage,
                           const gdiplus::EncoderParameters* EncoderParams) {
    return Check(flat::GdipSaveAddImage(handle_, hNewImage, EncoderParams));
}

uint32_t GpImage::GetEncoderParameterListSize(const gdiplus::CLSID* ClsidEncoder) {
    UINT size = 0;
    Check(flat::GdipGetEncoderParameterListSize(handle_, ClsidEncoder, &size));
    return size;
}

bool GpImage::GetEncoderParameterList(const gdiplus::CLSID* ClsidEncoder, uint32_t Size,
                                      gdiplus::EncoderParameters* Buffer) {
    return Check(flat::GdipGetEncoderParameterList(handle_, ClsidEncoder, Size, Buffer));
}

}  // namespace vxgui
