"""Sets the tests on the mutants: for each one the tests that come by it, the most likely killers first."""

import collections
import json
import os
import pathlib
import re
import resource
import subprocess
import sys
import tempfile
import threading
from concurrent import futures

TESTS = pathlib.Path(__file__).resolve().parent.parent
sys.path.append(str(TESTS))
import run_scripts  # pylint: disable=wrong-import-position

FAILED = re.compile(rb"\[  FAILED  \] ([\w/]+\.[\w/]+)")
MEGABYTE = 1 << 20
NOBODY = 65534        # who runs them where the tool itself is run by root
SECONDS_MORE = 2      # of a processor, beyond three times what the tests take with all mutants asleep
WALL_SECONDS = 300
FIRST = 25            # unit tests in the first run for a mutant
CHUNK = 100           # and in each one after it


def limits(seconds):
    """A mutant may turn in circles, fill the memory or fill the disk; and what writes files may write any file."""
    def apply():
        if os.geteuid() == 0:
            os.setgroups([])
            os.setgid(NOBODY)
            os.setuid(NOBODY)
        resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 1))
        resource.setrlimit(resource.RLIMIT_AS, (2048 * MEGABYTE, 2048 * MEGABYTE))
        resource.setrlimit(resource.RLIMIT_FSIZE, (64 * MEGABYTE, 64 * MEGABYTE))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    return apply


class Pack:
    """The tests, and what each of them comes by."""

    def __init__(self, scratch, jobs):
        self.scratch, self.jobs = scratch, jobs
        self.unit = scratch / "build/bin/unit-tests"
        self.drive = scratch / "build/bin/brindlex-drive"
        self.scripts = {f"script {path.relative_to(scratch)}": path
                        for path in sorted((scratch / "tests/scripts").rglob("*.script"))
                        if run_scripts.head_of(path).get("runtime", "headless") == "headless"}
        self.reach, self.seconds = {}, {}
        self.early = {"unit": set(), "script": set()}

    def run(self, command, variables, cpu_seconds):
        """(ended well, what it said, seconds of a processor) in a fresh folder."""
        with tempfile.TemporaryDirectory(prefix="brindlex-mutant-", dir="/dev/shm") as folder:
            home, working = pathlib.Path(folder, "home"), pathlib.Path(folder, "work")
            home.mkdir(mode=0o700)
            working.mkdir()
            if os.geteuid() == 0:
                for path in (folder, home, working):
                    os.chown(path, NOBODY, NOBODY)
            environment = run_scripts.environment_of(home, "headless")
            environment.update(variables, TMPDIR=str(home))
            command = [part.replace("WORKING", str(working)) for part in command]
            command = ["timeout", "-s", "KILL", str(WALL_SECONDS), *command]
            with open(folder + "/said", "w+b") as said:
                process = subprocess.Popen(command, cwd=working, env=environment, stdin=subprocess.DEVNULL,
                                           stdout=said, stderr=said, preexec_fn=limits(int(cpu_seconds) + 1))
                _, status, usage = os.wait4(process.pid, 0)
                process.returncode = os.waitstatus_to_exitcode(status)
                said.seek(0)
                return process.returncode == 0, said.read(), usage.ru_utime + usage.ru_stime

    def command(self, test):
        if test.startswith("script "):
            path = self.scripts[test]
            screen = run_scripts.head_of(path).get("screen")
            return [str(self.drive), "--dir", "WORKING", *(["--screen", screen] if screen else []), str(path)]
        return [str(self.unit), "--gtest_brief=1", "--gtest_color=no", f"--gtest_filter={test}"]

    def unit_tests(self):
        text = subprocess.run([self.unit, "--gtest_list_tests"], stdout=subprocess.PIPE, check=True, text=True).stdout
        suite, names = "", []
        for line in text.splitlines():
            word = line.split("#")[0].rstrip()
            if not line.startswith(" "):
                suite = word
            else:
                names.append(suite + word.strip())
        return names

    def noted(self, command, cpu_seconds=60):
        """(ended well, the numbers it came by, seconds)"""
        with tempfile.NamedTemporaryFile(dir="/dev/shm") as file:
            os.chmod(file.name, 0o666)
            good, _, took = self.run(command, {"BRINDLEX_REACH": file.name}, cpu_seconds)
            numbers = {i for i, byte in enumerate(pathlib.Path(file.name).read_bytes()) if byte}
        return good, numbers, took

    def record(self):
        """Runs every test once with all mutants asleep. Returns the tests that fail."""
        self.early["unit"] = self.noted([str(self.unit), "--gtest_list_tests"])[1]
        empty = self.scratch / "empty.script"
        empty.write_text("", encoding="ascii")
        self.early["script"] = self.noted([str(self.drive), "--dir", "WORKING", str(empty)])[1]
        failed = []

        def one(test):
            good, numbers, took = self.noted(self.command(test))
            if not good:
                failed.append(test)
                return
            self.reach[test] = numbers - self.early["script" if test.startswith("script ") else "unit"]
            self.seconds[test] = took

        with futures.ThreadPoolExecutor(self.jobs) as pool:
            list(pool.map(one, self.unit_tests() + list(self.scripts)))
        return failed

    def signature(self):
        return [[str(path), path.stat().st_mtime_ns] for path in (self.unit, self.drive)] + sorted(self.scripts)

    def load_or_record(self):
        """What was recorded holds until a program or the list of scripts changes."""
        kept = self.scratch / "reach.json"
        if kept.exists():
            data = json.loads(kept.read_text(encoding="utf-8"))
            if data["signature"] == self.signature():
                self.reach = {test: set(numbers) for test, numbers in data["reach"].items()}
                self.early = {kind: set(numbers) for kind, numbers in data["early"].items()}
                self.seconds = data["seconds"]
                return []
        failed = self.record()
        kept.write_text(json.dumps({"signature": self.signature(), "seconds": self.seconds,
                                    "reach": {test: sorted(numbers) for test, numbers in self.reach.items()},
                                    "early": {kind: sorted(numbers) for kind, numbers in self.early.items()}}),
                        encoding="utf-8")
        return failed


