#include "vxgui/gdip/GpFontCollection.h"

namespace vxgui {

void GpFontCollection::SetHandle(gdiplus::GpFontCollection*& handle) {
    const KeepAlive keep(this);
    Dispose();
    handle_ = handle;
}

void GpFontCollection::Dispose() {
    for (gdiplus::GpFontFamily* family : families_) flat::GdipDeleteFontFamily(family);
    families_.clear();
    if (mPrivate) flat::GdipDeletePrivateFontCollection(&handle_);
    handle_ = nullptr;
}

Ref<GpFontFamily> GpFontCollection::FontFamily(int32_t Index) {
    if (Index < 0 || Index >= GetFamilyCount()) return nullptr;
    Ref<GpFontFamily> family = New<GpFontFamily>();
    family->SetHandle(families_[static_cast<size_t>(Index)], false);
    return family;
}

bool GpFontCollection::TakeInstalled() {
    gdiplus::GpFontCollection* made = nullptr;
    if (!Check(flat::GdipNewInstalledFontCollection(&made))) return false;
    SetHandle(made);
    return true;
}

bool GpFontCollection::GetInstalledFontCollection() {
    const KeepAlive keep(this);
    int32_t count = 0, found = 0;
    if (!TakeInstalled() || !Check(flat::GdipGetFontCollectionFamilyCount(handle_, &count)) ||
        count < 0) {
        return false;
    }
    families_.resize(static_cast<size_t>(count));
    return Check(flat::GdipGetFontCollectionFamilyList(handle_, count, families_.data(), &found)) &&
           found == count;
}

bool GpFontCollection::NewPrivateFontCollection() {
    const KeepAlive keep(this);
    if (!TakeInstalled()) return false;
    mPrivate = true;
    return true;
}

bool GpFontCollection::GetFamilies(int32_t& NumSought, gdiplus::GpFontFamily** Families,
                                   int32_t* NumFound) {
    return Check(flat::GdipGetFontCollectionFamilyList(handle_, NumSought, Families, NumFound));
}

bool GpFontCollection::PrivateAddFontFile(const String& Filename) {
    return mPrivate && Check(flat::GdipPrivateAddFontFile(handle_, Filename.data()));
}

bool GpFontCollection::PrivateAddMemoryFont(const void* lpMemory, int32_t MemorySize) {
    return mPrivate && Check(flat::GdipPrivateAddMemoryFont(handle_, lpMemory, MemorySize));
}

}  // namespace vxgui
