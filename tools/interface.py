#!/usr/bin/env python3
"""The grammar of the library's 788 names, and what follows from it.

Every computing function is a family, an operand form, an element type and a layout; its argument list follows from
those four. The tables below hold the families; the rest of this file derives names and parameters and emits

  zelm/include/zelm.h       the public header          (committed)
  zelm/src/zelm.exports     the list of exported names (committed)
  README.md                 its table of families      (committed)
  man pages                 one for each family and form, built and installed

  interface.py              emit the header and the export list
  interface.py --check      emit them and compare with the committed files; a difference fails
  interface.py --man DIR    write the man pages into DIR/man3
  interface.py --examples DIR   write each family's example as a C program
  interface.py --list       print name and parameters of the functions of this version (--all: of all 788)

The texts of the header stand in interface_text.py. Nothing here knows the library's sources.
"""
import argparse
import difflib
import os
import re
import sys
import textwrap
from collections import namedtuple

import interface_text as text

# One row for each family, or for each part of a family with an argument list of its own.
#   single, array   the forms without and with an array operand
#   tokens          the argument list: src=1 is the operand of the form's first letter, dst=m a matrix result (an array
#                   if any source is one), dst=* a plain run of results, val=c a constant by value; the sizes and count
#                   are themselves; count falls away in a single form
Group = namedtuple("Group", "key family single array tokens")
# clang-format off
GROUPS = [Group(*row) for row in (
    #key                 family                 single forms   array forms                                             tokens
    ("AddMatrices",      "Add",                 "mm tm tt",    "mam mat tam tat mama tama tata",                       "src1=1 src2=2 dst=m width height count"),
    ("AddVectors",       "Add",                 "vv",          "vav vava",                                             "src1=1 src2=2 dst=v len count"),
    ("AddConstants",     "Add",                 "vc",          "vac vca vaca",                                         "src=1 val=2 dst=v len count"),
    ("SubMatrices",      "Sub",                 "mm mt tm tt", "mam mat tam tat mma mta tma tta mama mata tama tata",  "src1=1 src2=2 dst=m width height count"),
    ("SubVectors",       "Sub",                 "vv",          "vav vva vava",                                         "src1=1 src2=2 dst=v len count"),
    ("SubConstants",     "Sub",                 "vc cv",       "vac vca vaca cva cav cava",                            "src=v val=c dst=v len count"),
    ("MulConstants",     "Mul",                 "mc tc vc",    "mac tac vac vca vaca",                                 "src=1 val=2 dst=1 size count"),
    ("MulMatrices",      "Mul",                 "mm mt tm tt", "mam mat tam tat mma mta tma tta mama mata tama tata",  "src1=1 src1Width src1Height src2=2 src2Width src2Height dst=m count"),
    ("MulVectors",       "Mul",                 "mv tv",       "mav tav mva tva mava tava",                            "src1=1 src1Width src1Height src2=2 src2Len dst=v count"),
    ("Gaxpy",            "Gaxpy",               "mv",          "mva mvav",                                             "src1=1 src1Width src1Height src2=2 src2Len src3=3 src3Len dst=v count"),
    ("AffineTransform3DH", "AffineTransform3DH", "",           "mva",                                                  "src1=1 src2=2 dst=v count"),
    ("Saxpy",            "Saxpy",               "vv",          "vav vva vava",                                         "src1=1 val=c src2=2 dst=v len count"),
    ("LComb",            "LComb",               "vv",          "vav vava",                                             "src1=1 val1=c src2=2 val2=c dst=v len count"),
    ("CrossProduct",     "CrossProduct",        "vv",          "vav vva vava",                                         "src1=1 src2=2 dst=v count"),
    ("DotProduct",       "DotProduct",          "vv",          "vav vava",                                             "src1=1 src2=2 dst=* len count"),
    ("L2Norm",           "L2Norm",              "v",           "va",                                                   "src=1 dst=* len count"),
    ("Trace",            "Trace",               "m",           "ma",                                                   "src=1 widthHeight dst=* count"),
    ("FrobNorm",         "FrobNorm",            "m",           "ma",                                                   "src=1 width height dst=* count"),
    ("Det",              "Det",                 "m",           "ma",                                                   "src=1 widthHeight buffer=* dst=* count"),
    ("Extract",          "Extract",             "m t v",       "ma ta va",                                             "src=1 dst=* size count"),
    ("Copy",             "Copy",                "",            "ma va",                                                "src=1 dst=1 size count"),
    ("LoadIdentity",     "LoadIdentity",        "",            "ma",                                                   "dst=m width height count"),
    ("Transpose",        "Transpose",           "m",           "ma",                                                   "src=1 width height dst=m count"),
    ("LUDecomp",         "LUDecomp",            "m",           "ma",                                                   "src=1 index=out dst=m widthHeight count"),
    ("LUBackSubst",      "LUBackSubst",         "mv",          "mva mava",                                             "src1=1 index=in src2=2 dst=v widthHeight count"),
    ("CholeskyDecomp",   "CholeskyDecomp",      "m",           "ma",                                                   "src=1 dst=m widthHeight count"),
    ("CholeskyBackSubst", "CholeskyBackSubst",  "mv",          "mva mava",                                             "src1=1 src2=2 dst=v widthHeight count"),
    ("QRDecomp",         "QRDecomp",            "m",           "ma",                                                   "src=1 buffer=* dst=m width height count"),
    ("QRBackSubst",      "QRBackSubst",         "mv",          "mva mava",                                             "src1=1 buffer=* src2=2 dst=v width height count"),
    ("Invert",           "Invert",              "m",           "ma",                                                   "src=1 buffer=* dst=m widthHeight count"),
    ("EigenValuesSym",   "EigenValuesSym",      "m",           "ma",                                                   "src=1 buffer=* values=* widthHeight count"),
    ("EigenValuesVectorsSym", "EigenValuesVectorsSym", "m",    "ma",                                                   "src=1 buffer=* vectors=m values=* widthHeight count"),
    ("EigenValues",      "EigenValues",         "m",           "ma",                                                   "src=1 valuesRe=* valuesIm=* widthHeight count buffer=bytes"),
    ("EigenValuesVectors", "EigenValuesVectors", "m",          "ma",                                                   "src=1 vectorsRight=m vectorsLeft=m valuesRe=* valuesIm=* widthHeight count buffer=bytes"),
    ("EigenValuesVectorsLeft", "EigenValuesVectorsLeft", "m",  "ma",                                                   "src=1 vectors=m valuesRe=* valuesIm=* widthHeight count buffer=bytes"),
    ("EigenValuesVectorsRight", "EigenValuesVectorsRight", "m", "ma",                                                  "src=1 vectors=m valuesRe=* valuesIm=* widthHeight count buffer=bytes"),
    ("EigenValuesGetBufSize", "EigenValuesGetBufSize", "-",    "",                                                     "widthHeight size=size"),
    ("EigenValuesVectorsGetBufSize", "EigenValuesVectorsGetBufSize", "-", "",                                           "widthHeight size=size"),
)]
# clang-format on

