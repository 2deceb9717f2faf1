#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

#include "tools/vxgui/Commands.h"
#include "tools/vxgui/GalleryLayout.h"
#include "tools/vxgui/Sheet.h"
#include "tools/vxgui/Skin.h"

namespace vxgui::tool {
namespace {

struct Options {
    std::string skin;
    std::string output;
};

constexpr uint32_t kPaper = 0xFFF4F6F8;
constexpr uint32_t kCard = 0xFFFFFFFF;

void FillBox(Sheet& sheet, const gdi::RECT& box, uint32_t pixel) {
    for (int32_t y = box.top; y < box.bottom; ++y) {
        for (int32_t x = box.left; x < box.right; ++x) sheet.At(x, y) = pixel;
    }
}

void PaintCell(Sheet& sheet, ThemeItem& item, const GalleryCell& cell) {
    const gdi::RECT& box = cell.ground;
    sheet.FillChecks(box.left, box.top, box.right - box.left, box.bottom - box.top);
    item.State(cell.state);
    item.DrawBackground(sheet.dc(), cell.x, cell.y, cell.size.cx, cell.size.cy, -1, -1);
}

void PaintGallery(const Options& options, std::ostream& out) {
    const Skin skin = LoadSkin(options.skin);
    const GalleryPage page = LayOutGallery(skin);
    Sheet sheet(page.width, page.height);
    sheet.Fill(kPaper);
    for (const GalleryCard& card : page.cards) {
        FillBox(sheet, card.box, kCard);
        for (const GalleryCell& cell : card.cells) PaintCell(sheet, *card.item, cell);
    }
    sheet.MakeOpaque();
    sheet.WritePng(options.output);
    out << options.output << ": " << page.cards.size() << " items, " << page.width << "x"
        << page.height << "\n";
}

}  // namespace

void AddGallery(CLI::App& app, std::ostream& out) {
    const auto options = std::make_shared<Options>();
    CLI::App* command =
        app.add_subcommand("gallery", "Paint every item of a skin in every state, at three sizes");
    command->add_option("SKIN", options->skin, "Define file of a theme set")->required();
    command->add_option("-o,--output", options->output, "PNG file to write")->required();
    command->footer("Example:\n  vxgui gallery skins/aurora/aurora.theme -o gallery.png");
    command->callback([options, &out] { PaintGallery(*options, out); });
}

}  // namespace vxgui::tool
