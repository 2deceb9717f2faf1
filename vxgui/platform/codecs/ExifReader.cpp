#include "vxgui/platform/codecs/ExifReader.h"

#include <algorithm>

#include "vxgui/base/LittleEndian.h"

namespace vxgui::codecs {
namespace {

constexpr uint32_t kThumbnailOffset = 0x0201, kThumbnailLength = 0x0202;
constexpr size_t kEntrySize = 12;
constexpr int kMostDirectories = 65535;

// The bytes of one number of each stored type, 0 for what is none; and the published type.
struct Stored {
    size_t size;    ///< of one value
    size_t number;  ///< of the numbers that it is made of
    uint16_t published;
};
constexpr Stored kStored[] = {
    {0, 0, 0},
    {1, 1, kPropertyByte},
    {1, 1, kPropertyAscii},
    {2, 2, kPropertyShort},
    {4, 4, kPropertyLong},
    {8, 4, kPropertyRational},
    {1, 1, kPropertyByte},
    {1, 1, kPropertyUndefined},
    {2, 2, kPropertyShort},
    {4, 4, kPropertySignedLong},
    {8, 4, kPropertySignedRational},
    {4, 4, kPropertyUndefined},
    {8, 8, kPropertyUndefined},
    {4, 4, kPropertyLong},
};

class DirectoryReader {
public:
    explicit DirectoryReader(Bytes tiff) : tiff_(tiff) {
        if (tiff_.size() >= 8) big_ = tiff_[0] == 'M';
    }

    size_t First() const { return tiff_.size() >= 8 ? Number(4, 4) : 0; }
    /// Appends the directory's tags; answers where the next one is, 0 for none.
    size_t Read(size_t at, ImageProperties* properties) const;
    Bytes Tiff() const { return tiff_; }

private:
    uint32_t Number(size_t at, size_t size) const {
        uint32_t value = 0;
        for (size_t i = 0; i < size; ++i) {
            value |= static_cast<uint32_t>(tiff_[at + i]) << 8 * (big_ ? size - 1 - i : i);
        }
        return value;
    }
    void ReadEntry(size_t at, ImageProperties* properties) const;

    Bytes tiff_;
    bool big_ = false;
};

void DirectoryReader::ReadEntry(size_t at, ImageProperties* properties) const {
    const uint32_t tag = Number(at, 2), type = Number(at + 2, 2);
    const uint64_t count = Number(at + 4, 4);
    if (type >= std::size(kStored) || kStored[type].size == 0) return;
    const Stored& stored = kStored[type];
    const uint64_t size = count * stored.size;
    const uint64_t from = size <= 4 ? at + 8 : Number(at + 8, 4);
    if (size == 0 || from > tiff_.size() || size > tiff_.size() - from) return;
    ImageProperty property{tag, stored.published, {}};
    const Bytes bytes = tiff_.subspan(from, size);
    property.value.assign(bytes.begin(), bytes.end());
    for (auto unit = property.value.begin(); big_ && unit != property.value.end();
         unit += static_cast<ptrdiff_t>(stored.number)) {
        std::reverse(unit, unit + static_cast<ptrdiff_t>(stored.number));
    }
    properties->push_back(std::move(property));
}

size_t DirectoryReader::Read(size_t at, ImageProperties* properties) const {
    if (at == 0 || at + 2 > tiff_.size()) return 0;
    const size_t count = Number(at, 2), end = at + 2 + count * kEntrySize;
    if (end > tiff_.size()) return 0;
    for (size_t entry = at + 2; entry < end; entry += kEntrySize) ReadEntry(entry, properties);
    return end + 4 <= tiff_.size() ? Number(end, 4) : 0;
}

uint32_t LongOf(const ImageProperties& properties, uint32_t id) {
    for (const ImageProperty& each : properties) {
        if (each.id == id && each.value.size() >= 4) return LoadLittle<uint32_t>(each.value.data());
    }
    return 0;
}

// The tags of the directories that the first one points to take the place of the pointers.
void ReadBranches(const DirectoryReader& reader, ImageProperties* properties) {
    for (const uint32_t branch : {kExifIfd, kGpsIfd}) {
        const size_t at = LongOf(*properties, branch);
        std::erase_if(*properties, [&](const ImageProperty& each) { return each.id == branch; });
        reader.Read(at, properties);
    }
}

// What describes the small picture is numbered apart from what describes the large one.
void ReadThumbnail(const DirectoryReader& reader, size_t at, ImageProperties* properties) {
    ImageProperties small;
    reader.Read(at, &small);
    const size_t offset = LongOf(small, kThumbnailOffset), size = LongOf(small, kThumbnailLength);
    if (offset == 0 || offset > reader.Tiff().size() || size > reader.Tiff().size() - offset)
        return;
    properties->push_back(
        BytesProperty(kThumbnailData, kPropertyByte, reader.Tiff().subspan(offset, size)));
}

}  // namespace

ImageProperties ReadTiffProperties(Bytes tiff, int page) {
    const DirectoryReader reader(tiff);
    ImageProperties properties;
    size_t next = reader.First();
    for (int i = 0; i <= std::min(page, kMostDirectories); ++i) {
        properties.clear();
        next = reader.Read(next, &properties);
    }
    ReadBranches(reader, &properties);
    return properties;
}

ImageProperties ReadExifProperties(Bytes tiff) {
    const DirectoryReader reader(tiff);
    ImageProperties properties;
    const size_t next = reader.Read(reader.First(), &properties);
    ReadBranches(reader, &properties);
    ReadThumbnail(reader, next, &properties);
    return properties;
}

}  // namespace vxgui::codecs
