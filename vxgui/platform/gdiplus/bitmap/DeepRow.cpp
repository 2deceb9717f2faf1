#include "vxgui/platform/gdiplus/bitmap/DeepRow.h"

#include "vxgui/platform/gdiplus/bitmap/PixelCodes.h"

namespace vxgui::gdiplus {
namespace {

template <class From, class To>
void CopyAll(const uint8_t* from, uint8_t* to, size_t count) {
    for (size_t i = 0; i < count; ++i, from += From::kBytes, to += To::kBytes) {
        To::Store(to, From::Load(from));
    }
}

// Calls `use` with the code of a deep format.
template <class Use>
void WithCode(PixelFormat format, Use use) {
    if (format == PixelFormat48bppRGB) return use(codes::Linear<false, false>());
    if (format == PixelFormat64bppARGB) return use(codes::Linear<true, false>());
    use(codes::Linear<true, true>());
}

}  // namespace

void CopyDeep(PixelFormat fromFormat, const uint8_t* from, size_t fromX, PixelFormat toFormat,
              uint8_t* to, size_t toX, size_t count) {
    WithCode(fromFormat, [&](auto source) {
        WithCode(toFormat, [&](auto target) {
            CopyAll<decltype(source), decltype(target)>(from + fromX * source.kBytes,
                                                        to + toX * target.kBytes, count);
        });
    });
}

}  // namespace vxgui::gdiplus
