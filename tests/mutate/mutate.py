#!/usr/bin/env python3
"""Mutation testing: what the tests would notice.

    python3 tests/mutate/mutate.py [FILE...]      all the files that decide (decides.py), or these
        --again       only the mutants that no test noticed last time (after tests were added)
        --line N      only the mutants of this line, telling of each
        --jobs N      at most so many processes at a time (2)
        --scratch DIR where the mutated copy of the project stands (/dev/shm/brindlex-mutants)
        --self-test   proves the tool itself on a small example

All mutants of all files stand in one program (mutant.h), and an environment variable wakes one. So one build serves
thousands of mutants. finder.py finds them by the syntax tree (python3-clang-14), breed.py writes and builds the copy,
hunt.py runs the tests: for each mutant only those that come by it, until the first fails. explained.txt has the mutants
that no test can notice, each with its reason. Ends with 1 where a mutant lives that is not explained and fewer than 95 of a
hundred are killed.
"""

import argparse
import json
import os
import pathlib
import sys
import time
from concurrent import futures

from decides import FILES

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
GOAL = 95


def explanations():
    """{key of a mutant: why no test can notice it}"""
    found = {}
    path = HERE / "explained.txt"
    for line in path.read_text(encoding="utf-8").splitlines() if path.exists() else []:
        if line.strip() and not line.startswith("#"):
            key, _, why = line.rpartition(" :: ")
            found[key.strip()] = why.strip()
    return found


class Results:
    """What became of each mutant, kept between the runs."""

    def __init__(self, path):
        self.path = path
        self.killer = json.loads(path.read_text(encoding="utf-8")) if path.exists() else {}
        self.saved = time.monotonic()

    def put(self, key, killer):
        self.killer[key] = killer
        if time.monotonic() - self.saved > 20:
            self.save()

    def save(self):
        self.saved = time.monotonic()
        fresh = self.path.with_suffix(".new")
        fresh.write_text(json.dumps(dict(self.killer), indent=0), encoding="utf-8")
        fresh.replace(self.path)


def table(mutants, results, explained, dropped):
    """The figures of each file and their sum."""
    rows = {}
    for mutant in mutants:
        row = rows.setdefault(mutant.file, [0, 0, 0, 0])
        killer = results.killer.get(mutant.key)
        row[0] += 1
        row[1] += bool(killer)
        row[2] += not killer and mutant.key in explained
        row[3] += not killer and mutant.key not in explained
    rows["together"] = [sum(row[i] for row in rows.values()) for i in range(4)]
    print("| file | mutants | killed | of a hundred | explained | alive |")
    print("|---|---|---|---|---|---|")
    for name, (all_, killed, told, alive) in rows.items():
        print(f"| {name} | {all_} | {killed} | {100 * killed / max(all_, 1):.1f} | {told} | {alive} |")
    print(f"{sum(dropped.values())} changes more did not compile.")
    return rows["together"]


def tell_survivors(mutants, results, explained):
    for mutant in mutants:
        killer = results.killer.get(mutant.key)
        if not killer and mutant.key not in explained:
            reached = "no test comes by" if killer is None else "alive"
            print(f"{mutant.file}:{mutant.line}: {mutant.name}    [{reached}]    {mutant.key}")


def main():
    parser = argparse.ArgumentParser(description="Mutation testing.")
    parser.add_argument("files", nargs="*")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--line", type=int)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--scratch", default="/dev/shm/brindlex-mutants")
    parser.add_argument("--report", action="store_true", help="only tell what the last run found")
    parser.add_argument("--self-test", action="store_true")
    options = parser.parse_args()
    if options.self_test:
        import selftest  # pylint: disable=import-outside-toplevel
        sys.exit(selftest.main())

    import breed  # pylint: disable=import-outside-toplevel
    import hunt  # pylint: disable=import-outside-toplevel
    scratch = pathlib.Path(options.scratch)
    scratch.mkdir(parents=True, exist_ok=True)
    # In one order always, so that a choice of files builds nothing anew.
    stock = breed.Breed(ROOT, scratch, [*FILES, *(name for name in options.files if name not in FILES)])
    results, explained = Results(scratch / "results.json"), explanations()
    if not options.report:
        stock.build(options.jobs)
    mutants = list(stock.mutants())
    chosen = [m for m in mutants if (not options.files or m.file in options.files)]
    if not options.report:
        hunt_all(hunt, stock, scratch, options, mutants, chosen, results, explained)
    _, killed, told, alive = table(chosen, results, explained, stock.dropped)
    tell_survivors(chosen, results, explained)
    sys.exit(1 if alive and 100 * killed < GOAL * (killed + told + alive) else 0)


def hunt_all(hunt, stock, scratch, options, mutants, chosen, results, explained):
    pack = hunt.Pack(scratch, options.jobs)
    for test in pack.load_or_record():
        print(f"fails with all mutants asleep, so it is left out: {test}")
    hunter = hunt.Hunt(pack, mutants)
    todo = [m for m in chosen if (options.line is None or m.line == options.line) and
            not (options.again and (results.killer.get(m.key) or m.key in explained))]
    print(f"{len(todo)} mutants, {len(pack.reach)} tests", flush=True)
    done = 0

    def one(mutant):
        nonlocal done
        first = results.killer.get(mutant.key) or None
        killer = hunter.kill(mutant, first)
        results.put(mutant.key, killer)
        done += 1
        if options.line is not None:
            print(f"{mutant.key}    {killer!r}", flush=True)
        elif done % 200 == 0:
            print(f"{done} of {len(todo)}, {time.strftime('%H:%M:%S')}", flush=True)

    with futures.ThreadPoolExecutor(options.jobs) as pool:
        list(pool.map(one, todo))
    results.save()


if __name__ == "__main__":
    os.nice(19)
    main()
