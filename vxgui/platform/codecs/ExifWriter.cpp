#include "vxgui/platform/codecs/ExifWriter.h"

#include <algorithm>

#include "vxgui/base/LittleEndian.h"

namespace vxgui::codecs {
namespace {

constexpr size_t kHeaderSize = 8, kEntrySize = 12;

// What tells of the stored pixels is no longer true of the new file's.
bool TellsOfStorage(uint32_t id) {
    return (id >= 0x0100 && id <= 0x0103) || id == 0x0106 || id == 0x0111 ||
           (id >= 0x0115 && id <= 0x0117) || id == 0x011C || id == 0x0140 || id == kExifIfd ||
           id == kGpsIfd || id == kXResolution || id == kYResolution || id == kResolutionUnit ||
           id == 0x0201 || id == 0x0202;
}

// Own numbers, which no tag has, begin at 0x5000 and end before 0x8000; those below 0x00FE are of
// the satellite directory or of no file at all.
enum class Directory { None, Main, Exif, Gps };
Directory DirectoryOf(uint32_t id) {
    if (TellsOfStorage(id)) return Directory::None;
    if (id <= 0x1F) return Directory::Gps;
    if (id >= 0x829A && id <= 0xA4FF && id != kIccProfile) return Directory::Exif;
    const bool own = (id >= 0x0300 && id < 0x0400) || (id >= 0x5000 && id < 0x8000);
    return id >= 0xFE && !own && id <= 0x8298 ? Directory::Main : Directory::None;
}

size_t SizeOfType(uint16_t type) {
    switch (type) {
        case kPropertyShort:
            return 2;
        case kPropertyLong:
        case kPropertySignedLong:
            return 4;
        case kPropertyRational:
        case kPropertySignedRational:
            return 8;
        default:
            return 1;
    }
}

class ExifWriter {
public:
    std::vector<uint8_t> Write(const ImageProperties& properties);

private:
    static ImageProperties Only(const ImageProperties& properties, Directory directory);
    /// Appends a directory with its long values behind; answers where it begins.
    uint32_t Append(const ImageProperties& entries);
    void PutEntry(size_t at, const ImageProperty& entry);

    std::vector<uint8_t> bytes_;
};

// In ascending order, as readers may expect.
ImageProperties ExifWriter::Only(const ImageProperties& properties, Directory directory) {
    ImageProperties only;
    for (const ImageProperty& each : properties) {
        if (DirectoryOf(each.id) == directory && !each.value.empty()) only.push_back(each);
    }
    std::ranges::stable_sort(only, {}, &ImageProperty::id);
    return only;
}

void ExifWriter::PutEntry(size_t at, const ImageProperty& entry) {
    StoreLittle(&bytes_[at], static_cast<uint16_t>(entry.id));
    StoreLittle(&bytes_[at + 2], entry.type);
    StoreLittle(&bytes_[at + 4],
                static_cast<uint32_t>(entry.value.size() / SizeOfType(entry.type)));
    if (entry.value.size() <= 4) {
        std::ranges::copy(entry.value, bytes_.begin() + static_cast<ptrdiff_t>(at) + 8);
        return;
    }
    if (bytes_.size() % 2) bytes_.push_back(0);
    StoreLittle(&bytes_[at + 8], static_cast<uint32_t>(bytes_.size()));
    bytes_.insert(bytes_.end(), entry.value.begin(), entry.value.end());
}

uint32_t ExifWriter::Append(const ImageProperties& entries) {
    if (bytes_.size() % 2) bytes_.push_back(0);
    const size_t start = bytes_.size();
    bytes_.resize(start + 2 + entries.size() * kEntrySize + 4);
    StoreLittle(&bytes_[start], static_cast<uint16_t>(entries.size()));
    for (size_t i = 0; i < entries.size(); ++i) PutEntry(start + 2 + i * kEntrySize, entries[i]);
    return static_cast<uint32_t>(start);
}

std::vector<uint8_t> ExifWriter::Write(const ImageProperties& properties) {
    ImageProperties main = Only(properties, Directory::Main);
    const ImageProperties exif = Only(properties, Directory::Exif);
    const ImageProperties gps = Only(properties, Directory::Gps);
    if (main.empty() && exif.empty() && gps.empty()) return {};
    bytes_ = {'I', 'I', 42, 0, 0, 0, 0, 0};
    if (!exif.empty()) main.push_back(LongsProperty(kExifIfd, kPropertyLong, {Append(exif)}));
    if (!gps.empty()) main.push_back(LongsProperty(kGpsIfd, kPropertyLong, {Append(gps)}));
    const uint32_t start = Append(main);
    StoreLittle(&bytes_[4], start);
    bytes_.insert(bytes_.begin(), {'E', 'x', 'i', 'f', 0, 0});
    return std::move(bytes_);
}

}  // namespace

std::vector<uint8_t> WriteExif(const ImageProperties& properties) {
    return ExifWriter().Write(properties);
}

}  // namespace vxgui::codecs
