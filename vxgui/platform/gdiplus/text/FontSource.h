#pragma once

#include <fontconfig/fontconfig.h>

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "vxgui/platform/gdiplus/text/FontFile.h"
#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// A family as fontconfig lists it.
struct FamilyInfo {
    uint64_t id;       ///< unlike that of any other family of the process
    std::string name;  ///< UTF-8
    std::u16string name16;
    unsigned faces = 0;  ///< a bit for each pair of bold (1) and italic (2) that has a file

    /// Whether a face can be made to look so: bold and slant can be added, not taken away.
    bool HasStyle(INT style) const;
};

/// Fonts that are looked up together: the system's, or a private collection's before those.
/// Immutable, and shared by all threads.
class FontSource {
public:
    /// The system's, read once.
    static std::shared_ptr<const FontSource> System();
    /// None when a file holds no outline font.
    static std::shared_ptr<const FontSource> Private(
        std::vector<std::shared_ptr<const FontFile>> files);
    ~FontSource();
    FontSource(const FontSource&) = delete;
    FontSource& operator=(const FontSource&) = delete;

    uint64_t Id() const { return id_; }
    FcConfig* Config() const { return config_; }
    /// Its own families by name; a private source's are those of its files alone.
    const std::vector<FamilyInfo>& Families() const { return families_; }
    /// Any of the names that a family has, whatever the case. The system's source also knows what
    /// fontconfig was told to take in place of a name. Null for an unknown one.
    const FamilyInfo* Find(std::u16string_view name) const;
    /// The family that serves "serif", "sans-serif" or "monospace".
    const FamilyInfo* Generic(const char* name) const;

private:
    explicit FontSource(FcConfig* config);

    void ReadFamilies(FcSetName set);
    void EnterFace(FcPattern* pattern);
    size_t EnterFamily(const std::string& name);
    const FamilyInfo* FindExact(const std::string& name) const;
    const FamilyInfo* FindSubstitute(const std::string& name) const;
    void AppendSystemFonts();

    const uint64_t id_;
    FcConfig* const config_;
    std::vector<std::shared_ptr<const FontFile>> files_;
    std::vector<FamilyInfo> families_;
    std::unordered_map<std::string, size_t> names_;  ///< folded; the number of the family
};

}  // namespace vxgui::gdiplus
