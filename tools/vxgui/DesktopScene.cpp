#include "tools/vxgui/DesktopScene.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/theme/ScaledLength.h"

namespace vxgui::tool {
namespace {

/// A part in a state, where it stands, and what is written on it.
struct Piece {
    const char* part;
    int32_t state;
    int32_t x, y, width, height;
    const char* caption = "";
};

constexpr int32_t kNormal = E_ItemStateNormal;
constexpr int32_t kOver = E_ItemStateMouseOver;
constexpr int32_t kPressed = E_ItemStatePressed;
constexpr int32_t kDisabled = E_ItemStateDisabled;

// From the back to the front.
constexpr Piece kPieces[] = {
    // The taskbar below.
    {"Taskbar.Horz", kNormal, 0, 566, 1000, 34},
    {"Taskbar.SizeHorz", kNormal, 0, 562, 1000, 6},
    {"Taskbar.StartButton", kPressed, 4, 567, 112, 32, "Start"},
    {"Taskbar.RebarHorz", kNormal, 122, 568, 12, 31},
    {"Taskbar.QuickLaunch", kNormal, 138, 568, 84, 32},
    {"Taskbar.RebarHorz", kOver, 228, 568, 12, 31},
    {"Taskbar.ButtonHorz", kNormal, 244, 568, 116, 31, "Letters"},
    {"Taskbar.ButtonHorz", kPressed, 360, 568, 116, 31, "Pictures"},
    {"Taskbar.ButtonHorz", kOver, 476, 568, 116, 31, "Music"},
    {"Taskbar.ButtonHorz", E_ItemStateGroup, 592, 568, 116, 31, "Notes"},
    {"Taskbar.FlashingButton", kNormal, 708, 568, 116, 31, "Mail"},
    {"Taskbar.TrayHorz", kNormal, 850, 566, 150, 34, "12:45"},
    {"Taskbar.ButtonArrow", kNormal, 841, 572, 22, 22},
    // The taskbar at the side.
    {"Taskbar.Vert", kNormal, 872, 0, 128, 562},
    {"Taskbar.SizeVert", kNormal, 868, 0, 6, 562},
    {"Taskbar.QuickLaunchVert", kNormal, 878, 4, 118, 34},
    {"Taskbar.RebarVert", kNormal, 876, 42, 120, 12},
    {"Taskbar.ButtonVert", kNormal, 876, 58, 120, 31, "Letters"},
    {"Taskbar.ButtonVert", kPressed, 876, 90, 120, 31, "Pictures"},
    {"Taskbar.ButtonVert", E_ItemStateFocus, 876, 122, 120, 31, "Music"},
    {"Taskbar.ButtonVert", kDisabled, 876, 154, 120, 31, "Notes"},
    {"Taskbar.TrayVert", kNormal, 872, 482, 128, 80, "12:45"},
    {"Taskbar.ButtonArrowVert", kOver, 925, 471, 22, 22},
    // The start panel.
    {"StartPanel.UserPane", kNormal, 10, 122, 390, 64, "Anna Berg"},
    {"StartPanel.ProgList", kNormal, 10, 186, 210, 304},
    {"StartPanel.MenuItem", kNormal, 16, 194, 198, 34, "Letters"},
    {"StartPanel.MenuItem", kOver, 16, 228, 198, 34, "Pictures"},
    {"StartPanel.MenuItem", kNormal, 16, 262, 198, 34, "Music"},
    {"StartPanel.ProgListSeparator", kNormal, 22, 298, 186, 8},
    {"StartPanel.MenuItem", kNormal, 16, 308, 198, 34, "Calendar"},
    {"StartPanel.MenuItem", kPressed, 16, 342, 198, 34, "Drawing"},
    {"StartPanel.MenuItem", kDisabled, 16, 376, 198, 34, "Printer"},
    {"StartPanel.ProgListSeparator", kNormal, 22, 446, 186, 8},
    {"StartPanel.MorePrograms", kNormal, 10, 456, 210, 34, "All programs"},
    {"StartPanel.MoreProgramsArrow", kNormal, 194, 464, 18, 18},
    {"StartPanel.PlacesList", kNormal, 220, 186, 180, 304},
    {"StartMenu.ButtonBackground", kNormal, 227, 194, 166, 30, "Documents"},
    {"StartMenu.ButtonBackground", kNormal, 227, 224, 166, 30, "Album"},
    {"StartMenu.ButtonBackground", kOver, 227, 254, 166, 30, "Records"},
    {"StartPanel.PlacesListSeparator", kNormal, 233, 288, 154, 8},
    {"StartMenu.ButtonBackground", kNormal, 227, 300, 166, 30, "Settings"},
    {"StartMenu.ButtonBackground", kNormal, 227, 330, 166, 30, "Help"},
    {"StartPanel.BottomBar", kNormal, 10, 490, 390, 44},
    {"StartPanel.LogonButtons", kNormal, 290, 497, 30, 30},
    {"StartPanel.LogonButtons", kOver, 330, 497, 30, 30},
    // A menu, the panel that ends a session, and a group of the taskbar.
    {"MenuBackground", kNormal, 440, 150, 200, 150},
    {"MenuItem", kNormal, 444, 156, 192, 28, "Open"},
    {"MenuItem", kOver, 444, 184, 192, 28, "Rename"},
    {"MenuItem", kNormal, 444, 212, 192, 28, "Copy"},
    {"MenuItem", kDisabled, 444, 240, 192, 28, "Insert"},
    {"MenuItem", kPressed, 444, 268, 192, 28, "Delete"},
    {"StartMenu.LogonBackground", kNormal, 668, 150, 176, 60, "End the session?"},
    {"StartPanel.Menu", kNormal, 668, 210, 176, 90},
    {"StartPanel.LogonButtons", kNormal, 696, 240, 32, 32},
    {"StartPanel.LogonButtons", kPressed, 740, 240, 32, 32},
    {"StartPanel.LogonButtons", kDisabled, 784, 240, 32, 32},
    {"TaskBandGroup.Background", kNormal, 592, 456, 170, 104},
    {"TaskBandGroup.Toolbar", kNormal, 597, 461, 160, 31, "Shopping"},
    {"TaskBandGroup.Toolbar", kOver, 597, 492, 160, 31, "Ideas"},
    {"TaskBandGroup.Toolbar", kNormal, 597, 523, 160, 31, "Garden"},
};

/// Stands for an icon: a disc with a light on it.
struct Disc {
    float x, y, radius;
    uint32_t colour;
};

constexpr uint32_t kRose = 0xE0567A, kSun = 0xF2B134, kLeaf = 0x59B269, kSea = 0x2FA7B8,
                   kViolet = 0x8468D6;
constexpr Disc kDiscs[] = {
    {158, 584, 8, kRose},   {180, 584, 8, kSun},    {202, 584, 8, kLeaf},   {260, 583, 7, kSea},
    {376, 583, 7, kViolet}, {492, 583, 7, kRose},   {608, 583, 7, kSun},    {724, 583, 7, kLeaf},
    {901, 21, 8, kRose},    {929, 21, 8, kSun},     {957, 21, 8, kLeaf},    {892, 73, 7, kSea},
    {892, 105, 7, kViolet}, {892, 137, 7, kRose},   {892, 169, 7, kSun},    {42, 154, 20, kSun},
    {36, 211, 12, kSea},    {36, 245, 12, kViolet}, {36, 279, 12, kRose},   {36, 325, 12, kLeaf},
    {36, 359, 12, kSun},    {36, 393, 12, kSea},    {611, 476, 7, kSun},    {611, 507, 7, kRose},
    {611, 538, 7, kLeaf},   {458, 170, 6, kSea},    {458, 198, 6, kViolet}, {458, 282, 6, kRose},
};

uint32_t Mixed(uint32_t below, uint32_t above, float share) {
    uint32_t mixed = 0xFF000000;
    for (int shift : {0, 8, 16}) {
        const float from = static_cast<float>(below >> shift & 255);
        const float to = static_cast<float>(above >> shift & 255);
        mixed |= static_cast<uint32_t>(std::lround(from + (to - from) * share)) << shift;
    }
    return mixed;
}

void PaintDisc(Sheet& sheet, const Disc& disc) {
    const auto reach = static_cast<int32_t>(disc.radius) + 1;
    const auto cx = static_cast<int32_t>(disc.x), cy = static_cast<int32_t>(disc.y);
    for (int32_t y = cy - reach; y <= cy + reach; ++y) {
        for (int32_t x = cx - reach; x <= cx + reach; ++x) {
            const float dx = static_cast<float>(x) + 0.5f - disc.x;
            const float dy = static_cast<float>(y) + 0.5f - disc.y;
            const float cover = std::clamp(disc.radius + 0.5f - std::hypot(dx, dy), 0.f, 1.f);
            const float light = std::clamp(0.3f - 0.5f * dy / disc.radius, 0.f, 0.7f);
            uint32_t& pixel = sheet.At(x, y);
            pixel = Mixed(pixel, Mixed(disc.colour, 0xFFFFFF, light), cover);
        }
    }
}

uint32_t PixelOf(int32_t colour) {
    return 0xFF000000 |
           static_cast<uint32_t>((colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF));
}

// The skin's wallpaper, or else its colour of what is selected, which fades away downwards.
void PaintGround(Sheet& sheet, SkinDef& skin) {
    const uint32_t colour = PixelOf(skin.SysColour("Highlight"));
    for (int32_t y = 0; y < sheet.height(); ++y) {
        const float down = static_cast<float>(y) / static_cast<float>(sheet.height());
        const uint32_t row = Mixed(colour, 0xFFFFFF, 0.25f + 0.6f * down);
        for (int32_t x = 0; x < sheet.width(); ++x) sheet.At(x, y) = row;
    }
    if (!skin.HaveWallpaper()) return;
    const Ref<cAlphaDIBSection> wallpaper = New<cAlphaDIBSection>();
    const String name = skin.GetIniString("UIS", "Personality", "Wallpaper", "");
    if (!wallpaper->CreateFromPictureFile(
            core7::ThePathService().JoinPath({skin.SkinPath(), name})))
        return;
    wallpaper->PaintPicture(sheet.dc(), 0, 0, sheet.width(), sheet.height());
}

// Each edge is rounded once, so that parts that touch still do.
gdi::RECT BoxOf(const Piece& piece, double scale) {
    return {ScaledLength(piece.x, scale), ScaledLength(piece.y, scale),
            ScaledLength(piece.x + piece.width, scale),
            ScaledLength(piece.y + piece.height, scale)};
}

void PaintPiece(Sheet& sheet, ThemeItem& item, const Piece& piece) {
    const gdi::RECT box = BoxOf(piece, item.Scale());
    item.State(piece.state);
    item.DrawBackground(sheet.dc(), box.left, box.top, box.right - box.left, box.bottom - box.top,
                        -1, -1);
    int32_t right = box.right, bottom = box.bottom;
    item.DrawText(sheet.dc(), piece.caption, DT_SINGLELINE, -1, box.left, box.top, right, bottom);
}

/// The parts of a desktop at a scale, each made once.
class ScaledParts {
public:
    ScaledParts(SkinDef& skin, double scale) : skin_(skin), scale_(scale) {}

    Ref<ThemeItem> Item(const char* name) {
        Ref<ThemeItem>& item = items_[name];
        const Ref<ThemeItem> plain = item ? nullptr : skin_.Item(name);
        if (plain) item = plain->Scaled(scale_);
        return item;
    }

private:
    SkinDef& skin_;
    const double scale_;
    std::map<std::string, Ref<ThemeItem>> items_;
};

Disc Times(const Disc& disc, float scale) {
    return {disc.x * scale, disc.y * scale, disc.radius * scale, disc.colour};
}

}  // namespace

void PaintDesktop(Sheet& sheet, const Skin& skin, double scale) {
    PaintGround(sheet, *skin.desktop);
    ScaledParts parts(*skin.desktop, scale);
    for (const Piece& piece : kPieces)
        if (const Ref<ThemeItem> item = parts.Item(piece.part)) PaintPiece(sheet, *item, piece);
    for (const Disc& disc : kDiscs) PaintDisc(sheet, Times(disc, static_cast<float>(scale)));
}

}  // namespace vxgui::tool
