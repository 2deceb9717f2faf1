#!/usr/bin/env bash
# Makes the pictures in images/ that the decoders are tested with, and beside each the pixels that
# it must decode to: FILE.bgra holds straight blue-green-red-alpha rows, the top row first.
#
# The pictures are written by ImageMagick 6.9 and by Pillow 9.4. The expected pixels come from
# Pillow, and from ImageMagick where Pillow can't read a form: never from our own decoders.
# Both were built with the usual libpng, libjpeg-turbo and libtiff.
# Needs: convert (ImageMagick), and a Python with Pillow, named by PYTHON.
set -euo pipefail
cd "$(dirname "$0")/images"
PYTHON=${PYTHON:-python3}
rm -f ./*
export SOURCE_DATE_EPOCH=0  # PNG files of ImageMagick hold dates

# The motif: 13 x 11, so that rows need padding at every depth; every pixel is different. Its alpha
# runs from clear at the left to opaque at the right.
SIZE=13x11
"$PYTHON" - <<'PY'
from PIL import Image
def colour(x, y):
    return (x * 20 + 5, (y * 21 + x * 3) % 256, 255 - x * y * 7 % 256)
motif = Image.new("RGBA", (13, 11))
motif.putdata([colour(x, y) + (255 if x == 12 else x * 21,) for y in range(11) for x in range(13)])
motif.save("motif-alpha.png")
motif.convert("RGB").save("motif.png")
motif.convert("RGB").convert("L").save("motif-grey.png")
PY

expect_pillow() {
    "$PYTHON" - "$@" <<'PY'
import sys
from PIL import Image
for name in sys.argv[1:]:
    with Image.open(name) as image:
        red, green, blue, alpha = image.convert("RGBA").split()
        open(name + ".bgra", "wb").write(Image.merge("RGBA", (blue, green, red, alpha)).tobytes())
PY
}
expect_magick() {
    for name in "$@"; do
        convert "$name[0]" -depth 8 "bgra:$name.bgra"
    done
}

# --- BMP -----------------------------------------------------------------------------------------
convert motif.png -colors 2 -type Palette -compress none BMP3:bmp-1.bmp
convert motif.png -colors 16 -type Palette -compress none BMP3:bmp-4.bmp
convert motif.png -colors 200 -type Palette -compress none BMP3:bmp-8.bmp
convert motif.png -type TrueColor BMP3:bmp-24.bmp
convert motif.png -type TrueColor BMP2:bmp-24-core.bmp
convert motif.png -colors 16 -type Palette BMP2:bmp-4-core.bmp
convert motif-alpha.png BMP:bmp-32-v5-alpha.bmp
convert motif.png -define bmp:subtype=RGB565 BMP:bmp-16-565.bmp
convert motif.png -define bmp:subtype=RGB555 BMP:bmp-16-555.bmp
convert motif-alpha.png -define bmp:subtype=ARGB4444 BMP:bmp-16-4444.bmp
convert motif-alpha.png -define bmp:subtype=ARGB1555 BMP:bmp-16-1555.bmp
convert -size $SIZE xc:white -fill '#4080c0' -draw 'rectangle 2,2 9,8' -fill '#c04020' \
    -draw 'rectangle 4,4 6,6' -colors 8 -type Palette -compress RLE BMP3:bmp-8-rle.bmp
expect_pillow bmp-1.bmp bmp-4.bmp bmp-8.bmp bmp-24.bmp bmp-24-core.bmp bmp-4-core.bmp \
    bmp-16-565.bmp bmp-16-555.bmp bmp-8-rle.bmp
expect_magick bmp-32-v5-alpha.bmp bmp-16-4444.bmp bmp-16-1555.bmp

# Forms that neither program writes, from what they wrote: the bytes are put together here.
"$PYTHON" - <<'PY'
import struct
from PIL import Image

def header(width, height, bits, compression, size, colours, masks=b""):
    offset = 14 + 40 + len(masks) + 4 * colours
    return (b"BM" + struct.pack("<IHHI", offset + size, 0, 0, offset) +
            struct.pack("<IiiHHIIiiII", 40, width, height, 1, bits, compression, size, 2835, 2835,
                        colours, 0) + masks)

motif = Image.open("motif.png").convert("RGB")
alpha = Image.open("motif-alpha.png")
rows = [[motif.getpixel((x, y)) for x in range(13)] for y in range(11)]

# Top row first.
body = b"".join(b"".join(bytes((b, g, r)) for r, g, b in row) + b"\0" for row in rows)
open("bmp-24-topdown.bmp", "wb").write(header(13, -11, 24, 0, len(body), 0) + body)

# 32 bits without masks: the fourth byte is the alpha of the motif, which BI_RGB does not declare.
body = b"".join(b"".join(bytes((b, g, r, a)) for r, g, b, a in
                         (alpha.getpixel((x, y)) for x in range(13))) for y in reversed(range(11)))
open("bmp-32.bmp", "wb").write(header(13, 11, 32, 0, len(body), 0) + body)

# 32 bits with three masks in an unusual order (red lowest, ten bits of green).
body = b"".join(struct.pack("<I", r | (g * 1023 // 255) << 8 | b << 18)
                for row in reversed(rows) for r, g, b in row)
masks = struct.pack("<III", 0xFF, 0x3FF << 8, 0xFF << 18)
open("bmp-32-masks.bmp", "wb").write(header(13, 11, 32, 3, len(body), 0, masks) + body)

# The fourth version of the header, with an alpha mask.
body = b"".join(b"".join(bytes((b, g, r, a)) for r, g, b, a in
                         (alpha.getpixel((x, y)) for x in range(13))) for y in reversed(range(11)))
v4 = struct.pack("<IiiHHIIiiII", 108, 13, 11, 1, 32, 3, len(body), 2835, 2835, 0, 0)
v4 += struct.pack("<IIIII", 0xFF0000, 0xFF00, 0xFF, 0xFF000000, 0x73524742) + bytes(48)
open("bmp-32-v4-alpha.bmp", "wb").write(
    b"BM" + struct.pack("<IHHI", 122 + len(body), 0, 0, 122) + v4 + body)

# RLE4: runs, an absolute packet with its padding, a jump, ends of lines, and the end.
palette = b"".join(bytes((b, g, r, 0)) for r, g, b in
                   [(0, 0, 0), (255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 0),
                    (0, 255, 255), (255, 0, 255), (255, 255, 255)] + [(0, 0, 0)] * 8)
body = bytes([13, 0x12, 0, 0,                            # a line of two colours in turn
              0, 7, 0x12, 0x34, 0x56, 0x70, 6, 0x33, 0, 0,  # seven pixels as they are, then six
              2, 0x44, 0, 2, 3, 2, 4, 0x55, 0, 0,        # two, a jump by 3 and 2 up, four
              13, 0x66, 0, 1, 0, 0, 0, 0])                 # the end, and a filler behind it
open("bmp-4-rle.bmp", "wb").write(header(13, 11, 4, 2, len(body), 16) + palette + body)
body = bytes([13, 1, 0, 0, 0, 5, 1, 2, 3, 4, 5, 0, 8, 7, 0, 0, 3, 4, 0, 2, 2, 3, 4, 5, 0, 1, 0, 0, 0, 0])
open("bmp-8-rle-jump.bmp", "wb").write(header(13, 11, 8, 1, len(body), 16) + palette + body)
PY
expect_pillow bmp-24-topdown.bmp
expect_magick bmp-4-rle.bmp bmp-8-rle-jump.bmp bmp-32-masks.bmp bmp-32-v4-alpha.bmp

# ImageMagick leaves 4-bit colours and short alphas at the top of their bytes, and no alpha at 0: these
# are put in by hand.
"$PYTHON" - <<'PY'
import struct
def patch(name, channels_of):
    pixels = bytearray(open(name + ".bgra", "rb").read())
    data = open(name, "rb").read()
    start = struct.unpack_from("<I", data, 10)[0]
    for y in range(11):
        for x in range(13):
            word = struct.unpack_from("<H", data, start + (10 - y) * 28 + 2 * x)[0]
            for index, value in channels_of(word).items():
                pixels[(y * 13 + x) * 4 + index] = value
    open(name + ".bgra", "wb").write(pixels)
patch("bmp-16-4444.bmp", lambda word: {i: (word >> 4 * i & 15) * 17 for i in range(4)})
patch("bmp-16-1555.bmp", lambda word: {3: (word >> 15) * 255})
patch("bmp-32-masks.bmp", lambda word: {3: 255})
PY

# --- PNG -----------------------------------------------------------------------------------------
for bits in 1 2 4 8 16; do
    convert motif-grey.png -posterize $((bits > 8 ? 256 : 1 << bits)) +dither -define png:color-type=0 -define png:bit-depth=$bits png-grey-$bits.png
done
convert motif.png -define png:color-type=2 -define png:bit-depth=8 png-rgb-8.png
convert motif.png -define png:color-type=2 -define png:bit-depth=16 png-rgb-16.png
convert motif-alpha.png -colorspace Gray -define png:color-type=4 -define png:bit-depth=8 png-grey-alpha-8.png
convert motif-alpha.png -colorspace Gray -define png:color-type=4 -define png:bit-depth=16 png-grey-alpha-16.png
convert motif-alpha.png -define png:color-type=6 -define png:bit-depth=8 png-rgba-8.png
convert motif-alpha.png -evaluate add 0.13% -define png:color-type=6 -define png:bit-depth=16 png-rgba-16.png
convert motif-alpha.png -interlace PNG -define png:color-type=6 png-rgba-8-interlaced.png
convert motif-grey.png -posterize 4 +dither -interlace PNG -define png:color-type=0 \
    -define png:bit-depth=2 png-grey-2-interlaced.png
"$PYTHON" - <<'PY'
from PIL import Image
motif = Image.open("motif.png").convert("RGB")
motif.save("png-rgb-key.png", transparency=motif.getpixel((3, 4)))
motif.convert("L").save("png-grey-key.png", transparency=motif.convert("L").getpixel((5, 6)))
for bits in (1, 2, 4, 8):
    motif.quantize(min(1 << bits, 200)).save(f"png-palette-{bits}.png", bits=bits)
palette = motif.quantize(20)
palette.save("png-palette-alpha.png", transparency=bytes(range(0, 200, 10)))
PY
expect_pillow png-grey-{1,2,4,8}.png png-palette-{1,2,4,8}.png png-rgb-8.png png-grey-alpha-8.png \
    png-rgba-8.png png-rgba-8-interlaced.png png-grey-2-interlaced.png png-rgb-key.png \
    png-grey-key.png png-palette-alpha.png
expect_magick png-grey-16.png png-rgb-16.png png-grey-alpha-16.png png-rgba-16.png

# --- JPEG ----------------------------------------------------------------------------------------
convert motif-grey.png -quality 92 jpeg-grey.jpg
convert motif.png -quality 92 -sampling-factor 1x1 jpeg-444.jpg
convert motif.png -quality 92 -sampling-factor 2x2 jpeg-420.jpg
convert motif.png -quality 92 -sampling-factor 2x2 -interlace JPEG jpeg-progressive.jpg
convert motif.png -quality 92 -colorspace CMYK jpeg-cmyk.jpg
expect_pillow jpeg-*.jpg
# Larger and of few bytes, for the bounds on working memory.
convert -size 256x256 xc:navy -quality 92 -sampling-factor 1x1 -interlace JPEG large-progressive.jpg

# --- GIF -----------------------------------------------------------------------------------------
convert motif.png -colors 60 +dither gif-89.gif
convert motif.png -colors 60 +dither GIF87:gif-87.gif
convert motif.png -colors 60 +dither -interlace GIF gif-interlaced.gif
convert motif-alpha.png -channel A -threshold 50% +channel -colors 60 +dither gif-transparent.gif
# Three frames; the first covers a part of its canvas.
convert -size 13x11 -dispose none -delay 5 \( motif.png -crop 8x6+3+2 \) \
    -page 13x11+1+1 \( -size 4x4 xc:lime \) -page 13x11+0+0 \( -size 13x11 xc:navy \) \
    -loop 0 gif-animated.gif
expect_pillow gif-89.gif gif-87.gif gif-interlaced.gif gif-transparent.gif
convert 'gif-animated.gif[0]' -coalesce -depth 8 bgra:gif-animated.gif.bgra
convert gif-animated.gif -alpha set -coalesce -depth 8 bgra:gif-animated-frames.bgra  # all three

# --- TIFF ----------------------------------------------------------------------------------------
convert motif.png -compress none tiff-rgb.tif
convert motif.png -compress lzw -define tiff:rows-per-strip=4 tiff-rgb-lzw.tif
convert motif.png -compress zip -define tiff:tile-geometry=16x16 tiff-rgb-tiled.tif
convert motif.png -compress none -define tiff:endian=msb tiff-rgb-msb.tif
convert motif-alpha.png -compress lzw -define tiff:alpha=unassociated tiff-rgba.tif
convert motif-alpha.png -compress lzw -define tiff:alpha=associated tiff-rgba-associated.tif
convert motif.png -colors 40 -type Palette -compress RLE tiff-palette.tif
convert motif-grey.png -compress lzw -depth 16 tiff-grey-16.tif
convert motif-grey.png -monochrome -compress Group4 tiff-g4.tif
expect_pillow tiff-rgb.tif tiff-rgb-lzw.tif tiff-rgb-tiled.tif tiff-rgb-msb.tif tiff-rgba.tif \
    tiff-palette.tif tiff-g4.tif
expect_magick tiff-grey-16.tif tiff-rgba-associated.tif

# --- ICO and CUR ---------------------------------------------------------------------------------
convert motif-alpha.png ico-32.ico
convert motif.png -colors 16 -type Palette ico-4.ico
convert motif.png -colors 200 -type Palette ico-8.ico
convert motif-alpha.png \( motif.png -resize 50% \) ico-two.ico
"$PYTHON" - <<'PY'
import struct
from PIL import Image
motif = Image.open("motif-alpha.png")
motif.save("ico-png.ico", sizes=[(13, 11)])
# A cursor is an icon of type 2 with a hot spot in the place of planes and depth.
data = bytearray(open("ico-32.ico", "rb").read())
struct.pack_into("<H", data, 2, 2)
struct.pack_into("<HH", data, 10, 5, 3)
open("cur-32.cur", "wb").write(data)
# The mask: every third pixel of the 8-bit icon is clear. The mask is the last 11 rows of 4 bytes.
data = bytearray(open("ico-8.ico", "rb").read())
for y in range(11):
    for x in range(0, 13, 3):
        data[len(data) - 44 + (10 - y) * 4 + x // 8] |= 0x80 >> x % 8
open("ico-8-mask.ico", "wb").write(data)
PY
expect_pillow ico-32.ico ico-4.ico ico-8.ico ico-png.ico ico-8-mask.ico
cp ico-32.ico.bgra cur-32.cur.bgra

# --- TGA -----------------------------------------------------------------------------------------
convert motif.png -type TrueColor -compress none tga-24.tga
convert motif-alpha.png -compress none tga-32.tga
convert motif-alpha.png -compress RLE tga-32-rle.tga
convert motif.png -colors 30 -type Palette -compress none tga-palette.tga
"$PYTHON" - <<'PY'
from PIL import Image
Image.open("motif-alpha.png").save("tga-32-topdown-rle.tga", compression="tga_rle", orientation=1)
PY
expect_pillow tga-24.tga tga-32.tga tga-32-rle.tga tga-palette.tga tga-32-topdown-rle.tga

rm motif.png motif-alpha.png motif-grey.png
