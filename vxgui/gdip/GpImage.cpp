#include "vxgui/gdip/GpImage.h"

#include "vxgui/frame/PictureHelpers.h"
#include "vxgui/gdip/ClsidText.h"

namespace vxgui {

bool GpImage::FromFile(const String& Filename, bool UseEmbeddedColorManagement) {
    const gdiplus::WCHAR* const name = Filename.data();
    return UseEmbeddedColorManagement ? MakeHandle(flat::GdipLoadImageFromFileICM, name)
                                      : MakeHandle(flat::GdipLoadImageFromFile, name);
}

bool GpImage::FromStream(gdiplus::IStream* Stream, bool UseEmbeddedColorManagement) {
    return UseEmbeddedColorManagement ? MakeHandle(flat::GdipLoadImageFromStreamICM, Stream)
                                      : MakeHandle(flat::GdipLoadImageFromStream, Stream);
}

bool GpImage::FromPtr(const void* lpMem, int32_t nSize, bool UseEmbeddedColorManagement) {
    const Ref<ole::IStream> stream = MemoryToStream(lpMem, nSize);
    return stream && FromStream(stream.get(), UseEmbeddedColorManagement);
}

// The array isn't used, on purpose.
bool GpImage::FromByteArray(const ByteArray&, bool UseEmbeddedColorManagement) {
    return FromPtr(nullptr, 0, UseEmbeddedColorManagement);
}

bool GpImage::GetBounds(gdiplus::GpRectF& Bounds, gdiplus::Unit& Unit) {
    Bounds = {};
    Unit = {};
    return Check(flat::GdipGetImageBounds(handle_, &Bounds, &Unit));
}

bool GpImage::GetPhysicalDimension(float& Width, float& Height) {
    Width = Height = 0;
    return Check(flat::GdipGetImageDimension(handle_, &Width, &Height));
}

gdiplus::ImageType GpImage::ImageType() {
    return Asked<gdiplus::ImageType>(flat::GdipGetImageType);
}
int32_t GpImage::Width() { return static_cast<int32_t>(Asked<UINT>(flat::GdipGetImageWidth)); }
int32_t GpImage::Height() { return static_cast<int32_t>(Asked<UINT>(flat::GdipGetImageHeight)); }
float GpImage::HorizontalResolution() {
    return Asked<float>(flat::GdipGetImageHorizontalResolution);
}
float GpImage::VerticalResolution() { return Asked<float>(flat::GdipGetImageVerticalResolution); }
uint32_t GpImage::Flags() { return Asked<UINT>(flat::GdipGetImageFlags); }
gdiplus::CLSID GpImage::FormatCLSID() { return Asked<gdiplus::CLSID>(flat::GdipGetImageRawFormat); }
String GpImage::Format() { return ClsidText(FormatCLSID()); }
gdiplus::PixelFormat GpImage::PixelFormat() {
    return Asked<gdiplus::PixelFormat>(flat::GdipGetImagePixelFormat);
}

Ref<GpImage> GpImage::GetThumbnailImage(int32_t thumbWidth, int32_t thumbHeight,
                                        gdiplus::GetThumbnailImageAbort Callback,
                                        void* CallbackData) {
    const KeepAlive keep(this);
    gdiplus::GpImage* image = nullptr;
    const auto width = static_cast<UINT>(thumbWidth), height = static_cast<UINT>(thumbHeight);
    const bool made =
        Check(flat::GdipGetImageThumbnail(handle_, width, height, &image, Callback, CallbackData));
    return made ? Holding<GpImage>(image) : nullptr;
}

bool GpImage::RotateFlip(gdiplus::RotateFlipType Type) {
    return Check(flat::GdipImageRotateFlip(handle_, Type));
}

uint32_t GpImage::FrameDimensionsCount() {
    return Asked<UINT>(flat::GdipImageGetFrameDimensionsCount);
}

bool GpImage::GetFrameDimensionsList(gdiplus::GUID* DimensionIDs, uint32_t Count) {
    return Check(flat::GdipImageGetFrameDimensionsList(handle_, DimensionIDs, Count));
}

uint32_t GpImage::GetFrameCount(const gdiplus::GUID* DimensionID) {
    UINT count = 0;
    Check(flat::GdipImageGetFrameCount(handle_, DimensionID, &count));
    return count;
}

bool GpImage::SelectActiveFrame(const gdiplus::GUID* DimensionID, uint32_t FrameIndex) {
    return Check(flat::GdipImageSelectActiveFrame(handle_, DimensionID, FrameIndex));
}

int32_t GpImage::PaletteSize() { return Asked<int32_t>(flat::GdipGetImagePaletteSize); }

bool GpImage::GetPalette(gdiplus::ColorPalette* Palette, int32_t Size) {
    return Check(flat::GdipGetImagePalette(handle_, Palette, Size));
}

bool GpImage::SetPalette(const gdiplus::ColorPalette* Palette) {
    return Check(flat::GdipSetImagePalette(handle_, Palette));
}

}  // namespace vxgui
