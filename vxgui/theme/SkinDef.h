#pragma once

#include "vxgui/theme/SkinPools.h"
#include "vxgui/theme/ThemeItems.h"

namespace vxgui {

/// A whole skin of the desktop: its UIS define file with palette and fonts, the define file of the
/// taskbar and start menu, and the items of those parts. A host of the library never sees it.
class VXGUI_LOCAL SkinDef : public ThemeOwner {
public:
    SkinDef();

    /// The folder of the skin.
    String SkinPath() const { return skinPath_; }
    void SkinPath(const String& value) { skinPath_ = value; }
    /// Empty when a built-in style is used.
    String SkinName() const { return skinName_; }
    void SkinName(const String& value) { skinName_ = value; }
    /// The UIS define file, or a reference to a built-in style.
    String DefFile() const { return defFile_; }
    void DefFile(const String& value) { defFile_ = value; }
    bool SkinWallpaper() const { return HaveWallpaper(); }

    /// A value of the file "UIS" or "XPTaskBar", in any case; empty, or 0, for any other file. One
    /// that isn't open reads as empty.
    String GetIniString(const String& File, const String& Section, const String& Key,
                        const String& Default) const;
    int32_t GetIniValue(const String& File, const String& Section, const String& Key,
                        int32_t Default) const;
    /// A named system colour; 0 for one that isn't three numbers.
    int32_t SysColour(const String& Name) const;
    /// -1 outside the palette; raises error 9 before the first colour.
    int32_t Colour(int32_t Index) override { return pools_->Colour(Index); }
    int32_t AddColour(int32_t Colour) { return pools_->colours.Add(Colour); }
    Ref<LFont> Font(int32_t Index) override { return pools_->Font(Index); }
    Ref<LFont> SystemFont(int32_t Index) { return pools_->SystemFont(Index); }
    /// Makes the pool and answers 0; on purpose the font isn't stored.
    int32_t AddFont(const Ref<LFont>& ft);

    /// The item of that name, read when it isn't there yet; none without a source of pictures.
    Ref<ThemeItem> Item(const String& ItemName);
    void Item(const String& ItemName, const Ref<ThemeItem>& value);
    /// Finds the two define files, in the skin's folder or else in a style module, and reads
    /// palette, fonts and all parts. When they aren't found, no skin is open afterwards.
    void InitializeXPTaskbar();
    /// True when the wallpaper that the skin names is there.
    bool HaveWallpaper() const;

    /// Font numbers from section "SystemFonts", kept as they came.
    struct SystemFontNumbers {
        int32_t SystemCaption = 0, SystemSmallCaption = 0, SystemMenu = 0;
        int32_t SystemStatus = 0, SystemMessage = 0, SystemIcon = 0;
    };
    const SystemFontNumbers& SystemFonts() const { return systemFonts_; }
    /// The two files of the skin that is open; none when no skin is.
    Ref<core7::DefineFile> UisFile() const { return uis_; }
    Ref<core7::DefineFile> TaskbarFile() const { return taskbar_; }
    /// Where a skin of files was last looked for its taskbar, whether it is open or not.
    String TaskbarFileName() const { return taskbarFile_; }
    /// The names of the parts, in an array from 0 to 50, and the last index that is used.
    static void XPTaskbarItemNames(std::vector<String>& Names, int32_t& Last);

protected:
    ~SkinDef() override;

private:
    struct Files {
        Ref<core7::DefineFile> uis;
        Ref<core7::DefineFile> taskbar;
    };
    Ref<core7::DefineFile> FileOf(const String& name) const;
    void ReadSkinColours();
    void ReadSkinFonts();
    void ReadNumberedFonts(const char* prefix);
    bool ReadSkinFont(const String& section);
    Files OpenSkinFolder();
    Files OpenStyleModule();
    void LoadSkinItems();
    void LoadSkinItem(const UisSource& source, const String& name);
    void AddItem(const String& name, const Ref<ThemeItem>& item);
    Ref<ThemeItem> ReadSkinItem(const UisSource& source, const String& name);

    const Ref<SkinPools> pools_ = New<SkinPools>();
    Ref<ThemeItems> items_;
    SystemFontNumbers systemFonts_;
    String skinPath_;
    String skinName_;
    String defFile_;
    Ref<core7::DefineFile> uis_;
    String taskbarFile_;
    Ref<core7::DefineFile> taskbar_;
    String styleModule_;
};

}  // namespace vxgui
