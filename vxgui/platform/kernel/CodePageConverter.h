#pragma once

#include <iconv.h>

#include <string>
#include <string_view>

namespace vxgui::kernel {

/// One direction of a conversion between a code page and UTF-16 of the machine's byte order.
class CodePageConverter {
public:
    static CodePageConverter FromPage(const std::string& page);
    static CodePageConverter ToPage(const std::string& page);
    CodePageConverter(CodePageConverter&& other) noexcept;
    CodePageConverter& operator=(CodePageConverter&& other) noexcept;
    ~CodePageConverter();

    /// False when the code page is unknown.
    bool IsOpen() const { return handle_ != Closed(); }

    /// All bytes; what the code page doesn't know becomes U+FFFD, one for each byte.
    std::u16string Decode(std::string_view bytes);
    /// All units; what the code page can't express becomes "?", one for each character.
    std::string Encode(std::u16string_view text);

private:
    explicit CodePageConverter(iconv_t handle) : handle_(handle) {}
    /// Converts as much as is well-formed, and takes it off the front of `input`.
    void Run(std::string_view& input, std::string& output);
    /// Ends the text: a code page with shifts goes back to its first state.
    void Finish(std::string& output);

    /// What the library answers for an unknown code page.
    static iconv_t Closed() { return reinterpret_cast<iconv_t>(-1); }

    iconv_t handle_;
};

}  // namespace vxgui::kernel
