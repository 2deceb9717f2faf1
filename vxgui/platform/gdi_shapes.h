#pragma once

#include "vxgui/platform/gdi_types.h"

/// Brushes, pens, filled shapes, regions and edges.
namespace vxgui::gdi {

// Brushes and pens.
VXPLATFORM_API HBRUSH CreateSolidBrush(COLORREF color);
VXPLATFORM_API HBRUSH CreatePatternBrush(HBITMAP bitmap);
VXPLATFORM_API HPEN CreatePen(int style, int width, COLORREF color);
VXPLATFORM_API DWORD GetSysColor(int index);
VXPLATFORM_API HBRUSH GetSysColorBrush(int index);
VXPLATFORM_API BOOL SetBrushOrgEx(HDC dc, int x, int y, POINT* old);

// Shapes.
VXPLATFORM_API int FillRect(HDC dc, const RECT* rect, HBRUSH brush);
VXPLATFORM_API int FrameRect(HDC dc, const RECT* rect, HBRUSH brush);
VXPLATFORM_API BOOL InvertRect(HDC dc, const RECT* rect);
VXPLATFORM_API BOOL DrawEdge(HDC dc, RECT* rect, UINT edge, UINT flags);
VXPLATFORM_API BOOL MoveToEx(HDC dc, int x, int y, POINT* old);
VXPLATFORM_API BOOL LineTo(HDC dc, int x, int y);

// Regions.
VXPLATFORM_API HRGN CreateRectRgn(int left, int top, int right, int bottom);
VXPLATFORM_API HRGN CreateRectRgnIndirect(const RECT* rect);
VXPLATFORM_API BOOL SetRectRgn(HRGN region, int left, int top, int right, int bottom);
VXPLATFORM_API int CombineRgn(HRGN target, HRGN a, HRGN b, int mode);
VXPLATFORM_API BOOL EqualRgn(HRGN a, HRGN b);
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
VXPLATFORM_API BOOL FrameRgn(HDC dc, HRGN region, HBRUSH brush, int width, int height);
VXPLATFORM_API BOOL PaintRgn(HDC dc, HRGN region);
VXPLATFORM_API BOOL InvertRgn(HDC dc, HRGN region);

// Clipping.
VXPLATFORM_API int SelectClipRgn(HDC dc, HRGN region);
VXPLATFORM_API int ExtSelectClipRgn(HDC dc, HRGN region, int mode);
VXPLATFORM_API int IntersectClipRect(HDC dc, int left, int top, int right, int bottom);
VXPLATFORM_API int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom);
VXPLATFORM_API int GetClipBox(HDC dc, RECT* box);
VXPLATFORM_API int GetClipRgn(HDC dc, HRGN region);

// Paths.
VXPLATFORM_API BOOL BeginPath(HDC dc);
VXPLATFORM_API BOOL EndPath(HDC dc);
VXPLATFORM_API BOOL CloseFigure(HDC dc);
VXPLATFORM_API BOOL Arc(HDC dc, int left, int top, int right, int bottom, int startX, int startY,
                        int endX, int endY);
VXPLATFORM_API BOOL ArcTo(HDC dc, int left, int top, int right, int bottom, int startX, int startY,
                          int endX, int endY);
VXPLATFORM_API int SetArcDirection(HDC dc, int direction);
VXPLATFORM_API int SetPolyFillMode(HDC dc, int mode);
VXPLATFORM_API HRGN PathToRegion(HDC dc);

}  // namespace vxgui::gdi
