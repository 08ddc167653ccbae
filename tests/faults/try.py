#!/usr/bin/env python3
"""Tries the tests: applies faults to a copy of the tree and tells which of them no test has seen.

    tests/faults/try.py [--copy DIRECTORY] [--jobs N] [--results FILE] [WORD...]

The faults are those of faults.txt, or only those of the families, files or kinds that are named. They are built for all
x86-64 processors, with the sources of their family alone, and its tests run until one fails. To save builds,

  - expressions (OLD ?> NEW) are all compiled in, and one of them is chosen by an environment variable (not so those
    that the compiler takes for constants: OLD => NEW);
  - faults in rows of different members are built together; of each, its member's tests have to fail;
  - all others are built one by one, and so is what has survived together with others.

What is marked by ## changes nothing that a caller can see. The copy is a worktree of the last commit; it stays, so that
a second run builds little. With --results, what the file has already is left out, and each result is added to it.
"""
import argparse
import os
import pathlib
import re
import resource
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
TREE = HERE.parent.parent
SWITCH = '''#ifndef ZELM_FAULT_SWITCH
#define ZELM_FAULT_SWITCH
#include <cstdlib>
inline const int zelmFaultChosen = std::getenv("ZELM_FAULT") == nullptr ? 0 : std::atoi(std::getenv("ZELM_FAULT"));
// None where the compiler computes.
constexpr int zelmFault() { return __builtin_is_constant_evaluated() ? 0 : zelmFaultChosen; }
#endif
'''


class Fault:
    """One line of the list: `kind place :: old => new [## why nobody can see it]`, or ?> in the place of =>."""

    def __init__(self, number, family, stems, file, line):
        self.number, self.family, self.stems, self.file, self.text = number, family, stems, file, line
        line, _, self.unseen = (part.strip() for part in line.partition(' ## '))
        self.kind, _, change = line.partition(' ')
        place, _, change = change.rpartition(' :: ')
        self.place = place.strip()
        self.old, arrow, self.new = (re.sub(r'^`|`$', '', part.strip()) for part in re.split(r' (=>|\?>) ', change, 1))
        self.switched = arrow == '?>'
        row = re.match(r'(ownOMP_|own|)(zelm\w+_(?:32|64)f\w*?)(?:S2)?,?$', self.place)
        self.member = row.group(2).rstrip('_') if row and file.endswith('.cpp') else None

    def __str__(self):
        return f'{self.family} {self.file} {re.sub(" +", " ", self.text)}'

    def applied(self, text, switched=False):
        """The text with the first `old` behind the first `place` changed."""
        start = text.find(self.place)
        at = text.find(self.old, start) if start >= 0 else -1
        if at < 0:
            return None
        new = self.new
        if switched:
            statement = self.old.endswith(';')
            new = (f'{{ if (zelmFault() == {self.number}) {{ {self.new} }} else {{ {self.old} }} }}' if statement else
                   f'(zelmFault() == {self.number} ? ({self.new}) : ({self.old}))')
        return text[:at] + new + text[at + len(self.old):]


def read(path):
    faults, family, stems, file = [], '', '', ''
    for line in path.read_text().splitlines():
        words = line.split()
        if not words or line.startswith('#'):
            continue
        if words[0] == 'family':
            family, stems = words[1], words[2] if len(words) > 2 else ''
        elif words[0] == 'file':
            file = words[1]
        else:
            faults.append(Fault(len(faults) + 1, family, stems, file, line))
    return faults


def applied(text, faults, switched=False):
    """The text with all these faults, and those that did not find their place."""
    lost = []
    # From the last place on, so that none moves another.
    for fault in sorted(faults, key=lambda f: -text.find(f.old, max(0, text.find(f.place)))):
        changed = fault.applied(text, switched)
        if changed is None:
            lost.append(fault)
        text = changed or text
    return text, lost


