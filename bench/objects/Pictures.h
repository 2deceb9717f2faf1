#pragma once

#include <cairo.h>

#include <memory>

#include "bench/Pixels.h"
#include "vxgui/platform/gdiplus.h"

namespace vxgui::bench {

/// Keeps the flat functions started.
class Session {
public:
    Session() {
        const gdiplus::GdiplusStartupInput input{1, nullptr, 0, 0};
        gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    ~Session() { gdiplus::GdiplusShutdown(token_); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

private:
    gdiplus::ULONG_PTR token_ = 0;
};

/// An image of the flat functions over pixels, and a graphics on it.
class OurCanvas {
public:
    OurCanvas(int width, int height, gdiplus::PixelFormat format = gdiplus::PixelFormat32bppPARGB,
              uint32_t word = 0xFFC0D0E0)
        : pixels(width, height, word) {
        gdiplus::GdipCreateBitmapFromScan0(width, height, pixels.Stride(), format, pixels.Bytes(),
                                           &bitmap);
        image = reinterpret_cast<gdiplus::GpImage*>(bitmap);
        gdiplus::GdipGetImageGraphicsContext(image, &graphics);
    }
    ~OurCanvas() {
        gdiplus::GdipDeleteGraphics(graphics);
        gdiplus::GdipDisposeImage(image);
    }
    OurCanvas(const OurCanvas&) = delete;
    OurCanvas& operator=(const OurCanvas&) = delete;

    Session session;
    Pixels pixels;
    gdiplus::GpBitmap* bitmap = nullptr;
    gdiplus::GpImage* image = nullptr;
    gdiplus::GpGraphics* graphics = nullptr;
};

/// The same of cairo, with its context kept from one drawing to the next.
class CairoCanvas {
public:
    CairoCanvas(int width, int height, uint32_t word = 0xFFC0D0E0) : pixels(width, height, word) {
        surface = cairo_image_surface_create_for_data(pixels.Bytes(), CAIRO_FORMAT_ARGB32, width,
                                                      height, pixels.Stride());
        cairo = cairo_create(surface);
    }
    ~CairoCanvas() {
        cairo_destroy(cairo);
        cairo_surface_destroy(surface);
    }
    CairoCanvas(const CairoCanvas&) = delete;
    CairoCanvas& operator=(const CairoCanvas&) = delete;

    Pixels pixels;
    cairo_surface_t* surface;
    cairo_t* cairo;
};

inline std::shared_ptr<gdiplus::GpBrush> OurBrush(gdiplus::ARGB color) {
    gdiplus::GpBrush* brush = nullptr;
    gdiplus::GdipCreateSolidFill(color, &brush);
    return {brush, gdiplus::GdipDeleteBrush};
}

inline void SetCairoColor(cairo_t* cairo, gdiplus::ARGB color) {
    const auto channel = [color](int shift) { return (color >> shift & 255) / 255.0; };
    cairo_set_source_rgba(cairo, channel(16), channel(8), channel(0), channel(24));
}

}  // namespace vxgui::bench
