#include "bench/Roof.h"
#include "bench/pixels/Works.h"
#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/surface/modDraw.h"

namespace vxgui::bench {
namespace {

using Surface = Ref<cAlphaDIBSection>;

Surface SurfaceOf(int side, const std::vector<uint32_t>& words) {
    const Surface surface = New<cAlphaDIBSection>();
    surface->Create(side, side);
    std::copy(words.begin(), words.end(), static_cast<uint32_t*>(surface->DIBSectionBitsPtr()));
    return surface;
}
Surface Ground(int side) {
    return SurfaceOf(side, std::vector<uint32_t>(static_cast<size_t>(side) * side, kGround));
}

/// `paint(source, context)` of a surface with the picture into another's context.
template <class Picture, class Paint>
auto Paints(Picture picture, Paint paint) {
    return [=](int side) {
        return [=] {
            const Surface source = SurfaceOf(side, picture(side)), target = Ground(side);
            return [=] { paint(*source, target->hDC()); };
        };
    };
}

/// `operation(words, count)` on the words of one surface.
template <class Operation>
auto Works(Operation operation) {
    return [=](int side) {
        return [=] {
            const Surface surface = SurfaceOf(side, StraightPicture(side, side, false));
            auto* const words = static_cast<uint32_t*>(surface->DIBSectionBitsPtr());
            const auto count = static_cast<size_t>(side) * static_cast<size_t>(side);
            return [=] { operation(words, count), static_cast<void>(surface); };
        };
    };
}

auto MixRoof() {
    return [](int side) {
        return [=] {
            return [=, to = Target(side), from = Target(side)] {
                StreamMix(to->words.data(), from->words.data(), to->words.size());
            };
        };
    };
}

auto CopyRoof(bool stretched) {
    return [=](int side) {
        return [=] {
            const int width = stretched ? Stretched(side) : side;
            return [=, to = Target(width), from = Target(width)] {
                StreamCopy(to->words.data(), from->words.data(), to->words.size());
            };
        };
    };
}

auto Alpha(uint8_t constant, bool hasAlpha) {
    return [=](cAlphaDIBSection& source, gdi::HDC dc) {
        source.AlphaPaintPicture(dc, 0, 0, -1, -1, 0, 0, -1, -1, constant, hasAlpha);
    };
}

auto Straight(bool runs) {
    return [=](int side) { return StraightPicture(side, side, runs); };
}
auto ForOver(bool runs) {
    return [=](int side) { return Premultiplied(StraightPicture(side, side, runs)); };
}
auto Keyed(Keys keys) {
    return [=](int side) { return KeyedPicture(side, keys); };
}

void AddPremultiply() {
    AddSides("premultiply", "ours", Works([](uint32_t* words, size_t count) {
                 PreMultiplyBits(words, static_cast<int32_t>(count * 4));
             }));
    AddSides("premultiply", "roof", Works(StreamChange));
}

void AddBlends() {
    AddSides("over", "ours", Paints(ForOver(false), Alpha(255, true)));
    AddSides("over", "roof", MixRoof());
    AddSides("over-runs", "ours", Paints(ForOver(true), Alpha(255, true)));
    AddSides("over-runs", "roof", MixRoof());
    AddSides("over-constant", "ours", Paints(Straight(false), Alpha(kOverConstant, true)));
    AddSides("over-constant", "roof", MixRoof());
    AddSides("constant", "ours", Paints(Straight(false), Alpha(kConstant, false)));
    AddSides("constant", "roof", MixRoof());
    const auto key = [](cAlphaDIBSection& source, gdi::HDC dc) { source.TransPaintPicture(dc); };
    for (const auto& [keys, work] : kKeyWorks) {
        AddSides(work, "ours", Paints(Keyed(keys), key));
        AddSides(work, "roof", MixRoof());
    }
}

void AddCopies() {
    AddSides("copy", "ours", Paints(Straight(false), [](cAlphaDIBSection& source, gdi::HDC dc) {
                 source.PaintPicture(dc);
             }));
    AddSides("copy", "roof", CopyRoof(false));
    AddSides("stretch", "ours", [](int side) {
        return [=] {
            const Surface source = SurfaceOf(side, StraightPicture(side, side, false));
            const Surface target = Ground(Stretched(side));
            return [=] {
                source->PaintPicture(target->hDC(), 0, 0, target->Width(), target->Height());
            };
        };
    });
    AddSides("stretch", "roof", CopyRoof(true));
}

void AddCreate() {
    Beside("create", "64", "ours", [] {
        return [surface = New<cAlphaDIBSection>()] {
            surface->Create(64, 64);
            surface->ClearUp();
        };
    });
    Beside("create", "64", "roof", [] {
        return [pixels = Target(64)] { StreamFill(pixels->words.data(), pixels->words.size(), 0); };
    });
}

const bool kAdded = [] {
    AddPremultiply();
    AddBlends();
    AddCopies();
    AddCreate();
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
