#include "vxgui/platform/kernel.h"
#include "vxgui/platform/kernel/CodePageConverter.h"

namespace vxgui::kernel {

namespace {

/// The code page of an apartment with its two converters, which are kept: text is converted at
/// each repaint.
struct Ansi {
    explicit Ansi(const std::string& name)
        : name(name),
          decoder(CodePageConverter::FromPage(name)),
          encoder(CodePageConverter::ToPage(name)) {}

    std::string name;
    CodePageConverter decoder;
    CodePageConverter encoder;
};

Ansi& ApartmentAnsi() {
    static thread_local Ansi ansi("CP1252");
    return ansi;
}

}  // namespace

bool SetAnsiCodePage(const std::string& name) {
    Ansi ansi(name);
    if (!ansi.decoder.IsOpen() || !ansi.encoder.IsOpen()) return false;
    ApartmentAnsi() = std::move(ansi);
    return true;
}

const std::string& AnsiCodePage() { return ApartmentAnsi().name; }

std::string AnsiFromText(const String& text) { return ApartmentAnsi().encoder.Encode(text.view()); }

String TextFromAnsi(std::string_view bytes) { return ApartmentAnsi().decoder.Decode(bytes); }

bool TextFromCodePage(std::string_view bytes, const std::string& page, String* text) {
    CodePageConverter decoder = CodePageConverter::FromPage(page);
    if (decoder.IsOpen()) *text = decoder.Decode(bytes);
    return decoder.IsOpen();
}

}  // namespace vxgui::kernel
