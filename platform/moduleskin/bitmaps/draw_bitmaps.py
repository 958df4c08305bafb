#!/usr/bin/env python3
"""Draws the bitmaps of the resource library into the folder of this script. Needs Pillow (Debian: python3-pil)."""

from pathlib import Path

from PIL import Image, ImageDraw

TRANSPARENT = (255, 0, 255)
WHITE = (255, 255, 255)
BORDER = (172, 172, 172)
INK = (32, 32, 32)
PART = (206, 217, 228)
TOLERANCE = (0, 96, 192)
CLOSING = (196, 32, 32)
INSIDE = (97, 220, 5)

LARGE_GLYPHS = {  # 5 x 7
    "0": (".###.", "#...#", "#...#", "#...#", "#...#", "#...#", ".###."),
    "4": ("...#.", "..##.", ".#.#.", "#..#.", "#####", "...#.", "...#."),
    "\u00d8": (".###*", "#..##", "#.*.#", "#.*.#", "#.*.#", "##..#", "*###."),
}
SMALL_GLYPHS = {  # 3 x 5
    "0": ("###", "#.#", "#.#", "#.#", "###"),
    "1": (".#.", "##.", ".#.", ".#.", "###"),
    "2": ("###", "..#", "###", "#..", "###"),
    "+": ("...", ".#.", "###", ".#.", "..."),
    "-": ("...", "...", "###", "...", "..."),
    ".": (".", ".", ".", ".", "#"),
}


class Drawing:
    """A picture with the marks of an engineering drawing. Coordinates are pixels; both ends belong to a line."""

    def __init__(self, width, height, background):
        self.image = Image.new("RGB", (width, height), background)
        self.draw = ImageDraw.Draw(self.image)

    def line(self, x1, y1, x2, y2, colour=INK):
        self.draw.line((x1, y1, x2, y2), fill=colour)

    def box(self, left, top, right, bottom, colour=INK, fill=None):
        self.draw.rectangle((left, top, right, bottom), outline=colour, fill=fill)

    def arrow_head(self, x, y, dx, dy, length, half, colour=INK):
        """Its tip at x, y points along dx, dy; `half` pixels wide on either side of its axis at the far end."""
        for step in range(length):
            side = round(half * step / (length - 1)) if length > 1 else 0
            cx, cy = x - dx * step, y - dy * step
            self.line(cx - dy * side, cy - dx * side, cx + dy * side, cy + dx * side, colour)

    def horizontal_dimension(self, left, right, y, length, half, colour=INK):
        self.line(left, y, right, y, colour)
        self.arrow_head(left, y, -1, 0, length, half, colour)
        self.arrow_head(right, y, 1, 0, length, half, colour)

    def vertical_dimension(self, x, top, bottom, length, half, colour=INK):
        self.line(x, top, x, bottom, colour)
        self.arrow_head(x, top, 0, -1, length, half, colour)
        self.arrow_head(x, bottom, 0, 1, length, half, colour)

    def text(self, x, y, text, glyphs, colour=INK):
        """Returns the column behind the text."""
        for character in text:
            rows = glyphs[character]
            for row, pixels in enumerate(rows):
                for column, pixel in enumerate(pixels):
                    if pixel != ".":
                        self.image.putpixel((x + column, y + row), colour)
            x += len(rows[0]) + 1
        return x

    def deviations(self, x, y):
        self.text(x, y, "+0.2", SMALL_GLYPHS, TOLERANCE)
        self.text(x, y + 6, "-0.1", SMALL_GLYPHS, TOLERANCE)

    def plus_minus(self, x, y, colour=TOLERANCE):
        """5 x 7 pixels."""
        self.line(x, y + 2, x + 4, y + 2, colour)
        self.line(x + 2, y, x + 2, y + 4, colour)
        self.line(x, y + 6, x + 4, y + 6, colour)


# Images of the lists: hard pixels only, since what is half transparent would show magenta.


def tree_button(collapsed):
    drawing = Drawing(16, 16, TRANSPARENT)
    drawing.box(3, 3, 11, 11, (128, 128, 128), WHITE)
    drawing.line(5, 7, 9, 7)
    if collapsed:
        drawing.line(7, 5, 7, 9)
    return drawing.image


def chain():
    """Two links on one line, the closing link below."""
    drawing = Drawing(16, 16, TRANSPARENT)
    for x in (1, 14):
        drawing.line(x, 1, x, 14)
    drawing.line(8, 1, 8, 7)
    drawing.horizontal_dimension(2, 7, 4, 2, 1)
    drawing.horizontal_dimension(9, 13, 4, 2, 1)
    drawing.horizontal_dimension(2, 13, 11, 3, 2, CLOSING)
    return drawing.image


