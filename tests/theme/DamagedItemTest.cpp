#include <gtest/gtest.h>

#include <random>

#include "tests/theme/StoredItems.h"
#include "vxgui/base/Attempt.h"
#include "vxgui/platform/codecs.h"

namespace vxgui {
namespace {

using test::BagOf;
using test::FullItem;
using test::InnerBag;

/// A stored item with small pictures and one font and style, so that edits hit every part of it.
Ref<ole::PropertyBag> StoredItem(int32_t flags = 0) {
    const Ref<ThemeItem> item = FullItem();
    item->Image(test::SurfaceOf(6, 2));
    item->Glyph(test::SurfaceOf(3, 1));
    for (int32_t state = E_ItemStatePressed; state <= E_ItemStateGroup; ++state) {
        item->StateFont(state, nullptr);
        item->StateTextStyle(state, nullptr);
    }
    item->StateTextStyle(E_ItemStateMouseOver)->TextStyle = TextStyleOutLine;
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    item->WriteProperties(bag, nullptr, nullptr, nullptr, flags);
    return bag;
}

ByteArray Head(const ByteArray& bytes, size_t size) {
    return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size)};
}

/// A stored item that a file or a stream has brought over, sound or not.
class DamagedItem : public testing::Test {
protected:
    DamagedItem() {
        codecs::ApartmentDecodeLimits() = {4096, 1 << 20, size_t{4} << 20};
        canvas->Create(40, 30);
    }
    ~DamagedItem() override { codecs::ApartmentDecodeLimits() = {}; }

    /// Reads the bag and does with the item what a host does. True when nothing was raised.
    bool Use(const ole::PropertyBag& bag) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        const Ref<ole::PropertyBag> copy = New<ole::PropertyBag>();
        copy->Contents(bag.Contents());
        const bool read = Attempt([&] { item->ReadProperties(copy); });
        for (int32_t state = E_ItemStateNormal; state <= E_ItemStateFocusMouseOver; ++state) {
            item->State(state);
            item->DrawBackground(canvas->hDC(), 1, 2, 37, 25, -1, -1);
            item->GetStateFont(state);
            item->GetStateTextStyle(state);
        }
        // What was read can be stored, and what was stored is read again as it was.
        const ByteArray stored = BagOf(item);
        EXPECT_EQ(BagOf(item->Clone()), BagOf(item->Clone()->Clone()));
        EXPECT_FALSE(stored.empty());
        return read;
    }
    /// Contents that are refused raise; else they are read and used.
    bool UseContents(const ByteArray& contents) {
        const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
        return Attempt([&] { bag->Contents(contents); }) && Use(*bag);
    }

    const Ref<cAlphaDIBSection> canvas = New<cAlphaDIBSection>();
};

TEST_F(DamagedItem, ThatEndsEarlyIsRefused) {
    const ByteArray whole = StoredItem()->Contents();
    EXPECT_TRUE(UseContents(whole));
    for (size_t size = 1; size < whole.size(); ++size) {
        EXPECT_FALSE(UseContents(Head(whole, size))) << size;
    }
}

TEST_F(DamagedItem, APartThatEndsEarlyCostsThatPartAlone) {
    for (const int32_t flags : {0, 1}) {
        for (const char* key : {"ImageBag", "GlyphBag", "FontNormal", "TextStyleMouseOver",
                                "FrameIndex", "GlyphFrameIndex"}) {
            const Ref<ole::PropertyBag> bag = StoredItem(flags);
            const Variant value = bag->ReadProperty(key);
            const auto* whole = value.As<ByteArray>();
            ASSERT_NE(whole, nullptr) << key;
            for (size_t size = 0; size < whole->size(); ++size) {
                bag->WriteProperty(key, Head(*whole, size));
                EXPECT_TRUE(Use(*bag)) << key << size;
            }
        }
    }
}

/// The block of a surface that ends early within bags that are sound.
TEST_F(DamagedItem, ASurfaceThatEndsEarlyLeavesAnEmptyImage) {
    for (const int32_t flags : {0, 1}) {
        const Ref<ole::PropertyBag> bag = StoredItem(flags), inner = InnerBag(bag, "ImageBag");
        const Variant value = inner->ReadProperty("cAlphaDIBSection");
        const ByteArray whole = *value.As<ByteArray>();
        for (size_t size = 0; size < whole.size(); ++size) {
            inner->WriteProperty("cAlphaDIBSection", Head(whole, size));
            bag->WriteProperty("ImageBag", inner->Contents());
            EXPECT_TRUE(Use(*bag)) << size;
            const Ref<ThemeItem> item = New<ThemeItem>();
            item->ReadProperties(bag);
            ASSERT_NE(item->Image(), nullptr);
            EXPECT_EQ(item->Image()->Width(), 0) << size;
        }
    }
}

