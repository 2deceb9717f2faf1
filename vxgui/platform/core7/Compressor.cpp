#include <zlib.h>
#include <zstd.h>

#include <memory>
#include <new>

#include "vxgui/base/Error.h"
#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

// A block of a frame takes four bytes at the least and gives 128 KiB at the most (RFC 8878,
// section 3.1.1.2), so a short frame cannot hold what a big claim would have us make room for.
constexpr uint64_t kLeastBlock = 4;
constexpr uint64_t kMostContent = 128 << 10;

bool IsPlausible(uint64_t content, size_t frame) {
    return content <= (frame / kLeastBlock + 1) * kMostContent;
}

// What the frame says that it holds; none for what is no frame, does not say, or cannot be true.
std::optional<size_t> ClaimedSize(std::span<const uint8_t> frame) {
    const uint64_t claimed = ZSTD_getFrameContentSize(frame.data(), frame.size());
    if (claimed == ZSTD_CONTENTSIZE_UNKNOWN || claimed == ZSTD_CONTENTSIZE_ERROR) return {};
    if (claimed > ApartmentDecompressionLimit() || !IsPlausible(claimed, frame.size())) return {};
    return static_cast<size_t>(claimed);
}

// One for each thread: its tables take longer to make than a small picture to decode.
ZSTD_DCtx* Decoder() {
    static thread_local const std::unique_ptr<ZSTD_DCtx, size_t (*)(ZSTD_DCtx*)> decoder(
        ZSTD_createDCtx(), ZSTD_freeDCtx);
    return decoder.get();
}

[[noreturn]] void RaiseOutOfMemory() {
    throw Error(ErrorNumber::OutOfMemory, "Compressor", "Out of memory");
}

}  // namespace

ByteArray Compress(const ByteArray& bytes) {
    const std::unique_ptr<ZSTD_CCtx, size_t (*)(ZSTD_CCtx*)> context(ZSTD_createCCtx(),
                                                                     ZSTD_freeCCtx);
    if (!context) RaiseOutOfMemory();
    ZSTD_CCtx_setParameter(context.get(), ZSTD_c_checksumFlag, 1);
    ByteArray frame(ZSTD_compressBound(bytes.size()));
    const size_t size =
        ZSTD_compress2(context.get(), frame.data(), frame.size(), bytes.data(), bytes.size());
    if (ZSTD_isError(size)) RaiseOutOfMemory();  // nothing else can go wrong with room enough
    frame.resize(size);
    return frame;
}

size_t GetSize(const ByteArray& compressed) { return GetSize(std::span(compressed)); }

size_t GetSize(std::span<const uint8_t> compressed) { return ClaimedSize(compressed).value_or(0); }

std::optional<ByteArray> Decompress(const ByteArray& compressed) {
    return Decompress(std::span(compressed));
}

std::optional<ByteArray> Decompress(std::span<const uint8_t> compressed) {
    ByteArray bytes;
    if (!Decompress(compressed, &bytes)) return {};
    return bytes;
}

bool Decompress(std::span<const uint8_t> compressed, ByteArray* bytes) try {
    const std::optional<size_t> claimed = ClaimedSize(compressed);
    if (!claimed || !Decoder()) return false;
    bytes->resize(*claimed);
    const size_t size = ZSTD_decompressDCtx(Decoder(), bytes->data(), bytes->size(),
                                            compressed.data(), compressed.size());
    return !ZSTD_isError(size) && size == bytes->size();
} catch (const std::bad_alloc&) {
    return false;
}

uint32_t Checksum(const uint8_t* bytes, size_t size) {
    return static_cast<uint32_t>(crc32_z(0, bytes, size));
}

}  // namespace vxgui::core7
