"""Writes canvases as the three kinds of picture that skins are made of."""
import struct
import zlib


def write_png(canvas, path):
    """32-bit PNG, straight alpha (ISO 15948)."""
    rows = b"".join(
        b"\0" + bytes(c for x in range(canvas.width) for c in canvas.straight(x, y))
        for y in range(canvas.height))
    header = struct.pack(">IIBBBBB", canvas.width, canvas.height, 8, 6, 0, 0, 0)
    with open(path, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + _chunk(b"IHDR", header)
                   + _chunk(b"IDAT", zlib.compress(rows, 9)) + _chunk(b"IEND", b""))


def write_tga(canvas, path):
    """32-bit true colour, bottom row first, straight alpha, with the 2.0 footer."""
    _write_tga(canvas, path, 2, lambda row: b"".join(row))


def write_packed_tga(canvas, path):
    """The same with its runs packed; no packet goes from one row to the next."""
    _write_tga(canvas, path, 10, _packed)


def _write_tga(canvas, path, kind, coded):
    header = struct.pack("<BBBHHBHHHHBB", 0, 0, kind, 0, 0, 0, 0, 0, canvas.width, canvas.height, 32, 8)
    with open(path, "wb") as file:
        file.write(header)
        for y in reversed(range(canvas.height)):
            straight = (canvas.straight(x, y) for x in range(canvas.width))
            file.write(coded([bytes((blue, green, red, alpha)) for red, green, blue, alpha in straight]))
        file.write(struct.pack("<II", 0, 0) + b"TRUEVISION-XFILE.\0")


def _packed(row):
    """Packets of up to 128 pixels: one that is repeated, or ones that differ."""
    code, at = b"", 0
    while at < len(row):
        end = at + 1
        while end < min(len(row), at + 128) and row[end] == row[at]:
            end += 1
        if end - at > 1:
            code += bytes((127 + end - at,)) + row[at]
        else:
            while end < min(len(row), at + 128) and row[end] != row[end - 1]:
                end += 1
            code += bytes((end - at - 1,)) + b"".join(row[at:end])
        at = end
    return code


def write_bmp(canvas, path, key=(255, 0, 255)):
    """24-bit bitmap; what is clear gets the key colour."""
    pad = -canvas.width * 3 % 4
    size = (canvas.width * 3 + pad) * canvas.height
    with open(path, "wb") as file:
        file.write(struct.pack("<2sIHHI", b"BM", 54 + size, 0, 0, 54))
        file.write(struct.pack("<IiiHHIIiiII", 40, canvas.width, canvas.height, 1, 24, 0, size, 2835,
                               2835, 0, 0))
        for y in reversed(range(canvas.height)):
            for x in range(canvas.width):
                red, green, blue = canvas.flattened(x, y, key)
                file.write(bytes((blue, green, red)))
            file.write(b"\0" * pad)


def _chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
