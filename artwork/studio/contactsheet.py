"""Sheets to look at: the results as the program will show them, at real size and enlarged."""

import math
import random

from PIL import Image, ImageChops

STATES = 3
CELL = 32
FACE, SHADOW, FRAME = (240, 240, 240), (200, 200, 200), (248, 248, 248)


def _photo(width, height):
    """Something uneven, always the same, as a screen full of pictures would be."""
    chance = random.Random(8)
    small = Image.new("RGB", (max(width // 24, 3), max(height // 24, 3)))
    greys = [chance.randrange(40, 220) for _ in range(small.width * small.height)]
    small.putdata([(grey + chance.randrange(-35, 20), grey + chance.randrange(-25, 25),
                    grey + chance.randrange(-25, 35)) for grey in greys])
    return small.resize((width, height), Image.BICUBIC)


def _backdrops(width, height):
    yield Image.new("RGB", (width, height), FACE)
    yield Image.new("RGB", (width, height), (28, 32, 40))
    yield _photo(width, height)


def _soft(target, source, at, mask):
    target.paste(source, at, mask)


def _hard(target, source, at, mask):
    """The three blits: invert by the sprite, keep what the mask keeps, invert again."""
    box = (at[0], at[1], at[0] + CELL, at[1] + CELL)
    under = target.crop(box).tobytes()
    out = bytes((d ^ s) & m ^ s for d, s, m in zip(under, source.tobytes(), mask.tobytes()))
    target.paste(Image.frombytes("RGB", (CELL, CELL), out), at)


class Pictures:
    def __init__(self, folder):
        self.folder = folder
        self.src = self.open("picSrc.bmp")
        self.comm = self.open("picComm.bmp")
        self.soft = self.src.crop((0, 0, CELL, CELL)).convert("L")
        self.hard = self.src.crop((2 * CELL, 0, 3 * CELL, CELL))

    def open(self, name):
        return Image.open(self.folder / name).convert("RGB")

    def bubble(self, function, state):
        sheet = self.comm if function == 0 else self.src
        top = CELL * function
        return sheet.crop((CELL * state, top, CELL * (state + 1), top + CELL))

    def icon(self, name, size):
        image = Image.open(self.folder / name)
        if image.format == "ICO":
            image = image.ico.getimage((size, size))
        return image.convert("RGBA")


def _all_bubbles(pictures):
    strip = (9 * (CELL + 4) + 4, STATES * (CELL + 4) + 4)
    for backdrop in _backdrops(*strip):
        for function in range(9):
            for state in range(STATES):
                at = (4 + function * (CELL + 4), 4 + state * (CELL + 4))
                _soft(backdrop, pictures.bubble(function, state), at, pictures.soft)
        yield backdrop


def _wheel(pictures, backdrop, fast):
    for function in range(8):
        angle = math.radians(45 * function + 90 - 45 * 2)
        at = (round(60 + 43 * math.cos(angle)) - 16, round(60 + 43 * math.sin(angle)) - 16)
        state = 2 if function == 2 else 1 if function == 6 else 0
        sprite = pictures.bubble(function and function + 1, state)
        if fast:
            _hard(backdrop, sprite, at, pictures.hard)
        else:
            _soft(backdrop, sprite, at, pictures.soft)
    return backdrop


def _enlarged(image, factor):
    return image.resize((image.width * factor, image.height * factor), Image.NEAREST)


def _stacked(images, gap=6, sideways=False):
    if sideways:
        size = (sum(i.width + gap for i in images), max(i.height for i in images))
    else:
        size = (max(i.width for i in images), sum(i.height + gap for i in images))
    result, at = Image.new("RGB", size, "white"), 0
    for image in images:
        result.paste(image, (at, 0) if sideways else (0, at))
        at += (image.width if sideways else image.height) + gap
    return result


def _stretched(cell, width, height, left, top, right, bottom):
    """Nine parts, the corners unstretched."""
    xs, ys = (0, left, width - right, width), (0, top, height - bottom, height)
    us, vs = (0, left, cell.width - right, cell.width), (0, top, cell.height - bottom, cell.height)
    result = Image.new("RGB", (width, height))
    for j in range(3):
        for i in range(3):
            size = (xs[i + 1] - xs[i], ys[j + 1] - ys[j])
            if min(size) > 0:
                part = cell.crop((us[i], vs[j], us[i + 1], vs[j + 1]))
                result.paste(part.resize(size, Image.NEAREST), (xs[i], ys[j]))
    return result


def _buttons(pictures):
    skin, rows = pictures.open("picButtons.bmp"), []
    for face in (FACE, (212, 208, 200)):
        page = Image.new("RGB", (420, 170), face)
        for row, top in enumerate(range(0, 180, 30)):
            cell, x = skin.crop((0, top, 76, top + 30)), 8
            upper, lower = (8, 6) if top in (30, 150) else (6, 8)
            for width, height in [(76, 23), (110, 23), (17, 17), (23, 23), (16, 16), (60, 20)]:
                page.paste(_stretched(cell, width, height, 6, upper, 6, lower), (x, 8 + row * 27))
                x += width + 10
        rows.append(page)
    return rows


def _frame(pictures):
    """As the border control colours its mask: the shadow one pixel off, the frame over it."""
    mask = pictures.open("ctlRoundBrdMask.bmp").convert("L")
    tile = Image.new("RGB", (81, 81), FACE)
    tile.paste(Image.composite(Image.new("RGB", (80, 80), FACE),
                               Image.new("RGB", (80, 80), SHADOW), mask), (1, 1))
    tile.paste(FRAME, (0, 0), ImageChops.invert(mask))
    page = Image.new("RGB", (300, 110), FACE)
    page.paste(_stretched(tile, 180, 90, 10, 10, 11, 11), (8, 8))
    page.paste(_stretched(tile, 90, 40, 10, 10, 11, 11), (198, 8))
    return page


def _dots(pictures, backdrop):
    sheet = pictures.open("picDot.bmp")
    for i, (w, h, y) in enumerate([(7, 7, 0), (15, 8, 7), (15, 8, 15), (15, 16, 23)]):
        image, mask = sheet.crop((0, y, w, y + h)), sheet.crop((w, y, 2 * w, y + h))
        box = (6 + 20 * i, 4, 6 + 20 * i + w, 4 + h)
        under = backdrop.crop(box)
        out = bytes(d & m ^ s for d, m, s in zip(under.tobytes(), mask.tobytes(), image.tobytes()))
        backdrop.paste(Image.frombytes("RGB", (w, h), out), box)
    return backdrop


def _icon_row(pictures, backdrop):
    names = ["Programs", "Bold", "Italic", "Underline", "Left", "Centre", "Right"]
    x = 4
    for size in (16, 20, 24, 32, 48, 64):
        backdrop.alpha_composite(pictures.icon("Dorvalin.ico", size), (x, 4))
        x += size + 6
    for row, size in enumerate((16, 32)):
        for i, name in enumerate(names):
            backdrop.alpha_composite(pictures.icon(f"ico{name}.ico", size), (x + i * 36, 4 + row * 20))
    for i, (name, size) in enumerate([("imgLinkIcon", 16), ("imgLgLinkIcon", 32),
                                      ("imgPicker", 16)]):
        backdrop.alpha_composite(pictures.icon(f"{name}.ico", size), (x + 260 + i * 36, 4))
    names = ["curHand", "curUp", "curDown", "curNew", "curFill", "imgCopy", "imgDrag"]
    for i, name in enumerate(names):
        backdrop.alpha_composite(pictures.icon(f"{name}.cur", 32), (4 + i * 40, 76))
    return backdrop


def _icons(pictures):
    for backdrop in _backdrops(600, 112):
        yield _icon_row(pictures, backdrop.convert("RGBA")).convert("RGB")


def write(folder, sheets, small):
    pictures = Pictures(folder)
    sheets.mkdir(parents=True, exist_ok=True)
    bubbles = list(_all_bubbles(pictures))
    wheels = [_wheel(pictures, backdrop, fast) for fast in (False, True)
              for backdrop in _backdrops(120, 120)]
    skin = _buttons(pictures) + [_frame(pictures)]
    dots = [_dots(pictures, backdrop) for backdrop in _backdrops(86, 24)]
    icons = list(_icons(pictures))
    notes = [pictures.open(f"{name}.bmp") for name in ("imgNote", "imgPicErr", "imgLink")]

    _stacked([_enlarged(image, 4) for image in bubbles]).save(sheets / "bubbles-4x.png")
    _stacked([_stacked(wheels[:3], sideways=True), _stacked(wheels[3:], sideways=True),
              _enlarged(_stacked(wheels[:3], sideways=True), 3)]).save(sheets / "wheels.png")
    _stacked(skin + [_enlarged(image, 3) for image in skin]).save(sheets / "skin.png")
    _stacked([_enlarged(image, 6) for image in dots]
             + [_enlarged(_stacked(notes, sideways=True), 3)]).save(sheets / "dots.png")
    _stacked(icons + [_enlarged(image, 3) for image in icons]).save(sheets / "icons.png")
    small.parent.mkdir(parents=True, exist_ok=True)
    _stacked([_stacked([_stacked(bubbles), _stacked(wheels[:3])], sideways=True),
              _stacked(icons)]).save(small, optimize=True)
