#include "vxgui/platform/codecs/IcoDecoder.h"

#include <algorithm>

#include "vxgui/platform/codecs/IconFile.h"

namespace vxgui::codecs {
namespace {

class IcoDecoder final : public ImageDecoder {
public:
    explicit IcoDecoder(Bytes bytes) : ImageDecoder(ImageFormat::Icon), entry_(OpenIcon(bytes)) {}

    bool ReadHeader();
    bool Decode(const PixelRows& rows) override;

private:
    bool HasNoAlpha(const PixelRows& rows) const;
    void ApplyMask(const PixelRows& rows) const;

    std::unique_ptr<IconEntry> entry_;
};

bool IcoDecoder::ReadHeader() {
    if (!entry_) return false;
    header_.width = entry_->colours->Header().width;
    header_.height = entry_->colours->Header().height;
    header_.hasAlpha = entry_->colours->Header().hasAlpha ||
                       std::ranges::any_of(entry_->mask, [](uint8_t bits) { return bits != 0; });
    return true;
}

bool IcoDecoder::HasNoAlpha(const PixelRows& rows) const {
    for (int32_t y = 0; y < header_.height; ++y) {
        for (int32_t x = 0; x < header_.width; ++x) {
            if (rows.Row(y)[4 * x + 3] != 0) return false;
        }
    }
    return true;
}

void IcoDecoder::ApplyMask(const PixelRows& rows) const {
    for (int32_t y = 0; y < header_.height; ++y) {
        for (int32_t x = 0; x < header_.width; ++x) {
            rows.Row(y)[4 * x + 3] = entry_->Masked(x, y) ? 0 : 255;
        }
    }
}

bool IcoDecoder::Decode(const PixelRows& rows) {
    if (!entry_->colours->Decode(rows)) return false;
    if (!entry_->storesAlpha || (HasNoAlpha(rows) && !entry_->mask.empty())) ApplyMask(rows);
    return true;
}

}  // namespace

std::unique_ptr<ImageDecoder> OpenIco(Bytes bytes) {
    return OpenWithin(std::make_unique<IcoDecoder>(bytes));
}

}  // namespace vxgui::codecs
