#!/usr/bin/env python3
"""The pictures of the documents, docs/*.svg.

  pictures.py           draw them
  pictures.py --check   draw them and compare with the committed files; a difference fails
"""
import argparse
import os
import sys

INK, FAINT = "#222222", "#8a8a8a"
COLOURS = ("#9ecae1", "#fdd0a2", "#a1d99b", "#dadaeb")  # rows, objects or threads
PADDING = "#f0f0f0"
CELL = 34


class Picture:
    def __init__(self, title, width, height):
        self.size = width, height
        self.lines = [
            '<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" viewBox="0 0 %d %d" role="img"'
            ' font-family="sans-serif" font-size="13">' % (self.size + self.size),
            "<title>%s</title>" % title,
            '<defs><marker id="head" markerWidth="9" markerHeight="7" refX="8" refY="3.5" orient="auto">'
            '<path d="M0,0 L9,3.5 L0,7 z" fill="%s"/></marker></defs>' % INK,
            '<rect width="%d" height="%d" fill="white"/>' % self.size,
        ]

    def text(self, x, y, what, anchor="start", colour=INK, weight="normal", size=13):
        self.lines.append('<text x="%g" y="%g" text-anchor="%s" fill="%s" font-weight="%s" font-size="%d">%s</text>'
                          % (x, y, anchor, colour, weight, size, what))

    def cell(self, x, y, label="", colour=PADDING, width=CELL):
        """A box with its label, left to right; returns where the next begins."""
        self.lines.append('<rect x="%g" y="%g" width="%g" height="26" fill="%s" stroke="%s"/>' % (x, y, width, colour, INK))
        if label != "":
            self.text(x + width / 2, y + 17, label, "middle", size=12)
        return x + width

    def cells(self, x, y, labels, colour):
        for label in labels:
            x = self.cell(x, y, label, colour)
        return x

    def arrow(self, x1, y1, x2, y2):
        self.lines.append('<path d="M%g,%g L%g,%g" stroke="%s" fill="none" marker-end="url(#head)"/>' % (x1, y1, x2, y2, INK))

    def distance(self, x1, x2, y, label):
        """From the beginning of one cell to that of another, below or above them."""
        for x in (x1, x2):
            self.lines.append('<path d="M%g,%g v10" stroke="%s"/>' % (x, y - 5, INK))
        self.arrow(x1, y, x2, y)
        self.text(x2 + 8, y + 4, label)

    def svg(self):
        return "\n".join(self.lines + ["</svg>"]) + "\n"


def strides():
    """Two matrices of 2 rows and 3 columns, their rows padded, something else between them."""
    picture = Picture("The three strides of an array of matrices", 780, 190)
    picture.text(20, 24, "An array of matrices of width 3 and height 2 in memory, 32f (4 bytes a cell)", weight="bold")
    x, y, rows = 20, 52, []
    for k in range(2):
        for i in range(2):
            rows.append(x)
            x = picture.cells(x, y, ["%d,%d" % (i, j) for j in range(3)], COLOURS[2 * k + i])
            x = picture.cell(x, y)
        if k == 0:
            x = picture.cells(x, y, ["", ""], PADDING)
    picture.text((rows[0] + rows[1]) / 2 + 2 * CELL, y - 8, "object 0", "middle")
    picture.text((rows[2] + rows[3]) / 2 + 2 * CELL, y - 8, "object 1", "middle")
    picture.distance(rows[0], rows[0] + CELL, y + 46, "Stride2 = 4: to the next element of a row")
    picture.distance(rows[0], rows[1], y + 74, "Stride1 = 16: to the next row")
    picture.distance(rows[0], rows[2], y + 102, "Stride0 = 40: to the next object")
    picture.text(20, y + 130, "Grey cells belong to others: they are neither read nor written.", colour=FAINT)
    return picture.svg()


def layouts():
    """Three matrices of 2 by 2 in each layout, coloured by object."""
    picture = Picture("The three layouts", 780, 420)
    elements = ["%d,%d" % (i, j) for i in range(2) for j in range(2)]

    def address(y, name, x):
        picture.arrow(picture.cell(20, y, name, "white", 44), y + 13, x - 2, y + 13)

    def heading(y, name, suffix, what):
        picture.text(20, y, name, weight="bold")
        picture.text(100, y, suffix, weight="bold")
        picture.text(140, y, what)

    heading(24, "standard", "", "one address; Stride0, Stride1 and Stride2 lead to everything else")
    x = 120
    address(38, "X", x)
    for k in range(3):
        x = picture.cell(picture.cells(x, 38, elements, COLOURS[k]), 38)

    heading(102, "list", "_L", "an address for each object, to which Shift is added; Stride1 and Stride2 lead on from there")
    for k, x in enumerate((320, 120, 240)):
        address(116 + 32 * k, "X[%d]" % k, x)
        picture.cells(x, 116 + 32 * k, elements, COLOURS[k])

    heading(246, "pointer", "_P", "an address for each element, to which Shift is added; Stride0 leads to the next object")
    for i, x in enumerate((120, 320, 200, 260)):
        address(260 + 32 * i, "X[%d]" % i, x)
        for k in range(3):
            x = picture.cell(x, 260 + 32 * i, elements[i], COLOURS[k])

    x = 560
    for k in range(3):
        picture.cell(x, 276 + 32 * k, "", COLOURS[k], 20)
        picture.text(x + 28, 294 + 32 * k, "object %d" % k)
    return picture.svg()


def shares():
    """Ten objects and at most four threads, coloured by the thread that works on them."""
    picture = Picture("The shares of the threads", 780, 250)
    picture.text(20, 24, "A call with 10 objects where the runtime allows 4 threads", weight="bold")
    rows = (
        ("below the limit of the family", (10,), (0,)),
        ("past it: shares, all run by the caller", (3, 3, 2, 2), (0, 0, 0, 0)),
        ("more work: two threads, two shares each", (3, 3, 2, 2), (0, 0, 1, 1)),
        ("much work: a thread for each share", (3, 3, 2, 2), (0, 1, 2, 3)),
    )
    for row, (what, sizes, threads) in enumerate(rows):
        y, x, first = 44 + 40 * row, 300, 0
        picture.text(20, y + 17, what)
        for size, thread in zip(sizes, threads):
            x = picture.cells(x, y, range(first, first + size), COLOURS[thread]) + 10
            first += size
    x = 300
    for thread in range(4):
        picture.cell(x, 212, "", COLOURS[thread], 20)
        picture.text(x + 28, 230, "thread %d" % thread if thread else "the caller")
        x += 115
    return picture.svg()


PICTURES = {"strides": strides, "layouts": layouts, "shares": shares}


def main():
    parser = argparse.ArgumentParser(description="Draw the pictures of the documents.")
    parser.add_argument("--check", action="store_true", help="compare with the committed files")
    arguments = parser.parse_args()
    documents = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "docs")
    different = []
    for name, draw in PICTURES.items():
        path = os.path.join(documents, name + ".svg")
        if arguments.check:
            with open(path, encoding="utf-8") as file:
                different += [path] if file.read() != draw() else []
        else:
            with open(path, "w", encoding="utf-8") as file:
                file.write(draw())
    if different:
        sys.exit("not as tools/pictures.py draws them: " + " ".join(different))


if __name__ == "__main__":
    main()
