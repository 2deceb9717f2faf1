#pragma once

#include <vector>

#include "vxgui/gdip/GpFontFamily.h"

namespace vxgui {

/// Families that belong together: the system's, or what a program has added.
class VXGUI_API GpFontCollection : public GpObject {
public:
    gdiplus::GpFontCollection* Handle() const { return handle_; }
    void SetHandle(gdiplus::GpFontCollection*& handle);
    /// Deletes the families that `GetInstalledFontCollection` found, too. A private collection stays
    /// private, which is meant.
    void Dispose();

    /// The family of an index from 0, or none. It shares the collection's own handle.
    Ref<GpFontFamily> FontFamily(int32_t Index);
    bool GetInstalledFontCollection();
    /// Begins with the installed fonts, which is meant; what is added stays with this object.
    bool NewPrivateFontCollection();
    bool GetFamilies(int32_t& NumSought, gdiplus::GpFontFamily** Families, int32_t* NumFound);
    /// As many as `GetInstalledFontCollection` found.
    int32_t GetFamilyCount() const { return static_cast<int32_t>(families_.size()); }
    /// False without `NewPrivateFontCollection`.
    bool PrivateAddFontFile(const String& Filename);
    bool PrivateAddMemoryFont(const void* lpMemory, int32_t MemorySize);

protected:
    ~GpFontCollection() override { Dispose(); }

private:
    bool TakeInstalled();

    gdiplus::GpFontCollection* handle_ = nullptr;
    std::vector<gdiplus::GpFontFamily*> families_;
    bool mPrivate = false;
};

}  // namespace vxgui
