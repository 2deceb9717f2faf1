#pragma once

#include "vxgui/platform/gdi_types.h"

/// Brushes, pens, filled shapes, regions and edges. Coordinates are device pixels, and any 32-bit
/// value is safe. What is drawn keeps to the bitmap and the clip and leaves alpha 0 in 32-bit
/// pixels; inverting acts on alpha too. A wrong or stale handle makes a call answer 0 (`ERROR`,
/// null) and do nothing.
namespace vxgui::gdi {

// Brushes and pens.
VXPLATFORM_API HBRUSH CreateSolidBrush(COLORREF color);
/// Copies the bitmap, which repeats from the brush origin. A monochrome device bitmap shows the
/// context's text colour for 0 and its background for 1.
VXPLATFORM_API HBRUSH CreatePatternBrush(HBITMAP bitmap);
/// A width of 0 or 1 draws single pixels without the last one; a wider pen is round and never
/// broken.
VXPLATFORM_API HPEN CreatePen(int style, int width, COLORREF color);
/// 0 for an unknown index.
VXPLATFORM_API DWORD GetSysColor(int index);
/// Lasts for good: deleting it succeeds and does nothing. Null for an unknown index.
VXPLATFORM_API HBRUSH GetSysColorBrush(int index);
VXPLATFORM_API BOOL SetBrushOrgEx(HDC dc, int x, int y, POINT* old);

// Shapes.
/// Puts the rectangle's corners in order. For the brush, a system colour's index plus one will do.
VXPLATFORM_API int FillRect(HDC dc, const RECT* rect, HBRUSH brush);
/// One pixel wide, inside; fails for a rectangle that is empty or reversed.
VXPLATFORM_API int FrameRect(HDC dc, const RECT* rect, HBRUSH brush);
VXPLATFORM_API BOOL InvertRect(HDC dc, const RECT* rect);
/// With BF_ADJUST, `rect` becomes what the edge leaves inside.
VXPLATFORM_API BOOL DrawEdge(HDC dc, RECT* rect, UINT edge, UINT flags);
VXPLATFORM_API BOOL MoveToEx(HDC dc, int x, int y, POINT* old);
VXPLATFORM_API BOOL LineTo(HDC dc, int x, int y);

// Regions. Corners are put in order; left and top edges are inside, right and bottom outside.
VXPLATFORM_API HRGN CreateRectRgn(int left, int top, int right, int bottom);
VXPLATFORM_API HRGN CreateRectRgnIndirect(const RECT* rect);
VXPLATFORM_API BOOL SetRectRgn(HRGN region, int left, int top, int right, int bottom);
/// The kind of the result. `target` may be a source; RGN_COPY ignores `b`.
VXPLATFORM_API int CombineRgn(HRGN target, HRGN a, HRGN b, int mode);
VXPLATFORM_API BOOL EqualRgn(HRGN a, HRGN b);
/// Fails, and moves nothing, when the region would leave the 32-bit coordinates.
VXPLATFORM_API int OffsetRgn(HRGN region, int dx, int dy);
VXPLATFORM_API int GetRgnBox(HRGN region, RECT* box);
VXPLATFORM_API BOOL PtInRegion(HRGN region, int x, int y);
VXPLATFORM_API BOOL RectInRegion(HRGN region, const RECT* rect);
struct RGNDATAHEADER {
    DWORD dwSize, iType, nCount, nRgnSize;
    RECT rcBound;
};
/// The published record: a header, then the rectangles. Answers the size needed or written.
VXPLATFORM_API DWORD GetRegionData(HRGN region, DWORD size, void* data);
VXPLATFORM_API BOOL FillRgn(HDC dc, HRGN region, HBRUSH brush);
/// Paints inside: the region less its intersection with itself shifted by `width` left and right
/// and by `height` up and down.
VXPLATFORM_API BOOL FrameRgn(HDC dc, HRGN region, HBRUSH brush, int width, int height);
VXPLATFORM_API BOOL PaintRgn(HDC dc, HRGN region);
VXPLATFORM_API BOOL InvertRgn(HDC dc, HRGN region);

// Clipping. The answer is the kind of the clip region, of which the context keeps a copy; no
// region with RGN_COPY ends clipping.
VXPLATFORM_API int SelectClipRgn(HDC dc, HRGN region);
VXPLATFORM_API int ExtSelectClipRgn(HDC dc, HRGN region, int mode);
VXPLATFORM_API int IntersectClipRect(HDC dc, int left, int top, int right, int bottom);
VXPLATFORM_API int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom);
/// The box and the kind of what may be drawn on: the clip inside the bitmap.
VXPLATFORM_API int GetClipBox(HDC dc, RECT* box);
/// 1 with a copy in `region`, 0 when there is no clip, -1 on failure.
VXPLATFORM_API int GetClipRgn(HDC dc, HRGN region);

// Paths. Between `BeginPath` and `EndPath` lines and arcs are recorded and not drawn.
VXPLATFORM_API BOOL BeginPath(HDC dc);
VXPLATFORM_API BOOL EndPath(HDC dc);
VXPLATFORM_API BOOL CloseFigure(HDC dc);
/// The part of the ellipse in [left, right - 1] x [top, bottom - 1] between the rays from its
/// centre through the two points, all of it when the rays are one; an empty box draws nothing.
/// In a path it is a figure of its own.
VXPLATFORM_API BOOL Arc(HDC dc, int left, int top, int right, int bottom, int startX, int startY,
                        int endX, int endY);
/// The same after a line from the position to its start; the position moves to its end.
VXPLATFORM_API BOOL ArcTo(HDC dc, int left, int top, int right, int bottom, int startX, int startY,
                          int endX, int endY);
/// The direction or mode before, 0 on failure.
VXPLATFORM_API int SetArcDirection(HDC dc, int direction);
VXPLATFORM_API int SetPolyFillMode(HDC dc, int mode);
/// The lattice points inside the ended path, whose figures count as closed; uses the path up. Null
/// without a path, and for one so tall that it can't be meant for a bitmap.
VXPLATFORM_API HRGN PathToRegion(HDC dc);

}  // namespace vxgui::gdi
