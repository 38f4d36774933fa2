"""Pictures of the virtual screen: Xvfb keeps it in a file in the format of xwd, version 7."""
import struct
import time
import zlib

from .waiting import TookTooLong

HEADER = struct.Struct(">25I")
COLOUR_BYTES = 12


def read_screen(framebuffer):
    """The whole screen as (width, height, rows of RGB bytes)."""
    data = framebuffer.read_bytes()
    header = HEADER.unpack_from(data)
    size, width, height, stride, colours = header[0], header[4], header[5], header[12], header[19]
    start = size + colours * COLOUR_BYTES
    rows = []
    for y in range(height):
        pixels = data[start + y * stride : start + y * stride + width * 4]
        row = bytearray(width * 3)
        row[0::3], row[1::3], row[2::3] = pixels[2::4], pixels[1::4], pixels[0::4]
        rows.append(bytes(row))
    return width, height, rows


def cut(screen, left, top, width, height):
    _, _, rows = screen
    left, top = max(left, 0), max(top, 0)
    part = [row[left * 3 : (left + width) * 3] for row in rows[top : top + height]]
    return len(part[0]) // 3, len(part), part


def write_png(picture, path):
    width, height, rows = picture

    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data
                + struct.pack(">I", zlib.crc32(kind + data)))

    head = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    body = zlib.compress(b"".join(b"\0" + row for row in rows), 6)
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", body)
                     + chunk(b"IEND", b""))


def settled(take, still_seconds=0.4, limit=15):
    """A picture that has not changed for a while, so that no animation is caught halfway."""
    deadline = time.monotonic() + limit
    last, since = take(), time.monotonic()
    while time.monotonic() - since < still_seconds:
        if time.monotonic() > deadline:
            raise TookTooLong("the screen never comes to rest")
        time.sleep(0.05)
        now = take()
        if now != last:
            last, since = now, time.monotonic()
    return last
