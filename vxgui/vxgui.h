#pragma once

/// All that a host needs, in one header.
#include "vxgui/colour/ColorAdjust_HSL.h"
#include "vxgui/colour/GpColor.h"
#include "vxgui/frame/Version.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpFontCollection.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpStringFormat.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/platform/ole.h"
#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/text/LFonts.h"
#include "vxgui/text/TextStyles.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/ThemeSetFile.h"
