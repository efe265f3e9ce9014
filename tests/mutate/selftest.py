"""Proves the tool on a small example: which mutants it finds, that each one awake does what it says, and no other."""

import os
import pathlib
import subprocess
import tempfile

import finder

HERE = pathlib.Path(__file__).resolve().parent

EXAMPLE = """\
constexpr int Steps[] = {2, 3};
int calls = 0;
bool Inside(int x, bool open) {
    return x > 1 && (open || x <= 5);
}
int Sum(int n) {
    int sum = -1;
    for (int i = 0; i < n; ++i) {
        sum += i * Steps[1];
    }
    if (Inside(n, false)) {
        ++calls;
    }
    return sum;
}
const char* Name(bool yes) {
    return !yes ? "no" : "yes";
}
"""

# What the program below says while everything sleeps: Inside(1..6) closed, Inside(9) open, Sum(3), calls, Name twice.
PROBE = """
#include <cstdio>
int main() {
    for (int x = 1; x <= 6; ++x) { std::printf("%d", Inside(x, false)); }
    std::printf("%d ", Inside(9, true));
    std::printf("%d ", Sum(3));
    std::printf("%d %s%s", calls, Name(true), Name(false));
}
"""
ASLEEP = "0111101 8 1 yesno"

# Line, what the mutant does, what the program says then; worked out by hand.
EXPECTED = [
    (1, "2 + 1", ASLEEP), (1, "2 - 1", ASLEEP), (1, "3 + 1", "0111101 11 1 yesno"), (1, "3 - 1", "0111101 5 1 yesno"),
    (2, "0 + 1", "0111101 8 2 yesno"), (2, "0 - 1", "0111101 8 0 yesno"),
    (4, "> -> >=", "1111101 8 1 yesno"), (4, "> -> <=", "1000000 8 0 yesno"),
    (4, "1 + 1", "0011101 8 1 yesno"), (4, "1 - 1", "1111101 8 1 yesno"),
    (4, "&& -> ||", "1111111 8 1 yesno"), (4, "|| -> &&", "0000000 8 0 yesno"),
    (4, "<= -> <", "0111001 8 1 yesno"), (4, "<= -> >", "0000011 8 0 yesno"),
    (4, "5 + 1", "0111111 8 1 yesno"), (4, "5 - 1", "0111001 8 1 yesno"),
    (7, "- left out", "0111101 10 1 yesno"), (7, "1 + 1", "0111101 7 1 yesno"), (7, "1 - 1", "0111101 9 1 yesno"),
    (8, "< -> <=", "0111101 17 1 yesno"), (8, "< -> >=", "0111101 -1 1 yesno"),
    (8, "0 + 1", "0111101 8 1 yesno"), (8, "0 - 1", "0111101 5 1 yesno"), (8, "++i -> --i", None),
    (9, "left out: sum += i * Steps[1]", "0111101 -1 1 yesno"), (9, "+= -> -=", "0111101 -10 1 yesno"),
    (9, "* -> /", "0111101 -1 1 yesno"), (9, "1 + 1", None), (9, "1 - 1", "0111101 5 1 yesno"),
    (11, "false flipped", "0111101 8 1 yesno"), (11, "condition turned around", "0111101 8 0 yesno"),
    (12, "left out: ++calls", "0111101 8 0 yesno"), (12, "++calls -> --calls", "0111101 8 -1 yesno"),
    (14, "returns {}", "0111101 0 1 yesno"),
    (17, "returns {}", None), (17, "! left out", "0111101 8 1 noyes"),
    (17, '"no" -> ""', "0111101 8 1 yes"), (17, '"yes" -> ""', "0111101 8 1 no"),
]


def main():
    with tempfile.TemporaryDirectory(prefix="brindlex-selftest-") as folder:
        source, program = pathlib.Path(folder, "example.cpp"), pathlib.Path(folder, "example")
        source.write_text(EXAMPLE, encoding="ascii")
        found = finder.Finder(source, ["-x", "c++", "-std=c++20"])
        changes = sorted(found.changes.values(), key=lambda change: (change.line, change.start))
        number, mutants = 1, {}
        for change in changes:
            change.first = number
            for name in change.names:
                mutants[change.line, name] = number
                number += 1
        source.write_text(finder.written(found, changes, found.unfixed) + PROBE, encoding="ascii")
        subprocess.run(["g++", "-std=c++20", "-w", f"-I{HERE}", source, HERE / "mutant.cpp", "-o", program], check=True)

        def said(awake):
            done = subprocess.run(["timeout", "2", program], stdout=subprocess.PIPE, check=False, text=True,
                                  env=dict(os.environ, BRINDLEX_MUTANT=str(awake)))
            return done.stdout

        faults = [f"asleep: {said(0)}"] if said(0) != ASLEEP else []
        faults += [f"not found: {line} {name}" for line, name, _ in EXPECTED if (line, name) not in mutants]
        faults += [f"not expected: {key}" for key in mutants if key not in {row[:2] for row in EXPECTED}]
        for line, name, words in EXPECTED:
            if words is not None and (line, name) in mutants and said(mutants[line, name]) != words:
                faults.append(f"{line} {name}: {said(mutants[line, name])} instead of {words}")
    print("\n".join(faults) if faults else f"{len(EXPECTED)} mutants as expected")
    return 1 if faults else 0