# How many functions each family has; together with zelmGetLibVersion 788.
MEMBERS = {
    "Add": 92, "Sub": 154, "Mul": 174, "Gaxpy": 16, "AffineTransform3DH": 1, "Saxpy": 22, "LComb": 16,
    "CrossProduct": 22, "DotProduct": 16, "L2Norm": 10, "Trace": 10, "FrobNorm": 10, "Det": 10, "Extract": 30,
    "Copy": 36, "LoadIdentity": 6, "Transpose": 10, "LUDecomp": 10, "LUBackSubst": 16, "CholeskyDecomp": 10,
    "CholeskyBackSubst": 16, "QRDecomp": 10, "QRBackSubst": 16, "Invert": 10, "EigenValuesSym": 10,
    "EigenValuesVectorsSym": 10, "EigenValues": 10, "EigenValuesVectors": 10, "EigenValuesVectorsLeft": 10,
    "EigenValuesVectorsRight": 10, "EigenValuesGetBufSize": 2, "EigenValuesVectorsGetBufSize": 2,
}

# The operand descriptor of each kind in each layout. An empty name is the operand's pointer itself.
DESCRIPTOR = {
    #          standard                          list                              pointer
    "ma": {"S": "- Stride0 Stride1 Stride2", "L": "- Shift Stride1 Stride2", "P": "- Shift Stride0"},
    "m":  {"S": "- Stride1 Stride2",         "L": "- Stride1 Stride2",       "P": "- Shift"},
    "va": {"S": "- Stride0 Stride2",         "L": "- Shift Stride2",         "P": "- Shift Stride0"},
    "v":  {"S": "- Stride2",                 "L": "- Stride2",               "P": "- Shift"},
    "ca": {"S": "- Stride0",                 "L": "- Shift",                 "P": "- Stride0"},
}
DESCRIPTOR["ta"], DESCRIPTOR["t"] = DESCRIPTOR["ma"], DESCRIPTOR["m"]

