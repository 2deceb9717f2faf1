#pragma once

/// Marks what the two shared libraries export; everything else stays hidden.
/// `VXGUI_LOCAL` marks a member of an exported class that only the library's own classes may
/// call: it is hidden in the shared library and reachable in the static form.
#define VXPLATFORM_API __attribute__((visibility("default")))
#define VXGUI_API __attribute__((visibility("default")))
#define VXGUI_LOCAL __attribute__((visibility("hidden")))
