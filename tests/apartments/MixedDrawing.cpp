#include "tests/apartments/MixedDrawing.h"

namespace vxgui::test {
namespace {

constexpr const char* kTexts[] = {"The quick brown fox", "中文字 and مرحبا", "a\ttab, a\nline",
                                  "&Key 42"};
constexpr const char* kFamilies[] = {"DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono"};

gdiplus::ARGB ColourOf(int number) {
    return 0x80000000u | static_cast<uint32_t>(number) * 2654435761u >> 8;
}

}  // namespace

MixedDrawing::MixedDrawing() {
    Global();  // sets the calling thread's apartment up
    bitmap_->Create(kWidth, kHeight);
    graphics_->FromImage(reinterpret_cast<gdiplus::GpImage*>(bitmap_->Handle()));
    graphics_->SmoothingMode(gdiplus::SmoothingModeAntiAlias);
}

void MixedDrawing::FillShapes(int number) {
    const auto n = static_cast<float>(number % 17);
    const auto solid = New<GpBrush>(), line = New<GpBrush>(), hatch = New<GpBrush>();
    solid->CreateSolidBrush(ColourOf(number));
    line->CreateLineBrush(ColourOf(number + 1), ColourOf(number + 2), 0, 0, kWidth, kHeight);
    hatch->CreateHatchBrush(static_cast<gdiplus::HatchStyle>(number % 53), ColourOf(number + 3), 0);
    graphics_->FillRectangle(line->Handle(), n, n, 90, 60.5f);
    const auto path = New<GpPath>();
    path->AddEllipse(40 + n, 20, 70, 50 + n);
    graphics_->FillPath(hatch->Handle(), path->Handle());
    graphics_->FillRectangleI(solid->Handle(), number % 100, 80, 30, 30);
}

void MixedDrawing::StrokeShapes(int number) {
    const auto pen = New<GpPen>();
    pen->Create(ColourOf(number + 4), static_cast<float>(1 + number % 5));
    pen->DashStyle(static_cast<gdiplus::DashStyle>(number % 5));
    pen->LineJoin(gdiplus::LineJoinRound);
    const gdiplus::GpPointF points[] = {{5, 100}, {60, 20}, {90, 90}, {150, 30}};
    const auto curve = New<GpPath>();
    curve->AddCurve(points, 4);
    graphics_->DrawPath(pen->Handle(), curve->Handle());
    graphics_->DrawRectangleI(pen->Handle(), 10, 10, 100, 70);
}

void MixedDrawing::Write(int number) {
    const auto font = New<GpFont>();
    font->Create(kFamilies[number % 3], static_cast<float>(8 + number % 12), gdiplus::FontStyle{});
    const auto format = New<GpStringFormat>();
    format->SetAlignment(static_cast<gdiplus::StringAlignment>(number % 3));
    const auto brush = New<GpBrush>();
    brush->CreateSolidBrush(0xFF000000u | ColourOf(number + 5));
    graphics_->TextRenderingHint(static_cast<gdiplus::TextRenderingHint>(number % 6));
    graphics_->DrawString(kTexts[number % 4], 4, number % 60, kWidth - 8, 50, -1, format->Handle(),
                          brush->Handle(), font->Handle());
}

std::vector<uint32_t> MixedDrawing::Pixels() const {
    gdiplus::BitmapData data = bitmap_->LockBits();
    std::vector<uint32_t> pixels;
    for (UINT y = 0; y < data.Height; ++y) {
        const auto* row = static_cast<const std::byte*>(data.Scan0) +
                          static_cast<std::ptrdiff_t>(y) * data.Stride;
        const auto* first = reinterpret_cast<const uint32_t*>(row);
        pixels.insert(pixels.end(), first, first + data.Width);
    }
    bitmap_->UnlockBits(data);
    return pixels;
}

std::vector<uint32_t> MixedDrawing::Draw(int number) {
    graphics_->Clear(0xFFFFFFFF);
    FillShapes(number);
    StrokeShapes(number);
    Write(number);
    return Pixels();
}

}  // namespace vxgui::test
