#include "vxgui/platform/gdiplus/text/FontSource.h"

#include <algorithm>
#include <atomic>

#include "vxgui/base/String.h"

namespace vxgui::gdiplus {
namespace {

struct PatternEnd {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using FontPattern = std::unique_ptr<FcPattern, PatternEnd>;

const FcChar8* Bytes(const std::string& text) {
    return reinterpret_cast<const FcChar8*>(text.c_str());
}

std::string Folded(const std::string& name) { return String(name).Lower().Utf8(); }

// The value of a property with a given number; empty behind the last.
std::string Text(FcPattern* pattern, const char* object, int number) {
    FcChar8* value = nullptr;
    if (FcPatternGetString(pattern, object, number, &value) != FcResultMatch) return {};
    return reinterpret_cast<const char*>(value);
}

int Integer(FcPattern* pattern, const char* object, int fallback) {
    int value = fallback;
    FcPatternGetInteger(pattern, object, 0, &value);
    return value;
}

bool IsOutline(FcPattern* pattern) {
    FcBool outline = FcFalse;
    FcPatternGetBool(pattern, FC_OUTLINE, 0, &outline);
    return outline;
}

unsigned FaceBit(FcPattern* pattern) {
    const bool bold = Integer(pattern, FC_WEIGHT, FC_WEIGHT_REGULAR) >= FC_WEIGHT_DEMIBOLD;
    const bool italic = Integer(pattern, FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN;
    return 1u << (bold * FontStyleBold | italic * FontStyleItalic);
}

FontPattern FamilyPattern(const std::string& name) {
    FontPattern pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_FAMILY, Bytes(name));
    return pattern;
}

uint64_t NextId() {
    static std::atomic<uint64_t> last{0};
    return ++last;
}

}  // namespace

bool FamilyInfo::HasStyle(INT style) const {
    for (int face = 0; face < 4; ++face) {
        if (faces >> face & 1 && (face & ~style) == 0) return true;
    }
    return false;
}

FontSource::FontSource(FcConfig* config) : id_(NextId()), config_(config) {}

FontSource::~FontSource() { FcConfigDestroy(config_); }

void FontSource::ReadFamilies(FcSetName set) {
    const FcFontSet* fonts = FcConfigGetFonts(config_, set);
    for (int i = 0; fonts && i < fonts->nfont; ++i) {
        if (IsOutline(fonts->fonts[i])) EnterFace(fonts->fonts[i]);
    }
}

void FontSource::EnterFace(FcPattern* pattern) {
    const std::string name = Text(pattern, FC_FAMILY, 0);
    if (name.empty()) return;
    const size_t family = EnterFamily(name);
    families_[family].faces |= FaceBit(pattern);
    for (int i = 0;; ++i) {
        const std::string other = Text(pattern, FC_FAMILY, i);
        if (other.empty()) break;
        names_.emplace(Folded(other), family);
    }
}

size_t FontSource::EnterFamily(const std::string& name) {
    const auto known = names_.find(Folded(name));
    if (known != names_.end()) return known->second;
    families_.push_back({NextId(), name, String(name).units(), 0});
    return families_.size() - 1;
}

std::shared_ptr<const FontSource> FontSource::System() {
    static const std::shared_ptr<const FontSource> system = [] {
        const std::shared_ptr<FontSource> source(new FontSource(FcConfigReference(nullptr)));
        source->ReadFamilies(FcSetSystem);
        source->ReadFamilies(FcSetApplication);
        return source;
    }();
    return system;
}

std::shared_ptr<const FontSource> FontSource::Private(
    std::vector<std::shared_ptr<const FontFile>> files) {
    const std::shared_ptr<FontSource> source(new FontSource(FcConfigCreate()));
    for (const auto& file : files) {
        if (!FcConfigAppFontAddFile(source->config_, Bytes(file->Path()))) return nullptr;
    }
    source->files_ = std::move(files);
    source->ReadFamilies(FcSetApplication);
    source->AppendSystemFonts();
    return source;
}

// For characters that the files lack. A system family of the same name must not be taken for the
// private one, so it stays away.
void FontSource::AppendSystemFonts() {
    FcFontSet* own = FcConfigGetFonts(config_, FcSetApplication);
    const FcFontSet* system = FcConfigGetFonts(System()->config_, FcSetSystem);
    for (int i = 0; own && system && i < system->nfont; ++i) {
        FcPattern* pattern = system->fonts[i];
        if (names_.contains(Folded(Text(pattern, FC_FAMILY, 0)))) continue;
        FcPatternReference(pattern);
        FcFontSetAdd(own, pattern);
    }
}

const FamilyInfo* FontSource::FindExact(const std::string& name) const {
    const auto known = names_.find(Folded(name));
    return known == names_.end() ? nullptr : &families_[known->second];
}

const FamilyInfo* FontSource::Find(std::u16string_view name) const {
    const std::string utf8 = String(name).Utf8();
    const FamilyInfo* exact = FindExact(utf8);
    return exact || this != System().get() ? exact : FindSubstitute(utf8);
}

// What a configuration names as the same font is bound as strongly as the name itself; what is
// merely a last resort is bound weakly.
const FamilyInfo* FontSource::FindSubstitute(const std::string& name) const {
    const FontPattern pattern = FamilyPattern(name);
    FcConfigSubstitute(config_, pattern.get(), FcMatchPattern);
    FcValue value;
    FcValueBinding binding;
    for (int i = 0;
         FcPatternGetWithBinding(pattern.get(), FC_FAMILY, i, &value, &binding) == FcResultMatch &&
         binding != FcValueBindingWeak;
         ++i) {
        if (value.type != FcTypeString) continue;
        if (const auto* found = FindExact(reinterpret_cast<const char*>(value.u.s))) return found;
    }
    return nullptr;
}

const FamilyInfo* FontSource::Generic(const char* name) const {
    const FontPattern pattern = FamilyPattern(name);
    FcConfigSubstitute(config_, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result;
    const FontPattern match(FcFontMatch(config_, pattern.get(), &result));
    return match ? FindExact(Text(match.get(), FC_FAMILY, 0)) : nullptr;
}

}  // namespace vxgui::gdiplus
