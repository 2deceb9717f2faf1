#include <algorithm>
#include <cstring>

#include "vxgui/platform/limits.h"
#include "vxgui/platform/ole_stream.h"

namespace vxgui::ole {
namespace {

class MemoryStream final : public IStream {
public:
    explicit MemoryStream(ByteArray memory) : memory_(std::move(memory)) {}

    uint32_t Read(void* buffer, uint32_t size) override;
    uint32_t Write(const void* bytes, uint32_t size) override;
    std::optional<uint64_t> Seek(int64_t move, SeekOrigin origin) override;
    bool SetSize(uint64_t size) override;
    uint64_t Size() const override { return memory_.size(); }

private:
    ByteArray memory_;
    uint64_t position_ = 0;
};

uint32_t MemoryStream::Read(void* buffer, uint32_t size) {
    if (position_ >= memory_.size()) return 0;
    const auto count = static_cast<uint32_t>(std::min<uint64_t>(size, memory_.size() - position_));
    if (count > 0) std::memcpy(buffer, memory_.data() + position_, count);
    position_ += count;
    return count;
}

uint32_t MemoryStream::Write(const void* bytes, uint32_t size) {
    const uint64_t most = ApartmentLimits().streamBytes;
    if (size == 0 || size > most || position_ > most - size) return 0;
    if (position_ + size > memory_.size() && !SetSize(position_ + size)) return 0;
    std::memcpy(memory_.data() + position_, bytes, size);
    position_ += size;
    return size;
}

std::optional<uint64_t> MemoryStream::Seek(int64_t move, SeekOrigin origin) {
    const uint64_t base = origin == SeekOrigin::Set       ? 0
                          : origin == SeekOrigin::Current ? position_
                                                          : memory_.size();
    int64_t position = 0;
    if (__builtin_add_overflow(static_cast<int64_t>(base), move, &position) || position < 0) {
        return std::nullopt;
    }
    return position_ = static_cast<uint64_t>(position);
}

bool MemoryStream::SetSize(uint64_t size) {
    if (size > ApartmentLimits().streamBytes) return false;
    memory_.resize(size);
    return true;
}

}  // namespace

Ref<IStream> CreateStreamOnHGlobal(ByteArray memory) {
    return New<MemoryStream>(std::move(memory));
}

}  // namespace vxgui::ole
