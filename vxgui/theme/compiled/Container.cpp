#include "vxgui/theme/compiled/Container.h"

#include <algorithm>
#include <cstring>

#include "vxgui/base/Error.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/limits.h"

namespace vxgui::compiled {
namespace {

constexpr uint8_t kMagic[4] = {'V', 'X', 'S', 'K'};
constexpr uint32_t kVersion = 1;
constexpr size_t kVersionAt = 4, kSizeAt = 8, kChecksumAt = 12, kCountAt = 16;
constexpr size_t kHeaderSize = 20;
constexpr size_t kCheckedFrom = kCountAt;  // the checksum covers all that follows it
constexpr size_t kEntrySize = 12;

uint32_t Load(const ByteArray& file, size_t at) { return LoadLittle<uint32_t>(file.data() + at); }

void Store(ByteArray& file, size_t at, size_t value) {
    StoreLittle(file.data() + at, static_cast<uint32_t>(value));
}

uint32_t ChecksumOf(const ByteArray& file) {
    return core7::Checksum(file.data() + kCheckedFrom, file.size() - kCheckedFrom);
}

String Number(size_t value) { return String::FromInt(static_cast<int64_t>(value)); }

// Smaller limits than one mebibyte are told to the byte.
String InMebibytes(size_t bytes) {
    return bytes >> 20 ? Number(bytes >> 20) + " MiB" : Number(bytes) + " bytes";
}

void CheckTotal(const std::vector<Section>& sections) {
    size_t total = 0;
    for (const Section& section : sections) total += section.bytes.size();
    if (sections.size() > ApartmentLimits().skinSections)
        throw Error(ErrorNumber::Overflow, "CompiledSkin", "too many pictures");
    if (total <= ApartmentLimits().skinBytes) return;
    throw Error(
        ErrorNumber::Overflow, "CompiledSkin",
        "too large: pictures and all, it may have " + InMebibytes(ApartmentLimits().skinBytes));
}

}  // namespace

void RaiseDamaged(const String& why) { throw Error(ErrorNumber::InvalidCall, "CompiledSkin", why); }

bool IsContainer(const ByteArray& file) {
    return file.size() >= sizeof kMagic && std::memcmp(file.data(), kMagic, sizeof kMagic) == 0;
}

ByteArray WriteContainer(const std::vector<Section>& sections) {
    CheckTotal(sections);
    ByteArray file(kHeaderSize + kEntrySize * sections.size());
    size_t entry = kHeaderSize;
    for (const Section& section : sections) {
        const ByteArray stored = core7::Compress(section.bytes);
        Store(file, entry, static_cast<uint32_t>(section.kind));
        Store(file, entry + 4, stored.size());
        Store(file, entry + 8, section.bytes.size());
        entry += kEntrySize;
        file.insert(file.end(), stored.begin(), stored.end());
    }
    std::copy(std::begin(kMagic), std::end(kMagic), file.begin());
    Store(file, kVersionAt, kVersion);
    Store(file, kSizeAt, file.size());
    Store(file, kCountAt, sections.size());
    Store(file, kChecksumAt, ChecksumOf(file));
    return file;
}

Container::Container(const ByteArray& file) : file_(file) {
    CheckHeader();
    ReadTable();
}

void Container::CheckHeader() const {
    if (!IsContainer(file_)) RaiseDamaged("no compiled skin");
    if (file_.size() < kHeaderSize) RaiseDamaged("cut off within its header");
    const uint32_t version = Load(file_, kVersionAt), size = Load(file_, kSizeAt);
    if (version != kVersion)
        RaiseDamaged("a compiled skin of version " + Number(version) + "; only version " +
                     Number(kVersion) + " can be read");
    if (size != file_.size())
        RaiseDamaged((size > file_.size() ? "cut off: it has " : "too long: it has ") +
                     Number(file_.size()) + " bytes and should have " + Number(size));
    if (Load(file_, kChecksumAt) != ChecksumOf(file_))
        RaiseDamaged("damaged: its checksum is not that of its bytes");
}

// All sizes are looked at before a byte of a section is.
void Container::ReadTable() {
    const size_t count = Load(file_, kCountAt);
    if (count > (file_.size() - kHeaderSize) / kEntrySize)
        RaiseDamaged("damaged: its table goes beyond its end");
    if (count > ApartmentLimits().skinSections) RaiseDamaged("refused: too many sections");
    size_t offset = kHeaderSize + kEntrySize * count, total = 0;
    entries_.reserve(count);
    for (size_t at = kHeaderSize; entries_.size() < count; at += kEntrySize) {
        const Entry entry{static_cast<SectionKind>(Load(file_, at)), offset, Load(file_, at + 4),
                          Load(file_, at + 8)};
        total += entry.size;
        if (entry.storedSize > file_.size() - offset)
            RaiseDamaged("damaged: a section goes beyond its end");
        if (total > ApartmentLimits().skinBytes)
            RaiseDamaged("refused: its sections are larger than " +
                         Number(ApartmentLimits().skinBytes >> 20) + " MiB");
        offset += entry.storedSize;
        entries_.push_back(entry);
    }
    if (offset != file_.size()) RaiseDamaged("damaged: bytes stand behind its last section");
}

void Container::Uncompress(size_t index, ByteArray* bytes) const {
    const Entry& entry = entries_[index];
    const auto stored = std::span(file_).subspan(entry.offset, entry.storedSize);
    // What the table says and what the section says of itself must agree before room is made.
    if (core7::GetSize(stored) != entry.size)
        RaiseDamaged("damaged: a section is not as large as the table says");
    if (!core7::Decompress(stored, bytes)) RaiseDamaged("damaged: a section can't be uncompressed");
}

}  // namespace vxgui::compiled
