#!/usr/bin/env python3
"""Proves what an installation holds: installs a build into a folder and a Debian package, and asks those who will read
it. Starts the installed program under Xvfb, in the home of a user who has none of its files yet.

    test_install.py build/release

Wants Xvfb, xdotool, desktop-file-validate, appstreamcli, update-mime-database, mandoc and lintian.
"""

import argparse
import gzip
import os
import pathlib
import re
import shutil
import signal
import stat
import struct
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "tests"))

import harness  # noqa: E402

SIZES = (16, 22, 24, 32, 48, 64, 128, 256)
DOCUMENTS = {"rgt": "right-triangle", "obl": "oblique-triangle", "bcf": "bolt-circle", "sin": "sine-plate",
             "pgf": "polygon", "geo": "drawing"}
PATIENCE = 30  # seconds until something that never comes has failed


def run(*command, **options):
    done = subprocess.run([str(part) for part in command], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, **options)
    assert done.returncode == 0, f"{command[0]} ended with {done.returncode}:\n{done.stdout}"
    return done.stdout


def soon(question):
    """The first true answer; fails after PATIENCE."""
    end = time.monotonic() + PATIENCE
    while not (answer := question()):
        assert time.monotonic() < end, "it never came"
        time.sleep(0.05)
    return answer


class Installation:
    """What was installed, as a folder like /usr."""

    def __init__(self, prefix, scratch):
        self.prefix = prefix
        self.scratch = scratch
        self.share = prefix / "share"

    def icons(self):
        """Every icon in its size, a scalable one besides, and a symbolic one for the program."""
        hicolor = self.share / "icons/hicolor"
        names = ["apps/brindlex"] + [f"mimetypes/application-x-brindlex-{kind}" for kind in DOCUMENTS.values()]
        wanted = {f"{size}x{size}/{name}.png" for size in SIZES for name in names}
        wanted |= {f"scalable/{name}.svg" for name in names} | {"symbolic/apps/brindlex-symbolic.svg"}
        there = {str(path.relative_to(hicolor)) for path in hicolor.rglob("*") if path.is_file()}
        assert there == wanted, f"missing {wanted - there}, too many {there - wanted}"
        for path in hicolor.rglob("*.png"):
            head = path.read_bytes()[:24]
            assert head[:8] == b"\x89PNG\r\n\x1a\n", path
            assert f"{struct.unpack('>II', head[16:])}" == str((int(path.parts[-3].split("x")[0]),) * 2), path

    def desktop_entry(self):
        """The entry in the desktop's menu is one that desktops accept, and its words are there."""
        path = self.share / "applications/brindlex.desktop"
        told = run("desktop-file-validate", path)
        assert not told.strip(), told
        entry = dict(line.split("=", 1) for line in path.read_text().splitlines() if "=" in line)
        assert (entry["Exec"], entry["Icon"], entry["Terminal"]) == ("brindlex", "brindlex", "false"), entry
        assert {"bolt circle", "sine bar", "machinist"} <= set(entry["Keywords"].split(";")), entry["Keywords"]

    def metainfo(self):
        """What software centres read, with the version that the program tells."""
        path = self.share / "metainfo/org.brindlex.brindlex.metainfo.xml"
        run("appstreamcli", "validate", "--no-net", path)
        assert re.findall(r'<release version="([^"]+)"', path.read_text())[0] == self.version()

    def version(self):
        return run(self.prefix / "bin/brindlex-cli", "--version").split()[-1]

    def changelog(self):
        """The changelog begins with this version."""
        log = gzip.decompress((self.share / "doc/brindlex/changelog.gz").read_bytes()).decode()
        assert log.startswith(f"brindlex ({self.version()}) "), log[:60]

    def document_types(self):
        """Each ending has its type, with an icon of its own, in the database of the system."""
        shutil.copytree(self.share / "mime", self.scratch / "mime")
        run("update-mime-database", self.scratch / "mime")
        globs = dict(line.split(":")[1:][::-1] for line in (self.scratch / "mime/globs2").read_text().splitlines()
                     if not line.startswith("#"))
        assert globs == {f"*.{ending}": f"application/x-brindlex-{kind}" for ending, kind in DOCUMENTS.items()}, globs
        for kind in DOCUMENTS.values():
            about = (self.scratch / f"mime/application/x-brindlex-{kind}.xml").read_text()
            assert f'<icon name="application-x-brindlex-{kind}"/>' in about, about
            assert "text/plain" in about, about

    def manuals(self):
        """Both programs have a manual that is well-formed."""
        for name in ("brindlex.1", "brindlex-cli.1"):
            page = self.scratch / name
            page.write_bytes(gzip.decompress((self.share / f"man/man1/{name}.gz").read_bytes()))
            assert f'"Brindlex {self.version()}"' in page.read_text().splitlines()[0]
            told = run("mandoc", "-T", "lint", "-W", "warning", page)
            assert not told.strip(), told
            assert "EXIT_STATUS" in run("mandoc", "-T", "html", page)

    def guide(self):
        """The guide is there with its pictures, and with every page that it leads to."""
        guide = self.share / "doc/brindlex/guide"
        assert (guide / "README.md").is_file() and (guide / "menu.png").is_file()
        missing = [f"{page.name}: {link}" for page in guide.parent.rglob("*.md")
                   for link in re.findall(r"\]\(([^)#:]+)", page.read_text(encoding="utf-8"))
                   if not (page.parent / link).is_file()]
        assert not missing, missing

    def arguments(self):
        """Arguments are refused with one line, before anything is made."""
        home = self.scratch / "nobody"
        done = subprocess.run([self.prefix / "bin/brindlex", "--help"], env={"HOME": str(home), "PATH": os.environ["PATH"]},
                              capture_output=True, text=True, check=False)
        assert done.returncode == 2 and done.stdout == "" and done.stderr.startswith("usage: brindlex"), done
        assert not home.exists()

    def start(self, home, **more):
        """The menu in the given home; its process."""
        environment = {name: os.environ[name] for name in ("PATH", "DISPLAY", "XAUTHORITY") if name in os.environ}
        environment |= {"HOME": str(home), "XDG_RUNTIME_DIR": str(home)} | more
        with open(self.scratch / "told", "w", encoding="utf-8") as told:
            process = subprocess.Popen([self.prefix / "bin/brindlex"], env=environment, stdin=subprocess.DEVNULL,
                                       stdout=told, stderr=told, cwd=self.scratch)
        try:
            soon(lambda: process.poll() is not None or self.window(process))
            assert process.poll() is None, (self.scratch / "told").read_text()
        except AssertionError:
            process.kill()
            raise
        return process

    @staticmethod
    def window(process):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(process.pid)], capture_output=True,
                               text=True, check=False)
        return found.stdout.split()

    def end(self, process):
        """The process ends in order; its folder, as it stood while the program ran."""
        folder = os.readlink(f"/proc/{process.pid}/cwd")
        process.send_signal(signal.SIGTERM)
        assert process.wait(PATIENCE) == 0
        return pathlib.Path(folder)

    def home(self, name):
        home = self.scratch / name
        home.mkdir(mode=0o700)
        return home

    def works_at_home(self):
        """The launcher makes the user's data folder, for the user alone, and the program works there."""
        home = self.home("home")
        process = self.start(home)
        data = home / ".local/share/brindlex"
        assert self.end(process) == data
        assert stat.S_IMODE(data.stat().st_mode) == 0o700

    def works_in_named_folder(self):
        """XDG_DATA_HOME names another place, with a blank in it; a relative one is ignored."""
        home = self.home("named")
        assert self.end(self.start(home, XDG_DATA_HOME=str(home / "my data"))) == home / "my data/brindlex"
        assert self.end(self.start(home, XDG_DATA_HOME="data")) == home / ".local/share/brindlex"

    def keeps_what_is_there(self):
        """A start in a folder in use changes nothing there."""
        home = self.home("used")
        data = home / ".local/share/brindlex"
        data.mkdir(parents=True)
        (data / "Mill.dat").write_bytes(b"kept\r\n")
        self.end(self.start(home))
        assert [(path.name, path.read_bytes()) for path in data.iterdir()] == [("Mill.dat", b"kept\r\n")]

    def starts_without_home(self):
        """Where the data folder can't be made, it says so and starts all the same."""
        home = self.home("full")
        (home / ".local").write_text("in the way")
        self.end(self.start(home))
        assert "can't be used" in (self.scratch / "told").read_text()

    def comes_forward(self):
        """A second start calls the first one and ends."""
        home = self.home("twice")
        process = self.start(home)
        environment = dict(os.environ, HOME=str(home), XDG_RUNTIME_DIR=str(home))
        environment.pop("XDG_DATA_HOME", None)
        assert subprocess.run([self.prefix / "bin/brindlex"], env=environment, timeout=PATIENCE, check=False,
                              stderr=subprocess.DEVNULL).returncode == 0
        assert process.poll() is None
        self.end(process)

    def window_has_icon(self):
        """The window carries the program's picture, with no theme installed."""
        process = self.start(self.home("icon"))
        window = self.window(process)[0]
        told = run("xprop", "-id", window, "-notype", "32c", "_NET_WM_ICON")
        self.end(process)
        assert "16, 16," in told and "48, 48," in told, told[:300]


