"""From vector text to pixels: the one place that calls the renderer."""

import io
import pathlib
import re
import subprocess

from PIL import Image

SOURCES = pathlib.Path(__file__).resolve().parent.parent


def source(name):
    return (SOURCES / name).read_text(encoding="utf-8")


def render(svg, width, height):
    """Renders an SVG text to straight (not premultiplied) RGBA pixels."""
    png = subprocess.run(
        ["rsvg-convert", "--width", str(width), "--height", str(height), "--format", "png"],
        input=svg.encode("utf-8"), stdout=subprocess.PIPE, check=True).stdout
    image = Image.open(io.BytesIO(png)).convert("RGBA")
    assert image.size == (width, height), image.size
    return image


def picture(name, width, height):
    return render(source(name), width, height)


def drawing(name):
    """What stands inside the outermost element, to be placed into a sheet."""
    return re.search(r"<svg[^>]*>(.*)</svg>", source(name), re.DOTALL).group(1)


def cell(x, y, size, state, content):
    return (f'<svg x="{x}" y="{y}" width="{size}" height="{size}" viewBox="0 0 32 32">'
            f'<g class="{state}">{content}</g></svg>')


def sheet(width, height, style, cells):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}">'
            f'<style>{style}</style>{"".join(cells)}</svg>')
