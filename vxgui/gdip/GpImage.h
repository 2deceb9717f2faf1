#pragma once

#include "vxgui/base/String.h"
#include "vxgui/base/Variant.h"
#include "vxgui/gdip/GpObject.h"

namespace vxgui {

class GpGraphics;

/// An image. Operations that answer a Boolean say whether they succeeded, and keep a failure in
/// `Status`; getters of an object without a handle answer 0.
class VXGUI_API GpImage : public GpOwner<GpImage, gdiplus::GpImage> {
public:
    static constexpr auto kDelete = flat::GdipDisposeImage;
    static constexpr auto kClone = flat::GdipCloneImage;

    gdiplus::GpImage* Handle() const { return handle_; }

    bool FromFile(const String& Filename, bool UseEmbeddedColorManagement = false);
    bool FromStream(gdiplus::IStream* Stream, bool UseEmbeddedColorManagement = false);
    /// A picture file in memory. False for an empty block.
    bool FromPtr(const void* lpMem, int32_t nSize, bool UseEmbeddedColorManagement = false);
    /// Always false: the array isn't used. `GpBitmap::FromByteArray` is the working form.
    bool FromByteArray(const ByteArray& Bytes, bool UseEmbeddedColorManagement = false);

    bool SaveToFile_Bmp(const String& Filename);
    bool SaveToFile_Png(const String& Filename);
    /// A quality of 0 leaves it to the encoder. For a GIF it has no effect.
    bool SaveToFile_Jpeg(const String& Filename, int32_t Quality = 0);
    bool SaveToFile_Gif(const String& Filename, int32_t Quality = 0);
    bool SaveToFile_Tiff(const String& Filename, int32_t Quality = 0);
    /// By mime type. One that no encoder has is shown in a message.
    bool SaveToFile(const String& Filename, const String& FileFormat = "image/bmp",
                    int32_t JpgQuality = 80);
    /// Always false, since the array's stream is never made; with a mime type that no encoder has
    /// after a message.
    bool GetByteArray(ByteArray& Bytes, const String& FileFormat = "image/bmp",
                      int32_t JpgQuality = 80);
    bool Save(const String& Filename, const gdiplus::CLSID* ClsidEncoder,
              const gdiplus::EncoderParameters* EncoderParams = nullptr);
    bool SaveToStream(gdiplus::IStream* Stream, const gdiplus::CLSID* ClsidEncoder,
                      const gdiplus::EncoderParameters* EncoderParams = nullptr);
    bool SaveToByteArray(ByteArray& Bytes, const gdiplus::CLSID* ClsidEncoder,
                         const gdiplus::EncoderParameters* EncoderParams = nullptr);
    bool SaveAdd(const gdiplus::EncoderParameters* EncoderParams);
    bool SaveAddImage(gdiplus::GpImage* hNewImage, const gdiplus::EncoderParameters* EncoderParams);

    /// A graphics over the image, or none.
    Ref<GpGraphics> graphics();
    bool GetBounds(gdiplus::GpRectF& Bounds, gdiplus::Unit& Unit);
    bool GetPhysicalDimension(float& Width, float& Height);
    gdiplus::ImageType ImageType();
    int32_t Width();
    int32_t Height();
    float HorizontalResolution();
    float VerticalResolution();
    uint32_t Flags();
    /// The identifier of the file's format as text in braces.
    String Format();
    gdiplus::CLSID FormatCLSID();
    gdiplus::PixelFormat PixelFormat();
    Ref<GpImage> GetThumbnailImage(int32_t thumbWidth, int32_t thumbHeight,
                                   gdiplus::GetThumbnailImageAbort Callback = nullptr,
                                   void* CallbackData = nullptr);
    bool RotateFlip(gdiplus::RotateFlipType Type);

    uint32_t GetEncoderParameterListSize(const gdiplus::CLSID* ClsidEncoder);
    bool GetEncoderParameterList(const gdiplus::CLSID* ClsidEncoder, uint32_t Size,
                                 gdiplus::EncoderParameters* Buffer);

    uint32_t FrameDimensionsCount();
    bool GetFrameDimensionsList(gdiplus::GUID* DimensionIDs, uint32_t Count);
    uint32_t GetFrameCount(const gdiplus::GUID* DimensionID);
    bool SelectActiveFrame(const gdiplus::GUID* DimensionID, uint32_t FrameIndex);

    int32_t PaletteSize();
    bool GetPalette(gdiplus::ColorPalette* Palette, int32_t Size);
    bool SetPalette(const gdiplus::ColorPalette* Palette);

    uint32_t PropertyCount();
    bool GetPropertyIdList(uint32_t Count, gdiplus::PROPID* List);
    uint32_t GetPropertyItemSize(gdiplus::PROPID PropId);
    bool GetPropertyItem(gdiplus::PROPID PropId, uint32_t PropSize, gdiplus::PropertyItem* Buffer);
    bool GetPropertySize(uint32_t& TotalBufferSize, uint32_t& NumProperties);
    bool GetAllPropertyItems(uint32_t TotalBufferSize, uint32_t NumProperties,
                             gdiplus::PropertyItem* Items);
    bool RemovePropertyItem(gdiplus::PROPID PropId);
    bool SetPropertyItem(const gdiplus::PropertyItem* Item);

private:
    /// By the cached encoder of a mime type, without parameters.
    bool SaveCached(const String& filename, const char* mime);
    bool SaveWithQuality(const String& filename, const char* mime, int32_t quality);
};

}  // namespace vxgui
