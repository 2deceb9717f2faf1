#include "vxgui/base/NameIndex.h"

#include <gtest/gtest.h>

#include <string>

#include "vxgui/base/String.h"

namespace vxgui {
namespace {

/// A list of names with its index.
struct Names {
    void Add(const String& name) {
        all.push_back(name);
        index.Add(name.view(), all.size() - 1);
    }
    size_t Find(const String& name) const {
        return index.Find(name.view(), [this](size_t at) { return all[at].view(); });
    }
    std::vector<String> all;
    NameIndex index;
};

TEST(CaseFolding, TellsEqualWhatLowersToTheSame) {
    for (uint32_t unit = 0; unit < 0x10000; ++unit) {
        const char16_t one[] = {static_cast<char16_t>(unit), 0};
        const String text(std::u16string_view(one, 1)), lower = text.Lower();
        ASSERT_EQ(lower[0], FoldUnit(one[0])) << unit;
        ASSERT_TRUE(EqualFolded(text.view(), lower.view())) << unit;
        ASSERT_EQ(FoldedHash(text.view()), FoldedHash(lower.view())) << unit;
    }
    EXPECT_FALSE(EqualFolded(u"name", u"names"));
    EXPECT_FALSE(EqualFolded(u"names", u"name"));
    EXPECT_FALSE(EqualFolded(u"@", u"`"));  // beside the letters
    EXPECT_TRUE(EqualFolded(u"ÄÖÜ Ж Σ", u"äöü ж σ"));
}

TEST(NameIndex, FindsEveryNameInWhateverCaseAndNoOther) {
    Names names;
    EXPECT_EQ(names.Find("x"), NameIndex::kNone);
    for (int i = 0; i < 1000; ++i) names.Add("Name" + std::to_string(i));
    names.Add("");
    for (int i = 0; i < 1000; ++i) {
        const std::string number = std::to_string(i);
        ASSERT_EQ(names.Find("NAME" + number), static_cast<size_t>(i));
        ASSERT_EQ(names.Find("name" + number + "x"), NameIndex::kNone);
    }
    EXPECT_EQ(names.Find(""), 1000u);
    EXPECT_EQ(names.Find("nam"), NameIndex::kNone);
}

TEST(NameIndex, ForgetsAllNamesAndTakesThemAnew) {
    Names names;
    for (int i = 0; i < 100; ++i) names.Add("Name" + std::to_string(i));
    names.index.Clear();
    EXPECT_EQ(names.Find("Name7"), NameIndex::kNone);
    names.index.Add(u"Name7", 7);
    EXPECT_EQ(names.Find("nAME7"), 7u);
}

}  // namespace
}  // namespace vxgui
