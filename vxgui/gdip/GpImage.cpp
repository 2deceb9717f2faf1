#include "vxgui/gdip/GpImage.h"

#include "vxgui/frame/PictureHelpers.h"
#include "vxgui/gdip/ClsidText.h"

namespace vxgui {

bool GpImage::FromFile(const String& Filename, bool UseEmbeddedColorManagement) {
    const KeepAlive keep(this);
    gdiplus::GpImage* image = nullptr;
    return Adopt(UseEmbeddedColorManagement
                     ? flat::GdipLoadImageFromFileICM(Filename.data(), &image)
                     : flat::GdipLoadImageFromFile(Filename.data(), &image),
                 image) &&
           handle_;
}

bool GpImage::FromStream(gdiplus::IStream* Stream, bool UseEmbeddedColorManagement) {
    const KeepAlive keep(this);
    gdiplus::GpImage* image = nullptr;
    return Adopt(UseEmbeddedColorManagement ? flat::GdipLoadImageFromStreamICM(Stream, &image)
                                            : flat::GdipLoadImageFromStream(Stream, &image),
                 image) &&
           handle_;
}

bool GpImage::FromPtr(const void* lpMem, int32_t nSize, bool UseEmbeddedColorManagement) {
    const Ref<ole::IStream> stream = MemoryToStream(lpMem, nSize);
    return stream && FromStream(stream.get(), UseEmbeddedColorManagement);
}

// The array isn't used, on purpose.
bool GpImage::FromByteArray(const ByteArray&, bool UseEmbeddedColorManagement) {
    return FromPtr(nullptr, 0, UseEmbeddedColorManagement);
}

template <class Value, class Get>
Value GpImage::Read(const Get& get) {
    const KeepAlive keep(this);
    Value value{};
    Check(get(handle_, &value));
    return value;
}

bool GpImage::GetBounds(gdiplus::GpRectF& Bounds, gdiplus::Unit& Unit) {
    return Check(flat::GdipGetImageBounds(handle_, &Bounds, &Unit));
}

bool GpImage::GetPhysicalDimension(float& Width, float& Height) {
    return Check(flat::GdipGetImageDimension(handle_, &Width, &Height));
}

gdiplus::ImageType GpImage::ImageType() { return Read<gdiplus::ImageType>(flat::GdipGetImageType); }
int32_t GpImage::Width() { return static_cast<int32_t>(Read<UINT>(flat::GdipGetImageWidth)); }
int32_t GpImage::Height() { return static_cast<int32_t>(Read<UINT>(flat::GdipGetImageHeight)); }
float GpImage::HorizontalResolution() {
    return Read<float>(flat::GdipGetImageHorizontalResolution);
}
float GpImage::VerticalResolution() { return Read<float>(flat::GdipGetImageVerticalResolution); }
uint32_t GpImage::Flags() { return Read<UINT>(flat::GdipGetImageFlags); }
gdiplus::CLSID GpImage::FormatCLSID() { return Read<gdiplus::CLSID>(flat::GdipGetImageRawFormat); }
String GpImage::Format() { return ClsidText(FormatCLSID()); }
gdiplus::PixelFormat GpImage::PixelFormat() {
    return Read<gdiplus::PixelFormat>(flat::GdipGetImagePixelFormat);
}

Ref<GpImage> GpImage::GetThumbnailImage(int32_t thumbWidth, int32_t thumbHeight,
                                        gdiplus::GetThumbnailImageAbort Callback,
                                        void* CallbackData) {
    const KeepAlive keep(this);
    gdiplus::GpImage* image = nullptr;
    const auto width = static_cast<UINT>(thumbWidth), height = static_cast<UINT>(thumbHeight);
    if (!Check(
            flat::GdipGetImageThumbnail(handle_, width, height, &image, Callback, CallbackData))) {
        return nullptr;
    }
    return Adopted(image);
}

bool GpImage::RotateFlip(gdiplus::RotateFlipType Type) {
    return Check(flat::GdipImageRotateFlip(handle_, Type));
}

uint32_t GpImage::FrameDimensionsCount() {
    return Read<UINT>(flat::GdipImageGetFrameDimensionsCount);
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

int32_t GpImage::PaletteSize() { return Read<int32_t>(flat::GdipGetImagePaletteSize); }

bool GpImage::GetPalette(gdiplus::ColorPalette* Palette, int32_t Size) {
    return Check(flat::GdipGetImagePalette(handle_, Palette, Size));
}

bool GpImage::SetPalette(const gdiplus::ColorPalette* Palette) {
    return Check(flat::GdipSetImagePalette(handle_, Palette));
}

}  // namespace vxgui
