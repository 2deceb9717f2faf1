#include "vxgui/platform/codecs/BmpRle.h"

#include <algorithm>
#include <cstring>

namespace vxgui::codecs {
namespace {

constexpr uint8_t kEndOfLine = 0, kEndOfPicture = 1, kJump = 2;

class RunDecoder {
public:
    RunDecoder(const BmpHeader& header, Bytes packed, const PixelRows& rows)
        : header_(header), packed_(packed), rows_(rows), four_(header.bits == 4) {}

    bool Decode();

private:
    bool Escape(uint8_t code);
    bool Literal(uint8_t count);
    bool Jump();
    void Put(int64_t count, uint8_t indexes);
    void PutOne(uint8_t index);
    void Clear();
    /// Every row has been left, or the last one filled.
    bool Complete() const {
        return y_ >= header_.height || (y_ == header_.height - 1 && x_ >= header_.width);
    }

    const BmpHeader& header_;
    Bytes packed_;
    const PixelRows& rows_;
    const bool four_;
    size_t at_ = 0;
    int64_t x_ = 0;
    int64_t y_ = 0;  // from the bottom
    bool ended_ = false;
};

void RunDecoder::Clear() {
    for (int32_t y = 0; y < header_.height; ++y) {
        std::memset(rows_.Row(y), 0, static_cast<size_t>(header_.width));
    }
}

void RunDecoder::PutOne(uint8_t index) {
    if (x_ < header_.width && y_ < header_.height) {
        rows_.Row(static_cast<int32_t>(header_.height - 1 - y_))[x_] = index;
    }
    ++x_;
}

// A byte holds one index of 8 bits, or two of 4 bits that take turns.
void RunDecoder::Put(int64_t count, uint8_t indexes) {
    for (int64_t i = 0; i < count; ++i) {
        PutOne(!four_ ? indexes : i % 2 ? indexes & 15 : indexes >> 4);
    }
}

bool RunDecoder::Literal(uint8_t count) {
    const size_t size = four_ ? (count + 1u) / 2 : count;
    if (packed_.size() - at_ < size) return false;
    for (size_t i = 0; i < size; ++i) {
        const auto left = static_cast<int64_t>(four_ ? count - 2 * i : 1);
        Put(four_ ? std::min<int64_t>(2, left) : 1, packed_[at_ + i]);
    }
    at_ += size + size % 2;  // packets begin at even places
    return true;
}

bool RunDecoder::Jump() {
    if (packed_.size() - at_ < 2) return false;
    x_ += packed_[at_];
    y_ += packed_[at_ + 1];
    at_ += 2;
    return true;
}

bool RunDecoder::Escape(uint8_t code) {
    switch (code) {
        case kEndOfLine:
            x_ = 0;
            ++y_;
            return true;
        case kEndOfPicture:
            ended_ = true;
            return true;
        case kJump:
            return Jump();
        default:
            return Literal(code);
    }
}

bool RunDecoder::Decode() {
    Clear();
    while (!ended_ && at_ < packed_.size() && packed_.size() - at_ >= 2) {
        const uint8_t count = packed_[at_], value = packed_[at_ + 1];
        at_ += 2;
        if (count > 0) {
            Put(count, value);
        } else if (!Escape(value)) {
            return false;
        }
    }
    return ended_ || Complete();
}

}  // namespace

bool DecodeBmpRuns(const BmpHeader& header, Bytes packed, const PixelRows& rows) {
    return RunDecoder(header, packed, rows).Decode();
}

}  // namespace vxgui::codecs
