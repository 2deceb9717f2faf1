#include "vxgui/theme/SkinParts.h"

#include <algorithm>

#include "vxgui/base/AsciiName.h"

namespace vxgui {
namespace {

// Two pictures serve two parts each, and file names keep their differing capitals.
constexpr SkinPart kParts[] = {
    {"MenuBackground", "MenuBackground.bmp", true},
    {"MenuItem", "MenuItem.bmp", true},
    {"StartPanel.UserPane", "StartPanelUserPane.bmp"},
    {"StartPanel.Menu", "StartPanelProgList.bmp"},
    {"StartPanel.MenuItem", "StartPanelProgListSeparator.tga"},
    {"StartPanel.ProgList", "StartPanelProgList.bmp"},
    {"StartPanel.ProgListSeparator", "StartPanelProgListSeparator.tga"},
    {"StartPanel.PlacesList", "StartPanelPlacesList.bmp"},
    {"StartPanel.PlacesListSeparator", "StartPanelPlacesListSeparator.tga"},
    {"StartPanel.MorePrograms", "StartPanelMoreProgramBack.bmp"},
    {"StartPanel.MoreProgramsArrow", "StartPanelMoreProgramsArrow.tga"},
    {"StartPanel.BottomBar", "StartPanelLogOff.bmp"},
    {"StartPanel.LogonButtons", "StartPanelLogoffButtons.tga"},
    {"StartMenu.LogonBackground", ""},
    {"StartMenu.ButtonBackground", "StartPanelItemBackground.tga"},
    {"Taskbar.StartButton", "TaskBarStartButton.bmp"},
    {"Taskbar.Horz", "TaskBarBackground.bmp"},
    {"Taskbar.QuickLaunch", "TaskbarQuickLaunch.bmp"},
    {"Taskbar.ButtonHorz", "TaskBandToolbarBtn.bmp"},
    {"Taskbar.RebarHorz", "TaskBarRebarGripper.bmp"},
    {"Taskbar.TrayHorz", "TrayNotifyHorizBack.bmp"},
    {"Taskbar.SizeHorz", "TaskBarSizingBar.bmp"},
    {"Taskbar.ButtonArrow", "TrayNotifyHorzArrow.tga"},
    {"Taskbar.Vert", "TaskBarBackgroundVert.bmp"},
    {"Taskbar.QuickLaunchVert", "TaskbarQuickLaunchV.bmp"},
    {"Taskbar.ButtonVert", "TaskBandToolbarBtnVert.bmp"},
    {"Taskbar.RebarVert", "TaskBarRebarGripperVert.bmp"},
    {"Taskbar.TrayVert", "TrayNotifyVertBack.bmp"},
    {"Taskbar.SizeVert", "TaskBarSizingBarVert.bmp"},
    {"Taskbar.ButtonArrowVert", "TrayNotifyVertArrow.tga"},
    {"Taskbar.FlashingButton", "TaskBarFlashingButton.bmp"},
    {"TaskBandGroup.Background", "TaskBandGroupBack.bmp"},
    {"TaskBandGroup.Toolbar", "TaskBandGroupMenuItem.bmp"},
};

}  // namespace

std::span<const SkinPart> SkinParts() { return kParts; }

SkinPart SkinPartOf(std::string_view name) {
    const auto found = std::find_if(std::begin(kParts), std::end(kParts),
                                    [name](const SkinPart& part) { return part.name == name; });
    return found == std::end(kParts) ? SkinPart{"", ""} : *found;
}

std::optional<SkinPart> FindSkinPart(std::u16string_view name) {
    const auto found = std::ranges::find_if(
        kParts, [name](const SkinPart& part) { return IsNamed(name, part.name); });
    return found == std::end(kParts) ? std::nullopt : std::optional(*found);
}

}  // namespace vxgui
