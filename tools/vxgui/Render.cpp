#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>

#include "tools/vxgui/Commands.h"
#include "tools/vxgui/ScaleOption.h"
#include "tools/vxgui/Sheet.h"
#include "tools/vxgui/ToolError.h"
#include "tools/vxgui/TransparentSheet.h"
#include "vxgui/theme/ItemLook.h"
#include "vxgui/theme/ScaledLength.h"
#include "vxgui/theme/skin/Skin.h"

namespace vxgui::tool {
namespace {

constexpr const char* kPictureKinds = "BMP, PNG, JPEG, GIF or TGA was expected";

struct Options {
    std::string skin;
    std::string item;
    std::string state = "Normal";
    std::string size;
    int32_t frame = -1;
    int32_t glyphFrame = -1;
    std::string text;
    std::string icon;
    std::string output;
    double scale = 1;
};

int32_t StateOf(const std::string& name) {
    std::string known;
    for (int32_t state = 0; state < E_ItemStateMax; ++state) {
        if (ThemeItem::StateName(state).EqualsNoCase(name)) return state;
        known += (state ? ", " : "") + ThemeItem::StateName(state).Utf8();
    }
    throw UsageError("--state " + name + ": one of " + known + " was expected");
}

gdi::SIZE SizeOf(const std::string& text) {
    gdi::SIZE size{};
    char rest = 0;
    const bool two = std::sscanf(text.c_str(), "%d%*[xX]%d%c", &size.cx, &size.cy, &rest) == 2;
    if (!two || size.cx < 1 || size.cy < 1) {
        throw UsageError("--size " + text + ": WIDTHxHEIGHT was expected, for example 120x34");
    }
    return size;
}

gdi::SIZE Times(const gdi::SIZE& size, double scale) {
    return {std::max(ScaledLength(size.cx, scale), 1), std::max(ScaledLength(size.cy, scale), 1)};
}

// None when none is asked for.
Ref<cAlphaDIBSection> LoadIcon(const std::string& path) {
    if (path.empty()) return nullptr;
    Ref<cAlphaDIBSection> icon = New<cAlphaDIBSection>();
    if (!icon->CreateFromPictureFile(path)) {
        throw ToolError(path + ": error: no picture that can be read: " + kPictureKinds);
    }
    if (icon->HasAlphaChannel()) icon->PreMultiplyAlpha();
    return icon;
}

void Paint(Sheet& sheet, ThemeItem& item, const Ref<cAlphaDIBSection>& icon,
           const Options& options) {
    item.DrawBackground(sheet.dc(), 0, 0, sheet.width(), sheet.height(), options.frame,
                        options.glyphFrame);
    int32_t right = sheet.width(), bottom = sheet.height();
    if (icon) item.DrawIcon(sheet.dc(), icon, 0, -1, 0, 0, right, bottom);
    right = sheet.width(), bottom = sheet.height();
    if (!options.text.empty())
        item.DrawText(sheet.dc(), options.text, DT_SINGLELINE, -1, 0, 0, right, bottom);
}

void RenderItem(const Options& options, std::ostream& out) {
    const int32_t state = StateOf(options.state);
    const Skin skin = LoadSkin(options.skin);
    const Ref<ThemeItem> item = FindItem(skin, options.item)->Scaled(options.scale);
    const gdi::SIZE size =
        options.size.empty() ? OwnSize(*item) : Times(SizeOf(options.size), options.scale);
    const Ref<cAlphaDIBSection> icon = LoadIcon(options.icon);
    item->State(state);
    Sheet sheet(size.cx, size.cy);
    PaintTransparent(sheet, [&](Sheet& ground) { Paint(ground, *item, icon, options); });
    sheet.WritePng(options.output);
    out << options.output << ": " << size.cx << "x" << size.cy << "\n";
}

}  // namespace

void AddRender(CLI::App& app, std::ostream& out) {
    const auto options = std::make_shared<Options>();
    CLI::App* command =
        app.add_subcommand("render", "Paint one item of a skin, with its transparency");
    command->add_option("SKIN", options->skin, kSkinHelp)->required();
    command->add_option("--item", options->item, "The item's name, or its section")->required();
    command->add_option("--state", options->state, "State to paint it in, Normal when left out")
        ->type_name(
            "{Normal,MouseOver,Pressed,Disabled,Default,Focus,FocusPressed,Group,FocusMouseOver}");
    command->add_option("--size", options->size,
                        "WIDTHxHEIGHT in pixels of scale 1; the item's own size when left out");
    AddScaleOption(*command, options->scale);
    command->add_option("--frame", options->frame,
                        "Frame of the image; that of the state when left out");
    command->add_option("--glyph-frame", options->glyphFrame,
                        "Frame of the glyph; that of the state when left out");
    command->add_option("--text", options->text, "Caption, in the item's font and text style");
    command->add_option("--icon", options->icon, "Picture file, placed as the item's icons are");
    command->add_option("-o,--output", options->output, "PNG file to write")->required();
    command->footer(
        "Examples:\n"
        "  vxgui render skins/aurora/aurora.theme --item PushButton --state MouseOver --size "
        "120x34 -o button.png\n"
        "  vxgui render skins/aurora/aurora.theme --item PushButton --scale 1.5 -o large.png");
    command->callback([options, &out] { RenderItem(*options, out); });
}

}  // namespace vxgui::tool
