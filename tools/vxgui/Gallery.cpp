#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <memory>

#include "tools/vxgui/Commands.h"
#include "tools/vxgui/DesktopScene.h"
#include "tools/vxgui/GalleryLayout.h"
#include "tools/vxgui/ScaleOption.h"
#include "tools/vxgui/Sheet.h"
#include "tools/vxgui/ToolError.h"
#include "tools/vxgui/html/HtmlGallery.h"
#include "vxgui/platform/core7.h"
#include "vxgui/theme/ScaledLength.h"
#include "vxgui/theme/skin/ScaledSkin.h"

namespace vxgui::tool {
namespace {

struct Options {
    std::string skin;
    std::string output;
    std::string html;
    bool desktop = false;
    double scale = 1;
};

constexpr uint32_t kPaper = 0xFFF4F6F8;
constexpr uint32_t kCard = 0xFFFFFFFF;
constexpr int32_t kInk = 0x4A3426;  // a COLORREF

void FillBox(Sheet& sheet, const gdi::RECT& box, uint32_t pixel) {
    for (int32_t y = box.top; y < box.bottom; ++y) {
        for (int32_t x = box.left; x < box.right; ++x) sheet.At(x, y) = pixel;
    }
}

void PaintTitle(Sheet& sheet, const GalleryCard& card, double scale) {
    const Ref<TextStyle> style = New<TextStyle>();
    style->TextColor = kInk;
    style->TextAlignVert = TextAlignVertCenter;
    Ref<LFont> font = New<LFont>();
    font->Create("DejaVu Sans", ScaledLength(-13, scale), 0, 0, 0, 700);
    style->DrawText(sheet.dc(), card.name, DT_SINGLELINE | DT_NOPREFIX, font, card.title.left,
                    card.title.top, card.title.right, card.title.bottom);
}

void PaintCell(Sheet& sheet, const GalleryCard& card, const GalleryCell& cell) {
    const gdi::RECT& ground = cell.ground;
    sheet.FillChecks(ground.left, ground.top, ground.right - ground.left,
                     ground.bottom - ground.top);
    const gdi::RECT& box = cell.item;
    card.item->State(cell.state);
    card.item->DrawBackground(sheet.dc(), box.left, box.top, box.right - box.left,
                              box.bottom - box.top, -1, -1);
    if (!cell.captioned) return;
    int32_t right = box.right, bottom = box.bottom;
    card.item->DrawText(sheet.dc(), card.caption, DT_SINGLELINE, -1, box.left, box.top, right,
                        bottom);
}

void PaintCards(const Skin& skin, const Options& options, std::ostream& out) {
    const GalleryPage page =
        ScaledPage(LayOutGallery(skin), ScaledSkin(skin, options.scale), options.scale);
    Sheet sheet(page.width, page.height);
    sheet.Fill(kPaper);
    for (const GalleryCard& card : page.cards) {
        FillBox(sheet, card.box, kCard);
        PaintTitle(sheet, card, options.scale);
        for (const GalleryCell& cell : card.cells) PaintCell(sheet, card, cell);
    }
    sheet.MakeOpaque();
    sheet.WritePng(options.output);
    out << options.output << ": " << page.cards.size() << " items, " << page.width << "x"
        << page.height << "\n";
}

void PaintScene(const Skin& skin, const Options& options, std::ostream& out) {
    if (!skin.desktop)
        Fail(options.skin, "a theme set has no taskbar; a skin in the UIS dialect was expected");
    Sheet sheet(ScaledLength(kSceneWidth, options.scale),
                ScaledLength(kSceneHeight, options.scale));
    PaintDesktop(sheet, skin, options.scale);
    sheet.MakeOpaque();
    sheet.WritePng(options.output);
    out << options.output << ": " << sheet.width() << "x" << sheet.height() << "\n";
}

void WritePage(const Skin& skin, const Options& options, std::ostream& out) {
    const std::string path = (std::filesystem::path(options.html) / "index.html").string();
    std::error_code error;
    std::filesystem::create_directories(options.html, error);
    const std::string page = HtmlGallery(skin, options.scale);
    if (!core7::WriteWholeFile(path, page.data(), page.size()))
        FailBySystem(path, "can't be written");
    out << path << ": " << skin.items.size() << " items, " << page.size() << " bytes\n";
}

void PaintGallery(const Options& options, std::ostream& out) {
    const Skin skin = LoadSkin(options.skin);
    if (!options.html.empty()) return WritePage(skin, options, out);
    (options.desktop ? PaintScene : PaintCards)(skin, options, out);
}

}  // namespace

void AddGallery(CLI::App& app, std::ostream& out) {
    const auto options = std::make_shared<Options>();
    CLI::App* command =
        app.add_subcommand("gallery", "Paint every item of a skin in every state, at three sizes");
    command->add_option("SKIN", options->skin, kSkinHelp)->required();
    CLI::Option_group* target = command->add_option_group("Output");
    target->add_option("-o,--output", options->output, "PNG file to write");
    CLI::Option* html = target->add_option(
        "--html", options->html,
        "Folder for a page instead, index.html, which needs nothing beside it: with margins, "
        "palette, fonts, the findings of check, and a filter");
    target->require_option(1);
    command
        ->add_flag("--desktop", options->desktop,
                   "Paint the parts of a taskbar skin as they stand together instead")
        ->excludes(html);
    AddScaleOption(*command, options->scale);
    command->footer(
        "Examples:\n"
        "  vxgui gallery skins/aurora/aurora.theme -o gallery.png\n"
        "  vxgui gallery skins/aurora/aurora.theme --scale 1.5 -o large.png\n"
        "  vxgui gallery skins/porcelain/porcelain.uis --html porcelain\n"
        "  vxgui gallery res:DefaultStyles:metallic --desktop -o metallic.png");
    command->callback([options, &out] { PaintGallery(*options, out); });
}

}  // namespace vxgui::tool
