#pragma once

#include <set>

#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/compiled/Container.h"
#include "vxgui/theme/compiled/FieldBag.h"

namespace vxgui::compiled {

/// Makes a theme set of the sections of a compiled skin. What a section refers to stands in one
/// before it.
class VXGUI_LOCAL SkinReader {
public:
    explicit SkinReader(const Container& container) : container_(container) {}
    CompiledSkin Read();

private:
    void ReadSection(SectionKind kind, const ByteArray& bytes);
    void ReadSet(const ByteArray& bytes);
    void ReadPicture(const ByteArray& bytes);
    void ReadFont(const ByteArray& record);
    void ReadStyle(const ByteArray& record);
    template <class Add>
    void ReadStrips(const FieldReader& read, const String& name, Add add) const;
    void ReadItem(const ByteArray& record);

    const Container& container_;
    CompiledSkin skin_;
    int32_t fontsInPool_ = 0;
    int32_t stylesInPool_ = 0;
    std::set<SectionKind> kinds_;  ///< of the sections that were read, pictures aside
    std::vector<Ref<cAlphaDIBSection>> pictures_;
    std::vector<Ref<LFont>> fonts_;
    std::vector<Ref<TextStyle>> styles_;
};

}  // namespace vxgui::compiled
