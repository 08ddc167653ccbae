#!/usr/bin/env python3
"""The code in README and documents compiles without a warning and runs to zelStatusOk.

A block with a main is a program; any other is the body of one, in which `status` is what counts. C blocks are compiled as C99
and as C++17, all of them also by a second compiler where there is one.
"""
import argparse
import concurrent.futures
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
    return "#include <zelm.h>\n%s\nint main(void) {\n%s\nreturn status != zelStatusOk;\n}\n" % ("".join(includes), body)


LIBRARIES = {"Eigen": "<Eigen/", "glm": "<glm/"}


def main():
    parser = argparse.ArgumentParser()
    for option in ("root", "include", "library", "work", "c", "cxx"):
        parser.add_argument("--" + option, required=True)
    parser.add_argument("--others", nargs="*", default=[], help="compilers that only look, by C and C++ in turn")
    parser.add_argument("--headers", action="append", default=[], metavar="NAME=DIRECTORY", help="a library that snippets use")
    arguments = parser.parse_args()
    shutil.rmtree(arguments.work, ignore_errors=True)
    os.makedirs(arguments.work)
    headers = dict(pair.split("=", 1) for pair in arguments.headers)
    flags = ["-Wall", "-Wextra", "-Wpedantic", "-Werror", "-I" + arguments.include]
    flags += ["-idirafter" + directory for directory in headers.values()]
    link = [arguments.library, "-lm", "-Wl,-rpath," + os.path.dirname(arguments.library)]

    def attempt(where, compiler, options, source, runs):
        """Compiles and, with the library's own compiler, runs a program; returns whether that is well."""
        if runs:
            good = subprocess.run([compiler, *options, *flags, source, "-o", source + ".run", *link], check=False).returncode == 0
            good = good and subprocess.run([source + ".run"], check=False).returncode == 0
        else:
            good = subprocess.run([compiler, *options, *flags, "-fsyntax-only", source], check=False).returncode == 0
        print("%s, %s %s: %s" % (where, os.path.basename(compiler), " ".join(options), "good" if good else "failed"))
        return good

    jobs = []
    paths = [os.path.join(arguments.root, "README.md")] + sorted(glob.glob(os.path.join(arguments.root, "docs", "*.md")))
    for path in paths:
        for language, code, line in blocks(path):
            where = "%s:%d" % (os.path.relpath(path, arguments.root), line)
            lacking = [name for name, mark in LIBRARIES.items() if mark in code and name not in headers]
            if lacking:
                print("%s: left out, no %s here" % (where, lacking[0]))
                continue
            for ending, standard in (("c", "-std=c99"), ("cpp", "-std=c++17")):
                if language == "cpp" and ending == "c":
                    continue
                source = os.path.join(arguments.work, "%s%d.%s" % (os.path.basename(path), line, ending))
                with open(source, "w", encoding="utf-8") as file:
                    file.write(program(code))
                options = [standard] + ["-fopenmp"] * ("#pragma omp" in code)
                jobs.append((where, arguments.c if ending == "c" else arguments.cxx, options, source, True))
                for compiler in arguments.others[ending == "cpp"::2]:
                    jobs.append((where, compiler, options, source, False))
    if not arguments.others:
        print("left out: no second compiler here")
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(lambda job: attempt(*job), jobs))
    print("%d programs, %d of them bad" % (len(results), results.count(False)))
    sys.exit(0 if all(results) and len(results) >= 20 else 1)


main()
