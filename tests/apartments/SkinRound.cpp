#include "tests/apartments/SkinRound.h"

#include <cstring>

#include "generated/Places.h"

namespace vxgui::test {
namespace {

const char* const kSkin = VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme";

void AdjustAll(const ThemeSet& set, int number) {
    for (int32_t i = 1; i <= set.ThemeItems()->Count(); ++i) {
        const Ref<cAlphaDIBSection> image = set.Item(i)->Image();
        if (image) image->AdjustHLS(static_cast<float>(number * 40), 10, -10, false);
    }
}

}  // namespace

uint64_t SkinRound::Sum() const {
    const auto* bytes = static_cast<const std::byte*>(canvas_->DIBSectionBitsPtr());
    uint64_t sum = 0;
    for (int32_t i = 0; i < canvas_->Height() * canvas_->BytesPerScanLine(); i += 4) {
        uint32_t pixel = 0;
        std::memcpy(&pixel, bytes + i, sizeof pixel);
        sum = sum * 31 + pixel;
    }
    return sum;
}

void SkinRound::Paint(ThemeItem& item) {
    item.DrawBackground(canvas_->hDC(), 3, 2, 110, 50, -1, -1);
    item.DrawText(canvas_->hDC(), "Caption", 0, -1, 4, 4);
}

uint64_t SkinRound::PaintAll(const ThemeSet& set) {
    uint64_t sum = 0;
    for (int32_t i = 1; i <= set.ThemeItems()->Count(); ++i) {
        const Ref<ThemeItem> item = set.Item(i);
        for (int32_t state = E_ItemStateNormal; state <= E_ItemStateFocusMouseOver; ++state) {
            item->State(state);
            Paint(*item);
        }
        sum = sum * 31 + Sum();
    }
    return sum;
}

uint64_t SkinRound::Run(int number) {
    const gdi::RECT all{0, 0, canvas_->Width(), canvas_->Height()};
    gdi::FillRect(canvas_->hDC(), &all, static_cast<gdi::HBRUSH>(gdi::GetStockObject(0)));
    const Ref<ThemeSet> set = LoadThemeSetFile(kSkin);
    AdjustAll(*set, number);
    const uint64_t first = PaintAll(*set);
    const String saved = folder_.Path("saved.vxs");
    CompiledSkin skin;
    skin.set = set;
    SaveCompiledSkin(skin, saved);
    canvas_->SavePicture(folder_.Path("picture.bmp"));
    return first * 31 + PaintAll(*LoadThemeSetFile(saved));
}

}  // namespace vxgui::test
