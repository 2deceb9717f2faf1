#pragma once

#include <functional>
#include <memory>

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/base/Variant.h"
#include "vxgui/platform/Collection.h"
#include "vxgui/platform/gdi_types.h"

/// Picture objects, the standard font with its change notification, the property bag and the
/// keyed collection.
namespace vxgui::ole {

enum PictureType : int16_t { kPictureNone = 0, kPictureBitmap = 1, kPictureIcon = 3 };

/// A picture over a drawing handle.
class VXPLATFORM_API Picture : public Object {
public:
    /// The bitmap or icon; null when there is none. It stays the picture's.
    virtual gdi::HGDIOBJ Handle() const = 0;
    virtual int16_t Type() const = 0;
    /// Hundredths of a millimetre: pixels * 2540 / dots an inch, rounded.
    virtual int32_t Width() const = 0;
    virtual int32_t Height() const = 0;
    /// Draws the source rectangle, in HIMETRIC with y upwards (so that a source at the full
    /// height with a negative height comes out upright), into the destination, in pixels.
    virtual void Render(gdi::HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy, int32_t sourceX,
                        int32_t sourceY, int32_t sourceCx, int32_t sourceCy) const = 0;
    /// The bytes of the picture as a file of its kind: BMP, or ICO.
    virtual bool SaveAsFile(ByteArray* bytes) const = 0;
};

/// A picture over a handle that it deletes at its end when `own` is set. None for a null handle
/// or an unknown type.
VXPLATFORM_API Ref<Picture> OleCreatePictureIndirect(gdi::HGDIOBJ handle, int16_t type, bool own);

/// The platform's own loaders: BMP, GIF, JPEG, ICO, CUR. Not PNG, not TIFF, not TGA. None for
/// what cannot be read.
VXPLATFORM_API Ref<Picture> OleLoadPicture(const void* data, size_t size);
VXPLATFORM_API Ref<Picture> LoadPicture(const String& filename);

/// The standard font object. Each setter notifies the watcher once, with the name of the property
/// that was set, after the value has changed; it says nothing when the value is the same.
class VXPLATFORM_API StdFont : public Object {
public:
    using Watcher = std::function<void(const String& propertyName)>;

    String Name() const { return name_; }
    void Name(const String& value);
    /// Notified as "CharSet".
    int16_t Charset() const { return charset_; }
    void Charset(int16_t value);
    /// Points, kept to a ten-thousandth. Raises for what is below 0 or no size at all.
    double Size() const { return size_; }
    void Size(double value);
    /// True from weight 600 up; setting it to what it isn't makes the weight 700 or 400, of which
    /// "Bold" alone is notified.
    bool Bold() const { return weight_ >= 600; }
    void Bold(bool value);
    bool Italic() const { return italic_; }
    void Italic(bool value);
    bool Underline() const { return underline_; }
    void Underline(bool value);
    bool Strikethrough() const { return strikethrough_; }
    void Strikethrough(bool value);
    int16_t Weight() const { return weight_; }
    void Weight(int16_t value);
    /// A font handle of these properties at the screen's resolution, made when it is asked for.
    /// It stays the object's, and ends when a property changes.
    gdi::HFONT hFont() const;

    /// One watcher at a time; an empty one ends the watch.
    void Watch(Watcher watcher) { watcher_ = std::move(watcher); }

    StdFont();

protected:
    ~StdFont() override;

private:
    template <class T>
    void Change(T& field, const T& value, const char* property);
    void DropHandle() const;

    String name_{"MS Sans Serif"};
    int16_t charset_ = 0;
    double size_ = 8.25;
    int16_t weight_ = 400;
    bool italic_ = false;
    bool underline_ = false;
    bool strikethrough_ = false;
    mutable gdi::HFONT font_ = nullptr;
    Watcher watcher_;
};

class PropertyBag;

/// What an object is that a bag can keep: it writes itself into a bag of its own, and reads itself
/// from that.
class VXPLATFORM_API Persistent {
public:
    virtual void SaveTo(const Ref<PropertyBag>& bag) = 0;
    virtual void RestoreFrom(const Ref<PropertyBag>& bag) = 0;

protected:
    ~Persistent() = default;
};

/// An ordered name-to-value store. Values are Boolean, 32-bit integer, float of either width, text
/// or byte array. Names are compared without regard to case.
class VXPLATFORM_API PropertyBag : public Object {
public:
    PropertyBag();

    /// The value under `name`, or `fallback` when there is none.
    Variant ReadProperty(const String& name, const Variant& fallback = {}) const;
    /// Stores the value; one that equals `fallback` is not stored, and takes an older one away.
    /// Replacing a value keeps its place. An object that is `Persistent` is saved in a bag of its own,
    /// whose contents are the value. Raises the type mismatch for a value of another kind.
    void WriteProperty(const String& name, const Variant& value, const Variant& fallback = {});
    /// Has an object read itself from the bag that was stored for it. False, and the object stays,
    /// when no bytes stand under the name; raises when those are no bag's contents.
    bool RestoreProperty(const String& name, Persistent& object) const;
    bool Has(const String& name) const;
    /// The names in their order.
    std::vector<String> Names() const;

    /// The whole bag as a flat CBOR map (RFC 8949) from text to value. Half a surrogate pair in
    /// a text becomes U+FFFD; everything else comes back as it was.
    ByteArray Contents() const;
    /// Replaces the bag by what `bytes` hold. Raises error 5, with the place, and leaves the bag
    /// as it was, for what is truncated, nested, of an unknown type, longer than it can be, has a
    /// name twice or bytes behind its end; an empty array empties the bag.
    void Contents(const ByteArray& bytes);

protected:
    ~PropertyBag() override;

private:
    struct Store;
    std::unique_ptr<Store> store_;
};

}  // namespace vxgui::ole