class Copy:
    """A worktree with a build folder for each family."""

    def __init__(self, path, jobs):
        self.path, self.jobs, self.ready = path, jobs, set()
        if path.exists():
            commit = subprocess.run(['git', 'rev-parse', 'HEAD'], cwd=TREE, check=True, capture_output=True, text=True)
            subprocess.run(['git', 'checkout', '--quiet', '--force', '--detach', commit.stdout.strip()], cwd=path,
                           check=True)
        else:
            subprocess.run(['git', 'worktree', 'add', '--quiet', '--detach', path, 'HEAD'], cwd=TREE, check=True)

    def builds(self, faults, switched=False):
        """Builds a family with these faults; the sources stay changed until restore()."""
        family, stems = faults[0].family, faults[0].stems
        folder = self.path / f'build-{family}'
        if folder not in self.ready:
            subprocess.run(['cmake', '-G', 'Ninja', '-S', '.', '-B', folder, '-DCMAKE_BUILD_TYPE=Release',
                            '-DZELM_TESTS=ON', '-DZELM_BENCH=OFF', '-DZELM_EXAMPLES=OFF', '-DZELM_WERROR=ON',
                            '-DZELM_WIDTHS=', f'-DZELM_ONLY={stems}'], cwd=self.path, check=True,
                           stdout=subprocess.DEVNULL)
            self.ready.add(folder)
        for name in sorted({fault.file for fault in faults}):
            file = self.path / 'zelm' / 'src' / name
            text, lost = applied(file.read_text(), [fault for fault in faults if fault.file == name], switched)
            if lost:
                sys.exit(f'not found, or within another fault: {lost[0]}')
            if switched:
                text = SWITCH + text if '#pragma once\n' not in text else text.replace(
                    '#pragma once\n', '#pragma once\n' + SWITCH, 1)
            file.write_text(text)
        built = subprocess.run(['ninja', '-C', folder, f'-j{self.jobs}', f'test_{family}'], stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT, text=True)
        if built.returncode != 0 and switched:
            print(*[line for line in built.stdout.splitlines() if 'error:' in line][:5], sep='\n', flush=True)
        return built.returncode == 0

    def restore(self):
        subprocess.run(['git', 'checkout', '--quiet', '--', 'zelm/src'], cwd=self.path, check=True)

    def fails(self, fault, suites=None):
        """Whether a test fails, the quickest suites first; one that does not end does not pass."""
        program = self.path / f'build-{fault.family}' / 'tests' / f'test_{fault.family}'
        if suites and subprocess.run([program, f'--gtest_filter={suites[0]}', '--gtest_list_tests'],
                                     capture_output=True).returncode:
            return False  # there is no such test
        quick = 'Arguments.*:Thresholds.*:Far.*'
        for suite in suites or (quick, f'-{quick}:Threads.*', 'Threads.*'):
            try:
                if subprocess.run([program, f'--gtest_filter={suite}', '--gtest_fail_fast', '--gtest_brief=1'],
                                  env={**os.environ, 'OMP_WAIT_POLICY': 'passive', 'ZELM_FAULT': str(fault.number)},
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=3000,
                                  preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CPU, (300, 300))).returncode:
                    return True
            except subprocess.TimeoutExpired:
                return True
        return False


def attempt(copy, faults, report):
    """All faults of a family; report(fault, result) takes each result."""
    switched = [fault for fault in faults if fault.switched]
    alone = [fault for fault in faults if not fault.switched and not fault.member]
    if switched and copy.builds(switched, True):
        none = Fault(0, faults[0].family, '', '', 'none a :: b => c')
        if copy.fails(none):
            report(none, 'the tests fail without any')
        for fault in switched:
            report(fault, 'caught' if copy.fails(fault) else 'survived')
    elif switched:
        for fault in switched:
            report(fault, 'not built')
    copy.restore()

    rows = [fault for fault in faults if not fault.switched and fault.member]
    while rows:
        together = list({fault.member: fault for fault in reversed(rows)}.values())
        rows = [fault for fault in rows if fault not in together]
        if not copy.builds(together):
            alone += together
        else:
            for fault in together:
                if copy.fails(fault, [f'*.{fault.member}']):
                    report(fault, 'caught')
                else:
                    alone.append(fault)
        copy.restore()

    for fault in alone:
        built = copy.builds([fault])
        report(fault, 'not built' if not built else 'caught' if copy.fails(fault) else 'survived')
        copy.restore()


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument('--copy', type=pathlib.Path, default=TREE / 'build-faults')
    arguments.add_argument('--jobs', default='1')
    arguments.add_argument('--results', type=pathlib.Path)
    arguments.add_argument('--list', type=pathlib.Path, default=HERE / 'faults.txt')
    arguments.add_argument('--check', action='store_true', help='only look whether every fault finds its place')
    arguments.add_argument('words', nargs='*')
    given = arguments.parse_args()

    faults = [f for f in read(given.list) if not given.words or {f.family, f.file, f.kind} & set(given.words)]
    if given.check:
        lost = []
        for family, file in dict.fromkeys((f.family, f.file) for f in faults):
            own = [f for f in faults if (f.family, f.file) == (family, file)]
            text = (TREE / 'zelm/src' / file).read_text()
            lost += applied(text, [f for f in own if f.switched], True)[1]
            lost += [f for f in own if not f.switched and f.applied(text) is None]
        print(f'{len(faults)} faults', *[f'not found: {f}' for f in lost], sep='\n')
        return bool(lost)

    known = {}
    if given.results and given.results.exists():
        known = dict(line.split('\t')[1::-1] for line in given.results.read_text().splitlines())
    results = {fault: known[str(fault)] for fault in faults if str(fault) in known}

    def report(fault, result):
        results[fault] = result
        print(f'{result}: {fault}', flush=True)
        if given.results and fault.number and result != 'not built':
            with given.results.open('a') as out:
                out.write(f'{result}\t{fault}\n')

    copy = Copy(given.copy.resolve(), given.jobs)
    order = [word for word in given.words if any(fault.family == word for fault in faults)]
    for family in dict.fromkeys(order + [fault.family for fault in faults]):
        due = [fault for fault in faults if fault.family == family and fault not in results]
        if due:
            attempt(copy, due, report)

    visible = [f for f, result in results.items() if not f.unseen and result in ('caught', 'survived')]
    caught = sum(results[f] == 'caught' for f in visible)
    marked = sum(bool(f.unseen) for f in results)
    print(f'{caught} of {len(visible)} faults that a caller can see were caught; {marked} are marked as unseen')
    wrong = [f for f, result in results.items() if result != ('survived' if f.unseen else 'caught')]
    print(*[f'{results[f]}: {f}' for f in wrong], sep='\n')
    return bool(wrong)


if __name__ == '__main__':
    sys.exit(main())
