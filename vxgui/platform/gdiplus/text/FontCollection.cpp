#include "vxgui/platform/gdiplus/text/FontCollection.h"

#include <algorithm>

namespace vxgui::gdiplus {
namespace {

using SourceRef = std::shared_ptr<const FontSource>;

void AppendFamilies(const SourceRef& source, std::vector<Ref<FontFamily>>& families) {
    for (const FamilyInfo& info : source->Families())
        families.push_back(New<FontFamily>(source, info));
}

}  // namespace

FontCollection::~FontCollection() {
    for (const void* handle : handles_) RetireObject(handle);
}

bool FontCollection::Add(const void* data, size_t size) {
    const auto file = FontFile::Make(data, size);
    const std::lock_guard lock(mutex_);
    auto files = files_;
    files.push_back(file);
    SourceRef source = file ? FontSource::Private(files) : nullptr;
    if (!source) return false;
    files_ = std::move(files);
    own_ = std::move(source);
    return true;
}

SourceRef FontCollection::Own() const {
    const std::lock_guard lock(mutex_);
    return own_;
}

Ref<FontFamily> FontCollection::Find(std::u16string_view name) const {
    const SourceRef own = Own();
    const FamilyInfo* info = own ? own->Find(name) : nullptr;
    if (info || !installed_) return FamilyOf(own, info);
    return FamilyOf(FontSource::System(), FontSource::System()->Find(name));
}

size_t FontCollection::Count() const {
    const SourceRef own = Own();
    return (own ? own->Families().size() : 0) +
           (installed_ ? FontSource::System()->Families().size() : 0);
}

size_t FontCollection::List(GpFontFamily** families, size_t room) {
    std::vector<Ref<FontFamily>> all;
    if (const SourceRef own = Own()) AppendFamilies(own, all);
    if (installed_) AppendFamilies(FontSource::System(), all);
    const std::lock_guard lock(mutex_);
    const size_t count = std::min(room, all.size());
    handles_.resize(std::max(handles_.size(), count));
    for (size_t i = 0; i < count; ++i) {
        const Ref<FontFamily> known = gdiplus::Find<FontFamily>(handles_[i]);
        if (!known || &known->info != &all[i]->info) {
            if (known) RetireObject(handles_[i]);
            handles_[i] = EnterObject(all[i]);
        }
        families[i] = static_cast<GpFontFamily*>(handles_[i]);
    }
    return count;
}

}  // namespace vxgui::gdiplus
