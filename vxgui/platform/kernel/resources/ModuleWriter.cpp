#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/kernel.h"
#include "vxgui/platform/kernel/resources/PeFormat.h"
#include "vxgui/platform/kernel/resources/ResourceWriter.h"

namespace vxgui::kernel {
namespace {

constexpr uint32_t kFileAlignment = 0x200, kSectionAlignment = 0x1000;
constexpr uint32_t kSectionAddress = kSectionAlignment;
constexpr uint32_t kDirectoryCount = 16;
// Initialized data that can be read.
constexpr uint32_t kReadableData = 0x40000040;

uint32_t AlignUp(size_t value, uint32_t alignment) {
    return static_cast<uint32_t>((value + alignment - 1) / alignment * alignment);
}

class Header {
public:
    explicit Header(bool wide) : wide_(wide), bytes_(kFileAlignment) {}

    ByteArray Write(uint32_t sectionSize) {
        WriteCoff();
        WriteOptional(sectionSize);
        WriteSection(sectionSize);
        return std::move(bytes_);
    }

private:
    static constexpr uint32_t kCoff = pe::kDosHeaderSize;
    static constexpr uint32_t kOptional = kCoff + pe::kOptionalHeader;

    void Word(uint32_t at, uint16_t value) { StoreLittle(&bytes_[at], value); }
    void Dword(uint32_t at, uint32_t value) { StoreLittle(&bytes_[at], value); }
    uint16_t Magic() const { return wide_ ? pe::kMagic64 : pe::kMagic32; }
    uint32_t Directories() const { return pe::DirectoriesAt(Magic()); }
    uint32_t OptionalSize() const { return Directories() + kDirectoryCount * pe::kDirectorySize; }

    void WriteCoff() {
        Word(0, 0x5A4D);  // "MZ"
        Dword(pe::kSignatureOffsetAt, kCoff);
        Dword(kCoff, pe::kSignature);
        Word(kCoff + pe::kMachine, wide_ ? 0x8664 : 0x14C);
        Word(kCoff + pe::kSectionCount, 1);
        Word(kCoff + pe::kOptionalSize, static_cast<uint16_t>(OptionalSize()));
        // A library, executable in form, for 32-bit machines or with large addresses.
        Word(kCoff + pe::kCharacteristics, wide_ ? 0x2022 : 0x2102);
    }

    void WriteOptional(uint32_t sectionSize) {
        Word(kOptional, Magic());
        Dword(kOptional + 8, AlignUp(sectionSize, kFileAlignment));  // initialized data
        Dword(kOptional + (wide_ ? 24 : 28), 0x10000000);            // preferred base
        Dword(kOptional + 32, kSectionAlignment);
        Dword(kOptional + 36, kFileAlignment);
        Word(kOptional + 40, 4);  // versions of system and subsystem
        Word(kOptional + 48, 4);
        Dword(kOptional + 56, kSectionAddress + AlignUp(sectionSize, kSectionAlignment));
        Dword(kOptional + 60, kFileAlignment);  // size of the headers
        Word(kOptional + 68, 2);                // a windowed subsystem
        Dword(kOptional + Directories() - 4, kDirectoryCount);
        const uint32_t resources =
            kOptional + Directories() + pe::kResourceDirectory * pe::kDirectorySize;
        Dword(resources, kSectionAddress);
        Dword(resources + 4, sectionSize);
    }

    void WriteSection(uint32_t sectionSize) {
        const uint32_t at = kOptional + OptionalSize();
        const std::string_view name = ".rsrc";
        std::copy(name.begin(), name.end(), bytes_.begin() + at);
        Dword(at + pe::kVirtualSize, sectionSize);
        Dword(at + pe::kVirtualAddress, kSectionAddress);
        Dword(at + pe::kRawSize, AlignUp(sectionSize, kFileAlignment));
        Dword(at + pe::kRawPointer, kFileAlignment);
        Dword(at + pe::kSectionFlags, kReadableData);
    }

    bool wide_;
    ByteArray bytes_;
};

}  // namespace

ByteArray WriteResourceModule(const std::vector<ModuleResource>& resources, bool wide) {
    const ByteArray section = ResourceSection(resources, kSectionAddress);
    ByteArray file = Header(wide).Write(static_cast<uint32_t>(section.size()));
    file.insert(file.end(), section.begin(), section.end());
    file.resize(AlignUp(file.size(), kFileAlignment));
    return file;
}

}  // namespace vxgui::kernel
