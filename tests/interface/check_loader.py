#!/usr/bin/env python3
"""The dynamic loader takes the x86-64-v3 build where the processor has it, and both builds give the same bits."""
import argparse
import os
import re
import shutil
import subprocess
import sys

LOADER = "/lib64/ld-linux-x86-64.so.2"
V3 = "glibc-hwcaps/x86-64-v3"
FILE = "libzelmn8.so.6.1"


def run(command, environment):
    environment = {**os.environ, **environment}
    result = subprocess.run(command, env=environment, capture_output=True, text=True, timeout=120)
    if result.returncode:
        sys.exit("%s: %d\n%s" % (" ".join(command), result.returncode, result.stderr))
    return result.stdout


def has_v3(environment):
    listing = run([LOADER, "--help"], environment)
    return re.search(r"^\s+x86-64-v3 \(supported, searched\)$", listing, re.M) is not None


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("probe")
    parser.add_argument("--libdir", required=True)
    parser.add_argument("--runtime", required=True, help="where the OpenMP runtime is")
    parser.add_argument("--work", required=True)
    arguments = parser.parse_args()
    libdir = os.path.realpath(arguments.libdir)
    baseline, v3 = os.path.join(libdir, FILE), os.path.join(libdir, V3, FILE)

    # Each build alone, so that both are run even where the loader would not choose one of them.
    shutil.rmtree(arguments.work, ignore_errors=True)
    os.makedirs(arguments.work)
    alone = os.path.join(os.path.realpath(arguments.work), "baseline")
    os.mkdir(alone)
    shutil.copy(baseline, alone)

    def probe(directory, **environment):
        path = {"LD_LIBRARY_PATH": directory + ":" + arguments.runtime}
        lines = run([arguments.probe], {**path, **environment}).splitlines()
        return lines[0], lines[1:]

    masked = {"GLIBC_TUNABLES": "glibc.cpu.hwcaps=-AVX2"}
    faults = []
    taken, bits = probe(libdir)
    expected = v3 if has_v3({}) else baseline
    if taken != expected:
        faults.append("took %s, not %s" % (taken, expected))
    if has_v3(masked):
        faults.append("the loader cannot be told to do without AVX2")
    taken, masked_bits = probe(libdir, **masked)
    if taken != baseline:
        faults.append("took %s without AVX2, not %s" % (taken, baseline))
    taken, baseline_bits = probe(alone)
    if taken != os.path.join(alone, FILE):
        faults.append("took %s out of a directory without %s" % (taken, V3))
    if len(bits) < 10 or any(line.split()[2] != "0" for line in bits):
        faults.append("calls failed")
    for name, other in (("without AVX2", masked_bits), ("baseline", baseline_bits)):
        different = [a.split()[:2] for a, b in zip(bits, other) if a != b]
        if different or len(bits) != len(other):
            faults.append("other bits (%s): %s" % (name, different))
    print("%d calls, %s" % (len(bits), "both builds" if has_v3({}) else "the baseline alone: no x86-64-v3 here"))
    for fault in faults:
        print(fault)
    sys.exit(1 if faults else 0)


main()
