#include "tools/view/recolour/SkinPicture.h"

#include <cstdlib>

#include "tools/view/recolour/RecolourBmp.h"
#include "tools/vxgui/PictureFile.h"
#include "tools/vxgui/StraightSurface.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/core7.h"

namespace vxgui::view {
namespace {

using tool::PictureKind;

// A BMP of 24 bits: what is read from it has the alpha that a picture without a channel has.
ByteArray BmpOf(cAlphaDIBSection& picture) {
    const auto width = static_cast<size_t>(picture.Width());
    const auto height = static_cast<size_t>(std::abs(picture.Height()));
    const size_t stride = (width * 3 + 3) / 4 * 4;
    constexpr size_t kHeaders = 54;
    ByteArray file(kHeaders + stride * height);
    const auto put = [&](size_t at, uint32_t value) { StoreLittle<uint32_t>(&file[at], value); };
    file[0] = 'B', file[1] = 'M';
    put(2, static_cast<uint32_t>(file.size()));
    put(10, kHeaders);
    put(14, 40);
    put(18, static_cast<uint32_t>(width));
    put(22, static_cast<uint32_t>(height));
    put(26, 1 | 24 << 16);
    put(34, static_cast<uint32_t>(stride * height));
    const ARGBArray rows = picture.GetARGBArray();
    for (size_t y = 0; y < height; ++y) {
        uint8_t* to = &file[kHeaders + y * stride];
        for (const ARGB& pixel : rows.Run(static_cast<int32_t>(y), 0, picture.Width() - 1))
            *to++ = pixel.Blue, *to++ = pixel.Green, *to++ = pixel.Red;
    }
    return file;
}

Ref<cAlphaDIBSection> AsSkinsReadIt(const std::string& path, int32_t background) {
    Ref<cAlphaDIBSection> picture = New<cAlphaDIBSection>();
    picture->TransparentColor(background);
    return picture->CreateFromPictureFile(path) ? picture : nullptr;
}

}  // namespace

SkinPicture::SkinPicture(const std::string& path, KeyColours keys, int32_t background)
    : keys_(std::move(keys)) {
    core7::ReadWholeFile(path, &bytes_);
    const std::optional<PictureKind> kind = tool::KindOf(bytes_, path);
    if (!kind) return;
    ByteArray copy = bytes_;
    if (kind == PictureKind::Bmp && RecolourBmp(copy, {}, {})) {
        way_ = Way::InPlace;
    } else if (kind == PictureKind::Png || kind == PictureKind::Tga)
        try {
            picture_ = tool::PictureOf(bytes_, *kind, path);
            way_ = kind == PictureKind::Png ? Way::Png : Way::Tga;
        } catch (const tool::ToolError&) {
            // Whatever is wrong with it, the skin's reader has told of it.
        }
    else if ((picture_ = AsSkinsReadIt(path, background))) {
        way_ = Way::NewBmp;
    }
}

std::string SkinPicture::AddedEnding() const { return way_ == Way::NewBmp ? ".bmp" : ""; }

void SkinPicture::WriteBytes(const std::string& path, const ByteArray& bytes) const {
    if (!core7::WriteWholeFile(path, bytes.data(), bytes.size()))
        tool::Fail(path, "can't be written");
}

Ref<cAlphaDIBSection> SkinPicture::Recoloured(const Recolour& how) const {
    const Ref<cAlphaDIBSection> copy = tool::StraightCopy(*picture_, "a picture of the skin");
    const ARGBArray rows = copy->GetARGBArray();
    for (int32_t row = 0; row < rows.Rows(); ++row)
        RecolourPixels(rows.Run(row, 0, rows.Columns() - 1), how, keys_);
    return copy;
}

void SkinPicture::Write(const std::string& path, const Recolour& how) const {
    switch (way_) {
        case Way::AsItIs:
            return WriteBytes(path, bytes_);
        case Way::InPlace: {
            ByteArray bytes = bytes_;
            RecolourBmp(bytes, how, keys_);
            return WriteBytes(path, bytes);
        }
        case Way::Png:
            return tool::WritePicture(*Recoloured(how), PictureKind::Png, path);
        case Way::Tga:
            return tool::WritePicture(*Recoloured(how), PictureKind::Tga, path);
        case Way::NewBmp:
            return WriteBytes(path, BmpOf(*Recoloured(how)));
    }
}

}  // namespace vxgui::view
