#include "tools/view/recolour/DefineColours.h"

#include "vxgui/base/NumberText.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/text/ColorText.h"

namespace vxgui::view {
namespace {

/// The keys that one picture of a theme set's section goes by.
struct PictureKeys {
    const char* mode;
    const char* key;
    const char* background;
    const char* uisMode;  ///< 1 for a key colour, in the other dialect
};
constexpr PictureKeys kImage{"TransMode", "TransColor", "ImageBackColor", "Trans"};
constexpr PictureKeys kGlyph{"GlyphTransMode", "GlyphTransColor", "GlyphBackColor",
                             "GlyphTransMode"};

bool IsThemeSet(core7::DefineFile& file) { return file.PositionOf("ThemeSet").line > 0; }

int32_t ColourAt(core7::DefineFile& file, const String& section, const char* key) try {
    String text = file.GetString(section, key, "");
    return ParseColorText(text);
} catch (const Error&) {
    return 0;
}

uint32_t RgbOf(int32_t ref) {
    const auto bits = static_cast<uint32_t>(ref);
    return (bits & 255) << 16 | (bits & 0xFF00) | (bits >> 16 & 255);
}

// Without a colour of its own the key is the one that the picture is set on.
bool KeyIsBackground(core7::DefineFile& file, const String& section, const PictureKeys& keys) {
    return file.GetInteger(section, keys.mode, "2") == 1 &&
           file.GetString(section, keys.key, "").empty();
}

KeyColours KeysOf(core7::DefineFile& file, const String& section, const PictureKeys& keys) {
    if (!IsThemeSet(file)) {
        if (file.GetInteger(section, keys.uisMode, "0") != 1) return {};
        return {RgbOf(DefaultTransColor)};
    }
    if (file.GetInteger(section, keys.mode, "2") != 1) return {};
    const bool own = !KeyIsBackground(file, section, keys);
    return {RgbOf(ColourAt(file, section, own ? keys.key : keys.background))};
}

int32_t BackgroundOf(core7::DefineFile& file, const String& section, const PictureKeys& keys) {
    return IsThemeSet(file) ? ColourAt(file, section, keys.background) : DefaultTransColor;
}

String Joined(int32_t ref, const char* separator) {
    const auto channel = [&](int shift) { return String::FromInt(ref >> shift & 255); };
    return channel(0) + separator + channel(8) + separator + channel(16);
}

/// Changes the values of one file.
class Recolourer {
public:
    Recolourer(core7::DefineFile& file, core7::DefineEditor& editor, const Recolour& how)
        : file_(file), editor_(editor), how_(how) {}

    void Run() {
        const bool set = IsThemeSet(file_);
        for (const String& section : file_.SectionNames()) {
            set ? RecolourThemeSection(section) : RecolourUisSection(section);
            for (const char* key : {"TextColor", "ShadowColor"}) RecolourText(section, key);
        }
    }

private:
    void RecolourThemeSection(const String& section) {
        if (!KeyIsBackground(file_, section, kImage)) RecolourText(section, kImage.background);
        if (!KeyIsBackground(file_, section, kGlyph)) RecolourText(section, kGlyph.background);
    }

    void RecolourUisSection(const String& section) {
        if (section.EqualsNoCase("Colours")) {
            for (const String& key : file_.KeyNames(section)) RecolourParts(section, key);
        } else if (section.Left(6).EqualsNoCase("Colour")) {
            file_.GetString(section, "Colour", "").empty() ? RecolourChannels(section)
                                                           : RecolourParts(section, "Colour");
        }
    }

    // "red,green,blue", with an alpha, or a number, and perhaps a remark.
    void RecolourText(const String& section, const char* key) {
        const String text = file_.GetString(section, key, "");
        String number = text;
        const int32_t colour = ColourAt(file_, section, key);
        const bool plain = text.Find(u',') != String::npos || (colour & ~0xFFFFFF) == 0;
        if (text.empty() || !plain) return;
        const size_t remark = text.Find(u';');
        if (remark != String::npos) number = text.Left(remark);
        const std::vector<String> parts = number.Split(u',');
        String value = Joined(RecolouredRef(colour & 0xFFFFFF, how_), ",");
        if (parts.size() > 3) value += "," + parts[3].Trim();
        if (remark != String::npos) value += " " + text.Mid(remark);
        editor_.SetString(section, key, value);
    }

    // Three numbers with blanks or commas between them.
    void RecolourParts(const String& section, const String& key) {
        const String text = file_.GetString(section, key, "");
        const bool commas = text.Find(u',') != String::npos;
        std::vector<String> numbers;
        for (const String& part : text.Split(commas ? u',' : u' '))
            if (!part.Trim().empty()) numbers.push_back(part);
        if (numbers.size() == 3)
            editor_.SetString(section, key, Joined(Changed(numbers), commas ? "," : " "));
    }

    void RecolourChannels(const String& section) {
        constexpr const char* kChannels[] = {"R", "G", "B"};
        std::vector<String> numbers;
        for (const char* key : kChannels) numbers.push_back(file_.GetString(section, key, "0"));
        if (file_.GetString(section, "R", "").empty()) return;
        const int32_t colour = Changed(numbers);
        for (int i = 0; i < 3; ++i)
            editor_.SetString(section, kChannels[i], String::FromInt(colour >> 8 * i & 255));
    }

    int32_t Changed(const std::vector<String>& numbers) const {
        int32_t colour = 0;
        for (size_t i = 0; i < 3; ++i)
            colour |= (RoundHalfEven(LeadingNumber(numbers[i])) & 255) << (8 * i);
        return RecolouredRef(colour, how_);
    }

    core7::DefineFile& file_;
    core7::DefineEditor& editor_;
    const Recolour how_;
};

}  // namespace

void RecolourDefine(core7::DefineFile& file, core7::DefineEditor& editor, const Recolour& how) {
    if (!how.IsNone()) Recolourer(file, editor, how).Run();
}

KeyColours KeysOfImage(core7::DefineFile& file, const String& section) {
    return KeysOf(file, section, kImage);
}
KeyColours KeysOfGlyph(core7::DefineFile& file, const String& section) {
    return KeysOf(file, section, kGlyph);
}
int32_t BackgroundOfImage(core7::DefineFile& file, const String& section) {
    return BackgroundOf(file, section, kImage);
}
int32_t BackgroundOfGlyph(core7::DefineFile& file, const String& section) {
    return BackgroundOf(file, section, kGlyph);
}

}  // namespace vxgui::view
