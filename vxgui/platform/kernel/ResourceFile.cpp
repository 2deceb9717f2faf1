#include "vxgui/platform/kernel/ResourceFile.h"

#include <filesystem>
#include <fstream>
#include <vector>

#include "vxgui/platform/kernel/ModuleTable.h"
#include "vxgui/platform/limits.h"

namespace vxgui::kernel {

namespace {

/// Where the DOS header says at which offset the signature "PE\0\0" stands.
constexpr size_t kSignatureOffsetAt = 0x3C;

class ResourceFile : public Module {
public:
    ResourceFile(std::vector<uint8_t> bytes, std::string path)
        : bytes_(std::move(bytes)), path_(std::move(path)) {}

    FARPROC Find(const char*) const override { return nullptr; }
    FARPROC FindOrdinal(uint16_t) const override { return nullptr; }
    std::string Path() const override { return path_; }
    ResourceBlock FileBytes() const override { return {bytes_.data(), bytes_.size()}; }

private:
    std::vector<uint8_t> bytes_;
    std::string path_;
};

std::vector<uint8_t> ReadBytes(const std::string& path) {
    std::error_code failed;
    const uintmax_t size = std::filesystem::file_size(path, failed);
    if (failed || size > ApartmentLimits().moduleBytes) return {};
    std::vector<uint8_t> bytes(size);
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<size_t>(file.gcount()));
    return bytes;
}

bool HasSignature(const std::vector<uint8_t>& bytes) {
    if (bytes.size() < kSignatureOffsetAt + 4) return false;
    size_t offset = 0;
    for (size_t i = 4; i-- > 0;) offset = offset << 8 | bytes[kSignatureOffsetAt + i];
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return offset < text.size() && text.substr(offset).starts_with(std::string_view("PE\0\0", 4));
}

}  // namespace

std::unique_ptr<Module> OpenResourceFile(const std::string& path) {
    std::vector<uint8_t> bytes = ReadBytes(path);
    if (HasSignature(bytes)) return std::make_unique<ResourceFile>(std::move(bytes), path);
    SetLastError(ERROR_BAD_EXE_FORMAT);
    return nullptr;
}

ResourceBlock ModuleFileBytes(HMODULE handle) {
    const std::shared_ptr<Module> module = ModuleTable::Get().At(handle);
    return module ? module->FileBytes() : ResourceBlock();
}

}  // namespace vxgui::kernel
