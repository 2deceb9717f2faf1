#pragma once

/// The drawing interface, whole.
#include "vxgui/platform/gdi_icons.h"
#include "vxgui/platform/gdi_images.h"
#include "vxgui/platform/gdi_shapes.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdi_text.h"
#include "vxgui/platform/gdi_types.h"
