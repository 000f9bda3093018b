"""Pictures of the screen: pixels as (red, green, blue), saved as PNG."""

import struct
import zlib
from dataclasses import dataclass


@dataclass(frozen=True)
class Picture:
    """width x height pixels; `rgb` holds three bytes a pixel, row by row from the top."""

    width: int
    height: int
    rgb: bytes

    def pixel(self, x, y):
        start = 3 * (y * self.width + x)
        return tuple(self.rgb[start:start + 3])

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
    """The picture in the file that Xvfb keeps its screen in (the xwd format): blue, green, red, and one more."""
    data = path.read_bytes()
    fields = struct.unpack(">25I", data[:100])
    header_size, width, height, colour_count = fields[0], fields[4], fields[5], fields[19]
    big_endian, bits_per_pixel, stride = fields[7], fields[11], fields[12]
    if (big_endian, bits_per_pixel, stride) != (0, 32, 4 * width):
        raise ValueError(f"a screen of {bits_per_pixel} bits a pixel, {stride} bytes a row, order {big_endian}")
    start = header_size + 12 * colour_count
    rows = data[start:start + stride * height]
    pixels = bytearray(3 * width * height)
    for channel in range(3):
        pixels[channel::3] = rows[2 - channel::4]
    return Picture(width, height, bytes(pixels))
