#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdiplus/bitmap/BitmapCall.h"
#include "vxgui/platform/gdiplus/codec/PageSink.h"
#include "vxgui/platform/gdiplus_codecs.h"

namespace vxgui::gdiplus {
namespace {

// A palette or a picture that the encoder can't write is a failure of no particular kind.
GpStatus Save(Bitmap& bitmap, const CLSID* encoder, const EncoderParameters* parameters,
              const PageSink::Store& store) {
    if (!encoder) return InvalidParameter;
    const std::optional<SaveOptions> options = ReadOptions(parameters);
    if (!options) return InvalidParameter;
    if (!IsEncoder(*encoder)) return UnknownImageFormat;
    bitmap.pages = nullptr;
    if (*encoder == CodecTIFF && options->flag == EncoderValueMultiFrame) {
        bitmap.pages = std::make_shared<PageSink>(store);
        return bitmap.pages->Add(bitmap, *options) ? Ok : GenericError;
    }
    const ByteArray bytes = EncodeBitmap(bitmap, *encoder, *options);
    return !bytes.empty() && store(bytes) ? Ok : GenericError;
}

bool WriteAll(IStream& stream, const ByteArray& bytes, uint64_t start) {
    stream.Seek(static_cast<int64_t>(start), ole::SeekOrigin::Set);
    size_t written = 0;
    while (written < bytes.size()) {
        const auto next = static_cast<uint32_t>(std::min<size_t>(bytes.size() - written, 1u << 30));
        const uint32_t done = stream.Write(bytes.data() + written, next);
        if (done == 0) return false;
        written += done;
    }
    return true;
}

// Adds a page, or ends the file.
GpStatus SaveAdd(Bitmap& file, Bitmap* page, const EncoderParameters* parameters) {
    const std::optional<SaveOptions> options = ReadOptions(parameters);
    if (!options || !options->flag) return InvalidParameter;
    const std::shared_ptr<PageSink> sink = file.pages;
    if (!sink) return GenericError;
    if (*options->flag == EncoderValueFlush || *options->flag == EncoderValueLastFrame) {
        file.pages = nullptr;
    }
    if (*options->flag == EncoderValueFlush) return Ok;
    if (!page) return InvalidParameter;
    return sink->Add(*page, *options) ? Ok : GenericError;
}

}  // namespace

extern "C" {

GpStatus GdipSaveImageToFile(GpImage* image, const WCHAR* filename, const CLSID* encoder,
                             const EncoderParameters* parameters) {
    if (!filename) return InvalidParameter;
    return FlatOnPixels(image, [&](Bitmap& found) {
        const String path = filename;
        return Save(found, encoder, parameters, [path](const ByteArray& bytes) {
            return core7::WriteWholeFile(path, bytes.data(), bytes.size());
        });
    });
}

GpStatus GdipSaveImageToStream(GpImage* image, IStream* stream, const CLSID* encoder,
                               const EncoderParameters* parameters) {
    if (!stream) return InvalidParameter;
    return FlatOnPixels(image, [&](Bitmap& found) {
        const uint64_t start = stream->Seek(0, ole::SeekOrigin::Current).value_or(0);
        return Save(found, encoder, parameters,
                    [to = Ref<IStream>(stream), start](const ByteArray& bytes) {
                        return WriteAll(*to, bytes, start);
                    });
    });
}

GpStatus GdipSaveAdd(GpImage* image, const EncoderParameters* parameters) {
    return FlatOnPixels(image, [&](Bitmap& found) { return SaveAdd(found, &found, parameters); });
}

GpStatus GdipSaveAddImage(GpImage* image, GpImage* newImage, const EncoderParameters* parameters) {
    return FlatOnPixels(image, [&](Bitmap& found) {
        return FlatOnPixels(newImage,
                            [&](Bitmap& page) { return SaveAdd(found, &page, parameters); });
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
