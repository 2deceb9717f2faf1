#include "vxgui/platform/gdiplus/text/LayoutCache.h"

#include <bit>

namespace vxgui::gdiplus {

namespace {

// What an entry takes besides its text, about.
constexpr size_t kEntry = sizeof(KeptLayout) + 256;

size_t WeightOf(std::u16string_view text, const StringLayout& layout) {
    return kEntry + text.size() * sizeof(char16_t) + layout.glyphs.capacity() * sizeof(PlacedGlyph) +
           layout.bars.capacity() * sizeof(GpRectF);
}

}  // namespace

LayoutCache::Key::Key(const View& view)
    : text(view.text),
      family(view.family),
      style(view.style),
      em(view.em),
      room(view.room),
      format(view.format) {}

size_t LayoutCache::Hash::operator()(const View& view) const {
    size_t hash = std::hash<std::u16string_view>()(view.text);
    hash = gdi::MixHash(hash, view.family * 16 + static_cast<uint64_t>(view.style));
    hash = gdi::MixHash(hash, std::bit_cast<uint64_t>(view.em));
    hash = gdi::MixHash(hash, std::bit_cast<uint64_t>(view.room));
    return gdi::MixHash(hash, static_cast<size_t>(view.format.flags));
}

bool LayoutCache::Equal::operator()(const View& a, const View& b) const {
    return a.family == b.family && a.style == b.style && a.em == b.em &&
           a.room.Width == b.room.Width && a.room.Height == b.room.Height && a.text == b.text &&
           a.format == b.format;
}

KeptLayout& LayoutCache::Find(std::u16string_view text, const LayoutRequest& request) {
    const View view{text,         request.family->info.id, request.style, request.em,
                    request.room, *request.format};
    if (KeptLayout* known = layouts_.Find(view)) return *known;
    KeptLayout made;
    made.layout = LayOut(text, request);
    made.weight = WeightOf(text, made.layout);
    const size_t weight = made.weight;
    return *layouts_.Insert(Key(view), std::move(made), weight);
}

void LayoutCache::Weigh(const KeptLayout& found) {
    const GpRect& box = found.mask.box;
    layouts_.Reprice(found.weight + static_cast<size_t>(box.Width) * static_cast<size_t>(box.Height));
}

}  // namespace vxgui::gdiplus
