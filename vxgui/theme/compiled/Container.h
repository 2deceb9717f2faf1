#pragma once

#include <span>
#include <vector>

#include "vxgui/base/Variant.h"

/// The file of a compiled skin: a header, a table, and compressed sections one behind the other.
/// docs/formats.md has it byte by byte.
namespace vxgui::compiled {

constexpr uint32_t FourLetters(const char (&text)[5]) {
    uint32_t letters = 0;
    for (int i = 3; i >= 0; --i) letters = letters << 8 | static_cast<uint8_t>(text[i]);
    return letters;
}

enum class SectionKind : uint32_t {
    Set = FourLetters("SET "),
    Picture = FourLetters("PICT"),
    Fonts = FourLetters("FONT"),
    Styles = FourLetters("STYL"),
    Items = FourLetters("ITEM"),
    Notes = FourLetters("NOTE"),
};

struct Section {
    SectionKind kind;
    ByteArray bytes;
};

/// Raises the overflow error for more than a reader takes.
VXGUI_LOCAL ByteArray WriteContainer(const std::vector<Section>& sections);

/// A container's sections, uncompressed one at a time: pictures are large.
class VXGUI_LOCAL Container {
public:
    /// `file` must outlive the object. Raises error 5, with what is wrong, for anything but a
    /// whole and undamaged container.
    explicit Container(const ByteArray& file);

    size_t Count() const { return entries_.size(); }
    SectionKind KindOf(size_t index) const { return entries_[index].kind; }
    /// Stores the bytes of a section in memory that serves again.
    void Uncompress(size_t index, ByteArray* bytes) const;

private:
    struct Entry {
        SectionKind kind;
        size_t offset;
        size_t storedSize;
        size_t size;
    };
    void CheckHeader() const;
    void ReadTable();

    const ByteArray& file_;
    std::vector<Entry> entries_;
};

/// Whether the first bytes are a container's.
VXGUI_LOCAL bool IsContainer(const ByteArray& file);

/// Raises error 5 for a compiled skin that can't be what it says.
[[noreturn]] VXGUI_LOCAL void RaiseDamaged(const String& why);

/// Blocks of bytes, each with its size before it.
VXGUI_LOCAL ByteArray JoinRecords(const std::vector<ByteArray>& records);
/// The blocks where they stand in `bytes`.
VXGUI_LOCAL std::vector<std::span<const uint8_t>> SplitRecords(std::span<const uint8_t> bytes);

}  // namespace vxgui::compiled
