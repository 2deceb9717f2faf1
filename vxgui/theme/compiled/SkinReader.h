#pragma once

#include <array>
#include <map>
#include <set>

#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/compiled/Container.h"
#include "vxgui/theme/compiled/FieldBag.h"

namespace vxgui::compiled {

/// The number of each state's font or style; 0 for none.
using StateNumbers = std::array<int32_t, E_ItemStateMax>;

/// Makes a theme set of the sections of a compiled skin. What a section refers to stands in one
/// before it.
class VXGUI_LOCAL SkinReader {
public:
    explicit SkinReader(const Container& container) : container_(container) {}
    CompiledSkin Read();

private:
    /// The fields of a record, until the next one is opened.
    FieldReader Open(std::span<const uint8_t> record);
    void ReadSection(SectionKind kind, const ByteArray& bytes);
    void ReadSet(const ByteArray& bytes);
    void ReadPicture(const ByteArray& bytes);
    void ReadFont(std::span<const uint8_t> record);
    void ReadStyle(std::span<const uint8_t> record);
    template <class Add>
    void ReadStrips(const FieldReader& read, const std::string& name, Add add) const;
    void ReadItem(std::span<const uint8_t> record);

    const Container& container_;
    ole::BagReader bag_;
    CompiledSkin skin_;
    int32_t fontsInPool_ = 0;
    int32_t stylesInPool_ = 0;
    std::set<SectionKind> kinds_;  ///< of the sections that were read, pictures aside
    std::vector<Ref<cAlphaDIBSection>> pictures_;
    std::vector<Ref<LFont>> fonts_;
    std::vector<Ref<TextStyle>> styles_;
    std::map<StateNumbers, Ref<LFonts>> fontLists_;
    std::map<StateNumbers, Ref<TextStyles>> styleLists_;
};

}  // namespace vxgui::compiled
