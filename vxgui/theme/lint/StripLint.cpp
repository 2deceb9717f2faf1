#include "vxgui/theme/lint/StripLint.h"

#include <algorithm>
#include <cstdlib>

#include "vxgui/theme/ScaledLength.h"
#include "vxgui/theme/StripScales.h"
#include "vxgui/theme/lint/ValueCheck.h"

namespace vxgui::lint {
namespace {

String Decimal(int64_t number) { return String::FromInt(number); }

String LastPart(const String& path) {
    const size_t separator = path.view().find_last_of(u"/\\");
    return separator == String::npos ? path : path.Mid(separator + 1);
}

// "frame 3", "frames 2 and 3", "frames 8 to 19".
String FrameNames(const std::vector<int32_t>& frames) {
    const String first = Decimal(frames.front()), last = Decimal(frames.back());
    if (frames.size() == 1) return "frame " + first;
    if (frames.size() == 2) return "frames " + first + " and " + last;
    const bool run = frames.back() - frames.front() + 1 == static_cast<int32_t>(frames.size());
    if (run) return "frames " + first + " to " + last;
    String names = "frames " + first;
    for (size_t i = 1; i + 1 < frames.size(); ++i) names += ", " + Decimal(frames[i]);
    return names + " and " + last;
}

}  // namespace

void StripLint::Look(PictureShelf& shelf, const String& folder, const String& fallback,
                     const char* missing) {
    const String given = page_.Text(section_, keys_.image);
    const String name = given.empty() ? fallback : given;
    named_ = !name.empty();
    folder_ = folder;
    name_ = name;
    vertical_ = keys_.vertical && page_.Integer(section_, keys_.vertical) != 0;
    if (!named_) return;
    facts_ = shelf.Use(folder, name, keys_.absolute);
    readable_ = facts_.width > 0 && facts_.height > 0;
    if (given.empty()) {
        if (!facts_.exists)
            page_.FailAt(section_, "no " + String(keys_.image) + " is named, and " + Quoted(name) +
                                       " is not there either");
        return;
    }
    if (!facts_.exists)
        return page_.FailAt(section_, keys_.image, Quoted(name) + " is not there" + missing);
    if (facts_.outside) return page_.WarnOfPlace(section_, keys_.image, name);
    if (!readable_)
        return page_.FailAt(section_, keys_.image,
                            Quoted(name) +
                                " is no picture that can be read: BMP, PNG, JPEG, GIF "
                                "or TGA was expected");
    const String spelled = LastPart(String(facts_.file));
    if (spelled != LastPart(name))
        page_.WarnAt(section_, keys_.image,
                     "the file's name is " + Quoted(spelled) +
                         "; where letter case matters, others won't find it");
}

void StripLint::FailAtFrames(const String& text) {
    page_.FailAt(section_, Names(keys_.frames) ? keys_.frames : keys_.image, text);
}

void StripLint::CheckFrames(int32_t frames) {
    frames_ = frames;
    if (!readable_) return;
    const String what(keys_.what);
    if (frames < 1)
        return FailAtFrames("the " + what + " never shows, since " + keys_.frames +
                            (Names(keys_.frames) ? " is below 1" : " is not given"));
    const int32_t extent = vertical_ ? facts_.height : facts_.width;
    if (frames > extent)
        return FailAtFrames("the " + what + " of " + Decimal(extent) + " pixels can't hold " +
                            Decimal(frames) + " frames");
    whole_ = true;
    const int32_t over = extent % frames;
    if (over == 0) return;
    page_.WarnAt(section_, keys_.frames,
                 "the " + what + " of " + Decimal(extent) + " pixels doesn't divide by " +
                     Decimal(frames) + "; the last " + Decimal(over) +
                     (over == 1 ? " pixel" : " pixels") + " never show");
}

void StripLint::CheckScale(const PictureFacts& facts, const String& name, double scale) {
    const auto fail = [&](const String& text) {
        page_.FailAt(section_, keys_.scales, Quoted(name) + text);
    };
    if (!facts.exists) return fail(" is not there");
    if (facts.outside) return page_.WarnOfPlace(section_, keys_.scales, name);
    if (facts.width < 1 || facts.height < 1)
        return fail(" is no picture that can be read: BMP, PNG, JPEG, GIF or TGA was expected");
    const int32_t width = facts.width / (vertical_ ? 1 : frames_);
    const int32_t height = facts.height / (vertical_ ? frames_ : 1);
    const int32_t wide = ScaledLength(Width(), scale), high = ScaledLength(Height(), scale);
    if (std::abs(width - wide) > 1 || std::abs(height - high) > 1)
        page_.WarnAt(section_, keys_.scales,
                     Quoted(name) + " has frames of " + Decimal(width) + "x" + Decimal(height) +
                         ", which are stretched to the " + Decimal(wide) + "x" + Decimal(high) +
                         " of their scale");
}

void StripLint::CheckScales(PictureShelf& shelf) {
    if (!whole_) return;
    for (const double scale : ScalesIn(page_.Text(section_, keys_.scales))) {
        const String name = NameAtScale(name_, scale);
        CheckScale(shelf.Use(folder_, name, keys_.absolute), name, scale);
    }
}

bool StripLint::OrderIsBeyond() {
    if (!Names(keys_.order)) return false;
    std::vector<int32_t> beyond;
    for (const int32_t frame : NumbersOf(page_.Text(section_, keys_.order))) {
        if (frame >= frames_ && frame < FrameTable::kNoFrame) beyond.push_back(frame);
    }
    if (beyond.empty()) return false;
    page_.FailAt(section_, keys_.order,
                 "the " + String(keys_.what) + " has the frames 0 to " + Decimal(frames_ - 1) +
                     "; a state that asks for frame " + Decimal(beyond.front()) +
                     " shows that of another state, or nothing");
    return true;
}

void StripLint::ReportUnseen(const std::vector<bool>& shown) {
    std::vector<int32_t> unseen;
    for (size_t i = 0; i < shown.size(); ++i)
        if (!shown[i]) unseen.push_back(static_cast<int32_t>(i));
    if (unseen.empty()) return;
    const char* key = Names(keys_.order) ? keys_.order : keys_.frames;
    const bool nothing = unseen.size() == shown.size();
    page_.WarnAt(section_, Names(key) ? key : keys_.image,
                 nothing ? "no state ever shows the " + String(keys_.what)
                         : FrameNames(unseen) + " of the " + keys_.what + " show in no state");
}

}  // namespace vxgui::lint
