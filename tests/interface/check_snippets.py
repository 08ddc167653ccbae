#!/usr/bin/env python3
"""The code in README and documents compiles without a warning and runs to zelStatusOk.

A block with a main is a program; any other is the body of one, in which `status` is what counts. C blocks are compiled as C99
and as C++17.
"""
import argparse
import glob
import os
import re
import shutil
import subprocess
import sys


def blocks(path):
    with open(path, encoding="utf-8") as file:
        text = file.read()
    for match in re.finditer(r"^```(c|cpp)\n(.*?)^```$", text, re.M | re.S):
        yield match.group(1), match.group(2), text[:match.start()].count("\n") + 2


def program(code):
    if re.search(r"\bint main\(", code):
        return code
    includes = re.findall(r"^#include.*\n", code, re.M)
    body = re.sub(r"^#include.*\n", "", code, flags=re.M)
    return "#include <zelm.h>\n%s\nint main(void) {\n%s\n  return status != zelStatusOk;\n}\n" % ("".join(includes), body)


def main():
    parser = argparse.ArgumentParser()
    for option in ("root", "include", "library", "work", "c", "cxx"):
        parser.add_argument("--" + option, required=True)
    parser.add_argument("--eigen", default="", help="where Eigen's headers are")
    arguments = parser.parse_args()
    shutil.rmtree(arguments.work, ignore_errors=True)
    os.makedirs(arguments.work)
    warnings = ["-Wall", "-Wextra", "-Wpedantic", "-Werror", "-I" + arguments.include]
    link = [arguments.library, "-lm", "-Wl,-rpath," + os.path.dirname(arguments.library)]
    ran = failed = 0
    paths = [os.path.join(arguments.root, "README.md")] + sorted(glob.glob(os.path.join(arguments.root, "docs", "*.md")))
    for path in paths:
        for language, code, line in blocks(path):
            where = "%s:%d" % (os.path.relpath(path, arguments.root), line)
            if "<Eigen/" in code and not arguments.eigen:
                print("%s: left out, no Eigen here" % where)
                continue
            for compiler, standard, ending in ((arguments.c, "-std=c99", "c"), (arguments.cxx, "-std=c++17", "cpp")):
                if language == "cpp" and ending == "c":
                    continue
                source = os.path.join(arguments.work, "snippet%d.%s" % (line, ending))
                with open(source, "w", encoding="utf-8") as file:
                    file.write(program(code))
                command = [compiler, standard] + warnings + ["-isystem" + arguments.eigen] * bool(arguments.eigen)
                good = subprocess.run(command + [source, "-o", source + ".run"] + link, check=False).returncode == 0
                good = good and subprocess.run([source + ".run"], check=False).returncode == 0
                print("%s, %s: %s" % (where, standard, "good" if good else "failed"))
                ran += 1
                failed += not good
    print("%d programs" % ran)
    sys.exit(1 if failed or ran < 10 else 0)


main()
