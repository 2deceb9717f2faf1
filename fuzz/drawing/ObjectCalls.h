#pragma once

#include "fuzz/drawing/ByteReader.h"
#include "vxgui/vxgui.h"

namespace vxgui::fuzz {

/// Calls of the object layer that bytes choose, on one bitmap with a graphics over it.
class ObjectCalls {
public:
    ObjectCalls();

    void Next(ByteReader& bytes);

private:
    using Call = void (ObjectCalls::*)(ByteReader& bytes);
    static const Call kCalls[];

    static float Number(ByteReader& bytes);

    void MakeBrush(ByteReader& bytes);
    void MakePen(ByteReader& bytes);
    void AddToPath(ByteReader& bytes);
    void ChangePath(ByteReader& bytes);
    void Transform(ByteReader& bytes);
    void Settings(ByteReader& bytes);
    void FillPath(ByteReader& bytes);
    void DrawPath(ByteReader& bytes);
    void FillBox(ByteReader& bytes);
    void DrawPicture(ByteReader& bytes);
    void Write(ByteReader& bytes);
    void Apply(ByteReader& bytes);
    void SaveOrRestore(ByteReader& bytes);

    const Ref<GpBitmap> bitmap_ = New<GpBitmap>(), picture_ = New<GpBitmap>();
    const Ref<GpGraphics> graphics_ = New<GpGraphics>();
    const Ref<GpPath> path_ = New<GpPath>();
    Ref<GpBrush> brush_ = New<GpBrush>();
    Ref<GpPen> pen_ = New<GpPen>();
    uint32_t saved_ = 0;
};

}  // namespace vxgui::fuzz
