#include <cbor/encoding.h>

#include "vxgui/platform/ole/BagCoding.h"

namespace vxgui::ole {
namespace {

class Encoder {
public:
    ByteArray Encode(const std::vector<BagEntry>& entries) {
        Head(cbor_encode_map_start, entries.size());
        for (const BagEntry& entry : entries) {
            (*this)(entry.name);
            std::visit(*this, entry.value);
        }
        return std::move(bytes_);
    }

    void operator()(bool value) { Head(cbor_encode_bool, value); }
    void operator()(int32_t value) {
        // A negative n is kept as -1 - n, which is its complement.
        if (value >= 0)
            Head(cbor_encode_uint, static_cast<uint64_t>(value));
        else
            Head(cbor_encode_negint, static_cast<uint64_t>(~value));
    }
    void operator()(float value) { Head(cbor_encode_single, value); }
    void operator()(double value) { Head(cbor_encode_double, value); }
    void operator()(const String& value) {
        const std::string text = value.Utf8();
        Head(cbor_encode_string_start, text.size());
        bytes_.insert(bytes_.end(), text.begin(), text.end());
    }
    void operator()(const ByteArray& value) {
        Head(cbor_encode_bytestring_start, value.size());
        bytes_.insert(bytes_.end(), value.begin(), value.end());
    }

private:
    template <class T, class U>
    void Head(size_t (*encode)(T, unsigned char*, size_t), U value) {
        unsigned char head[9];  // the longest: one byte of type and eight of argument
        bytes_.insert(bytes_.end(), head, head + encode(value, head, sizeof head));
    }

    ByteArray bytes_;
};

}  // namespace

ByteArray EncodeBag(const std::vector<BagEntry>& entries) { return Encoder().Encode(entries); }

}  // namespace vxgui::ole
