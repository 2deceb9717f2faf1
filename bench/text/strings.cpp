#include "bench/Beside.h"
#include "bench/Pixels.h"
#include "bench/objects/Pictures.h"
#include "bench/text/Line.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui::bench {
namespace {

constexpr int kPlain = 0, kRing = 2, kBoxShadow = 4, kBlurredShadow = 5;

// A style that draws on a host's pixels.
struct StyledText {
    explicit StyledText(int drawStyle)
        : pixels(kLineWidth, kLineHeight, kLineGround),
          dc(gdi::CreateHostDC(
              {pixels.words.data(), kLineWidth, kLineHeight, pixels.Stride(), false})) {
        font->Create("DejaVu Sans", -kLineEm);
        font->Quality = ANTIALIASED_QUALITY;
        style->Create(0x302010, 0, 0, drawStyle, 4, 0, 4, kLineRadius, kLineRadius);
    }
    ~StyledText() { gdi::DeleteDC(dc); }
    StyledText(const StyledText&) = delete;
    StyledText& operator=(const StyledText&) = delete;

    void Draw() {
        style->DrawText(dc, text, DT_SINGLELINE, font, kLineX, kLineY, kLineWidth - kLineX,
                        kLineHeight - 8);
    }

    Session session;
    Pixels pixels;
    gdi::HDC dc;
    Ref<LFont> font = New<LFont>();
    Ref<TextStyle> style = New<TextStyle>();
    String text = kLine;
};

auto Ours(int drawStyle) {
    return [=] {
        auto text = std::make_shared<StyledText>(drawStyle);
        return [=] { text->Draw(); };
    };
}

const bool kAdded = [] {
    Beside("text", "40", "ours", Ours(kPlain));
    Beside("text-ring", "40", "ours", Ours(kRing));
    Beside("text-box-shadow", "40", "ours", Ours(kBoxShadow));
    Beside("text-soft-shadow", "40", "ours", Ours(kBlurredShadow));
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
