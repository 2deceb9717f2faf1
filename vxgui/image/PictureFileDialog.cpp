#include "vxgui/image/PictureFileDialog.h"

#include "vxgui/frame/Services.h"

namespace vxgui {
namespace {

constexpr int32_t kAllPictures = 2;

thread_local int32_t gLastFilter = 0;
thread_local Ref<core7::Dialogs> gDialogs;

core7::Dialogs& TheDialogs() {
    if (!gDialogs) gDialogs = gServices.createDialogs();
    return *gDialogs;
}

}  // namespace

// jif, jfif, thm and wbmp stand without an asterisk and a point, which is meant.
String PictureFileFilter() {
    return u"所有文件:*.*"
           u"|图像文件:*.bmp;*.emf;*.gif;*.ico;*.jpg;*.jpe;*.jpeg;jif;jfif;thm;"
           u"*.png;*.tga;*.tif;*.tiff;*.wbm;wbmp;*.wmf;*.xbm;*.xpm"
           u"|BMP 文件:*.bmp"
           u"|EMF 文件:*.emf"
           u"|GIF 文件:*.gif"
           u"|ICO 文件:*.ico"
           u"|JPG 文件:*.jpg;*.jpe;*.jpeg;jif;jfif;thm"
           u"|PNG 文件:*.png"
           u"|TGA 文件:*.tga"
           u"|TIF 文件:*.tif;*.tiff"
           u"|WBMP 文件:*.wbm;wbmp"
           u"|WMF 文件:*.wmf"
           u"|XBM 文件:*.xbm"
           u"|XPM 文件:*.xpm";
}

bool ShowOpenPictureFile(String& picFileName, int32_t Owner, const String& dlgCaption) {
    if (gLastFilter == 0) gLastFilter = kAllPictures;
    const String caption = dlgCaption.empty() ? String(u"打开图像文件") : dlgCaption;
    int32_t result = 0;
    TheDialogs().OpenFile(picFileName, caption, PictureFileFilter(), gLastFilter, "", "", "", Owner,
                          -1, core7::kFileMustExist, result);
    return result != 0;
}

}  // namespace vxgui
