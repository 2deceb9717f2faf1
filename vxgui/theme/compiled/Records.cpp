#include "vxgui/base/Error.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/limits.h"
#include "vxgui/theme/compiled/Container.h"

namespace vxgui::compiled {
namespace {

constexpr size_t kSizeBytes = 4;

}  // namespace

ByteArray JoinRecords(const std::vector<ByteArray>& records) {
    if (records.size() > ApartmentLimits().skinRecords)
        throw Error(ErrorNumber::Overflow, "CompiledSkin", "too many items, fonts or styles");
    ByteArray bytes;
    for (const ByteArray& record : records) {
        uint8_t size[kSizeBytes];
        StoreLittle(size, static_cast<uint32_t>(record.size()));
        bytes.insert(bytes.end(), size, size + kSizeBytes);
        bytes.insert(bytes.end(), record.begin(), record.end());
    }
    return bytes;
}

std::vector<std::span<const uint8_t>> SplitRecords(std::span<const uint8_t> bytes) {
    std::vector<std::span<const uint8_t>> records;
    for (size_t at = 0; at < bytes.size();) {
        const size_t rest = bytes.size() - at;
        const size_t size = rest < kSizeBytes ? rest : LoadLittle<uint32_t>(bytes.data() + at);
        if (rest < kSizeBytes || size > rest - kSizeBytes)
            RaiseDamaged("damaged: a record goes beyond its section");
        if (records.size() == ApartmentLimits().skinRecords)
            RaiseDamaged("refused: too many records in a section");
        records.push_back(bytes.subspan(at + kSizeBytes, size));
        at += kSizeBytes + size;
    }
    return records;
}

}  // namespace vxgui::compiled
