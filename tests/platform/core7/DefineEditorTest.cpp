#include <gtest/gtest.h>

#include <random>

#include "tests/support/TemporaryFolder.h"
#include "vxgui/base/Error.h"
#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

using test::TemporaryFolder;

String Edited(const String& text, const String& section, const String& key, const String& value) {
    const auto editor = CreateDefineEditor();
    editor->LoadText(text);
    editor->SetString(section, key, value);
    return editor->Text();
}

struct EditCase {
    const char *before, *section, *key, *value, *after;
};

TEST(DefineEditorTest, ChangesOneLineAndLeavesTheRest) {
    const EditCase cases[] = {
        // The key is there.
        {"; top\n[a]\n x = 1 \n; end\n", "A", "X", "2", "; top\n[a]\n x = 2\n; end\n"},
        {"[a]\nx=1\n[b]\nx=1", "b", "x", "2", "[a]\nx=1\n[b]\nx=2"},
        {"[a]\nx=1\nx=2\n", "a", "x", "3", "[a]\nx=3\nx=2\n"},
        {"[a]\nx=\n", "a", "x", "3", "[a]\nx=3\n"},
        {"[a]\nx= \n", "a", "x", "3", "[a]\nx= 3\n"},
        {"[a]\nx=\"old\"\n", "a", "x", "new", "[a]\nx=new\n"},
        // The section is there.
        {"[a]\nx=1\n\n; about b\n[b]\n", "a", "y", "2", "[a]\nx=1\ny=2\n\n; about b\n[b]\n"},
        {"[a]\n[b]\n", "a", "y", "2", "[a]\ny=2\n[b]\n"},
        {"[a]\nx=1\n[b]\n[a]\nz=1\n", "a", "y", "2", "[a]\nx=1\n[b]\n[a]\nz=1\ny=2\n"},
        {"[a]\nx=1", "a", "y", "2", "[a]\nx=1\ny=2"},
        {"[a]\r\nx=1\r\n[b]\r\n", "a", "y", "2", "[a]\r\nx=1\r\ny=2\r\n[b]\r\n"},
        {"; top\n[a]\n", "", "y", "2", "y=2\n; top\n[a]\n"},
        {"x=1\n[a]\n", "", "y", "2", "x=1\ny=2\n[a]\n"},
        // Neither is there.
        {"", "a", "x", "1", "[a]\nx=1\n"},
        {"[a]\nx=1\n", "b", "x", "1", "[a]\nx=1\n\n[b]\nx=1\n"},
        {"[a]\nx=1", "b", "x", "1", "[a]\nx=1\n\n[b]\nx=1\n"},
        {"[a]\r\n", "b", "x", "1", "[a]\r\n\r\n[b]\r\nx=1\r\n"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Edited(c.before, c.section, c.key, c.value), c.after) << c.before;
    }
}

TEST(DefineEditorTest, QuotesAValueOnlyWhereTheReaderWouldTakeSomethingOff) {
    const struct {
        const char *value, *line;
    } cases[] = {{"plain text", "x=plain text"},
                 {" blanks ", "x=\" blanks \""},
                 {"\"both\"", "x=\"\"both\"\""},
                 {"'both'", "x=\"'both'\""},
                 {"\"one", "x=\"one"},
                 {"", "x="},
                 {"a;b=c", "x=a;b=c"}};
    for (const auto& c : cases) {
        EXPECT_EQ(Edited("", "a", "x", c.value), String("[a]\n") + c.line + "\n");
    }
}

TEST(DefineEditorTest, WhatNoLineCanSayIsRefused) {
    const struct {
        const char *section, *key, *value;
    } cases[] = {{"a", "x", "two\nlines"}, {"a", "x", "two\rlines"}, {"a", "", "1"},
                 {"a", "x=y", "1"},        {"a", " x", "1"},         {"a", ";x", "1"},
                 {"a", "[x", "1"},         {"a]", "x", "1"},         {" a", "x", "1"},
                 {"a\nb", "x", "1"},       {"a", "x\ny", "1"}};
    const auto editor = CreateDefineEditor();
    for (const auto& c : cases) {
        try {
            editor->SetString(c.section, c.key, c.value);
            ADD_FAILURE() << c.section << c.key << c.value;
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), 5);
        }
        EXPECT_EQ(editor->Text(), "");
    }
}

TEST(DefineEditorTest, WhatIsSetIsRead) {
    const std::u16string alphabet = u"ab=;[]\"' \x786E";
    std::mt19937 random(1);
    const auto some = [&](size_t most) {
        std::u16string text;
        for (size_t left = random() % most; left > 0; --left) text += alphabet[random() % 10];
        return String(text);
    };
    const auto editor = CreateDefineEditor();
    for (int round = 0; round < 3000; ++round) {
        if (round % 20 == 0) editor->LoadText(some(60));
        const String section = some(3), key = some(4), value = some(8);
        try {
            editor->SetString(section, key, value);
        } catch (const Error&) {
            continue;
        }
        const auto file = CreateDefineFile();
        ASSERT_TRUE(file->LoadText(editor->Text()));
        ASSERT_EQ(file->GetString(section, key, "?"), value) << editor->Text().Utf8();
    }
}

TEST(DefineEditorTest, AFileIsOpenedAndSaved) {
    const TemporaryFolder folder;
    const String path = folder.Write("a.uis", "; \xE7\xA1\xAE\r\n[a]\r\nx=1\r\n");
    const auto editor = CreateDefineEditor();
    ASSERT_TRUE(editor->OpenFile(path));
    editor->SetString("a", "x", u"\x5B9A");
    ASSERT_TRUE(editor->Save(path));
    ByteArray bytes;
    ASSERT_TRUE(ReadWholeFile(path, &bytes));
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()),
              "; \xE7\xA1\xAE\r\n[a]\r\nx=\xE5\xAE\x9A\r\n");
    EXPECT_FALSE(editor->Save(folder.Path("none/a.uis")));
}

TEST(DefineEditorTest, WhatCannotBeReadWholeIsNotOpened) {
    const TemporaryFolder folder;
    const auto editor = CreateDefineEditor();
    editor->LoadText("[a]\n");
    EXPECT_FALSE(editor->OpenFile(folder.Path("none.uis")));
    EXPECT_FALSE(editor->OpenFile(folder.Write("bad.uis", "\xEF\xBB\xBF[a]\nx=\xFF\n")));
    EXPECT_EQ(kernel::GetLastError(), 13u);
    EXPECT_EQ(editor->Text(), "[a]\n");
}

}  // namespace
}  // namespace vxgui::core7
