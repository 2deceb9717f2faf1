#include "vxgui/theme/RectLayout.h"

#include "vxgui/base/Rounding.h"

namespace vxgui {

Span Deflate(Span span, int32_t nearMargin, int32_t farMargin) {
    return {WrapAdd(span.start, nearMargin), WrapSub(WrapSub(span.size, nearMargin), farMargin)};
}

int32_t AlignAlong(Span span, int32_t size, int32_t place) {
    const int32_t spare = WrapSub(span.size, size);
    if (place == 1) return WrapAdd(span.start, spare / 2);
    if (place == 2) return WrapAdd(span.start, spare);
    return span.start;
}

}  // namespace vxgui
