#!/usr/bin/env python3
"""What a shared object of the library must be: its exports, what it needs, no state, hardened."""
import argparse
import re
import subprocess
import sys

NEEDED = {"libc.so.6", "libm.so.6", "libgomp.so.1", "libomp.so.5", "ld-linux-x86-64.so.2"}
SONAME = "libzelmn8.so.6.1"
CONSTRUCTORS = re.compile(r"\.(init|fini|preinit_array|init_array|fini_array|ctors|dtors)(\.|$)")
# Sections that the loader writes once and then protects.
RELOCATED = re.compile(r"\.(dynamic|got|got\.plt|data\.rel\.ro.*|relro_padding)$")
# The lock of the one unnamed critical section, where it is not in the runtime itself: the only state there may be.
LOCK = re.compile(r"\.gomp_critical_user_")
LOCK_BYTES = 32
# A line of readelf -SW: number, name, type, address, offset, size, size of an entry, flags.
SECTION = re.compile(r"\[ *(\d+)\] (\.\S+)\s+\w+\s+([0-9a-f]+) [0-9a-f]+ ([0-9a-f]+) [0-9a-f]+\s+([A-Za-z]*) ")


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("library")
    parser.add_argument("--header", required=True, help="the public header that says what is exported")
    parser.add_argument("--text-limit", action="append", default=[], metavar="REGEX=BYTES",
                        help="most bytes of code under symbols that match")
    arguments = parser.parse_args()
    library, faults = arguments.library, []

    with open(arguments.header, encoding="ascii") as file:
        code = re.sub(r"/\*.*?\*/", "", file.read(), flags=re.S)
    public = set(re.findall(r"\b(zelm\w+)\(", code))
    exported = {line.split()[-1] for line in run("nm", "-D", "--defined-only", library).splitlines()}
    if len(public) < 2:
        faults.append("no functions found in the header")
    faults += ["exported, but not in the header: " + name for name in sorted(exported - public)]
    faults += ["in the header, but not exported: " + name for name in sorted(public - exported)]

    dynamic = run("readelf", "-dW", library)
    needed = set(re.findall(r"\(NEEDED\).*\[(.*)\]", dynamic))
    faults += ["needs " + name for name in sorted(needed - NEEDED)]
    if not needed & {"libgomp.so.1", "libomp.so.5"}:
        faults.append("needs no OpenMP runtime")
    # Statuses of several threads are merged one at a time.
    if not re.search(r" (GOMP_critical_start|__kmpc_critical)\b", run("nm", "-D", "--undefined-only", library)):
        faults.append("enters no critical section")
    if re.findall(r"\(SONAME\).*\[(.*)\]", dynamic) != [SONAME]:
        faults.append("its SONAME is not " + SONAME)
    if not re.search(r"\(FLAGS\).*BIND_NOW|\(FLAGS_1\).*\bNOW\b", dynamic):
        faults.append("is bound lazily")
    if "TEXTREL" in dynamic:
        faults.append("has relocations in its text")

    # Results are pinned: no product is fused with a sum, whatever the compiler thinks it may do.
    fused = re.findall(r"\t(vfn?m\w+)", run("objdump", "-d", "--no-show-raw-insn", library))
    if fused:
        faults.append("has %d fused instructions, such as %s" % (len(fused), fused[0]))

    symbols = run("readelf", "-sW", library)
    relro = None
    for line in run("readelf", "-lW", library).splitlines():
        fields = line.split()
        if fields[:1] == ["GNU_RELRO"]:
            relro = (int(fields[2], 16), int(fields[2], 16) + int(fields[5], 16))
        if fields[:1] == ["GNU_STACK"] and "E" in "".join(fields[6:-1]):
            faults.append("has an executable stack")
    if relro is None:
        faults.append("has no GNU_RELRO")
    if "GNU_STACK" not in run("readelf", "-lW", library):
        faults.append("does not say whether its stack is executable")

    for index, name, address, size, flags in re.findall(SECTION, run("readelf", "-SW", library)):
        address, size = int(address, 16), int(size, 16)
        if CONSTRUCTORS.match(name):
            faults.append("has " + name)
        elif "W" in flags and size:
            inside = relro and relro[0] <= address and address + size <= relro[1]
            objects = re.findall(r"OBJECT\s+LOCAL\s+\w+\s+%s (\S+)" % index, symbols)
            if name == ".bss" and size <= LOCK_BYTES and len(objects) == 1 and LOCK.match(objects[0]):
                continue
            if not RELOCATED.match(name) or not inside:
                faults.append("has %d writable bytes in %s" % (size, name))

    for limit in arguments.text_limit:
        symbols, most = limit.rsplit("=", 1)
        lines = [line.split() for line in run("nm", "-S", "--defined-only", library).splitlines()]
        size = sum(int(fields[1], 16) for fields in lines
                   if len(fields) == 4 and fields[2] in "tTwWiV" and re.search(symbols, fields[3]))
        print("%s: %d bytes of code" % (symbols, size))
        if not 0 < size <= int(most):
            faults.append("%d bytes of code for %s, not 1 to %s" % (size, symbols, most))

    for fault in faults:
        print("%s: %s" % (library, fault))
    sys.exit(1 if faults else 0)


main()