# Gaxpy's third operand has no letter in the form.
THIRD_OPERAND = {"mv": "v", "mva": "va", "mvav": "v"}

# The groups that this version contains: those that have a text.
THIS_VERSION = [group.key for group in GROUPS if group.key in text.GROUPS]

Function = namedtuple("Function", "name group form type layout returns parameters")  # parameters: (C type, name)


def operand_letters(form):
    """mava -> [ma, va]"""
    return re.findall("[mtvc]a?", form)


def is_list(kind, layout):
    """Does this operand's pointer lead to a list of addresses?"""
    return (layout == "L" and len(kind) == 2) or (layout == "P" and kind[0] != "c")


def operand_parameters(name, kind, layout, element, source):
    if kind == "c":
        return [(element, name)]
    pointee = ("const " if source else "") + element + "*"
    pointer = pointee + " const*" if is_list(kind, layout) else pointee
    fields = DESCRIPTOR[kind][layout].split()[1:]
    return [(pointer, name)] + [("int32_t", name + field) for field in fields]


def size_tokens(kind):
    return ["len"] if kind[0] == "v" else ["width", "height"]


def parameters(group, form, element, layout):
    """The parameters of one function: its group's tokens, each replaced by what it stands for here."""
    letters = operand_letters(form)
    array = form in group.array.split()
    vector = next((k for k in letters if k[0] == "v"), None)
    constant = next((k for k in letters if k[0] == "c"), None)
    third = THIRD_OPERAND.get(form) if group.family == "Gaxpy" else None
    source_layout, result_layout = (layout if len(layout) == 2 else layout * 2)
    out = []
    for token in group.tokens.split():
        name, _, what = token.partition("=")
        if name == "count":
            out += [("int32_t", "count")] if array else []
        elif name == "size" and not what:
            out += [("int32_t", size) for size in size_tokens(letters[0])]
        elif not what:
            out.append(("int32_t", name))
        elif what == "*":
            out.append((element + "*", name))
        elif what == "bytes":
            out.append(("void*", name))
        elif what == "size":
            out.append(("int32_t*", name))
        elif what in ("in", "out"):
            out.append(("const int32_t*" if what == "in" else "int32_t*", name))
        elif name in ("dst", "vectors", "vectorsRight", "vectorsLeft"):
            kind = {"t": "m"}.get(letters[0][0], letters[0][0]) if what == "1" else what
            out += operand_parameters(name, kind + ("a" if array else ""), result_layout, element, source=False)
        else:
            # The constants of Sub stand in this order in all forms; Saxpy and LComb take their factors by value.
            if what == "v":
                kind = vector
            elif what == "c":
                kind = constant or "c"
            else:
                kind = (letters + [third])[int(what) - 1]
            out += operand_parameters(name, kind, source_layout, element, source=True)
    return out


def layouts_of(group, form):
    if group.family == "Copy":
        return [x + y for x in "SLP" for y in "SLP"]
    if group.family == "AffineTransform3DH" or form == "-":
        return ["S"]
    return ["S", "L", "P"] if form in group.array.split() else ["S", "P"]


def types_of(group):
    return ["32f"] if group.family == "AffineTransform3DH" else ["32f", "64f"]


def functions_of(group):
    for form in (group.single + " " + group.array).split():
        for kind in types_of(group):
            for layout in layouts_of(group, form):
                suffix = "" if layout == "S" else "_" + layout
                name = "zelm%s%s_%s%s" % (group.family, "" if form == "-" else "_" + form, kind, suffix)
                yield Function(name, group, form, kind, layout, "ZelStatus",
                               parameters(group, form, "Zel" + kind, layout))


