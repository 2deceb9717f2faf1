#include "vxgui/platform/kernel/resources/PeSections.h"

#include "vxgui/platform/kernel/resources/PeFormat.h"

namespace vxgui::kernel {
namespace {

// The address in the data directory of resources, 0 when there is none.
uint32_t ResourceAddress(ByteSpan optional) {
    const uint16_t magic = optional.Word(0);
    if (magic != pe::kMagic32 && magic != pe::kMagic64) return 0;
    const uint32_t directories = pe::DirectoriesAt(magic);
    if (optional.Dword(directories - 4) <= pe::kResourceDirectory) return 0;
    return optional.Dword(directories + pe::kResourceDirectory * pe::kDirectorySize);
}

// How much of a section the file holds: what pads it to the file's alignment isn't part of it.
uint32_t HeldSize(ByteSpan header) {
    const uint32_t raw = header.Dword(pe::kRawSize);
    const uint32_t size = header.Dword(pe::kVirtualSize);
    return size == 0 ? raw : std::min(raw, size);
}

}  // namespace

PeSections::PeSections(ByteSpan file) : file_(file) {
    const uint64_t start = file.Dword(pe::kSignatureOffsetAt);
    if (file.Dword(start) != pe::kSignature) return;
    const uint32_t optionalSize = file.Word(start + pe::kOptionalSize);
    const uint64_t optional = start + pe::kOptionalHeader;
    const uint32_t count =
        std::min<uint32_t>(file.Word(start + pe::kSectionCount), pe::kMostSections);
    headers_ = file.From(optional + optionalSize, uint64_t{count} * pe::kSectionHeaderSize);
    resources_ = ResourceAddress(file.From(optional, optionalSize));
}

ByteSpan PeSections::At(uint32_t address) const {
    for (size_t at = 0; headers_.Has(at, pe::kSectionHeaderSize); at += pe::kSectionHeaderSize) {
        const ByteSpan header = headers_.From(at, pe::kSectionHeaderSize);
        const uint32_t begin = header.Dword(pe::kVirtualAddress);
        const uint32_t size = HeldSize(header);
        if (address < begin || address - begin >= size) continue;
        const uint32_t offset = address - begin;
        return file_.From(uint64_t{header.Dword(pe::kRawPointer)} + offset, size - offset);
    }
    return {};
}

}  // namespace vxgui::kernel
