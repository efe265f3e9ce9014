"""The copy of the project in which every mutant stands: writes it, builds it, and leaves out what does not compile."""

import collections
import dataclasses
import hashlib
import os
import pathlib
import pickle
import re
import subprocess

import finder

ERROR = re.compile(r"^(\S+?):(\d+):(\d+): (?:fatal )?error: (.*)$", re.M)
NAMED = re.compile(r"[‘']([^’']+)[’']")
NOT_CONSTANT = re.compile(r"the value of [‘']([^’']+)[’'] is not usable in a constant expression")
FLAGS = "-O1 -w -fpermissive -D_GLIBCXX_ASSERTIONS"
ATTEMPTS = 15
ROUND = 100


@dataclasses.dataclass
class Mutant:
    """One small wrong change."""
    number: int
    file: str
    line: int
    name: str
    text: str        # of the line
    nth: int = 1     # among those of this name in lines of this text in the file

    @property
    def key(self):
        """What the mutant is, whatever stands above it in the file."""
        return f"{self.file} | {self.text} | {self.name}" + (f" #{self.nth}" if self.nth > 1 else "")


def copy_if_other(source, target):
    """Keeps the target's time where nothing changed, so that it is not built again."""
    content = source.read_bytes()
    if not target.exists() or target.read_bytes() != content:
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content)


