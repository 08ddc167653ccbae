#!/usr/bin/env python3
"""The examples of the public header compile without a warning and run to zelStatusOk."""
import argparse
import glob
import os
import shutil
import subprocess
import sys


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--interface", required=True)
    parser.add_argument("--include", required=True)
    parser.add_argument("--library", required=True)
    parser.add_argument("--work", required=True)
    parser.add_argument("compiler", nargs="+")
    arguments = parser.parse_args()
    shutil.rmtree(arguments.work, ignore_errors=True)
    subprocess.run([sys.executable, arguments.interface, "--examples", arguments.work], check=True)
    sources = glob.glob(os.path.join(arguments.work, "*.c"))
    failed = not sources
    for source in sources:
        program = source[:-2]
        directory = os.path.dirname(arguments.library)
        command = arguments.compiler + ["-I" + arguments.include, source, "-o", program, arguments.library,
                                        "-Wl,-rpath," + directory]
        good = subprocess.run(command).returncode == 0 and subprocess.run([program]).returncode == 0
        print(os.path.basename(program), "good" if good else "failed")
        failed |= not good
    sys.exit(1 if failed else 0)


main()