VERSION_FUNCTION = Function("zelmGetLibVersion", None, "", "", "", "const ZelLibVersion*", [])


def functions(everything=False):
    """The functions of this version, or all of them."""
    out = [VERSION_FUNCTION]
    for group in GROUPS:
        if everything or group.key in THIS_VERSION:
            out += functions_of(group)
    return out


def check_grammar():
    """The tables against the known number of members of each family."""
    count = {}
    for function in functions(everything=True)[1:]:
        count[function.group.family] = count.get(function.group.family, 0) + 1
    wrong = ["%s: %d functions, expected %d" % (f, count.get(f, 0), n) for f, n in MEMBERS.items() if count.get(f) != n]
    names = [f.name for f in functions(everything=True)]
    if len(names) != 788 or len(set(names)) != 788:
        wrong.append("%d names, %d different ones, expected 788" % (len(names), len(set(names))))
    unknown = set(text.GROUPS) - {g.key for g in GROUPS}
    wrong += ["no such group: " + key for key in sorted(unknown)]
    for group in GROUPS:
        told = set(text.GROUPS[group.key]["forms"]) if group.key in text.GROUPS else None
        if told is not None and told != set((group.single + " " + group.array).split()):
            wrong.append("the text of %s tells of other forms than it has" % group.key)
    if wrong:
        sys.exit("interface.py: " + "\n".join(wrong))


def parameter_text(parameter):
    return "%s %s" % parameter


def prototype(function, width=120):
    """A prototype, broken as the formatter breaks it."""
    head = "%s %s(" % (function.returns, function.name)
    items = [parameter_text(p) for p in function.parameters] or ["void"]
    lines, line = [], head
    for i, item in enumerate(items):
        piece = item + (");" if i == len(items) - 1 else ",")
        space = "" if line.endswith("(") or line.isspace() else " "
        if len(line) + len(space) + len(piece) > width:
            lines.append(line)
            line, space = " " * len(head), ""
        line += space + piece
    return "\n".join(lines + [line])


def one_line(function):
    parameters = ", ".join(map(parameter_text, function.parameters)) or "void"
    return "%s %s(%s)" % (function.returns, function.name, parameters)


# ---------------------------------------------------------------------------------------------------- the header

def wrapped(paragraph, width):
    """The lines of a paragraph; its own line ends mean nothing, but commands and list items begin lines."""
    lines = []
    for piece in re.split("\n(?=[-@] ?)", paragraph):
        lines += textwrap.wrap(piece.replace("\n", " "), width, break_on_hyphens=False)
    return lines


def comment(paragraphs, first="/**"):
    """A Doxygen comment of paragraphs; one that begins with blanks is shown as it stands."""
    lines = []
    for i, paragraph in enumerate(paragraphs):
        if i:
            lines.append("")
        if paragraph.startswith("  "):
            lines += ["@code"] + [line[2:] for line in paragraph.split("\n")] + ["@endcode"]
        else:
            lines += wrapped(paragraph, 117)
    return first + "\n" + "".join((" * " + line).rstrip() + "\n" for line in lines) + " */\n"


def group_sections(group):
    """The sections of a group's text, as (heading, paragraphs)."""
    told = text.GROUPS[group.key]
    for heading, key in text.SECTIONS:
        if key == "example":
            yield heading, ["\n".join(told[key])]
        elif told.get(key):
            yield heading, told[key]


def header_group(group):
    told = text.GROUPS[group.key]
    paragraphs = ["@defgroup zelm%s %s" % (group.key, told["title"])] + told["what"]
    for heading, body in group_sections(group):
        paragraphs += [heading + ". " + body[0] if not body[0].startswith("  ") else heading + ":"]
        paragraphs += body if body[0].startswith("  ") else body[1:]
    out = [comment(paragraphs + ["@{"])]
    for form in (group.single + " " + group.array).split():
        title = group.family if form == "-" else "%s %s" % (group.family, form)
        out.append("/** @name %s: %s\n * @{ */\n" % (title, told["forms"][form]))
        out += [prototype(f) + "\n" for f in functions_of(group) if f.form == form]
        out.append("/** @} */\n\n")
    out.append("/** @} */\n\n")
    return "".join(out[:1]) + "\n" + "".join(out[1:])