def check_box(checked):
    drawing = Drawing(16, 16, TRANSPARENT)
    drawing.box(1, 2, 13, 14, (96, 96, 96), WHITE)
    if checked:
        for offset in (0, 1):
            drawing.line(4, 8 + offset, 6, 10 + offset)
            drawing.line(6, 10 + offset, 10, 6 + offset)
    return drawing.image


def direction(increasing):
    """A link and the way in which it moves the closing link."""
    drawing = Drawing(16, 16, TRANSPARENT)
    for x in (1, 14):
        drawing.line(x, 3, x, 14)
    drawing.line(2, 10, 13, 10)
    if increasing:
        drawing.arrow_head(13, 10, 1, 0, 5, 3, TOLERANCE)
    else:
        drawing.arrow_head(2, 10, -1, 0, 5, 3, TOLERANCE)
    return drawing.image


def small_closing_link():
    drawing = Drawing(16, 16, TRANSPARENT)
    for x in (1, 14):
        drawing.line(x, 3, x, 14)
    drawing.horizontal_dimension(2, 13, 10, 4, 2, CLOSING)
    drawing.box(5, 2, 10, 5, INK, INSIDE)
    return drawing.image


def any_dimension():
    """A dimension of a kind that has no picture."""
    drawing = Drawing(16, 16, TRANSPARENT)
    for x in (1, 14):
        drawing.line(x, 3, x, 14)
    for x in range(2, 14, 2):
        drawing.line(x, 10, x, 10)
    return drawing.image


def linear(toleranced):
    drawing = Drawing(16, 16, TRANSPARENT)
    for x in (1, 14):
        drawing.line(x, 5, x, 15)
    drawing.horizontal_dimension(2, 13, 11, 4, 2)
    if toleranced:
        drawing.plus_minus(5, 1)
    return drawing.image


def diameter():
    drawing = Drawing(16, 16, TRANSPARENT)
    drawing.draw.ellipse((2, 2, 12, 12), outline=INK, fill=WHITE)
    drawing.line(1, 13, 13, 1)
    return drawing.image


def closing_link():
    drawing = Drawing(25, 16, TRANSPARENT)
    for x in (1, 22):
        drawing.line(x, 3, x, 14)
    drawing.horizontal_dimension(2, 21, 11, 5, 2, CLOSING)
    drawing.box(7, 3, 16, 7, INK, INSIDE)
    return drawing.image


# Pictures of the dialogs.


def card():
    """White paper: it looks the same on any colour of a dialog."""
    drawing = Drawing(108, 65, WHITE)
    drawing.box(0, 0, 107, 64, BORDER)
    return drawing


def linear_card(toleranced):
    drawing = card()
    drawing.box(22, 34, 85, 56, INK, PART)
    drawing.line(22, 15, 22, 31)
    drawing.line(85, 15, 85, 31)
    drawing.horizontal_dimension(23, 84, 19, 8, 2)
    x = drawing.text(40 if toleranced else 48, 8, "40", LARGE_GLYPHS)
    if toleranced:
        drawing.deviations(x + 1, 4)
    return drawing.image


def diameter_card():
    drawing = card()
    drawing.box(8, 21, 26, 43, INK, PART)
    drawing.box(26, 12, 46, 52, INK, PART)
    for x in range(4, 52, 9):
        drawing.line(x, 32, min(x + 4, 51), 32, CLOSING)
        drawing.line(x + 6, 32, x + 6, 32, CLOSING)
    drawing.line(49, 12, 62, 12)
    drawing.line(49, 52, 62, 52)
    drawing.vertical_dimension(58, 13, 51, 8, 2)
    x = drawing.text(63, 30, "\u00d840", LARGE_GLYPHS)
    drawing.deviations(x, 26)
    return drawing.image


def strip(images):
    width = sum(image.width for image in images)
    result = Image.new("RGB", (width, images[0].height), TRANSPARENT)
    x = 0
    for image in images:
        result.paste(image, (x, 0))
        x += image.width
    return result


BITMAPS = {
    "kind_1.bmp": linear_card(toleranced=True),
    "kind_2.bmp": linear_card(toleranced=False),
    "kind_3.bmp": diameter_card(),
    "chain_images.bmp": strip([
        tree_button(collapsed=False),  # 0: expanded row
        tree_button(collapsed=True),   # 1: collapsed row
        chain(),                       # 2: chain row
        check_box(checked=False),      # 3
        check_box(checked=True),       # 4
        direction(increasing=True),    # 5
        direction(increasing=False),   # 6
        small_closing_link(),          # 7
        any_dimension(),               # 8
        linear(toleranced=True),       # 9: link of kind 1
        linear(toleranced=False),      # 10: link of kind 2
        diameter(),                    # 11: link of kind 3
    ]),
    "closing_images.bmp": strip([closing_link()]),
}

if __name__ == "__main__":
    for name, bitmap in BITMAPS.items():
        bitmap.save(Path(__file__).parent / name)