/// Edits bags at random, the same for the same seed.
class Editor {
public:
    explicit Editor(uint32_t seed) : random_(seed) {}

    ByteArray EditBytes(ByteArray bytes) {
        for (uint32_t edits = Below(4) + 1; edits > 0 && !bytes.empty(); --edits) {
            const auto at = bytes.begin() + Below(static_cast<uint32_t>(bytes.size()));
            switch (Below(4)) {
                case 0:
                    bytes.erase(at);
                    break;
                case 1:
                    bytes.insert(at, static_cast<uint8_t>(random_()));
                    break;
                case 2:
                    *at ^= static_cast<uint8_t>(1u << Below(8));
                    break;
                default:
                    *at = static_cast<uint8_t>(random_());
            }
        }
        return bytes;
    }

    /// Gives one key another value, of any kind.
    void EditEntry(ole::PropertyBag& bag) {
        const std::vector<String> names = bag.Names();
        const String& name = names[Below(static_cast<uint32_t>(names.size()))];
        const Variant value = bag.ReadProperty(name);
        const auto* bytes = value.As<ByteArray>();
        bag.WriteProperty(name, bytes && Below(8) ? Variant(EditInner(*bytes)) : Value());
    }

private:
    uint32_t Below(uint32_t bound) { return static_cast<uint32_t>(random_()) % bound; }

    // A bag in the bag is mostly edited as such, so that the edit gets past its coding.
    ByteArray EditInner(const ByteArray& contents) {
        const Ref<ole::PropertyBag> inner = New<ole::PropertyBag>();
        const bool isBag = Attempt([&] { inner->Contents(contents); });
        if (!isBag || inner->Names().empty() || Below(3) == 0) return EditBytes(contents);
        const String name = inner->Names()[Below(static_cast<uint32_t>(inner->Names().size()))];
        const Variant value = inner->ReadProperty(name);
        const auto* bytes = value.As<ByteArray>();
        inner->WriteProperty(name, bytes ? Variant(EditBytes(*bytes)) : Value());
        return inner->Contents();
    }

    Variant Value() {
        static constexpr int32_t kEdges[] = {0,   1,   -1,     2,     8,          9,
                                             255, 256, -32768, 32767, 2147483647, -2147483647 - 1};
        switch (Below(6)) {
            case 0:
                return static_cast<int32_t>(random_());
            case 1:
                return static_cast<double>(static_cast<int32_t>(random_())) / 3;
            case 2:
                return "12 or so";
            case 3:
                return EditBytes({1, 2, 3, 4, 5, 6, 7, 8, 9});
            default:
                return kEdges[Below(std::size(kEdges))];
        }
    }

    std::mt19937 random_;
};

TEST_F(DamagedItem, ThousandsOfEditedBytesDoNoHarm) {
    const ByteArray whole = StoredItem()->Contents();
    int read = 0;
    for (uint32_t seed = 0; seed < 4000; ++seed) {
        if (UseContents(Editor(seed).EditBytes(whole))) ++read;
    }
    EXPECT_GT(read, 100);  // many of them must get past the coding to be worth the trouble
}

TEST_F(DamagedItem, ThousandsOfEditedEntriesDoNoHarm) {
    int read = 0;
    for (uint32_t seed = 0; seed < 4000; ++seed) {
        const Ref<ole::PropertyBag> bag = StoredItem(static_cast<int32_t>(seed & 1));
        Editor editor(seed);
        for (uint32_t edits = seed % 3 + 1; edits > 0; --edits) editor.EditEntry(*bag);
        if (Use(*bag)) ++read;
    }
    EXPECT_GT(read, 1000);
}

TEST_F(DamagedItem, DrawsItsCaptionsInWhateverFontItHas) {
    for (uint32_t seed = 0; seed < 100; ++seed) {
        const Ref<ole::PropertyBag> bag = StoredItem();
        Editor editor(seed);
        for (int edits = 0; edits < 12; ++edits) editor.EditEntry(*bag);
        const Ref<ThemeItem> item = New<ThemeItem>();
        Attempt([&] { item->ReadProperties(bag); });
        for (const int32_t state : {E_ItemStateNormal, E_ItemStateMouseOver}) {
            item->DrawText(canvas->hDC(), "Caption", 0, state, 0, 0);
            EXPECT_EQ(item->State(), 0);
        }
    }
}

}  // namespace
}  // namespace vxgui
