#!/usr/bin/env python3
"""Every member is there, and nothing else: in the shared object, the header, the list that tools emit, the man pages, README's
table and the tables that drive the tests. So is every front in the archive.

The families are written down here a second time, with the numbers of their members and fronts.
"""
import argparse
import os
import re
import shutil
import subprocess
import sys

# family: functions, fronts, forms without an array, forms with one
FAMILIES = {
    "Add": (92, 72, "mm tm tt vv vc", "mam mat tam tat mama tama tata vav vava vac vca vaca"),
    "Sub": (154, 125, "mm mt tm tt vv vc cv",
            "mam mat tam tat mma mta tma tta mama mata tama tata vav vva vava vac vca vaca cva cav cava"),
    "Mul": (174, 138, "mc tc vc mm mt tm tt mv tv",
            "mac tac vac vca vaca mam mat tam tat mma mta tma tta mama mata tama tata mav tav mva tva mava tava"),
    "Gaxpy": (16, 12, "mv", "mva mvav"),
    "AffineTransform3DH": (1, 1, "", "mva"),
    "Saxpy": (22, 18, "vv", "vav vva vava"),
    "LComb": (16, 12, "vv", "vav vava"),
    "CrossProduct": (22, 17, "vv", "vav vva vava"),
    "DotProduct": (16, 12, "vv", "vav vava"),
    "L2Norm": (10, 6, "v", "va"),
    "Trace": (10, 6, "m", "ma"),
    "FrobNorm": (10, 6, "m", "ma"),
    "Det": (10, 6, "m", "ma"),
    "Extract": (30, 0, "m t v", "ma ta va"),
    "Copy": (36, 0, "", "ma va"),
    "LoadIdentity": (6, 0, "", "ma"),
    "Transpose": (10, 0, "m", "ma"),
    "LUDecomp": (10, 6, "m", "ma"),
    "LUBackSubst": (16, 12, "mv", "mva mava"),
    "CholeskyDecomp": (10, 6, "m", "ma"),
    "CholeskyBackSubst": (16, 12, "mv", "mva mava"),
    "QRDecomp": (10, 6, "m", "ma"),
    "QRBackSubst": (16, 12, "mv", "mva mava"),
    "Invert": (10, 6, "m", "ma"),
    "EigenValuesSym": (10, 6, "m", "ma"),
    "EigenValuesVectorsSym": (10, 6, "m", "ma"),
    "EigenValues": (10, 6, "m", "ma"),
    "EigenValuesVectors": (10, 6, "m", "ma"),
    "EigenValuesVectorsLeft": (10, 6, "m", "ma"),
    "EigenValuesVectorsRight": (10, 6, "m", "ma"),
    "EigenValuesGetBufSize": (2, 0, "", ""),
    "EigenValuesVectorsGetBufSize": (2, 0, "", ""),
}
MEMBERS, FRONTS = 787, 527
WITHOUT_FRONT = {"zelmSub_vva_64f_P", "zelmCrossProduct_vva_64f_P"}
# These are called by tests of their own, without a table.
QUERIES = {"zelm%sGetBufSize_%s" % (f, t) for f in ("EigenValues", "EigenValuesVectors") for t in ("32f", "64f")}


def members(family):
    """The members of a family by its row, and those that have a front."""
    _, fronts, single, array = FAMILIES[family]
    stem = "zelm%s_%%s_%%s" % family
    if family.endswith("GetBufSize"):
        return {"zelm%s_%s" % (family, t) for t in ("32f", "64f")}, set()
    if family == "AffineTransform3DH":
        return ({stem % ("mva", "32f")},) * 2
    endings = ("", "_L", "_P")
    if family == "Copy":
        endings = ["_" + source + result for source in "SLP" for result in "SLP"]
    arrays = {stem % (form, t) + e for form in array.split() for t in ("32f", "64f") for e in endings}
    singles = {stem % (form, t) + e for form in single.split() for t in ("32f", "64f") for e in ("", "_P")}
    return arrays | singles, arrays - WITHOUT_FRONT if fronts else set()


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


class Faults(list):
    def compare(self, where, found, wanted):
        self.extend("%s lacks %s" % (where, name) for name in sorted(wanted - found))
        self.extend("%s has %s" % (where, name) for name in sorted(found - wanted))


