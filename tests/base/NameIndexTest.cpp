#include "vxgui/base/NameIndex.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "vxgui/base/AsciiName.h"
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

// Letters of all kinds side by side, at all places of a text.
TEST(CaseFolding, HashesAlikeWhatDiffersInCaseAlone) {
    const std::u16string upper = u"NAME ÄÖŐ ЖΣ 7@[ŐAB", lower = u"name äöő жσ 7@[őab";
    for (size_t from = 0; from < upper.size(); ++from) {
        for (size_t size = 0; size <= upper.size() - from; ++size) {
            const auto one = std::u16string_view(upper).substr(from, size);
            const auto other = std::u16string_view(lower).substr(from, size);
            ASSERT_TRUE(EqualFolded(one, other));
            ASSERT_EQ(FoldedHash(one), FoldedHash(other)) << from << ", " << size;
        }
    }
}

TEST(IsNamed, IsWhatEqualsNoCaseSays) {
    const char* const names[] = {"", "Name", "Name7", "Names", "@", "Name."};
    for (const char* name : names) {
        for (const char* text : {"", "name", "NAME", "nAme7", "NAMES", "`", "Näme", "namE.", "n"})
            EXPECT_EQ(IsNamed(String(text).view(), name), String(text).EqualsNoCase(name)) << text;
        for (uint32_t unit = 0; unit < 0x10000; ++unit) {
            const String text = name + String(std::u16string(1, static_cast<char16_t>(unit)));
            ASSERT_EQ(IsNamed(text.view(), "NAMEk"), text.EqualsNoCase("NAMEk")) << unit;
        }
    }
}

TEST(CaseFolding, HashesTextsThatAreOthersApart) {
    std::set<uint64_t> hashes;
    size_t texts = 0;
    for (char16_t a = u'`'; a <= u'z'; ++a) {
        for (char16_t b = u'`'; b <= u'z'; ++b) {
            for (const std::u16string before : {u"", u"abc", u"abcä"}) {
                hashes.insert(FoldedHash(before + a + b));
                hashes.insert(FoldedHash(std::u16string{a} + b + before + u"x"));
                texts += 2;
            }
        }
    }
    EXPECT_EQ(hashes.size(), texts);
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
