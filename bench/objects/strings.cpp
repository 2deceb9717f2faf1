#include <pango/pangocairo.h>

#include <string>

#include "bench/Beside.h"
#include "bench/objects/Pictures.h"

namespace vxgui::bench {
namespace {

using namespace gdiplus;

constexpr char kText[] = "The quick brown fox jumps over lazy dogs";  // 40 characters
static_assert(sizeof kText == 41);
constexpr ARGB kColor = 0xFF102030;

// A text of its own each time: the last characters count.
class Counted {
public:
    const char* Next() {
        static int count = 0;  // goes on from one repetition to the next
        for (int i = 0, rest = ++count; i < 6; ++i, rest /= 10) {
            text_[text_.size() - 1 - static_cast<size_t>(i)] = static_cast<char>('0' + rest % 10);
        }
        return text_.c_str();
    }
    std::u16string NextWide() {
        const std::string_view text = Next();
        return {text.begin(), text.end()};
    }

private:
    std::string text_ = kText;
};

struct OurText : OurCanvas {
    OurText() : OurCanvas(400, 40) {
        GpFontFamily* family = nullptr;
        GdipCreateFontFamilyFromName(u"DejaVu Sans", nullptr, &family);
        GdipCreateFont(family, 12, FontStyleRegular, UnitPixel, &font);
        GdipDeleteFontFamily(family);
        GdipSetTextRenderingHint(graphics, TextRenderingHintAntiAlias);
    }
    ~OurText() { GdipDeleteFont(font); }

    void Draw(const std::u16string& text) {
        const GpRectF room{4, 8, 0, 0};
        GdipDrawString(graphics, text.c_str(), -1, font, &room, nullptr, brush.get());
    }
    void Measure(const std::u16string& text) {
        const GpRectF room{4, 8, 0, 0};
        GpRectF box;
        GdipMeasureString(graphics, text.c_str(), -1, font, &room, nullptr, &box, nullptr, nullptr);
        benchmark::DoNotOptimize(box);
    }

    GpFont* font = nullptr;
    std::shared_ptr<GpBrush> brush = OurBrush(kColor);
    std::u16string kept{std::begin(kText), std::end(kText) - 1};
    Counted counted;
};

struct PangoText : CairoCanvas {
    PangoText() : CairoCanvas(400, 40) {
        layout = pango_cairo_create_layout(cairo);
        PangoFontDescription* font = pango_font_description_from_string("DejaVu Sans");
        pango_font_description_set_absolute_size(font, 12 * PANGO_SCALE);
        pango_layout_set_font_description(layout, font);
        pango_font_description_free(font);
        pango_layout_set_text(layout, kText, -1);
    }
    ~PangoText() { g_object_unref(layout); }

    void Draw() {
        SetCairoColor(cairo, kColor);
        cairo_move_to(cairo, 4, 8);
        pango_cairo_show_layout(cairo, layout);
    }
    void Measure() {
        PangoRectangle box;
        pango_layout_get_extents(layout, nullptr, &box);
        benchmark::DoNotOptimize(box);
    }

    PangoLayout* layout;
    Counted counted;
};

template <class Text, class Draw>
void Add(const char* work, const char* who, Draw draw) {
    Beside(work, "40", who, [=] {
        auto text = std::make_shared<Text>();
        return [=] { draw(*text); };
    });
}

const bool kAdded = [] {
    // The same text again, for which Pango's layout is kept.
    Add<OurText>("text", "ours", [](OurText& text) { text.Draw(text.kept); });
    Add<PangoText>("text", "pango", [](PangoText& text) { text.Draw(); });
    // Another text each time.
    Add<OurText>("text-new", "ours", [](OurText& text) { text.Draw(text.counted.NextWide()); });
    Add<PangoText>("text-new", "pango", [](PangoText& text) {
        pango_layout_set_text(text.layout, text.counted.Next(), -1);
        text.Draw();
    });
    Add<OurText>("measure-new", "ours",
                 [](OurText& text) { text.Measure(text.counted.NextWide()); });
    Add<PangoText>("measure-new", "pango", [](PangoText& text) {
        pango_layout_set_text(text.layout, text.counted.Next(), -1);
        text.Measure();
    });
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
