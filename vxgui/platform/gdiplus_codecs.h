#pragma once

#include "vxgui/platform/gdiplus_formats.h"

/// Encoders, frames and properties of images.
namespace vxgui::gdiplus {

extern "C" {

using PROPID = DWORD;

/// The encoders' records: BMP, JPEG, GIF, TIFF, PNG. `size` is that of all records.
VXPLATFORM_API GpStatus GdipGetImageEncodersSize(UINT* count, UINT* size);
VXPLATFORM_API GpStatus GdipGetImageEncoders(UINT count, UINT size, ImageCodecInfo* encoders);
/// The decoders': the same and ICO.
VXPLATFORM_API GpStatus GdipGetImageDecodersSize(UINT* count, UINT* size);
VXPLATFORM_API GpStatus GdipGetImageDecoders(UINT count, UINT size, ImageCodecInfo* decoders);
/// The parameters that an encoder takes, with their values: JPEG and TIFF; `NotImplemented` for
/// encoders without any.
VXPLATFORM_API GpStatus GdipGetEncoderParameterListSize(GpImage* image, const CLSID* encoder,
                                                        UINT* size);
VXPLATFORM_API GpStatus GdipGetEncoderParameterList(GpImage* image, const CLSID* encoder, UINT size,
                                                    EncoderParameters* list);

/// Writes the image as the encoder's format. JPEG takes a quality (75 without) and a
/// transformation; TIFF a compression (LZW without), a colour depth and the flag that pages will
/// follow.
VXPLATFORM_API GpStatus GdipSaveImageToFile(GpImage* image, const WCHAR* filename,
                                            const CLSID* encoder,
                                            const EncoderParameters* parameters);
/// The same from the stream's position on.
VXPLATFORM_API GpStatus GdipSaveImageToStream(GpImage* image, IStream* stream, const CLSID* encoder,
                                              const EncoderParameters* parameters);
/// Adds the image as it is now, or another, to the file that `image` was saved to with the flag for
/// several frames; the flush flag ends that file. `GenericError` when there is none.
VXPLATFORM_API GpStatus GdipSaveAdd(GpImage* image, const EncoderParameters* parameters);
VXPLATFORM_API GpStatus GdipSaveAddImage(GpImage* image, GpImage* newImage,
                                         const EncoderParameters* parameters);

/// Each image has one dimension of frames: time for a GIF, pages for all others.
VXPLATFORM_API GpStatus GdipImageGetFrameDimensionsCount(GpImage* image, UINT* count);
VXPLATFORM_API GpStatus GdipImageGetFrameDimensionsList(GpImage* image, GUID* dimensions,
                                                        UINT count);
VXPLATFORM_API GpStatus GdipImageGetFrameCount(GpImage* image, const GUID* dimension, UINT* count);
/// Shows another frame: of a GIF what its pictures add up to by then.
VXPLATFORM_API GpStatus GdipImageSelectActiveFrame(GpImage* image, const GUID* dimension,
                                                   UINT frame);

/// Properties by number. Sizes are those of the records with their values; one that isn't the right
/// one is an invalid parameter, and so is a wrong count. `PropertyNotFound` for a number that the
/// image hasn't got.
VXPLATFORM_API GpStatus GdipGetPropertyCount(GpImage* image, UINT* count);
VXPLATFORM_API GpStatus GdipGetPropertyIdList(GpImage* image, UINT count, PROPID* ids);
VXPLATFORM_API GpStatus GdipGetPropertyItemSize(GpImage* image, PROPID id, UINT* size);
VXPLATFORM_API GpStatus GdipGetPropertyItem(GpImage* image, PROPID id, UINT size,
                                            PropertyItem* item);
VXPLATFORM_API GpStatus GdipGetPropertySize(GpImage* image, UINT* size, UINT* count);
VXPLATFORM_API GpStatus GdipGetAllPropertyItems(GpImage* image, UINT size, UINT count,
                                                PropertyItem* items);
VXPLATFORM_API GpStatus GdipRemovePropertyItem(GpImage* image, PROPID id);
/// Adds a property or changes it.
VXPLATFORM_API GpStatus GdipSetPropertyItem(GpImage* image, const PropertyItem* item);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_CODECS(X)         \
    X(GdipGetAllPropertyItems)          \
    X(GdipGetEncoderParameterList)      \
    X(GdipGetEncoderParameterListSize)  \
    X(GdipGetImageDecoders)             \
    X(GdipGetImageDecodersSize)         \
    X(GdipGetImageEncoders)             \
    X(GdipGetImageEncodersSize)         \
    X(GdipGetPropertyCount)             \
    X(GdipGetPropertyIdList)            \
    X(GdipGetPropertyItem)              \
    X(GdipGetPropertyItemSize)          \
    X(GdipGetPropertySize)              \
    X(GdipImageGetFrameCount)           \
    X(GdipImageGetFrameDimensionsCount) \
    X(GdipImageGetFrameDimensionsList)  \
    X(GdipImageSelectActiveFrame)       \
    X(GdipRemovePropertyItem)           \
    X(GdipSaveAdd)                      \
    X(GdipSaveAddImage)                 \
    X(GdipSaveImageToFile)              \
    X(GdipSaveImageToStream)            \
    X(GdipSetPropertyItem)
