// A host that draws with the object layer: a night over the sea, of paths, gradients, hatches and
// text, saved as a PNG. Usage: drawing [OUT.png]

#include <cmath>
#include <cstdio>

#include "vxgui/vxgui.h"

using namespace vxgui;
using gdiplus::GpPointF;

namespace {

constexpr int32_t kWidth = 640, kHeight = 400, kSea = 270;

void PaintSky(GpGraphics& graphics) {
    const auto sky = New<GpBrush>();
    sky->CreateLineBrush(0xFF0B1030, 0xFF6A4C8C, 0, 0, kWidth, kSea + 1);
    graphics.FillRectangleI(sky->Handle(), 0, 0, kWidth, kSea);
}

// A gradient from the middle of a circle to nothing at its edge.
void PaintGlow(GpGraphics& graphics, float x, float y, float radius, gdiplus::ARGB colour) {
    const auto circle = New<GpPath>();
    circle->AddEllipse(x - radius, y - radius, 2 * radius, 2 * radius);
    const auto glow = New<GpBrush>();
    glow->CreatePathBrushFromPath(circle->Handle());
    const gdiplus::ARGB edge = colour & 0xFFFFFF;
    glow->CenterColor(colour);
    glow->SetSurroundColors(&edge, 1);
    graphics.FillPath(glow->Handle(), circle->Handle());
}

void PaintMoon(GpGraphics& graphics) {
    PaintGlow(graphics, 500, 90, 110, 0x90FFE9B0);
    const auto moon = New<GpPath>();
    moon->AddEllipse(465, 55, 70, 70);
    const auto light = New<GpBrush>();
    light->CreateSolidBrush(0xFFFFF6DC);
    graphics.FillPath(light->Handle(), moon->Handle());
}

// A star of five points, as one closed figure.
void PaintStar(GpGraphics& graphics, float x, float y, float radius) {
    GpPointF points[10];
    for (int i = 0; i < 10; ++i) {
        const double angle = i * 3.14159265 / 5 - 3.14159265 / 2;
        const double r = i % 2 == 0 ? radius : radius * 0.4;
        points[i] = {static_cast<float>(x + std::cos(angle) * r),
                     static_cast<float>(y + std::sin(angle) * r)};
    }
    const auto star = New<GpPath>();
    star->AddPolygon(points, 10);
    const auto light = New<GpBrush>();
    light->CreateSolidBrush(0xE0FFFFFF);
    graphics.FillPath(light->Handle(), star->Handle());
}

void PaintStars(GpGraphics& graphics) {
    uint32_t seed = 7;
    const auto next = [&](uint32_t below) {
        seed = seed * 1664525 + 1013904223;
        return static_cast<float>((seed >> 16) % below);
    };
    for (int i = 0; i < 40; ++i) {
        const float x = next(kWidth), y = next(kSea - 90);
        PaintStar(graphics, x, y, 2 + next(4));
    }
}

// Water: a gradient, and a hatch that shows through it.
void PaintSea(GpGraphics& graphics) {
    const auto deep = New<GpBrush>();
    deep->CreateLineBrush(0xFF3A3566, 0xFF080B22, 0, kSea - 1, kWidth, kHeight - kSea + 2);
    graphics.FillRectangleI(deep->Handle(), 0, kSea, kWidth, kHeight - kSea);
    const auto ripple = New<GpBrush>();
    ripple->CreateHatchBrush(gdiplus::HatchStyleWave, 0x40C8C0FF, 0);
    graphics.FillRectangleI(ripple->Handle(), 0, kSea, kWidth, kHeight - kSea);
}

// Hills as one curve through points, closed below the horizon.
void PaintHills(GpGraphics& graphics) {
    const GpPointF ridge[] = {{-20, 250}, {70, 190},  {150, 235},
                              {240, 160}, {340, 240}, {430, 262}};
    const auto hills = New<GpPath>();
    hills->AddCurve(ridge, 6);
    hills->AddLine(430, 262, 430, kSea);
    hills->AddLine(430, kSea, -20, kSea);
    hills->CloseFigure();
    const auto slope = New<GpBrush>();
    slope->CreateLineBrush(0xFF2C2450, 0xFF141030, 0, 150, kWidth, 125);
    graphics.FillPath(slope->Handle(), hills->Handle());
    const auto top = New<GpPath>();
    top->AddCurve(ridge, 6);
    const auto rim = New<GpPen>();
    rim->Create(0x60FFE9B0, 2);
    rim->LineJoin(gdiplus::LineJoinRound);
    graphics.DrawPath(rim->Handle(), top->Handle());
}

// The moon's way over the water: dashes of a round pen that grow towards the shore.
void PaintPathOfLight(GpGraphics& graphics) {
    const auto light = New<GpPen>();
    light->Create(0x90FFE9B0, 3);
    light->SetLineCap(gdiplus::LineCapRound, gdiplus::LineCapRound, gdiplus::DashCapRound);
    light->DashStyle(gdiplus::DashStyleDash);
    for (int i = 0; i < 9; ++i) {
        const float y = static_cast<float>(kSea + 8 + i * 13),
                    half = static_cast<float>(14 + i * 7);
        light->DashOffset(static_cast<float>(i) * 0.7f);
        graphics.DrawLine(light->Handle(), 500 - half, y, 500 + half, y);
    }
}

void PaintTitle(GpGraphics& graphics) {
    const auto font = New<GpFont>();
    // 27 points are 36 pixels: outlines are drawn at a size in eighths of a pixel.
    font->Create("DejaVu Sans", 27, gdiplus::FontStyleBold);
    const auto format = New<GpStringFormat>();
    format->SetAlignment(gdiplus::StringAlignmentCenter);
    const auto fill = New<GpBrush>();
    fill->CreateLineBrush(0xFFFFF6DC, 0xFFD9A441, 0, 340, kWidth, 44);
    const auto outline = New<GpPen>();
    outline->Create(0xC0100A28, 4);
    graphics.DrawOutLineText("A night over the sea", font, format, outline, fill, 0, 338, kWidth,
                             60);
}

}  // namespace

int main(int argc, char** argv) {
    const char* const output = argc > 1 ? argv[1] : "drawing.png";
    Global();  // sets the calling thread's apartment up
    const auto bitmap = New<GpBitmap>();
    bitmap->Create(kWidth, kHeight);
    const Ref<GpGraphics> graphics = bitmap->Image()->graphics();
    graphics->SmoothingMode(gdiplus::SmoothingModeAntiAlias);
    for (const auto paint :
         {PaintSky, PaintStars, PaintMoon, PaintHills, PaintSea, PaintPathOfLight, PaintTitle}) {
        paint(*graphics);
    }
    if (!bitmap->Image()->SaveToFile_Png(output)) {
        std::fprintf(stderr, "%s: can't be written\n", output);
        return 1;
    }
    std::printf("%s: %d x %d\n", output, kWidth, kHeight);
    return 0;
}