def check_man_pages(faults, directory, names):
    """A page for the library, each family and each form, whose synopsis declares the form's functions, and a link to it for
    each of these."""
    pages = {name[:-2]: read(os.path.join(directory, name)) for name in os.listdir(directory)}
    forms = {re.sub(r"_(32f|64f)(_\w+)?$", "", name) for name in names}
    families = {"zelm" + family for family in FAMILIES}
    faults.compare("man", set(pages), names | forms | families | {"zelm"})
    for name in sorted(names & set(pages)):
        form = re.sub(r"_(32f|64f)(_\w+)?$", "", name)
        if name != form and pages[name] != ".so man3/%s.3\n" % form:
            faults.append("man %s does not lead to %s" % (name, form))
        synopsis = pages[form].split(".SH SYNOPSIS")[1].split("\n.SH ")[0].replace("\\-", "-")
        if not re.search(r"\b%s\(" % name, synopsis):
            faults.append("man %s does not declare %s" % (form, name))
    for family in FAMILIES:
        if "zelm%s(3)" % family not in pages.get("zelm", ""):
            faults.append("man zelm does not name zelm" + family)


def check_table(faults, readme):
    rows = re.findall(r"^\| `(\w+)` \|.*\| (\d+) \|$", readme, re.M)
    if [(family, int(number)) for family, number in rows] != [(f, row[0]) for f, row in FAMILIES.items()]:
        faults.append("README's table has other families, or other numbers of functions: %s" % rows)
    for family, (_, _, single, array) in FAMILIES.items():
        line = re.search(r"^\| `%s` \|[^|]*\|([^|]*)\|" % family, readme, re.M)
        found = set(re.findall(r"`(\w+)`", line.group(1))) if line else set()
        faults.compare("README's row of " + family, found, set(single.split()) | set(array.split()))


def main():
    parser = argparse.ArgumentParser()
    for option in ("library", "archive", "root", "work"):
        parser.add_argument("--" + option, required=True)
    parser.add_argument("programs", nargs="*", help="the test programs of the families")
    arguments = parser.parse_args()
    faults = Faults()

    names, fronts = set(), set()
    for family, row in FAMILIES.items():
        of_family, fronts_of_family = members(family)
        if (len(of_family), len(fronts_of_family)) != row[:2]:
            faults.append("%s: %d functions and %d fronts, not %d and %d"
                          % (family, len(of_family), len(fronts_of_family), *row[:2]))
        names |= of_family
        fronts |= {"ownOMP_" + name for name in fronts_of_family}
    if (len(names), len(fronts)) != (MEMBERS, FRONTS):
        faults.append("%d functions and %d fronts, not %d and %d" % (len(names), len(fronts), MEMBERS, FRONTS))
    computing, names = names, names | {"zelmGetLibVersion"}

    exported = {line.split()[-1] for line in run("nm", "-D", "--defined-only", arguments.library).splitlines()}
    faults.compare("the library", exported, names)
    archive = run("nm", "--defined-only", arguments.archive)
    faults.compare("the archive", set(re.findall(r" [Tt] (ownOMP_\w+)$", archive, re.M)), fronts)

    header = re.sub(r"/\*.*?\*/", "", read(os.path.join(arguments.root, "zelm/include/zelm.h")), flags=re.S)
    declared = re.findall(r"\b(zelm\w+)\(", header)
    faults.compare("the header", set(declared), names)
    if len(declared) != len(names):
        faults.append("the header declares something twice")

    interface = (sys.executable, "-B", os.path.join(arguments.root, "tools/interface.py"))
    faults.compare("interface.py --list", set(re.findall(r"\b(zelm\w+)\(", run(*interface, "--list"))), names)
    shutil.rmtree(arguments.work, ignore_errors=True)
    run(*interface, "--man", arguments.work)
    check_man_pages(faults, os.path.join(arguments.work, "man3"), names)
    check_table(faults, read(os.path.join(arguments.root, "README.md")))

    tested = {}
    for program in arguments.programs:
        suite = ""
        for line in run(program, "--gtest_list_tests").splitlines():
            if not line.startswith(" "):
                suite = line
            elif suite == "Arguments.":
                tested.setdefault(line.strip(), []).append(os.path.basename(program))
    if arguments.programs:
        faults.compare("the tests' table", set(tested), computing - QUERIES)
    faults += ["%s stands in several tables: %s" % (name, " ".join(where)) for name, where in tested.items() if len(where) > 1]

    for fault in faults:
        print(fault)
    print("%d functions, %d fronts, %d in the tests' tables" % (len(names), len(fronts), len(tested)))
    sys.exit(1 if faults else 0)


main()
