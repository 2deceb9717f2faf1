#include "vxgui/base/Require.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpMatrix.h"

namespace vxgui {

bool GpGraphics::MultiplyTransform(const Ref<GpMatrix>& Matrix, gdiplus::MatrixOrder Order) {
    const KeepAlive keep(this);
    if (!Matrix) return Check(gdiplus::InvalidParameter);
    return Check(flat::GdipMultiplyWorldTransform(handle_, Matrix->Handle(), Order));
}

bool GpGraphics::SetTransform(const Ref<GpMatrix>& Matrix) {
    const KeepAlive keep(this);
    GpMatrix& matrix = Require(Matrix, "GpGraphics.SetTransform");
    return Check(flat::GdipSetWorldTransform(handle_, matrix.Handle()));
}

bool GpGraphics::GetTransform(Ref<GpMatrix>& Matrix) {
    const KeepAlive keep(this);
    gdiplus::GpMatrix* matrix = nullptr;  // goes in as it is, which is meant
    if (!Check(flat::GdipGetWorldTransform(handle_, matrix))) return false;
    if (!Matrix) Matrix = New<GpMatrix>();
    Matrix->SetHandle(matrix);
    return true;
}

}  // namespace vxgui