def header():
    out = [text.HEADER_TOP, "\n", comment(["@mainpage zelm"] + text.OVERVIEW), "\n", text.HEADER_TYPES, "\n"]
    out += [prototype(VERSION_FUNCTION), "\n\n"]
    out += [header_group(group) for group in GROUPS if group.key in THIS_VERSION]
    out.append(text.HEADER_BOTTOM)
    return "".join(out)


# ---------------------------------------------------------------------------------------------------- the export list

def exports():
    names = "".join("    %s;\n" % f.name for f in functions())
    return "# The exported names; everything else stays inside. Emitted by tools/interface.py.\n" \
           "{\n  global:\n%s  local:\n    *;\n};\n" % names


# ---------------------------------------------------------------------------------------------------- the README's table

README_BEGIN = "<!-- families: emitted by tools/interface.py -->\n"
README_END = "<!-- end of families -->\n"


def families():
    """The families of this version with their groups, in the order of the table."""
    out = {}
    for group in GROUPS:
        if group.key in THIS_VERSION:
            out.setdefault(group.family, []).append(group)
    return out


def family_table():
    rows = ["| Family | What it computes | Forms | Types | Layouts | Functions |", "|---|---|---|---|---|---|"]
    for family, groups in families().items():
        members = [f for group in groups for f in functions_of(group)]
        forms = " ".join("`%s`" % form for group in groups for form in (group.single + " " + group.array).split()
                         if form != "-")
        types = " ".join("`%s`" % t for t in ("32f", "64f") if any("_" + t in f.name for f in members))
        # A single form has no list layout; Copy has a layout for the source and one for the result.
        layouts = "pairs" if family == "Copy" else " ".join(
            name for letter, name in (("S", "standard"), ("L", "list"), ("P", "pointer"))
            if any(f.layout == letter for f in members)) or "-"
        rows.append("| `%s` | %s | %s | %s | %s | %d |" % (family, text.FAMILIES[family], forms or "-", types, layouts,
                                                         len(members)))
    return "\n".join(rows) + "\n"


def readme(root):
    with open(os.path.join(root, "README.md"), encoding="utf-8") as file:
        whole = file.read()
    before, rest = whole.split(README_BEGIN)
    return before + README_BEGIN + family_table() + README_END + rest.split(README_END)[1]


# ---------------------------------------------------------------------------------------------------- man pages

def man_text(line):
    line = line.replace("\\", "\\e").replace("-", "\\-")
    return "\\&" + line if line[:1] in (".", "'") else line


def man_paragraphs(paragraphs):
    out = []
    for paragraph in paragraphs:
        if paragraph.startswith("  "):
            out += [".PP", ".nf", ".RS 4"] + [man_text(line[2:]) for line in paragraph.split("\n")] + [".RE", ".fi"]
        else:
            out.append(".PP")
            for line in paragraph.split("\n"):
                if line.startswith("- "):
                    out += [".IP \\(bu 2", man_text(line[2:])]
                else:
                    out.append(man_text(line.strip()))
    return out


def man_page(title, names, brief, synopsis, sections):
    out = ['.\\" Emitted by tools/interface.py.', '.TH %s 3 "" "zelm 6.1" "Small\\-matrix numerics"' % title.upper(),
           ".SH NAME", man_text(", ".join(names)) + " \\- " + man_text(brief), ".SH SYNOPSIS", ".nf",
           ".B #include <zelm.h>", ""]
    out += [man_text(line) for line in synopsis] + [".fi"]
    for heading, paragraphs in sections:
        out += ['.SH "%s"' % heading.upper()] + man_paragraphs(paragraphs)
    return "\n".join(out) + "\n"


def statuses():
    """The values of ZelStatus and what they say, as the header has them."""
    rows = re.findall(r"(zelStatus\w+) = (-?\d+),? +/\*\*< (.*) \*/", text.HEADER_TYPES)
    return "\n".join("  %-28s %4s  %s" % row for row in rows)


