#include "fuzz/drawing/ObjectCalls.h"

namespace vxgui::fuzz {

using gdiplus::DashCap, gdiplus::DashStyle, gdiplus::GpPointF, gdiplus::LineCap;

const ObjectCalls::Call ObjectCalls::kCalls[] = {
    &ObjectCalls::MakeBrush, &ObjectCalls::MakePen,   &ObjectCalls::AddToPath,
    &ObjectCalls::AddToPath, &ObjectCalls::AddToPath, &ObjectCalls::ChangePath,
    &ObjectCalls::Transform, &ObjectCalls::Settings,  &ObjectCalls::FillPath,
    &ObjectCalls::DrawPath,  &ObjectCalls::FillBox,   &ObjectCalls::DrawPicture,
    &ObjectCalls::Write,     &ObjectCalls::Apply,     &ObjectCalls::SaveOrRestore,
};

ObjectCalls::ObjectCalls() {
    Global();  // sets the thread's apartment up
    bitmap_->Create(64, 48);
    picture_->Create(17, 13);
    graphics_->FromImage(reinterpret_cast<gdiplus::GpImage*>(bitmap_->Handle()));
    brush_->CreateSolidBrush(0xFF203040);
    pen_->Create(0xFF405060, 2);
}

void ObjectCalls::Next(ByteReader& bytes) {
    (this->*kCalls[bytes.Take<uint8_t>() % std::size(kCalls)])(bytes);
}

// A coordinate; one in sixteen is any number at all, with the largest, infinities and none.
float ObjectCalls::Number(ByteReader& bytes) {
    const auto form = bytes.Take<uint8_t>();
    if (form % 16 == 0) return bytes.Take<float>();
    return static_cast<float>(bytes.Coordinate()) + static_cast<float>(form) / 256;
}

void ObjectCalls::MakeBrush(ByteReader& bytes) {
    const auto brush = New<GpBrush>();
    const auto first = bytes.Take<uint32_t>(), second = bytes.Take<uint32_t>();
    switch (bytes.Take<uint8_t>() % 5) {
        case 0:
            brush->CreateSolidBrush(first);
            break;
        case 1:
            brush->CreateHatchBrush(static_cast<gdiplus::HatchStyle>(bytes.Take<uint8_t>()), first,
                                    second);
            break;
        case 2:
            brush->CreateLineBrushF({Number(bytes), Number(bytes)}, {Number(bytes), Number(bytes)},
                                    first, second,
                                    static_cast<gdiplus::WrapMode>(bytes.Take<uint8_t>() % 6));
            break;
        case 3:
            brush->CreatePathBrushFromPath(path_->Handle());
            brush->CenterColor(first);
            break;
        default:
            brush->CreateTextureBrush(picture_->Image()->Handle());
    }
    if (brush->Handle()) brush_ = brush;
}

void ObjectCalls::MakePen(ByteReader& bytes) {
    const auto pen = New<GpPen>();
    if (!pen->CreateWithBrush(brush_->Handle(), Number(bytes))) return;
    const auto cap = [&] { return static_cast<LineCap>(bytes.Take<uint8_t>()); };
    const LineCap start = cap(), end = cap();
    pen->SetLineCap(start, end, static_cast<DashCap>(bytes.Take<uint8_t>() % 4));
    pen->LineJoin(static_cast<gdiplus::LineJoin>(bytes.Take<uint8_t>() % 5));
    pen->DashStyle(static_cast<DashStyle>(bytes.Take<uint8_t>() % 6));
    pen->DashOffset(Number(bytes));
    pen_ = pen;
}

void ObjectCalls::AddToPath(ByteReader& bytes) {
    GpPointF points[4];
    const auto kind = bytes.Take<uint8_t>();
    for (GpPointF& point : points) point = {Number(bytes), Number(bytes)};
    const auto& [a, b, c, d] = points;
    switch (kind % 9) {
        case 0:
            path_->AddLine(a.X, a.Y, b.X, b.Y);
            break;
        case 1:
            path_->AddArc(a.X, a.Y, b.X, b.Y, c.X, c.Y);
            break;
        case 2:
            path_->AddBezier(a.X, a.Y, b.X, b.Y, c.X, c.Y, d.X, d.Y);
            break;
        case 3:
            path_->AddCurve2(points, 4, Number(bytes));
            break;
        case 4:
            path_->AddEllipse(a.X, a.Y, b.X, b.Y);
            break;
        case 5:
            path_->AddPie(a.X, a.Y, b.X, b.Y, c.X, c.Y);
            break;
        case 6:
            path_->AddPolygon(points, 4);
            break;
        case 7:
            path_->AddClosedCurve(points, 4);
            break;
        default:
            path_->AddRectangle(a.X, a.Y, b.X, b.Y);
    }
}

void ObjectCalls::ChangePath(ByteReader& bytes) {
    switch (bytes.Take<uint8_t>() % 9) {
        case 0:
            path_->Reset();
            break;
        case 1:
            path_->CloseAllFigures();
            break;
        case 2:
            path_->Reverse();
            break;
        case 3:
            path_->SetMarker();
            break;
        case 4:
            path_->StartFigure();
            break;
        case 5:
            path_->Flatten(nullptr, Number(bytes));
            break;
        case 6:
            path_->Outline();
            break;
        case 7:
            path_->Widen(pen_->Handle());
            break;
        default:
            path_->IsVisible(Number(bytes), Number(bytes), graphics_->Handle());
    }
    if (path_->PointCount() > 400) path_->Reset();
}

void ObjectCalls::Transform(ByteReader& bytes) {
    const auto order = static_cast<gdiplus::MatrixOrder>(bytes.Take<uint8_t>() % 2);
    switch (bytes.Take<uint8_t>() % 4) {
        case 0:
            graphics_->ResetTransform();
            break;
        case 1:
            graphics_->TranslateTransform(Number(bytes), Number(bytes), order);
            break;
        case 2:
            graphics_->ScaleTransform(Number(bytes) / 32, Number(bytes) / 32, order);
            break;
        default:
            graphics_->RotateTransform(Number(bytes), order);
    }
}

void ObjectCalls::Settings(ByteReader& bytes) {
    const auto next = [&] { return static_cast<int>(bytes.Take<uint8_t>() % 9); };
    graphics_->SmoothingMode(static_cast<gdiplus::SmoothingMode>(next()));
    graphics_->InterpolationMode(static_cast<gdiplus::InterpolationMode>(next()));
    graphics_->PixelOffsetMode(static_cast<gdiplus::PixelOffsetMode>(next()));
    graphics_->CompositingMode(static_cast<gdiplus::CompositingMode>(next() % 2));
    graphics_->TextRenderingHint(static_cast<gdiplus::TextRenderingHint>(next()));
    graphics_->PageUnit(static_cast<gdiplus::Unit>(next()));
}

void ObjectCalls::FillPath(ByteReader&) { graphics_->FillPath(brush_->Handle(), path_->Handle()); }

void ObjectCalls::DrawPath(ByteReader&) { graphics_->DrawPath(pen_->Handle(), path_->Handle()); }

void ObjectCalls::FillBox(ByteReader& bytes) {
    graphics_->FillRectangle(brush_->Handle(), Number(bytes), Number(bytes), Number(bytes),
                             Number(bytes));
}

void ObjectCalls::DrawPicture(ByteReader& bytes) {
    const auto next = [&] { return bytes.Coordinate(); };
    graphics_->DrawBitmap(picture_->Handle(), next(), next(), next(), next(), next(), next(),
                          next(), next());
    picture_->SetPixel(next() % 17, next() % 13, bytes.Take<uint32_t>());
}

void ObjectCalls::Write(ByteReader& bytes) {
    const auto font = New<GpFont>();
    font->Create("DejaVu Sans", Number(bytes) / 8,
                 static_cast<gdiplus::FontStyle>(bytes.Take<uint8_t>() % 16));
    const auto format = New<GpStringFormat>();
    format->SetAlignment(static_cast<gdiplus::StringAlignment>(bytes.Take<uint8_t>() % 3));
    format->Trimming(static_cast<gdiplus::StringTrimming>(bytes.Take<uint8_t>() % 6));
    graphics_->DrawString(String(bytes.Text(24)), bytes.Coordinate(), bytes.Coordinate(),
                          bytes.Coordinate(), bytes.Coordinate(), -1, format->Handle(),
                          brush_->Handle(), font->Handle());
}

// An effect with the parameters that it begins with, on a part of the bitmap.
void ObjectCalls::Apply(ByteReader& bytes) {
    const auto effect = New<GpEffect>();
    effect->Create(static_cast<GpEffectType>(bytes.Take<uint8_t>() % 12));
    gdi::RECT part{bytes.Coordinate(), bytes.Coordinate(), bytes.Coordinate(), bytes.Coordinate()};
    if (effect->Handle()) bitmap_->ApplyEffect(effect->Handle(), &part, false, nullptr, nullptr);
}

void ObjectCalls::SaveOrRestore(ByteReader& bytes) {
    if (bytes.Take<uint8_t>() % 2)
        saved_ = graphics_->Save();
    else
        graphics_->Restore(saved_);
}

}  // namespace vxgui::fuzz
