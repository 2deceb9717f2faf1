#include "vxgui/theme/lint/ValueCheck.h"

#include <algorithm>

#include "vxgui/base/NumberText.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/theme/FrameTable.h"
#include "vxgui/theme/StripScales.h"

namespace vxgui::lint {
namespace {

using Result = std::optional<Verdict>;

Result Warning(const String& text) { return Verdict{Severity::Warning, text}; }
Result Failure(const String& text) { return Verdict{Severity::Error, text}; }

String Quoted(const String& text) { return "\"" + text + "\""; }
String Decimal(int64_t number) { return String::FromInt(number); }

String WithoutRemark(const String& text) { return text.Left(text.Find(u';')).Trim(); }

// Checks a number that stands alone or in a list.
Result CheckNumber(const String& part, const String& name, double least, double most) {
    const String text = WithoutRemark(part);
    if (text.empty()) return Warning("a number is missing; 0 is read");
    if (!IsNumeric(text)) {
        return Warning(Quoted(text) + " is no number; " +
                       Decimal(RoundHalfEven<int64_t>(LeadingNumber(text))) + " is read");
    }
    const double number = LeadingNumber(text);
    if (number >= least && number <= most) return {};
    if (least == 0 && number < 0) return Warning(Quoted(text) + " is below 0");
    return Warning(Quoted(text) + " is out of range: " + name + " takes " +
                   Decimal(RoundHalfEven<int64_t>(least)) + " to " +
                   Decimal(RoundHalfEven<int64_t>(most)));
}

Result CheckOneNumber(const KeyRule& rule, const String& value) {
    if (WithoutRemark(value).Find(u',') != String::npos)
        return Warning("one number is expected; what follows the comma is ignored");
    return CheckNumber(value, rule.name, rule.least, rule.most);
}

Result CheckFlag(const String& value) {
    const std::optional<int32_t> number = WholeNumber(value);
    if (number && (*number == 0 || *number == 1 || *number == -1)) return {};
    return Warning(Quoted(value) + " is neither 0 nor 1");
}

// The first thing wrong with the numbers of a list from `first` on.
Result CheckParts(const std::vector<String>& parts, size_t first, size_t end, const String& name,
                  double least, double most) {
    for (size_t i = first; i < std::min(end, parts.size()); ++i)
        if (Result found = CheckNumber(parts[i], name, least, most)) return found;
    return {};
}

// A list whose length is fixed: loading ends where one is too short.
Result CheckFixed(const std::vector<String>& parts, size_t count, const char* what) {
    const String expected = Decimal(static_cast<int64_t>(count)) + " are expected: " + what;
    const String given = Decimal(static_cast<int64_t>(parts.size()));
    if (parts.size() < count)
        return Failure("the list is too short, which ends the loading: it has " + given +
                       " parts, and " + expected);
    if (parts.size() > count) return Warning("the list has " + given + " parts; " + expected);
    return {};
}

Result CheckSides(const KeyRule& rule, const String& value) {
    const auto parts = value.Split(u',');
    if (Result found = CheckFixed(parts, 4, "left, top, right, bottom")) return found;
    return CheckParts(parts, 0, 4, rule.name, rule.least, rule.most);
}

Result CheckTiles(const KeyRule& rule, const String& value) {
    const auto parts = value.Split(u',');
    if (Result found = CheckFixed(parts, 5, "centre, left, top, right, bottom")) return found;
    if (Result found = CheckParts(parts, 0, 1, "the centre", rule.least, rule.most)) return found;
    for (size_t i = 1; i < 5; ++i)
        if (Result found = CheckFlag(parts[i])) return found;
    return {};
}

Result CheckPerState(const KeyRule& rule, const String& value, double least, double most) {
    const auto parts = value.Split(u',');
    if (Result found = CheckParts(parts, 0, FrameTable::kStates, rule.name, least, most))
        return found;
    if (parts.size() <= FrameTable::kStates) return {};
    return Warning("there are nine states; the list has " +
                   Decimal(static_cast<int64_t>(parts.size())) + " parts");
}

Result CheckChannels(const std::vector<String>& parts) {
    return CheckParts(parts, 0, parts.size(), "a channel", 0, 255);
}

// The one alpha that is meant to fail; see `ParseColorText`.
bool FailsToParse(const std::vector<String>& parts) {
    return parts.size() > 3 && (RoundHalfEven<uint32_t>(LeadingNumber(parts[3])) & 255) == 128;
}

Result CheckColour(const String& value) {
    const String text = WithoutRemark(value);
    if (text.empty()) return {};
    if (text.Find(u',') != String::npos) {
        const auto parts = text.Split(u',');
        if (FailsToParse(parts))
            return Failure("an alpha of 128 can't be read and ends the loading; take 127 or 129");
        if (parts.size() < 3 || parts.size() > 4)
            return Warning("a colour has three parts, or four with its alpha; this one has " +
                           Decimal(static_cast<int64_t>(parts.size())));
        return CheckChannels(parts);
    }
    const bool hexadecimal = text.Left(2).EqualsNoCase("0x");
    if (IsNumeric(hexadecimal ? "&h" + text.Mid(2) : text)) return {};
    return Warning(Quoted(text) + " is no colour: \"red,green,blue\" or a number is expected");
}

Result CheckRgb(const String& value) {
    std::vector<String> parts = value.Trim().Split(u' ');
    std::erase_if(parts, [](const String& part) { return part.empty(); });
    if (!parts.empty() && parts.size() < 3)
        return Warning("a colour has three parts with blanks between them; this one has " +
                       Decimal(static_cast<int64_t>(parts.size())));
    return CheckChannels(parts);
}

Result CheckScales(const String& value) {
    for (const String& part : value.Split(u',')) {
        if (ScalesIn(part).empty())
            return Warning(Quoted(part.Trim()) +
                           " is no scale to supply a strip for: 0.25 to 16 are expected, 1 aside");
        if (!IsNumeric(WithoutRemark(part)))
            return Warning(Quoted(part.Trim()) + " is no number as a whole");
    }
    return {};
}

Result CheckPair(const String& value) {
    if (value.empty() || IsNumeric(value)) return {};
    return Warning(
        Quoted(value) +
        " is not read: one number is expected, or two with a comma and no blank between");
}

}  // namespace

std::optional<int32_t> WholeNumber(const String& text) {
    const String number = WithoutRemark(text);
    if (!IsNumeric(number)) return {};
    return RoundHalfEven(LeadingNumber(number));
}

std::vector<int32_t> NumbersOf(const String& list) {
    std::vector<int32_t> numbers;
    for (const String& part : list.Split(u','))
        numbers.push_back(RoundHalfEven(LeadingNumber(part)));
    return numbers;
}

std::optional<Verdict> CheckSystemColour(const String& value) {
    const auto parts = value.Split(value.Find(u',') != String::npos ? u',' : u' ');
    if (parts.size() != 3)
        return Warning("a system colour has three parts with commas or single blanks between them");
    return CheckChannels(parts);
}

std::optional<Verdict> CheckValue(const KeyRule& rule, const String& value) {
    const bool list = rule.kind == ValueKind::Sides || rule.kind == ValueKind::Tiles ||
                      rule.kind == ValueKind::Frames || rule.kind == ValueKind::Pool ||
                      rule.kind == ValueKind::Scales;
    if (list && value.empty()) return {};  // the same as none
    switch (rule.kind) {
        case ValueKind::Text:
        case ValueKind::Picture:
            return {};
        case ValueKind::Flag:
            return CheckFlag(value);
        case ValueKind::Colour:
            return CheckColour(value);
        case ValueKind::Rgb:
            return CheckRgb(value);
        case ValueKind::Pair:
            return CheckPair(value);
        case ValueKind::Sides:
            return CheckSides(rule, value);
        case ValueKind::Tiles:
            return CheckTiles(rule, value);
        case ValueKind::Frames:
            return CheckPerState(rule, value, -1, FrameTable::kNoFrame);
        case ValueKind::Scales:
            return CheckScales(value);
        case ValueKind::Pool:
            return CheckPerState(rule, value, -1, 1e5);
        default:
            return CheckOneNumber(rule, value);
    }
}

}  // namespace vxgui::lint
