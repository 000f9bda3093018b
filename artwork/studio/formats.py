"""Writers for the file formats of the results. No dates, no padding left to chance."""

import io
import struct


def bitmap(image):
    """A 24-bit BMP, rows from the bottom up."""
    width, height = image.size
    rows = image.convert("RGB").tobytes("raw", "BGR", (width * 3 + 3) // 4 * 4, -1)
    header = struct.pack("<2sIHHI", b"BM", 54 + len(rows), 0, 0, 54)
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(rows), 2835, 2835, 0, 0)
    return header + info + rows


def _dib(image):
    """32-bit pixels with alpha and, behind them, the 1-bit mask for whoever knows no alpha."""
    width, height = image.size
    colours = image.tobytes("raw", "BGRA", width * 4, -1)
    mask = bytearray()
    stride = (width + 31) // 32 * 4
    for y in reversed(range(height)):
        row = bytearray(stride)
        for x in range(width):
            if image.getpixel((x, y))[3] < 128:
                row[x // 8] |= 0x80 >> x % 8
        mask += row
    info = struct.pack("<IiiHHIIiiII", 40, width, 2 * height, 1, 32, 0, len(colours) + len(mask),
                       0, 0, 0, 0)
    return info + colours + bytes(mask)


def _png(image):
    out = io.BytesIO()
    image.save(out, "PNG", optimize=True)
    return out.getvalue()


def _group(kind, images, fields):
    """An icon (kind 1) or pointer (kind 2) file of images of ascending size."""
    entries, data = b"", b""
    offset = 6 + 16 * len(images)
    for image, (first, second) in zip(images, fields):
        body = _png(image) if image.width >= 256 else _dib(image)
        side = image.width % 256
        entries += struct.pack("<BBBBHHII", side, side, 0, 0, first, second, len(body),
                               offset + len(data))
        data += body
    return struct.pack("<HHH", 0, kind, len(images)) + entries + data


def icon(images):
    return _group(1, images, [(1, 32)] * len(images))


def pointer(image, hot_spot):
    return _group(2, [image], [hot_spot])
