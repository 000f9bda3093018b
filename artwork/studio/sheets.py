"""The recipes: which sources make which picture, and where each part lies in it."""

from PIL import Image, ImageChops

from studio import formats
from studio.vector import cell, drawing, picture, render, sheet, source

FUNCTIONS = ["1-menu-plain", "2-characters", "3-calculator", "4-colours", "5-date-and-time",
             "6-files", "7-quick-text", "8-notes"]
HALO = {"normal": (0x1B, 0x2B, 0x42), "hover": (0x2F, 0xA0, 0xFF), "active": (0x0A, 0x3F, 0x8F)}
CELL = 32

# Name in the program, hot spot.
POINTERS = {"curHand": (12, 3), "curUp": (16, 7), "curDown": (16, 25), "curNew": (1, 1),
            "curFill": (4, 28), "imgCopy": (1, 1), "imgDrag": (1, 1)}
MONOCHROME = {"imgCopy", "imgDrag"}

ICON_SIZES = [16, 32]
BUILT_IN_ICONS = ["programs", "bold", "italic", "underline", "left", "centre", "right"]


def _bubbles(names):
    """Transparent bubbles, a row per name, a column per state."""
    cells = [cell(CELL * column, CELL * row, CELL, state,
                  drawing("bubbles/bubble.svg") + drawing(f"bubbles/{name}.svg"))
             for row, name in enumerate(names) for column, state in enumerate(HALO)]
    size = (CELL * len(HALO), CELL * len(names))
    return render(sheet(*size, source("bubbles/states.css"), cells), *size)


def _filled(bubbles):
    """Bubbles without transparency: the halo's colour goes on to the cell's edges, so that a mix
    at the rim meets a colour of the bubble and never black."""
    result = Image.new("RGB", bubbles.size)
    for column, colour in enumerate(HALO.values()):
        result.paste(colour, (CELL * column, 0, CELL * (column + 1), bubbles.height))
    # Below this opacity a straight colour is mostly rounding.
    visible = bubbles.getchannel("A").point(lambda a: 255 if a >= 48 else 0)
    result.paste(bubbles.convert("RGB"), (0, 0), visible)
    return result


def _soft_mask(bubbles):
    alpha = bubbles.getchannel("A")
    mask = alpha.crop((0, 0, CELL, CELL))
    for y in range(0, alpha.height, CELL):
        for x in range(0, alpha.width, CELL):
            other = alpha.crop((x, y, x + CELL, y + CELL))
            assert not ImageChops.difference(mask, other).getbbox(), "one mask serves every bubble"
    return mask


def pic_src():
    bubbles = _bubbles(FUNCTIONS)
    soft = _soft_mask(bubbles)
    hard = soft.point(lambda a: 0 if a >= 128 else 255)
    result = Image.new("RGB", (3 * CELL, 9 * CELL))
    result.paste(soft.convert("RGB"), (0, 0))
    result.paste(hard.convert("RGB"), (2 * CELL, 0))
    result.paste(_filled(bubbles), (0, CELL))
    return result


def pic_comm():
    return _filled(_bubbles(["1-menu"]))


def pic_dot():
    """Sprites for AND with the mask, then XOR with the image; their edges are mixed with white,
    the colour of most of what they are drawn on."""
    result = Image.new("RGB", (30, 39))
    for name, width, height, top in [("bullet", 7, 7, 0), ("arrow-up", 15, 8, 7),
                                     ("arrow-down", 15, 8, 15), ("check", 15, 16, 23)]:
        sprite = picture(f"skin/{name}.svg", width, height)
        shape = sprite.getchannel("A").point(lambda a: 255 if a >= 64 else 0)
        on_white = Image.new("RGBA", sprite.size, "white")
        on_white.alpha_composite(sprite)
        result.paste(on_white.convert("RGB"), (0, top), shape)
        result.paste(ImageChops.invert(shape).convert("RGB"), (width, top))
    return result


def _pointer_image(name):
    image = picture(f"pointers/{name}.svg", 32, 32)
    if name not in MONOCHROME:
        return image
    ink = image.convert("L").point(lambda v: 255 if v >= 128 else 0)
    shape = image.getchannel("A").point(lambda v: 255 if v >= 128 else 0)
    return Image.merge("RGBA", (ink, ink, ink, shape))


def _program_icon():
    small = [picture("icons/Dorvalin-small.svg", n, n) for n in (16, 20, 24)]
    return small + [picture("icons/Dorvalin.svg", n, n) for n in (32, 48, 64, 256)]


def results():
    """Every result: file name to bytes."""
    files = {
        "picSrc.bmp": formats.bitmap(pic_src()),
        "picComm.bmp": formats.bitmap(pic_comm()),
        "picButtons.bmp": formats.bitmap(picture("skin/buttons.svg", 76, 180)),
        "picDot.bmp": formats.bitmap(pic_dot()),
        "picVerl.bmp": formats.bitmap(picture("skin/fade.svg", 50, 40)),
        "ctlRoundBrdMask.bmp": formats.bitmap(picture("skin/frame.svg", 80, 80)),
        "Dorvalin.ico": formats.icon(_program_icon()),
        "imgLinkIcon.ico": formats.icon([picture("icons/imgLinkIcon.svg", 16, 16)]),
        "imgLgLinkIcon.ico": formats.icon([picture("icons/imgLgLinkIcon.svg", 32, 32)]),
        "imgPicker.ico": formats.icon([picture("icons/imgPicker.svg", 16, 16)]),
        "curEmpty.cur": formats.pointer(Image.new("RGBA", (32, 32)), (0, 0)),
    }
    for name in ("imgNote", "imgPicErr", "imgLink"):
        files[f"{name}.bmp"] = formats.bitmap(picture(f"pictures/{name}.svg", 64, 64))
    for name in BUILT_IN_ICONS:
        files[f"ico{name.capitalize()}.ico"] = formats.icon(
            [picture(f"icons/{name}.svg", n, n) for n in ICON_SIZES])
    for name, hot_spot in POINTERS.items():
        files[f"{name}.cur"] = formats.pointer(_pointer_image(name), hot_spot)
    return files
