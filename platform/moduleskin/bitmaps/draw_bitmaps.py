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
PALE = (160, 160, 160)
RED = (196, 32, 32)
INSIDE = (97, 220, 5)

GLYPHS = {  # 7 pixels high
    "0": (".###.", "#...#", "#...#", "#...#", "#...#", "#...#", ".###."),
    "1": (".#.", "##.", ".#.", ".#.", ".#.", ".#.", "###"),
    "2": (".###.", "#...#", "....#", "...#.", "..#..", ".#...", "#####"),
    "4": ("...#.", "..##.", ".#.#.", "#..#.", "#####", "...#.", "...#."),
    "+": (".....", "..#..", "..#..", "#####", "..#..", "..#..", "....."),
    "-": (".....", ".....", ".....", "#####", ".....", ".....", "....."),
    "\u00b1": ("..#..", "..#..", "#####", "..#..", "..#..", ".....", "#####"),
    "\u00d8": (".####", "#..##", "#.#.#", "#.#.#", "#.#.#", "##..#", "####."),
    ".": (".", ".", ".", ".", ".", ".", "#"),
    "?": (".###.", "#...#", "....#", "...#.", "..#..", ".....", "..#.."),
}
SLENDER = (0, 0, 0, 1, 1, 1, 2, 2, 2)  # arrow heads: pixels on either side of the axis, from the tip on
SLIM = (0, 0, 1, 1, 2, 2)
SHORT = (0, 1, 2)
TINY = (0, 1)


class Drawing:
    """A picture with the marks of an engineering drawing. Coordinates are pixels; both ends belong to a line."""

    def __init__(self, width, height, background):
        self.image = Image.new("RGB", (width, height), background)
        self.draw = ImageDraw.Draw(self.image)

    def line(self, x1, y1, x2, y2, colour=INK):
        self.draw.line((x1, y1, x2, y2), fill=colour)

    def box(self, left, top, right, bottom, colour=INK, fill=None):
        self.draw.rectangle((left, top, right, bottom), outline=colour, fill=fill)

    def arrow_head(self, x, y, dx, dy, shape, colour=INK):
        """With its tip at x, y, pointing along dx, dy."""
        for step, side in enumerate(shape):
            cx, cy = x - dx * step, y - dy * step
            self.line(cx - dy * side, cy - dx * side, cx + dy * side, cy + dx * side, colour)

    def horizontal_dimension(self, left, right, y, shape, colour=INK):
        self.line(left, y, right, y, colour)
        self.arrow_head(left, y, -1, 0, shape, colour)
        self.arrow_head(right, y, 1, 0, shape, colour)

    def vertical_dimension(self, x, top, bottom, shape, colour=INK):
        self.line(x, top, x, bottom, colour)
        self.arrow_head(x, top, 0, -1, shape, colour)
        self.arrow_head(x, bottom, 0, 1, shape, colour)

    def text(self, x, y, text, colour=INK):
        """Returns the column in which a further character would begin."""
        for character in text:
            rows = GLYPHS[character]
            for row, pixels in enumerate(rows):
                for column, pixel in enumerate(pixels):
                    if pixel == "#":
                        self.image.putpixel((x + column, y + row), colour)
            x += len(rows[0]) + 1
        return x

    def toleranced_text(self, x, y, text, colour=TOLERANCE):
        """Returns the first column of the deviations; they have 20 x 16 pixels from y - 5 on."""
        x = self.text(x, y, text) + 1
        self.text(x, y - 5, "+0.2", colour)
        self.text(x, y + 4, "-0.1", colour)
        return x


# Images of the lists: hard pixels only, since what is half transparent would show magenta.


def tree_button(collapsed):
    drawing = Drawing(16, 16, TRANSPARENT)
    drawing.box(3, 3, 11, 11, (128, 128, 128), WHITE)
    drawing.line(5, 7, 9, 7)
    if collapsed:
        drawing.line(7, 5, 7, 9)
    return drawing.image


def extension_lines(left, top, right, bottom, width=16):
    drawing = Drawing(width, 16, TRANSPARENT)
    drawing.line(left, top, left, bottom)
    drawing.line(right, top, right, bottom)
    return drawing


def chain():
    """Two links on one line, the closing link below."""
    drawing = extension_lines(1, 1, 14, 14)
    drawing.line(8, 1, 8, 7)
    drawing.horizontal_dimension(2, 7, 4, TINY)
    drawing.horizontal_dimension(9, 13, 4, TINY)
    drawing.horizontal_dimension(2, 13, 11, SHORT, RED)
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
    drawing = extension_lines(1, 3, 14, 14)
    drawing.line(2, 10, 13, 10)
    if increasing:
        drawing.arrow_head(13, 10, 1, 0, SLIM)
    else:
        drawing.arrow_head(2, 10, -1, 0, SLIM)
    return drawing.image


def small_closing_link():
    drawing = extension_lines(1, 3, 14, 14)
    drawing.horizontal_dimension(2, 13, 11, SHORT, RED)
    drawing.box(5, 3, 10, 7, INK, INSIDE)
    return drawing.image


def any_dimension():
    """A dimension of a kind without a picture of its own."""
    drawing = extension_lines(1, 4, 14, 14)
    drawing.line(2, 11, 13, 11)
    drawing.text(5, 1, "?")
    return drawing.image


def linear(toleranced):
    drawing = extension_lines(1, 4, 14, 14)
    drawing.horizontal_dimension(2, 13, 11, SHORT)
    if toleranced:
        drawing.text(5, 1, "\u00b1")
    return drawing.image


def diameter():
    drawing = Drawing(16, 16, TRANSPARENT)
    drawing.draw.ellipse((2, 2, 12, 12), outline=INK, fill=WHITE)
    drawing.line(1, 13, 13, 1)
    return drawing.image


def closing_link():
    drawing = extension_lines(1, 3, 22, 14, width=25)
    drawing.horizontal_dimension(2, 21, 11, SLIM, RED)
    drawing.box(7, 3, 16, 7, INK, INSIDE)
    return drawing.image


# Pictures of the dialogs.


def card():
    """White paper, which looks right on any colour of a dialog."""
    drawing = Drawing(108, 65, WHITE)
    drawing.box(0, 0, 107, 64, BORDER)
    return drawing


def linear_card(toleranced):
    drawing = card()
    drawing.box(18, 38, 89, 57, INK, PART)
    drawing.line(18, 19, 18, 35)
    drawing.line(89, 19, 89, 35)
    drawing.horizontal_dimension(19, 88, 23, SLENDER)
    x = drawing.toleranced_text(36, 9, "40", TOLERANCE if toleranced else PALE)
    if not toleranced:
        for offset in (0, 1):
            drawing.line(x - 2 + offset, 3, x + 19 + offset, 20, RED)
            drawing.line(x + 19 + offset, 3, x - 2 + offset, 20, RED)
    return drawing.image


def diameter_card():
    drawing = card()
    drawing.box(8, 21, 26, 43, INK, PART)
    drawing.box(26, 12, 44, 52, INK, PART)
    for x in range(4, 49, 9):  # centre line
        drawing.line(x, 32, x + 4, 32, RED)
        drawing.line(x + 6, 32, x + 6, 32, RED)
    drawing.line(47, 12, 59, 12)
    drawing.line(47, 52, 59, 52)
    drawing.vertical_dimension(56, 13, 51, SLENDER)
    drawing.toleranced_text(61, 29, "\u00d840")
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
