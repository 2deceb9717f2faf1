#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <span>

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/base/Variant.h"
#include "vxgui/platform/core7_define.h"
#include "vxgui/platform/core7_files.h"
#include "vxgui/platform/kernel.h"

/// The core services: trace, system information, the compressor and resources; define files and
/// the services of paths and files have headers of their own.
namespace vxgui::core7 {

/// The trace object. Its lines go to the function that the host set, else nowhere.
class VXPLATFORM_API Trace : public Object {
public:
    /// Names the application whose lines these are; before, they carry an empty name. `level` is
    /// the lowest level that is passed on.
    virtual void Start(const String& application, int32_t level) = 0;
    virtual void Write(const String& text, int32_t level) = 0;
};
VXPLATFORM_API Ref<Trace> CreateTrace();

/// Where the lines of the calling apartment's trace objects go, those made earlier included; an
/// empty function ends it. The sink must not raise.
using TraceSink = std::function<void(const String& application, const String& text, int32_t level)>;
VXPLATFORM_API void SetTraceSink(TraceSink sink);

/// The system information object.
class VXPLATFORM_API SystemInformation : public Object {
public:
    /// The value that the apartment's switch for the platform's own blits starts from: false.
    virtual bool PrefersSystemAlphaBlend() = 0;
    /// The description of a system error code, in one line; never empty.
    virtual String ErrorText(uint32_t code) = 0;
};
VXPLATFORM_API Ref<SystemInformation> CreateSystemInformation();

/// The compressor of persisted pixels: one zstd frame (RFC 8878) that states the size of its
/// content.
VXPLATFORM_API ByteArray Compress(const ByteArray& bytes);
/// The size of the content; 0 for what is not compressed, or says more than the limit.
VXPLATFORM_API size_t GetSize(const ByteArray& compressed);
VXPLATFORM_API size_t GetSize(std::span<const uint8_t> compressed);
/// The content; none for what is not compressed, is damaged, says more than the limit, or holds
/// another amount than it says.
VXPLATFORM_API std::optional<ByteArray> Decompress(const ByteArray& compressed);
VXPLATFORM_API std::optional<ByteArray> Decompress(std::span<const uint8_t> compressed);
/// The same into bytes whose memory serves again; false, and whatever in them, for none.
VXPLATFORM_API bool Decompress(std::span<const uint8_t> compressed, ByteArray* bytes);
/// What a frame may claim to hold in the calling apartment: a part of `ApartmentLimits`.
inline size_t& ApartmentDecompressionLimit() { return ApartmentLimits().decompressedBytes; }

/// The CRC-32 of the bytes, as PNG and others use it (ISO 3309).
VXPLATFORM_API uint32_t Checksum(const uint8_t* bytes, size_t size);

class VXPLATFORM_API ResourceService : public Object {
public:
    /// The bytes of a resource, empty if there is none.
    virtual ByteArray ReadResource(kernel::HMODULE module, const String& type,
                                   const String& name) = 0;
    virtual bool IsEmptyArray(const ByteArray& bytes) = 0;
};
/// One object per apartment, made on first use.
VXPLATFORM_API ResourceService& TheResourceService();

/// Wall time for diagnostics.
class Stopwatch {
public:
    void Restart() { start_ = Clock::now(); }
    double ElapsedMilliseconds() const {
        return std::chrono::duration<double, std::milli>(Clock::now() - start_).count();
    }

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point start_ = Clock::now();
};

}  // namespace vxgui::core7
