#include "vxgui/frame/Report.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/frame/modGdiplus.h"
#include "vxgui/image/PictureFileDialog.h"
#include "vxgui/image/PictureOperations.h"

namespace vxgui {

namespace {

// Not the name of the class, and meant so.
constexpr ErrorReporter ReportError{"gUtilities"};

}  // namespace

Ref<ole::Picture> VxGuiGlobal::LoadPicture2(const String& Filename) {
    return vxgui::LoadPicture2(Filename);
}

Ref<ole::Picture> VxGuiGlobal::LoadPictureFromFile(const String& Filename,
                                                   int32_t BackgraundColor) {
    return vxgui::LoadPictureFromFile(Filename, BackgraundColor);
}

Ref<ole::Picture> VxGuiGlobal::LoadPictureFromMemAddr(const void* lpMem, int32_t nSize,
                                                      bool TGAFormat, int32_t BackgraundColor) {
    return vxgui::LoadPictureFromMemAddr(lpMem, nSize, TGAFormat, BackgraundColor);
}

Ref<ole::Picture> VxGuiGlobal::LoadPictureFromByteArray(const ByteArray& abPic, bool TGAFormat,
                                                        int32_t BackgraundColor) {
    return vxgui::LoadPictureFromByteArray(abPic, TGAFormat, BackgraundColor);
}

Ref<ole::Picture> VxGuiGlobal::LoadPictureFromGdiHandle(gdi::HGDIOBJ GDIHandle, int16_t PicType,
                                                        bool DeleteGDIHandleWhenDestroyed) {
    return vxgui::LoadPictureFromGdiHandle(GDIHandle, PicType, DeleteGDIHandleWhenDestroyed);
}

Ref<ole::Picture> VxGuiGlobal::PictureFromMemAddr(const void* lpBits, int32_t nSize,
                                                  int32_t Flags) {
    return vxgui::PictureFromMemAddr(lpBits, nSize, Flags);
}

Ref<ole::Picture> VxGuiGlobal::PictureFromByteArray(const ByteArray& abPic, int32_t Flags) {
    return vxgui::PictureFromByteArray(abPic, Flags);
}

Ref<ole::Picture> VxGuiGlobal::PictureFromFile(const String& Filename, int32_t Flags) {
    return vxgui::PictureFromFile(Filename, Flags);
}

bool VxGuiGlobal::GetPictureBits(const Ref<ole::Picture>& pic, ByteArray& abPic) {
    bool saved = false;
    ReportError.Guard("Public Function GetPictureBits", [&] {
        ByteArray bytes;
        if (!pic || !pic->SaveAsFile(&bytes) || bytes.empty()) return;
        abPic = std::move(bytes);
        saved = true;
    });
    return saved;
}

gdiplus::GpImage* VxGuiGlobal::GdipLoadImageFromFile(const String& Filename) {
    gdiplus::GpImage* image = nullptr;
    const auto status = flat::GdipLoadImageFromFile(Filename.units().c_str(), &image);
    return status == gdiplus::Ok ? image : nullptr;
}

String VxGuiGlobal::PictureFileFilter() const { return vxgui::PictureFileFilter(); }

bool VxGuiGlobal::ShowOpenPictureFile(String& picFileName, int32_t Owner,
                                      const String& dlgCaption) {
    return vxgui::ShowOpenPictureFile(picFileName, Owner, dlgCaption);
}

}  // namespace vxgui
