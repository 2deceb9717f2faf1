#pragma once

#include <cstdint>

/// Offsets and constants of the PE/COFF format as published, as far as resources need them.
namespace vxgui::kernel::pe {

// DOS header.
constexpr uint32_t kSignatureOffsetAt = 0x3C, kDosHeaderSize = 0x40;
constexpr uint32_t kSignature = 0x00004550;  // "PE", 0, 0

// COFF header, from the signature.
constexpr uint32_t kMachine = 4, kSectionCount = 6, kOptionalSize = 20, kCharacteristics = 22,
                   kOptionalHeader = 24;

// Optional header.
constexpr uint16_t kMagic32 = 0x10B, kMagic64 = 0x20B;
constexpr uint32_t kDirectorySize = 8, kResourceDirectory = 2;

/// Where the table of data directories stands in the optional header; its count is the four
/// bytes before it.
constexpr uint32_t DirectoriesAt(uint16_t magic) { return magic == kMagic64 ? 112 : 96; }

// Section header.
constexpr uint32_t kSectionHeaderSize = 40, kVirtualSize = 8, kVirtualAddress = 12, kRawSize = 16,
                   kRawPointer = 20, kSectionFlags = 36;
/// The most that a loader takes.
constexpr uint32_t kMostSections = 96;

// Resource directories; each is a header and entries, the ones with names before those with
// numbers. The high bit of an entry's name marks an offset to a text, that of its target one to
// a directory.
constexpr uint32_t kNamedCount = 12, kNumberCount = 14, kTableSize = 16, kEntrySize = 8,
                   kDataEntrySize = 16, kHighBit = 0x80000000;

}  // namespace vxgui::kernel::pe
