#include "vxgui/theme/StateText.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {

const String* StateText::Known(int32_t state) {
    static const String names[] = {"Normal", "MouseOver",    "Pressed", "Disabled",      "Default",
                                   "Focus",  "FocusPressed", "Group",   "FocusMouseOver"};
    return state >= 0 && state < E_ItemStateMax ? &names[state] : nullptr;
}

String ThemeItem::StateName(int32_t State) { return StateText(State).name(); }

void ThemeItem::State(int32_t value) {
    state_ = value;
    currentFrame_ = StateFrame(value);
    currentGlyphFrame_ = GlyphStateFrame(value);
}

ByteArray ThemeItem::StateFrames() const { return {frames_.frames.begin(), frames_.frames.end()}; }

ByteArray ThemeItem::GlyphStateFrames() const {
    return {glyphFrames_.frames.begin(), glyphFrames_.frames.end()};
}

int32_t ThemeItem::StateFrame(int32_t State) const {
    const int32_t frame = frames_.RawFrame(State);
    if (frame < frameCount_ || frame == FrameTable::kNoFrame) return frame;
    const int32_t borrowed = BorrowedState(State);
    return borrowed < 0 ? FrameTable::kNoFrame : StateFrame(borrowed);
}

int32_t ThemeItem::GlyphStateFrame(int32_t State) const {
    int32_t frame = glyphFrames_.RawFrame(State);
    while (frame >= glyphFrameCount_ && frame != FrameTable::kNoFrame) {
        State = BorrowedState(State);
        // What is borrowed comes by the image's rule, on purpose: only the test is the glyph's.
        frame = State < 0 ? FrameTable::kNoFrame : StateFrame(State);
    }
    return frame;
}

int32_t ThemeItem::ColourNumber(int32_t state) const {
    const OwnerNumbers& n = numbers_;
    const auto first = [](int32_t a, int32_t b) { return a >= 0 ? a : b; };
    switch (state) {
        case E_ItemStateNormal:
            return first(n.NormalColour, n.TextColour);
        case E_ItemStateMouseOver:
            return first(n.TextColourOver, first(n.FocusColour, n.TextColour));
        case E_ItemStateFocus:
            return first(n.FocusColour, first(n.TextColourOver, n.TextColour));
        case E_ItemStatePressed:
            return n.PressedColour;
        case E_ItemStateFocusPressed:
            return n.FocusPressedColour;
        case E_ItemStateGroup:
            return n.GroupColour;
        case E_ItemStateDisabled:
            return n.DisabledColour;
        default:
            return n.TextColour != 0 ? n.TextColour : n.NormalColour;
    }
}

int32_t ThemeItem::StateColour(int32_t State) const {
    return owner_ ? owner_->Colour(ColourNumber(State)) : 0;
}

int32_t ThemeItem::FontNumber(int32_t state) const {
    switch (state) {
        case E_ItemStateMouseOver:
        case E_ItemStateFocus:
            return numbers_.FocusFont;
        case E_ItemStatePressed:
            return numbers_.PressedFont;
        case E_ItemStateFocusPressed:
            return numbers_.FocusPressedFont;
        case E_ItemStateGroup:
            return numbers_.GroupFont;
        default:
            return numbers_.NormalFont;
    }
}

}  // namespace vxgui
