"""Pictures of the screen: pixels as (red, green, blue), saved as PNG."""

import struct
import zlib


class Picture:
    """width x height pixels; `rgb` holds three bytes a pixel, row by row from the top."""

    def __init__(self, width, height, rgb):
        self.width = width
        self.height = height
        self.rgb = bytes(rgb)

    def pixel(self, x, y):
        start = 3 * (y * self.width + x)
        return tuple(self.rgb[start:start + 3])

    def crop(self, left, top, right, bottom):
        """The half-open part, cut to what there is."""
        left, top = max(left, 0), max(top, 0)
        right, bottom = min(right, self.width), min(bottom, self.height)
        rows = (self.rgb[3 * (y * self.width + left):3 * (y * self.width + right)]
                for y in range(top, bottom))
        return Picture(right - left, bottom - top, b"".join(rows))

    def colours(self):
        """The set of colours that occur; a picture of one colour shows nothing."""
        return {self.rgb[i:i + 3] for i in range(0, len(self.rgb), 3)}

    def differs_from(self, other):
        return (self.width, self.height, self.rgb) != (other.width, other.height, other.rgb)

    def save(self, path):
        """Writes a PNG and returns its path."""
        stride = 3 * self.width
        rows = b"".join(b"\0" + self.rgb[y * stride:(y + 1) * stride] for y in range(self.height))
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(b"\x89PNG\r\n\x1a\n" + _chunk(b"IHDR", header) +
                         _chunk(b"IDAT", zlib.compress(rows, 6)) + _chunk(b"IEND", b""))
        return path


def _chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def read_frame_buffer(path):
    """The picture in the file that Xvfb keeps its screen in (the xwd format, 32 bits a pixel)."""
    data = path.read_bytes()
    fields = struct.unpack(">25I", data[:100])
    header_size, width, height = fields[0], fields[4], fields[5]
    little_endian, bits_per_pixel, stride, colour_count = fields[7] == 0, fields[11], fields[12], fields[19]
    if bits_per_pixel != 32:
        raise ValueError(f"a screen of {bits_per_pixel} bits a pixel")
    start = header_size + 12 * colour_count
    pixels = bytearray(3 * width * height)
    rows = memoryview(data)[start:start + stride * height]
    if stride != 4 * width:
        rows = b"".join(rows[y * stride:y * stride + 4 * width] for y in range(height))
    order = (2, 1, 0) if little_endian else (1, 2, 3)
    for channel, offset in enumerate(order):
        pixels[channel::3] = rows[offset::4]
    return Picture(width, height, pixels)
