#include <libyuv.h>

#include "bench/pixels/Works.h"

namespace vxgui::bench {
namespace {

auto Attenuates(int side) {
    return [=] {
        return [=, pixels = Square(side, StraightPicture(side, side, false))] {
            libyuv::ARGBAttenuate(pixels->Bytes(), pixels->Stride(), pixels->Bytes(),
                                  pixels->Stride(), side, side);
        };
    };
}

// Source and target mixed by one weight, which is the same work; rounded, and the alpha too.
auto Interpolates(int side) {
    return [=] {
        auto source = Square(side, StraightPicture(side, side, false));
        return [=, target = Target(side)] {
            libyuv::ARGBInterpolate(target->Bytes(), target->Stride(), source->Bytes(),
                                    source->Stride(), target->Bytes(), target->Stride(), side, side,
                                    kConstant);
        };
    };
}

auto Copies(int side) {
    return [=] {
        auto source = Square(side, StraightPicture(side, side, false));
        return [=, target = Target(side)] {
            libyuv::ARGBCopy(source->Bytes(), source->Stride(), target->Bytes(), target->Stride(),
                             side, side);
        };
    };
}

auto Scales(int side) {
    return [=] {
        auto source = Square(side, StraightPicture(side, side, false));
        return [=, target = Target(Stretched(side))] {
            libyuv::ARGBScale(source->Bytes(), source->Stride(), side, side, target->Bytes(),
                              target->Stride(), target->width, target->height, libyuv::kFilterNone);
        };
    };
}

const bool kAdded = [] {
    AddSides("premultiply", "libyuv", Attenuates);
    AddSides("constant", "libyuv", Interpolates);
    AddSides("copy", "libyuv", Copies);
    AddSides("stretch", "libyuv", Scales);
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
