#!/usr/bin/env python3
"""Turn the JSON output of zelm_bench into a Markdown table and an SVG plot.

    zelm_bench --benchmark_out=bench.json --benchmark_out_format=json
    bench/plot.py bench.json --markdown bench.md --svg bench.svg

Ratios are times: below 1 the library is faster. "base" is the baseline build against alternatives at plain -O3, "v3" the
x86-64-v3 build against alternatives at that level, "native" the widest build that the processor runs against alternatives at
-march=native. Without options the table goes to the standard output.
"""
import argparse
import collections
import html
import json
import math
import re

BUILDS = ("base", "v3", "native")
COLORS = {"base": "#4477aa", "v3": "#ee7733", "native": "#228833"}


def read_cases(path):
    """{name: {counter: value}}; of repeated runs the median aggregate, or the last one."""
    with open(path, encoding="utf-8") as file:
        document = json.load(file)
    cases = {}
    for run in document["benchmarks"]:
        if run.get("error_occurred"):
            raise SystemExit(f"{run['name']}: {run.get('error_message', 'failed')}")
        if run.get("run_type") == "aggregate" and run.get("aggregate_name") != "median":
            continue
        name = run.get("run_name", run["name"]).replace("/manual_time", "")
        counters = {k: v for k, v in run.items() if re.match(r"(ns|ratio|difference)\.|count$|noise$", k)}
        cases[name] = counters
    return document.get("context", {}), cases


def group_of(name):
    """Family/form and the last component (cache level, or what the case is about): Add/mama L1."""
    fields = name.split("/")
    return f"{fields[0]}/{fields[1]} {fields[-1]}"


def ratio_names(counters):
    return sorted({key.rsplit(".", 1)[0] for key in counters if key.startswith("ratio.")})


def contenders(counters):
    names = {key[len("ns."):].rsplit(".", 1)[0] for key in counters if key.startswith("ns.")}
    return sorted(names, key=lambda name: (name != "lib", name))


def pair(counters, key, form):
    values = [counters.get(f"{key}.{build}") for build in BUILDS]
    if set(values) == {None}:
        return ""
    return " / ".join("-" if value is None else format(value, form) for value in values)


def geometric_mean(values):
    return math.exp(sum(math.log(value) for value in values) / len(values))


def markdown(context, cases):
    lines = []
    if context:
        lines += [f"{context.get('num_cpus', '?')} CPUs at {context.get('mhz_per_cpu', '?')} MHz, {context.get('date', '')}",
                  ""]
    lines += ["Baseline build / x86-64-v3 build / widest build. Ratios are times of the library divided by times of the other; "
              "`best` is the fastest alternative of the same build, `native` the fastest one at `-march=native`, `contiguous` "
              "one loop over the same bytes.", ""]

    groups = collections.defaultdict(lambda: collections.defaultdict(list))
    for name, counters in cases.items():
        for ratio in ratio_names(counters):
            for build in BUILDS:
                if f"{ratio}.{build}" in counters:
                    groups[(group_of(name), ratio)][build].append((counters[f"{ratio}.{build}"], name))
    lines += ["## Groups", "",
              "| group | ratio | cases | geometric mean | lowest | highest | highest at |",
              "|---|---|---:|---:|---:|---:|---|"]
    for (group, ratio), builds in groups.items():
        columns = [builds[build] for build in BUILDS if builds[build]]

        def each(function):
            return " / ".join(f"{function(column):.2f}" for column in columns)

        mean = each(lambda column: geometric_mean([value for value, _ in column]))
        highest = " / ".join("/".join(max(column)[1].split("/")[2:-1]) for column in columns)
        lines.append(f"| {group} | {ratio[len('ratio.'):]} | {len(columns[0])} | {mean} | {each(lambda c: min(c)[0])} | "
                     f"{each(lambda c: max(c)[0])} | {highest} |")
    lines.append("")

    lines.append("## Cases")
    tables = collections.defaultdict(list)  # cases with the same columns stand in one table
    for name, counters in cases.items():
        differences = sorted({key.rsplit(".", 1)[0] for key in counters if key.startswith("difference.")})
        tables[(tuple(contenders(counters)), tuple(ratio_names(counters)), tuple(differences))].append(name)
    for (who, ratios, differences), names in tables.items():
        heads = [f"{name} ns" for name in who]
        heads += [ratio[len("ratio."):] for ratio in ratios]
        heads += [f"{difference[len('difference.'):]} minus bare, ns" for difference in differences]
        lines += ["", "| case | count | " + " | ".join(heads) + " |", "|---|---:|" + "---:|" * len(heads)]
        for name in names:
            counters = cases[name]
            cells = [pair(counters, f"ns.{contender}", ".3g") for contender in who]
            cells += [pair(counters, ratio, ".2f") for ratio in ratios]
            cells += [pair(counters, difference, ".3g") for difference in differences]
            lines.append(f"| {name} | {counters['count']:.0f} | " + " | ".join(cells) + " |")
    return "\n".join(lines) + "\n"


def summary(cases, levels):
    """The ratio `best` of the cases at these levels: a row for each function and type, a column for each size."""
    rows = collections.defaultdict(dict)
    for name, counters in cases.items():
        *function, kind, size, level = name.split("/")
        if level in levels and "ratio.best" in ratio_names(counters):
            sides = size.split("x")
            rows["/".join(function), kind][sides[0] if len(set(sides)) == 1 else size] = pair(counters, "ratio.best", ".2f")
    sizes = sorted({size for row in rows.values() for size in row}, key=lambda size: [int(side) for side in size.split("x")])
    lines = ["| Function | Type | " + " | ".join(sizes) + " |", "|---|---|" + "---|" * len(sizes)]
    for (function, kind), row in rows.items():
        lines.append(f"| `{function}` | `{kind}` | " + " | ".join(row.get(size, "") for size in sizes) + " |")
    return "\n".join(lines) + "\n"


