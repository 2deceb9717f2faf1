#include <CLI/CLI.hpp>
#include <cstdlib>
#include <memory>

#include "tools/vxgui/Batch.h"
#include "tools/vxgui/Commands.h"
#include "tools/vxgui/EffectOptions.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/frame/modGdiplus.h"

namespace vxgui::tool {
namespace {

struct Options {
    Batch batch;
    std::shared_ptr<WantedEffects> effects = std::make_shared<WantedEffects>();
};

// A bitmap over the surface's own pixels, whose bottom row is the first in memory.
gdiplus::GpBitmap* BitmapOver(cAlphaDIBSection& surface) {
    const int32_t stride = surface.BytesPerScanLine();
    auto* const bottom = static_cast<uint8_t*>(surface.DIBSectionBitsPtr());
    uint8_t* const top = bottom + static_cast<ptrdiff_t>(surface.Height() - 1) * stride;
    gdiplus::GpBitmap* bitmap = nullptr;
    if (flat::GdipCreateBitmapFromScan0(surface.Width(), surface.Height(), -stride,
                                        gdiplus::PixelFormat32bppARGB, top,
                                        &bitmap) != gdiplus::Ok) {
        throw std::runtime_error("no bitmap can be made");
    }
    return bitmap;
}

void Apply(const std::vector<Ref<GpEffect>>& effects, cAlphaDIBSection& surface) {
    gdiplus::GpBitmap* const bitmap = BitmapOver(surface);
    auto status = gdiplus::Ok;
    for (const Ref<GpEffect>& effect : effects) {
        if (status != gdiplus::Ok) break;
        status =
            flat::GdipBitmapApplyEffect(bitmap, effect->Handle(), nullptr, 0, nullptr, nullptr);
    }
    flat::GdipDisposeImage(reinterpret_cast<gdiplus::GpImage*>(bitmap));
    if (status != gdiplus::Ok) throw std::runtime_error("the effect can't be applied");
}

}  // namespace

void AddEffect(CLI::App& app, std::ostream& out, std::ostream& progress) {
    const auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand(
        "effect", "Apply effects to pictures: blur, sharpen, tint, levels and others");
    AddBatchOptions(*command, options->batch);
    AddEffectOptions(*command, options->effects);
    command->footer(
        "Several effects are applied in the order of this list; one that is given twice is applied "
        "twice.\n"
        "Examples:\n"
        "  vxgui effect photo.jpg -o soft.png --blur 6\n"
        "  vxgui effect photo.jpg -o crisp.png --sharpen 2,60\n"
        "  vxgui effect button.png -o warm.png --tint -120,30 --levels 95,10,5\n"
        "  vxgui effect strips/*.tga -o bright --to tga --brightness-contrast 20,10\n"
        "  vxgui effect face.jpg -o face.png --red-eye 120,80,24,24 --red-eye 190,82,24,24");
    command->callback([options, &out, &progress] {
        const std::vector<Ref<GpEffect>> effects = MakeEffects(*options->effects);
        RunBatch(
            options->batch, [&](cAlphaDIBSection& surface) { Apply(effects, surface); }, out,
            progress);
    });
}

}  // namespace vxgui::tool
