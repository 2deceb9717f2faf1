#pragma once

#include <functional>

#include "vxgui/platform/gdiplus/codec/ImageSaver.h"

namespace vxgui::gdiplus {

/// A file that gets one page after the other. It is whole after each, so that nothing is lost when
/// nobody ends it.
class PageSink {
public:
    using Store = std::function<bool(const ByteArray& bytes)>;

    explicit PageSink(Store store) : store_(std::move(store)) {}

    bool Add(const Bitmap& bitmap, const SaveOptions& options) {
        return AddPage(writer_, bitmap, options) && store_(writer_.Bytes());
    }

private:
    codecs::TiffWriter writer_;
    const Store store_;
};

}  // namespace vxgui::gdiplus