def svg(cases):
    """One panel for each group and standard ratio, a pair of bars for each case, a line at 1."""
    panels = collections.OrderedDict()
    for name, counters in cases.items():
        for ratio in ratio_names(counters):
            panels.setdefault((group_of(name), ratio), []).append((name, counters))
    bar, gap, plot_height, left, label_height, columns = 11, 9, 130, 44, 52, 4
    widest = max((len(entries) for entries in panels.values()), default=1)
    panel_width = left + widest * (len(BUILDS) * bar + gap) + 24
    panel_height = plot_height + label_height + 34
    rows = math.ceil(len(panels) / columns)
    width, height = columns * panel_width + 10, rows * panel_height + 40
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
           f'viewBox="0 0 {width} {height}" font-family="sans-serif" font-size="10">',
           f'<rect width="{width}" height="{height}" fill="white"/>']
    x = 10
    for build, text in (("base", "baseline build"), ("v3", "x86-64-v3 build"), ("native", "widest build")):
        out.append(f'<rect x="{x}" y="9" width="11" height="11" fill="{COLORS[build]}"/>'
                   f'<text x="{x + 16}" y="19" font-size="12">{text}</text>')
        x += 140
    out.append(f'<text x="{x}" y="19" font-size="12">best, contiguous: time of the library by time of the '
               'other, below 1 it is faster</text>')
    for index, ((group, ratio), entries) in enumerate(panels.items()):
        x0 = 10 + index % columns * panel_width + left
        y0 = 40 + index // columns * panel_height + 22
        values = [counters[f"{ratio}.{build}"] for _, counters in entries for build in BUILDS
                  if f"{ratio}.{build}" in counters]
        top = max(1.3, min(max(values) * 1.1, 4.0)) if ratio in ("ratio.best", "ratio.contiguous") else max(1.3, max(values) * 1.1)
        step = next(s for s in (0.25, 0.5, 1, 2, 5, 10, 20, 50, 100, 1e9) if top / s <= 6)

        def y_of(value):
            return y0 + plot_height * (1 - min(value, top) / top)

        title = f"{group}: {ratio[len('ratio.'):]}"
        out.append(f'<text x="{x0}" y="{y0 - 8}" font-size="12" font-weight="bold">{html.escape(title)}</text>')
        right = x0 + len(entries) * (len(BUILDS) * bar + gap)
        for tick in range(int(top / step) + 1):
            y = y_of(tick * step)
            out.append(f'<line x1="{x0}" x2="{right}" y1="{y:.1f}" y2="{y:.1f}" stroke="#ddd"/>'
                       f'<text x="{x0 - 5}" y="{y + 3:.1f}" text-anchor="end">{tick * step:g}</text>')
        for position, (name, counters) in enumerate(entries):
            x = x0 + gap / 2 + position * (len(BUILDS) * bar + gap)
            for number, build in enumerate(BUILDS):
                value = counters.get(f"{ratio}.{build}")
                if value is None:
                    continue
                y = y_of(value)
                out.append(f'<rect x="{x + number * bar:.1f}" y="{y:.1f}" width="{bar - 1}" '
                           f'height="{y0 + plot_height - y:.1f}" fill="{COLORS[build]}">'
                           f"<title>{html.escape(name)} {build}: {value:.3f}</title></rect>")
                if value > top:
                    out.append(f'<text x="{x + number * bar + bar / 2 + 3:.1f}" y="{y + 2:.1f}" fill="white" '
                               f'text-anchor="end" transform="rotate(-90 {x + number * bar + bar / 2 + 3:.1f} {y + 2:.1f})"'
                               f">{value:.1f}</text>")
            label = " ".join(name.split("/")[2:-1])
            cx, cy = x + len(BUILDS) * bar / 2, y0 + plot_height + 8
            out.append(f'<text x="{cx + 3}" y="{cy}" text-anchor="end" transform="rotate(-60 {cx + 3} {cy})">'
                       f"{html.escape(label)}</text>")
        out.append(f'<line x1="{x0}" x2="{right}" y1="{y_of(1):.1f}" y2="{y_of(1):.1f}" stroke="black"/>')
    out.append("</svg>")
    return "\n".join(out) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("json")
    parser.add_argument("--markdown", metavar="FILE")
    parser.add_argument("--svg", metavar="FILE")
    parser.add_argument("--summary", metavar="LEVEL", nargs="+", help="one table of the ratios at these levels, such as L1 100")
    arguments = parser.parse_args()
    context, cases = read_cases(arguments.json)
    if not cases:
        raise SystemExit(f"{arguments.json}: no results")
    if arguments.summary:
        print(summary(cases, arguments.summary), end="")
        return
    table = markdown(context, cases)
    if arguments.markdown:
        with open(arguments.markdown, "w", encoding="utf-8") as file:
            file.write(table)
    if arguments.svg:
        with open(arguments.svg, "w", encoding="utf-8") as file:
            file.write(svg(cases))
    if not arguments.markdown and not arguments.svg:
        print(table, end="")


if __name__ == "__main__":
    main()
