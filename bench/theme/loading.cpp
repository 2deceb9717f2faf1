#include <zstd.h>

#include "bench/Beside.h"
#include "bench/theme/SetOnDisk.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/core7.h"

namespace vxgui::bench {
namespace {

auto Ours(String SetOnDisk::*form) {
    return [=] {
        auto disk = std::make_shared<SetOnDisk>();
        return [=] { benchmark::DoNotOptimize(LoadThemeSetFile((*disk).*form)); };
    };
}

// The text parsed and each picture decoded, as often as it is named.
auto DefineBytes() {
    return [] {
        auto disk = std::make_shared<SetOnDisk>();
        return [=] {
            const Ref<core7::DefineFile> file = core7::CreateDefineFile();
            file->OpenFile(disk->define);
            disk->ForEachPicture([](const String& path) {
                const Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
                surface->CreateFromPictureFile(path);
            });
        };
    };
}

// The file read, and its sections uncompressed into memory of their own by a decoder that is kept.
class Uncompressed {
public:
    void Read(const String& path) {
        ByteArray file;
        core7::ReadWholeFile(path, &file);
        const size_t count = LoadLittle<uint32_t>(file.data() + kCountAt);
        std::vector<std::unique_ptr<uint8_t[]>> sections;
        for (size_t at = kHeader + kEntry * count; at < file.size();) {
            const uint8_t* const frame = file.data() + at;
            const size_t stored = ZSTD_findFrameCompressedSize(frame, file.size() - at);
            const auto size = static_cast<size_t>(ZSTD_getFrameContentSize(frame, stored));
            sections.emplace_back(new uint8_t[size]);
            ZSTD_decompressDCtx(decoder_.get(), sections.back().get(), size, frame, stored);
            at += stored;
        }
        benchmark::DoNotOptimize(sections.data());
    }

private:
    static constexpr size_t kHeader = 20, kEntry = 12, kCountAt = 16;  // docs/formats.md
    std::unique_ptr<ZSTD_DCtx, size_t (*)(ZSTD_DCtx*)> decoder_{ZSTD_createDCtx(), ZSTD_freeDCtx};
};

auto CompiledBytes() {
    return [] {
        auto disk = std::make_shared<SetOnDisk>();
        auto bytes = std::make_shared<Uncompressed>();
        return [=] { bytes->Read(disk->compiled); };
    };
}

const bool kAdded = [] {
    const std::string items = std::to_string(SetOnDisk::kItems);
    Beside("load-define", items, "ours", Ours(&SetOnDisk::define));
    Beside("load-define", items, "bytes-alone", DefineBytes());
    Beside("load-compiled", items, "ours", Ours(&SetOnDisk::compiled));
    Beside("load-compiled", items, "bytes-alone", CompiledBytes());
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