def package(build, scratch):
    """The Debian package is made, and lintian finds no error or warning in it."""
    run("cpack", "--config", build / "CPackConfig.cmake", "-B", scratch / "package")
    (deb,) = (scratch / "package").glob("*.deb")
    told = run("lintian", "--allow-root", "--fail-on", "error,warning", deb)
    assert not re.search("^[EW]:", told, re.MULTILINE), told
    names = run("dpkg-deb", "--contents", deb)
    for name in ("./usr/bin/brindlex\n", "./usr/bin/brindlex-cli\n", "./usr/libexec/brindlex/brindlex\n"):
        assert name in names, names
    assert not re.search(r" \./(?!usr)\S+$", names, re.MULTILINE), names


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=pathlib.Path)
    options = parser.parse_args()
    build = options.build.resolve()
    passed = failed = 0
    with tempfile.TemporaryDirectory() as folder, harness.screen():
        scratch = pathlib.Path(folder)
        # Staged under another root, as packages are made.
        run("cmake", "--install", build, "--prefix", "/usr", env=dict(os.environ, DESTDIR=str(scratch / "root")))
        installed = Installation(scratch / "root/usr", scratch)
        checks = [installed.icons, installed.desktop_entry, installed.metainfo, installed.changelog,
                  installed.document_types,
                  installed.manuals, installed.guide, installed.arguments, installed.works_at_home,
                  installed.works_in_named_folder, installed.keeps_what_is_there, installed.starts_without_home,
                  installed.comes_forward, installed.window_has_icon, lambda: package(build, scratch)]
        for check in checks:
            name = check.__doc__ or package.__doc__
            try:
                check()
                passed += 1
            except Exception as failure:  # pylint: disable=broad-except
                failed += 1
                harness.tell_failure(name, f"{type(failure).__name__}: {failure}")
    harness.finish("installation", passed, failed)


if __name__ == "__main__":
    main()
