#!/usr/bin/env python3
"""Draw what zelm_bench_grid measured as a heat map: members by layout, by shape and by count.

    zelm_bench_grid --json=grid.json
    bench/heat.py grid.json --svg docs/grid.svg

A cell is the time of the library divided by that of Eigen's fixed-size types, compiled for the level of the library's build:
blue below 1, where the library is faster, red above. Cells without an alternative are grey and show nanoseconds.
"""
import argparse
import html
import json
import math

CELL, LINE, LABEL, TOP = 46, 15, 142, 96
HEADS = {"layouts": "by layout, 48 objects", "shapes": "by shape, packed, 16 KB", "counts": "by count, packed"}


def colour(ratio):
    """White at 1, full blue from a quarter on, full red from four on."""
    depth = max(-1.0, min(1.0, math.log(ratio, 4)))
    low, high = (255, 255, 255), (178, 24, 43) if depth > 0 else (33, 102, 172)
    return "#%02x%02x%02x" % tuple(round(a + (b - a) * abs(depth)) for a, b in zip(low, high))


def column_of(table, result):
    if table == "layouts":
        return result["layout"]
    return result["type"] if table == "shapes" else str(result["count"])


def line_of(table, result):
    kind = "" if table == "shapes" else result["type"] + " "
    return f"{result['member']} {kind}{result['shape']}"


def panel(results, table, library, x):
    """The elements of one table from x on, its width and its lines."""
    lines, columns, out = [], [], []
    for result in results:
        if result["table"] != table:
            continue
        line, column = line_of(table, result), column_of(table, result)
        if line not in lines:
            lines.append(line)
        if column not in columns:
            columns.append(column)
        ns = result["ns"][library["name"]]
        other = result["ns"].get("eigen." + library["level"])
        left, top = x + LABEL + columns.index(column) * CELL, TOP + lines.index(line) * LINE
        fill = "#eeeeee" if other is None else colour(ns / other)
        text = "%.3g ns" % ns if other is None else "%.2f" % (ns / other)
        ink = "white" if other is not None and not 0.4 < ns / other < 2.5 else "#222222"
        title = f"{line}, {result['layout']}, {result['count']} objects: {ns:.3g} ns an object"
        title += "" if other is None else f", Eigen {other:.3g} ns"
        out.append(f'<rect x="{left}" y="{top}" width="{CELL - 1}" height="{LINE - 1}" fill="{fill}">'
                   f"<title>{html.escape(title)}</title></rect>"
                   f'<text x="{left + CELL / 2:g}" y="{top + 11}" text-anchor="middle" fill="{ink}">{text}</text>')
    for number, line in enumerate(lines):
        out.append(f'<text x="{x + LABEL - 6}" y="{TOP + number * LINE + 11}" text-anchor="end">{html.escape(line)}</text>')
    for number, column in enumerate(columns):
        cx = x + LABEL + number * CELL + CELL / 2
        out.append(f'<text x="{cx:g}" y="{TOP - 6}" transform="rotate(-30 {cx:g} {TOP - 6})">{html.escape(column)}</text>')
    out.append(f'<text x="{x + 4}" y="40" font-weight="bold" font-size="12">{HEADS[table]}</text>')
    return out, LABEL + len(columns) * CELL + 40, len(lines)


def svg(document, library):
    out, x, most = [], 10, 0
    for table in HEADS:
        elements, width, lines = panel(document["results"], table, library, x)
        if lines:
            out += elements
            x += width
            most = max(most, lines)
    width, height = x + 20, TOP + most * LINE + 12
    head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}" role="img"'
            ' font-family="sans-serif" font-size="10" fill="#222222">',
            "<title>Time of the library by time of Eigen's fixed-size types: layouts, shapes, counts</title>",
            f'<rect width="{width}" height="{height}" fill="white"/>',
            f'<text x="14" y="20" font-size="13" font-weight="bold">Library ({html.escape(library["name"])}) by Eigen\'s fixed-size '
            "types: below 1 the library is faster</text>")
    return "\n".join([*head, *out, "</svg>"]) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("json")
    parser.add_argument("--svg", metavar="FILE", required=True)
    parser.add_argument("--library", metavar="NAME", help="the first one if it is not said")
    arguments = parser.parse_args()
    with open(arguments.json, encoding="utf-8") as file:
        document = json.load(file)
    named = [library for library in document["libraries"] if arguments.library in (None, library["name"])]
    if not named or not document["results"]:
        raise SystemExit(f"{arguments.json}: no such results")
    with open(arguments.svg, "w", encoding="utf-8") as file:
        file.write(svg(document, named[0]))


if __name__ == "__main__":
    main()
