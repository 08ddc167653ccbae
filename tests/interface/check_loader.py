#!/usr/bin/env python3
"""The dynamic loader takes the widest build that the processor has, and all builds give the same bits."""
import argparse
import os
import re
import shutil
import subprocess
import sys

LOADER = "/lib64/ld-linux-x86-64.so.2"
FILE = "libzelmn8.so.6.1"


def run(command, environment):
    environment = {**os.environ, **environment}
    result = subprocess.run(command, env=environment, capture_output=True, text=True, timeout=120)
    if result.returncode:
        sys.exit("%s: %d\n%s" % (" ".join(command), result.returncode, result.stderr))
    return result.stdout


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("probe")
    parser.add_argument("--libdir", required=True)
    parser.add_argument("--runtime", required=True, help="where the OpenMP runtime is")
    parser.add_argument("--work", required=True)
    parser.add_argument("--widths", required=True, help="the wider builds, the narrowest first")
    arguments = parser.parse_args()
    libdir = os.path.realpath(arguments.libdir)
    listing = run([LOADER, "--help"], {})
    widths = [w for w in arguments.widths.split(";")
              if re.search(r"^\s+x86-64-%s \(supported, searched\)$" % w, listing, re.M)]

    # Each build alone, so that all are run, also those that the loader would not choose.
    shutil.rmtree(arguments.work, ignore_errors=True)
    builds = {"baseline": os.path.join(libdir, FILE)}
    builds.update((w, os.path.join(libdir, "glibc-hwcaps/x86-64-" + w, FILE)) for w in widths)
    bits, faults = {}, []
    for name, file in builds.items():
        alone = os.path.join(os.path.realpath(arguments.work), name)
        os.makedirs(alone)
        shutil.copy(file, alone)
        lines = run([arguments.probe], {"LD_LIBRARY_PATH": alone + ":" + arguments.runtime}).splitlines()
        if lines[0] != os.path.join(alone, FILE):
            faults.append("%s: took %s" % (name, lines[0]))
        bits[name] = lines[1:]
    for name, lines in bits.items():
        if len(lines) < 10 or any(line.split()[2] != "0" for line in lines):
            faults.append("%s: calls failed" % name)
        different = [a.split()[:2] for a, b in zip(lines, bits["baseline"]) if a != b]
        if different or len(lines) != len(bits["baseline"]):
            faults.append("other bits (%s): %s" % (name, different))

    # What the loader takes: the widest, and under a mask that leaves the first n, the last of these.
    path = libdir + ":" + arguments.runtime
    for n in range(len(widths) + 1):
        mask = ":".join("x86-64-" + w for w in widths[:n]) or "none"
        taken = run([LOADER, "--library-path", path, "--glibc-hwcaps-mask", mask, arguments.probe], {}).splitlines()[0]
        expected = builds[widths[n - 1]] if n else builds["baseline"]
        if taken != expected:
            faults.append("took %s, not %s, with the mask %s" % (taken, expected, mask))
    taken = run([arguments.probe], {"LD_LIBRARY_PATH": path}).splitlines()[0]
    if taken != list(builds.values())[-1]:
        faults.append("took %s by itself" % taken)

    print("%d calls, builds: %s" % (len(bits["baseline"]), ", ".join(builds)))
    for w in arguments.widths.split(";"):
        if w not in widths:
            print("left out, the processor has no x86-64-%s" % w)
    for fault in faults:
        print(fault)
    sys.exit(1 if faults else 0)


main()
