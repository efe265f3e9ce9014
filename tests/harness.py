"""What the test runners share: jobs in parallel, a counted end, one way to tell of a failure."""

import concurrent.futures
import contextlib
import os
import subprocess
import sys


def processors():
    return len(os.sched_getaffinity(0))


def in_parallel(work, items, jobs=None):
    """The results of work(item), in the order of the items, with a processor for each, or so many at a time."""
    with concurrent.futures.ThreadPoolExecutor(jobs or processors()) as pool:
        return list(pool.map(work, items))


@contextlib.contextmanager
def screen(size="1280x1024"):
    """A screen of its own, that no other run can take away, named by DISPLAY. It is not made anew after its last client,
    which would keep out one that comes just then."""
    before = os.environ.get("DISPLAY")
    name, other = os.pipe()
    command = ["Xvfb", "-displayfd", str(other), "-screen", "0", f"{size}x24", "-nolisten", "tcp", "-noreset"]
    with subprocess.Popen(command, pass_fds=[other], stderr=subprocess.DEVNULL) as server:
        os.close(other)
        try:
            with os.fdopen(name) as told:
                os.environ["DISPLAY"] = ":" + told.readline().strip()
            yield
        finally:
            server.terminate()
            if before is None:
                del os.environ["DISPLAY"]
            else:
                os.environ["DISPLAY"] = before


def tell_failure(title, *texts):
    print(f"--- FAILED {title}")
    for text in texts:
        if isinstance(text, bytes):
            text = text.decode("utf-8", "replace")
        if text and text.strip():
            print("\n".join("    " + line for line in text.strip().splitlines()[-40:]))


def finish(what, passed, failed, skipped=0):
    """Prints the counts, hands them to ./test through the file named by COUNTS, and ends with 0 or 1."""
    rest = f", {skipped} skipped" if skipped else ""
    print(f"{what}: {passed} of {passed + failed} passed{rest}")
    if "COUNTS" in os.environ:
        with open(os.environ["COUNTS"], "w", encoding="ascii") as counts:
            counts.write(f"{passed} {failed}\n")
    sys.exit(1 if failed else 0)
