#!/usr/bin/env python3
"""The Debian packages: each holds its files and no others, and names what it depends on."""
import argparse
import glob
import os
import re
import shutil
import subprocess
import sys


def run(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


def main():
    parser = argparse.ArgumentParser()
    for option in ("cpack", "build", "work", "header", "widths"):
        parser.add_argument("--" + option, required=True)
    arguments = parser.parse_args()
    lib = "usr/lib/x86_64-linux-gnu/"  # wherever the build itself installs to
    with open(arguments.header, encoding="ascii") as file:
        functions = set(re.findall(r"\b(zelm\w+)\(", re.sub(r"/\*.*?\*/", "", file.read(), flags=re.S)))
    forms = {re.sub(r"_(32f|64f)(_\w+)?$", "", name) for name in functions}
    families = {form.split("_")[0] for form in forms}
    pages = {"usr/share/man/man3/%s.3" % name for name in functions | forms | families | {"zelm"}}
    expected = {
        "libzelmn8": {lib + "libzelmn8.so.6.1"} | {lib + "glibc-hwcaps/x86-64-%s/libzelmn8.so.6.1" % width
                                                   for width in arguments.widths.split(";") if width},
        "libzelmn8-dev": pages | {"usr/include/zelm.h"} | {lib + name for name in (
            "libzelmn8.so", "libzelmn8.a", "pkgconfig/zelm.pc", "cmake/zelm/zelm-config.cmake",
            "cmake/zelm/zelm-config-version.cmake", "cmake/zelm/zelm-targets.cmake",
            "cmake/zelm/zelm-targets-release.cmake")},
    }
    for name, files in expected.items():
        files |= {"usr/share/doc/%s/changelog%s.gz" % (name, kind) for kind in ("", ".Debian")}
    faults = []
    shutil.rmtree(arguments.work, ignore_errors=True)
    try:
        run(arguments.cpack, "-G", "DEB", "-B", arguments.work, "--config",
            os.path.join(arguments.build, "CPackConfig.cmake"))
    except subprocess.CalledProcessError as error:
        sys.exit(error.stdout + error.stderr)

    fields = {}
    packages = glob.glob(os.path.join(arguments.work, "*.deb"))
    for package in packages:
        name = run("dpkg-deb", "-f", package, "Package").strip()
        fields[name] = {f: run("dpkg-deb", "-f", package, f).strip() for f in ("Version", "Depends", "Description")}
        listing = [line.split(None, 5)[5] for line in run("dpkg-deb", "-c", package).splitlines()]
        files = {re.sub(r" -> .*", "", entry)[2:] for entry in listing if not entry.endswith("/")}
        wanted = {re.sub("-release", "-" + f.group(1), w) if (f := re.search("targets-(\\w+)", " ".join(files))) else w
                  for w in expected.get(name, set())}
        faults += ["%s lacks %s" % (name, file) for file in sorted(wanted - files)]
        faults += ["%s has %s" % (name, file) for file in sorted(files - wanted)]
        if name == "libzelmn8-dev" and not any(e.endswith("libzelmn8.so -> libzelmn8.so.6.1") for e in listing):
            faults.append("the development link does not lead to libzelmn8.so.6.1")
        synopsis, *description = fields[name]["Description"].split("\n")
        if not description or any(synopsis.split(" (")[0].lower() in line.lower() for line in description):
            faults.append("the description of %s says nothing, or its synopsis again" % name)
        changes = run("sh", "-c", "dpkg-deb --fsys-tarfile '%s' | tar -xO ./usr/share/doc/%s/changelog.Debian.gz | gzip -d"
                      % (package, name))
        if not changes.startswith("zelm (%s) " % fields[name]["Version"]):
            faults.append("the changelog of %s begins: %s" % (name, changes.split("\n", maxsplit=1)[0]))
    if len({package["Description"].split("\n")[0] for package in fields.values()}) != len(fields):
        faults.append("the packages have one synopsis")
    if sorted(fields) != sorted(expected) or len(packages) != 2:
        faults.append("packages: " + " ".join(sorted(fields)))
    else:
        runtime, development = fields["libzelmn8"], fields["libzelmn8-dev"]
        if not re.match(r"6\.1-\d+$", runtime["Version"]) or development["Version"] != runtime["Version"]:
            faults.append("versions %s and %s" % (runtime["Version"], development["Version"]))
        if not re.search(r"\b(libgomp1|libomp5)\b", runtime["Depends"]) or "libc6" not in runtime["Depends"]:
            faults.append("the run-time package depends on " + runtime["Depends"])
        if "stdc++" in runtime["Depends"]:
            faults.append("the run-time package wants a C++ run-time library")
        if "libzelmn8 (= %s)" % runtime["Version"] not in development["Depends"]:
            faults.append("the development package depends on " + development["Depends"])
    for fault in faults:
        print(fault)
    sys.exit(1 if faults else 0)


main()
