"""What the tests of brindlex-cli share: the program itself, and the desktop program driven beside it."""

import csv
import io
import json
import pathlib
import re
import subprocess

SECONDS = 300
SCRIPTS = pathlib.Path(__file__).resolve().parent.parent / "scripts"
CORPUS = pathlib.Path(__file__).resolve().parent.parent / "fuzz" / "corpus"


class Desktop:
    """The whole desktop program without a screen, told what to do line by line."""

    def __init__(self, drive, folder):
        self.process = subprocess.Popen([drive, "--dir", str(folder)], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        encoding="utf-8")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        self.process.wait(SECONDS)
        self.process.stdout.close()

    def do(self, command, *values):
        """The answer's value, None for a bare ok. Values are written as JSON behind the command."""
        line = " ".join([command, *(json.dumps(value) for value in values)])
        self.process.stdin.write(line + "\n")
        self.process.stdin.flush()
        answer = self.process.stdout.readline().rstrip("\n")
        if not answer.startswith("ok"):
            raise AssertionError(f"the driver says to {line}: {answer}")
        return json.loads(answer[3:]) if len(answer) > 3 else None

    def set(self, control, text):
        self.do(f"set {control}.Text", text)

    def show(self, what):
        return self.do("show " + what)

    def texts(self, form, boxes):
        """The texts of boxes, as the bare program writes them: no blank in front, UTF-8, no degree sign at the end."""
        return [shown(self.show(f"{form}.{box}.Text")) for box in boxes]


def shown(text):
    """A text of the desktop's boxes as brindlex-cli tells it."""
    text = text.strip(" ")
    return text[:-1] if text.endswith("\u00b0") else text


class Bench:
    """A fresh folder and the two programs."""

    def __init__(self, folder, cli, drive):
        self.folder = pathlib.Path(folder)
        self.program = cli
        self.drive = drive

    def desktop(self):
        return Desktop(self.drive, self.folder)

    def run(self, *words, given=b"", **options):
        """The ended process: returncode, stdout and stderr as bytes."""
        return subprocess.run([self.program, *map(str, words)], input=given, capture_output=True, cwd=self.folder,
                              timeout=SECONDS, check=False, **options)

    def ok(self, *words, given=b""):
        """The standard output of a run that must end well and be silent on the standard error."""
        done = self.run(*words, given=given)
        assert (done.returncode, done.stderr) == (0, b""), (words, done)
        return done.stdout.decode("utf-8")

    def json(self, *words, given=b""):
        return json.loads(self.ok(*words, "--json", given=given))

    def rows(self, *words, given=b""):
        """The rows of CSV as dictionaries."""
        return list(csv.DictReader(io.StringIO(self.ok(*words, "--csv", given=given))))

    def refuses(self, code, message, *words, given=b""):
        """Ends with that code, prints nothing, and says one line that holds the message."""
        done = self.run(*words, given=given)
        assert done.returncode == code, (words, done)
        assert done.stdout == b"", (words, done)
        lines = done.stderr.decode("utf-8", "replace").split("\n")[:-1]
        assert len(lines) == 1 and lines[0].startswith("brindlex-cli") and message in lines[0], (words, message, lines)


def same(first, second, about):
    assert first == second, f"{about}: {first} is not {second}"


WRITE = re.compile(r'^write ("(?:[^"\\]|\\.)*") ("(?:[^"\\]|\\.)*")\s*$')


def written_by_scripts(ending):
    """{name: bytes} of every file with that ending that a session of the desktop program writes, bad ones among them."""
    files = {}
    for script in sorted(SCRIPTS.rglob("*.script")):
        for line in script.read_text(encoding="utf-8").splitlines():
            match = WRITE.match(line)
            if match and json.loads(match[1]).endswith(ending):
                name = f"{len(files):03}-{script.stem}{ending}"
                files[name] = json.loads(match[2]).encode("latin-1")
    return files


def seeds(name, ending):
    """{name: bytes} of a fuzzer's seeds as they are."""
    return {f"seed-{path.name}{ending}": path.read_bytes() for path in sorted((CORPUS / name).iterdir())}


def corpus(name, ending):
    """{name: bytes} of the documents in a fuzzer's seeds; the first line there is what is done to the form."""
    return {file: content.partition(b"\n")[2] for file, content in seeds(name, ending).items()}
