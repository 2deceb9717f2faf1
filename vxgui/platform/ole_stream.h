#pragma once

#include <cstdint>
#include <optional>

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/base/Variant.h"

/// Byte streams, as picture decoders and encoders take them.
namespace vxgui::ole {

enum class SeekOrigin { Set, Current, End };

/// A stream of bytes with one position. Counts are bytes.
class VXPLATFORM_API IStream : public Object {
public:
    /// Reads up to `size` bytes; answers how many, fewer at the end of the stream.
    virtual uint32_t Read(void* buffer, uint32_t size) = 0;
    /// Writes over what is there and lengthens the stream; answers how many were written.
    virtual uint32_t Write(const void* bytes, uint32_t size) = 0;
    /// Moves the position, past the end too; answers the new one, none for one before the start.
    virtual std::optional<uint64_t> Seek(int64_t move, SeekOrigin origin) = 0;
    virtual bool SetSize(uint64_t size) = 0;
    virtual uint64_t Size() const = 0;
};

/// A stream over memory that is handed to it, at position 0. The counterpart of streams over
/// global memory: what is written stays readable until the last reference goes.
VXPLATFORM_API Ref<IStream> CreateStreamOnHGlobal(ByteArray memory = {});

}  // namespace vxgui::ole