class Hunt:
    """What became of each mutant."""

    def __init__(self, pack, mutants, most_scripts=None):
        self.pack, self.most_scripts = pack, most_scripts
        self.mutants = mutants
        self.of_file = collections.defaultdict(set)
        for mutant in mutants:
            self.of_file[mutant.file].add(mutant.number)
        self.by_number = collections.defaultdict(list)
        for test, numbers in pack.reach.items():
            for number in numbers:
                self.by_number[number].append(test)
        self.by_file = {name: [test for test, reached in pack.reach.items() if reached & numbers]
                        for name, numbers in self.of_file.items()}
        self.killers = collections.defaultdict(collections.deque)   # of a file, the last ones first
        self.lock = threading.Lock()

    def tests_for(self, mutant):
        """Those that come by it, the most particular first; by its file where it is a value set up before main."""
        tests = set(self.by_number[mutant.number])
        for kind, early in self.pack.early.items():
            if mutant.number in early:
                tests.update(t for t in self.by_file[mutant.file] if t.startswith("script ") == (kind == "script"))
        return sorted(tests, key=lambda test: (test.startswith("script "), len(self.pack.reach[test]), test))

    def kill(self, mutant, first=None):
        """The test that notices it; "" where none does, None where none comes by it."""
        tests = self.tests_for(mutant)
        if not tests:
            return None
        with self.lock:
            likely = [test for test in ([first] if first else []) + list(self.killers[mutant.file]) if test in tests]
        units = [test for test in tests if not test.startswith("script ")]
        scripts = [test for test in tests if test.startswith("script ")][:self.most_scripts]
        likely_units = [test for test in dict.fromkeys(likely) if test in set(units)]
        head = list(dict.fromkeys(likely_units[:10] + units[:FIRST]))
        rest = sorted((test for test in units if test not in set(head)), key=self.pack.seconds.get)
        for chunk in [head] + [rest[i:i + CHUNK] for i in range(0, len(rest), CHUNK)]:
            killer = self.run_units(mutant, chunk)
            if killer:
                return self.remember(mutant, killer)
        for test in dict.fromkeys([test for test in likely if test in set(scripts)] + scripts):
            good, *_ = self.pack.run(self.pack.command(test), {"BRINDLEX_MUTANT": str(mutant.number)},
                                     SECONDS_MORE + 3 * self.pack.seconds[test])
            if not good:
                return self.remember(mutant, test)
        return ""

    def run_units(self, mutant, tests):
        if not tests:
            return None
        command = self.pack.command(":".join(tests)) + ["--gtest_fail_fast"]
        seconds = SECONDS_MORE + 3 * sum(self.pack.seconds[test] for test in tests)
        good, said, _ = self.pack.run(command, {"BRINDLEX_MUTANT": str(mutant.number)}, seconds)
        if good:
            return None
        named = FAILED.search(said)
        return named.group(1).decode() if named else "crash or endless loop in the unit tests"

    def remember(self, mutant, killer):
        with self.lock:
            last = self.killers[mutant.file]
            if killer in last:
                last.remove(killer)
            last.appendleft(killer)
            if len(last) > 30:
                last.pop()
        return killer