class Breed:
    """All mutants of some files."""

    def __init__(self, root, scratch, files):
        self.root, self.scratch, self.files = root, scratch, files
        self.finders, self.changes, self.unfixed, self.dropped = {}, {}, {}, {}
        for name in files:
            self.find(name)
        self.count()

    def kept(self, name):
        """Where it is kept what was found in a file and compiles."""
        digest = hashlib.sha256()
        for path in (self.root / name, pathlib.Path(finder.__file__), pathlib.Path(__file__)):
            digest.update(path.read_bytes())
        return self.scratch / "found" / f"{name.replace('/', '_')}.{digest.hexdigest()[:16]}"

    def find(self, name):
        kept = self.kept(name)
        if kept.exists():
            found, self.changes[name], self.unfixed[name], self.dropped[name] = pickle.loads(kept.read_bytes())
        else:
            found = finder.Finder(self.root / name, ["-x", "c++", "-std=c++20", f"-I{self.root}/src"])
            self.changes[name] = sorted(found.changes.values(), key=lambda change: (change.line, change.start))
            self.unfixed[name] = list(found.unfixed)
            self.dropped[name] = 0
        self.finders[name] = found

    def keep(self):
        for name in self.files:
            kept = self.kept(name)
            kept.parent.mkdir(parents=True, exist_ok=True)
            kept.write_bytes(pickle.dumps((self.finders[name], self.changes[name], self.unfixed[name],
                                           self.dropped[name])))

    def count(self):
        """Gives the mutants their numbers; each file begins at a round one, so that a change in one moves few others."""
        number = 0
        for name in self.files:
            number += ROUND - number % ROUND
            for change in self.changes[name]:
                change.first = number
                number += len(change.names)
        if number > 65536:
            raise SystemExit("More mutants than mutant.h has room for: give fewer files.")

    def mutants(self):
        seen = collections.Counter()
        for name in self.files:
            lines = self.finders[name].text.splitlines()
            for change in (c for c in self.changes[name] if not c.left_out):
                for i, what in enumerate(change.names):
                    mutant = Mutant(change.first + i, name, change.line, what, lines[change.line - 1].strip())
                    seen[mutant.key] += 1
                    mutant.nth = seen[mutant.key]
                    yield mutant

    def copy(self):
        """The project as it is, but for the mutated files."""
        wanted = set()
        for top in ("CMakeLists.txt", "CMakePresets.json", "src", "tests"):
            start = self.root / top
            for path in [start] if start.is_file() else sorted(p for p in start.rglob("*") if p.is_file()):
                name = str(path.relative_to(self.root))
                wanted.add(name)
                if name not in self.files:
                    copy_if_other(path, self.scratch / name)
        for name in ("mutant.h", "mutant.cpp"):
            wanted.add(f"src/frame/{name}")
            copy_if_other(pathlib.Path(__file__).parent / name, self.scratch / "src/frame" / name)
        for top in ("src", "tests"):
            for path in list((self.scratch / top).rglob("*")):
                if path.is_file() and str(path.relative_to(self.scratch)) not in wanted:
                    path.unlink()

        # The unit tests are built faster than they run, and there are more of them to build.
        listed = self.scratch / "tests/CMakeLists.txt"
        text = listed.read_text(encoding="utf-8")
        if "-O1" in text:
            listed.write_text(text.replace("PRIVATE -O1", "PRIVATE -O0"), encoding="utf-8")

    def write(self, name):
        text = finder.written(self.finders[name], self.changes[name], self.unfixed[name])
        target = self.scratch / name
        target.parent.mkdir(parents=True, exist_ok=True)
        if not target.exists() or target.read_text(encoding="utf-8") != text:
            target.write_text(text, encoding="utf-8")

    def build(self, jobs):
        self.copy()
        for name in self.files:
            self.write(name)
        build = self.scratch / "build"
        self.run(["cmake", "-S", self.scratch, "-B", build, "-G", "Ninja", "-DBRINDLEX_DESKTOP=OFF",
                  "-DBRINDLEX_TESTS=ON", "-DCMAKE_BUILD_TYPE=Mutants",
                  f"-DCMAKE_CXX_FLAGS={FLAGS} -I{self.scratch}/src/frame"])
        for _ in range(ATTEMPTS):
            done = subprocess.run(["ninja", "-C", build, "-k", "0", "-j", str(jobs), "unit-tests", "brindlex-drive"],
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False, text=True,
                                  env=dict(os.environ, LC_ALL="C"))
            if done.returncode == 0:
                self.keep()
                return
            if not self.mend(done.stdout):
                raise SystemExit(done.stdout[-6000:])
        raise SystemExit("The mutated sources do not compile.")

    @staticmethod
    def run(command):
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False, text=True)
        if done.returncode != 0:
            raise SystemExit(done.stdout)

    def mend(self, log):
        """Leaves out the mutants at which the compiler stopped. Returns whether any was."""
        faulty = {}
        for path, line, _, message in ERROR.findall(log):
            full = os.path.normpath(os.path.join(self.scratch / "build", path))
            name = os.path.relpath(full, self.scratch)
            if name in self.finders:
                faulty.setdefault(name, []).append((int(line), message))
        mended = False
        for name, errors in faulty.items():
            names = set()
            for _, message in errors:
                found = NOT_CONSTANT.findall(message) or NAMED.findall(message)
                names.update(word.split("::")[-1].split(" ")[-1] for word in found)
            lines = {line for line, _ in errors}
            mended |= (self.fix_again(name, lambda v, names=names: v[4] in names) or
                       self.leave_out(name, lambda c, lines=lines: c.line in lines) or
                       self.leave_out(name, lambda c, lines=lines: any(
                           c.statement[0] <= line <= c.statement[1] for line in lines)) or
                       self.fix_again(name, lambda v, lines=lines: any(v[2] <= line <= v[3] for line in lines)))
            self.write(name)
        return mended

    def leave_out(self, name, test):
        """Those that give an empty result first, as they fail most often."""
        out = [c for c in self.changes[name] if not c.left_out and test(c)]
        results = [c for c in out if c.prefix.startswith("if ({is}({0})) return {}")]
        for change in results or out:
            change.left_out = True
            self.dropped[name] += len(change.names)
        return bool(out)

    def fix_again(self, name, test):
        """A constexpr variable that has to be one is put back, without mutants."""
        back = [v for v in self.unfixed[name] if test(v)]
        self.unfixed[name] = [v for v in self.unfixed[name] if v not in back]
        for variable in back:
            while self.leave_out(name, lambda c, v=variable: v[2] <= c.line <= v[3]):
                pass
        return bool(back)