def man_pages():
    """File name and text of each page; further names of a page's functions lead to it."""
    pages = {"zelm.3": man_page("zelm", ["zelm"], "operations on very many tiny matrices and vectors", [],
                                [("Description", text.OVERVIEW), ("Statuses", [statuses()]),
                                 ("Families", ["- zelm%s(3): %s" % (family, text.FAMILIES[family])
                                               for family in families()])])}
    pages["zelmGetLibVersion.3"] = man_page("zelmGetLibVersion", ["zelmGetLibVersion"], "the library's version",
                                            [one_line(VERSION_FUNCTION) + ";"], [("Description", text.VERSION)])
    for family, groups in families().items():
        if groups[0].single == "-":
            continue  # the query's own page has the name of the family
        forms = [(group, form) for group in groups for form in (group.single + " " + group.array).split()]
        description = [line for group in groups for line in text.GROUPS[group.key]["what"]]
        pages["zelm%s.3" % family] = man_page(
            "zelm" + family, ["zelm" + family], text.FAMILIES[family], [],
            [("Forms", ["- zelm%s_%s(3): %s" % (family, form, " ".join(text.GROUPS[group.key]["forms"][form].split()))
                        for group, form in forms]),
             ("Description", description), ("See also", ["zelm(3) for layouts, units and statuses."])])
    for group in GROUPS:
        if group.key not in THIS_VERSION:
            continue
        told = text.GROUPS[group.key]
        for form in (group.single + " " + group.array).split():
            title = "zelm" + group.family + ("" if form == "-" else "_" + form)
            members = [f for f in functions_of(group) if f.form == form]
            synopsis = [line for f in members for line in prototype(f, 71).split("\n") + [""]][:-1]
            sections = [("Description", ["  " + told["forms"][form]] + told["what"])] + list(group_sections(group))
            sections.append(("See also", ["zelm(3) for layouts, units and statuses."]))
            pages[title + ".3"] = man_page(title, [f.name for f in members], told["title"], synopsis, sections)
            for f in members:
                if f.name != title:
                    pages[f.name + ".3"] = ".so man3/%s.3\n" % title
    return pages


# ---------------------------------------------------------------------------------------------------- command line

def example_programs():
    for group in GROUPS:
        if group.key in THIS_VERSION:
            body = "\n".join(text.GROUPS[group.key]["example"])
            yield "example_%s.c" % group.key, "#include <zelm.h>\n\nint main(void) {\n%s\n  return status;\n}\n" % body


def write(path, content):
    os.makedirs(os.path.dirname(path) or ".", exist_ok=True)
    with open(path, "w", encoding="utf-8") as file:
        file.write(content)


def main():
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    parser = argparse.ArgumentParser(description="Emit the library's public face from the grammar of its names.")
    parser.add_argument("--check", action="store_true", help="compare with the committed files")
    parser.add_argument("--list", action="store_true", help="print the functions of this version")
    parser.add_argument("--all", action="store_true", help="with --list: print all functions")
    parser.add_argument("--man", metavar="DIR", help="write man pages")
    parser.add_argument("--examples", metavar="DIR", help="write the examples of the texts as programs")
    parser.add_argument("--root", default=root, help="the source tree")
    arguments = parser.parse_args()
    check_grammar()
    emitted = {"zelm/include/zelm.h": header, "zelm/src/zelm.exports": exports,
               "README.md": lambda: readme(arguments.root)}
    if arguments.list:
        print("\n".join(map(one_line, functions(arguments.all))))
    elif arguments.man:
        for name, content in man_pages().items():
            write(os.path.join(arguments.man, "man3", name), content)
    elif arguments.examples:
        for name, content in example_programs():
            write(os.path.join(arguments.examples, name), content)
    elif arguments.check:
        different = False
        for name, emit in emitted.items():
            with open(os.path.join(arguments.root, name), encoding="utf-8") as file:
                committed = file.read()
            diff = difflib.unified_diff(committed.splitlines(True), emit().splitlines(True), name, "as emitted")
            lines = list(diff)
            different |= bool(lines)
            sys.stdout.writelines(lines)
        sys.exit(1 if different else 0)
    else:
        for name, emit in emitted.items():
            write(os.path.join(arguments.root, name), emit())


if __name__ == "__main__":
    main()
