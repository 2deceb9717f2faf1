#include <algorithm>
#include <array>
#include <cstring>

#include "vxgui/base/Error.h"
#include "vxgui/base/OutOfMemory.h"
#include "vxgui/frame/ErrorBox.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/messages.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

namespace {

constexpr int32_t kCannotPerform = 17;
constexpr size_t kFileHeaderSize = 14;
constexpr size_t kHeadersSize = kFileHeaderSize + sizeof(gdi::BITMAPINFOHEADER);

/// "BM", the file's size, a reserved 0, and the offset of the pixels.
std::array<uint8_t, kFileHeaderSize> FileHeader(uint32_t imageSize) {
    std::array<uint8_t, kFileHeaderSize> bytes{'B', 'M'};
    const uint32_t fields[] = {imageSize + static_cast<uint32_t>(kHeadersSize), 0, kHeadersSize};
    std::memcpy(bytes.data() + 2, fields, sizeof fields);
    return bytes;
}

}  // namespace

bool cAlphaDIBSection::SaveToByteArray(ByteArray& ByteArray) try {
    const auto imageSize = static_cast<int32_t>(header_.biSizeImage);
    if (imageSize <= 0 || !LiveBits()) return false;
    const auto size = static_cast<size_t>(imageSize);
    ByteArray.assign(kHeadersSize + size, 0);
    std::ranges::copy(FileHeader(header_.biSizeImage), ByteArray.begin());
    std::memcpy(ByteArray.data() + kFileHeaderSize, &header_, sizeof header_);
    std::memcpy(ByteArray.data() + kHeadersSize, bits_, std::min(size, MemorySize()));
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

bool cAlphaDIBSection::SavePicture(const String& sFileName) try {
    return SaveToBmpFile(LiveBits(), sFileName);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.SavePicture");
}

bool cAlphaDIBSection::SavePictureSafely(const String& sFileName) try {
    ByteArray bytes;
    return SaveToByteArray(bytes) && core7::WriteWholeFile(sFileName, bytes.data(), bytes.size());
} catch (const std::bad_alloc&) {
    return false;
}

bool cAlphaDIBSection::SaveToBmpFile(const void* bits, const String& name) {
    const Ref<core7::OutputFile> file = core7::CreateOutputFile(name);
    if (!file) {
        throw Error(kCannotPerform, String(kApplicationTitle) + ".cDIBSection",
                    SystemErrorText(kernel::GetLastError()));
    }
    const auto write = [&](const void* data, size_t size) {
        size_t written = 0;
        const bool result = file->Write(data, size, &written);
        return !WriteFailed(result, size, written);
    };
    const auto fileHeader = FileHeader(header_.biSizeImage);
    const size_t wanted = header_.biSizeImage;
    const size_t there = std::min(wanted, bits ? MemorySize() : 0);
    return write(fileHeader.data(), fileHeader.size()) && write(&header_, sizeof header_) &&
           write(bits, there) && there == wanted;
}

String cAlphaDIBSection::SystemErrorText(uint32_t code) {
    return kernel::FormatMessageA(code);
}

bool cAlphaDIBSection::WriteFailed(bool result, size_t wanted, size_t written) {
    return !(result && written == wanted);
}

}  // namespace vxgui
