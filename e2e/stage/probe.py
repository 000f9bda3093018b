"""Questions to Windows itself: a helper program inside Wine answers them."""

import contextlib
import json
import subprocess
from dataclasses import dataclass

from .ground import E2E, ROOT, WORK, StageError, call, die_with_parent, one_at_a_time, wine_loader

COMPILER = "x86_64-w64-mingw32-g++-posix"
FLAGS = ("-std=c++20", f"-I{ROOT}", "-Os", "-s", "-static", "-municode", "-DUNICODE", "-D_UNICODE",
         "-Wall", "-Wextra", "-Werror")
LIBRARIES = ("-lole32", "-luuid", "-lgdi32")


def helper(name):
    """The Windows program made of e2e/<name>/*.cpp, compiled when it is missing or older than those."""
    program = WORK / "bin" / f"{name}.exe"
    sources = sorted((E2E / name).glob("*.cpp"))
    newest = max(path.stat().st_mtime for path in (E2E / name).iterdir())
    with one_at_a_time():
        if not program.exists() or program.stat().st_mtime < newest:
            program.parent.mkdir(parents=True, exist_ok=True)
            subsystem = () if name == "probe" else ("-mwindows",)
            call(COMPILER, *FLAGS, *subsystem, *sources, "-o", program, *LIBRARIES, seconds=180)
    return program


class Probe:
    """The helper program, from open() to close(). ask() gives its answer as Python values."""

    def __init__(self):
        self._process = None

    def open(self, env, log):
        with open(log, "wb") as errors:
            self._process = subprocess.Popen(
                [wine_loader(), str(helper("probe"))], env=env, stdin=subprocess.PIPE,
                stdout=subprocess.PIPE, stderr=errors, preexec_fn=die_with_parent)

    def close(self):
        if self._process is None:
            return
        with contextlib.suppress(OSError):
            self._process.stdin.close()
        try:
            self._process.wait(5)
        except subprocess.TimeoutExpired:
            self._process.kill()
            self._process.wait()
        self._process.stdout.close()
        self._process = None

    def ask(self, *words):
        question = "".join(f"{word}\x1f" for word in words) + "\0"
        try:
            self._process.stdin.write(question.encode())
            self._process.stdin.flush()
        except OSError as error:
            raise StageError("the probe has ended") from error
        answer = self._process.stdout.readline()
        if not answer:
            raise StageError(f"the probe ended at: {words}")
        value = json.loads(answer)
        if isinstance(value, dict) and "error" in value:
            raise StageError(f"{value['error']}: {words}")
        return value


@dataclass(frozen=True)
class Window:
    """A window as it was when it was asked for; two are equal when they are the same window.

    `rect` is half-open, in pixels of the screen. `program` is the file name of its process.
    """

    handle: int
    probe: Probe
    title: str
    class_name: str
    program: str
    rect: tuple
    enabled: bool
    visible: bool

    def __eq__(self, other):
        return isinstance(other, Window) and self.handle == other.handle

    def __hash__(self):
        return hash(self.handle)

    def __repr__(self):
        return f"<{self.class_name} {self.title!r} of {self.program} at {self.rect}>"

    @property
    def middle(self):
        left, top, right, bottom = self.rect
        return (left + right) // 2, (top + bottom) // 2

    @property
    def width(self):
        return self.rect[2] - self.rect[0]

    @property
    def height(self):
        return self.rect[3] - self.rect[1]

    @property
    def text(self):
        """What the window says of itself when asked now: a control's content, a window's title."""
        return self.probe.ask("text", self.handle).replace("\r\n", "\n").replace("\r", "\n")

    def write(self, text):
        """Puts this into a field in place of what it holds."""
        self.probe.ask("settext", self.handle, text)

    @property
    def selection(self):
        """Start and end of an edit control's selection, in characters."""
        return tuple(self.probe.ask("selection", self.handle))

    def children(self, **wanted):
        """All windows inside it, also hidden ones, in the order of their handling by Tab."""
        return select(self.probe, self.probe.ask("children", self.handle), wanted)

    def bring_up(self):
        """Makes it the foreground window."""
        self.probe.ask("activate", self.handle)


def window_from(probe, row):
    return Window(probe=probe, **{**row, "rect": tuple(row["rect"])})


def select(probe, rows, wanted):
    """The windows whose properties are as wanted."""
    windows = (window_from(probe, row) for row in rows)
    return [window for window in windows
            if all(getattr(window, name) == value for name, value in wanted.items())]


class Registry:
    """The user's part of the registry. Keys are named with their root: r"HKCU\\Software\\Tolvo\\Dorvalin"."""

    def __init__(self, probe):
        self._probe = probe

    def get(self, key, name):
        """A string or a number; None when there is no such value."""
        return self._probe.ask("regget", key, name)

    def set(self, key, name, value):
        kind = "dword" if isinstance(value, int) else "string"
        self._probe.ask("regset", key, name, kind, value)

    def delete(self, key):
        """Removes the key with all below it; what is missing stays missing."""
        self._probe.ask("regdelete", key)


class Clipboard:
    """What programs hand to each other."""

    def __init__(self, probe):
        self._probe = probe

    @property
    def text(self):
        """Its plain text, or None."""
        return self._probe.ask("clipboard")["text"]

    @text.setter
    def text(self, value):
        self._probe.ask("setclipboard", value.replace("\n", "\r\n"))

    @property
    def rich_text(self):
        """Its Rich Text as written, or None."""
        return self._probe.ask("clipboard")["rich_text"]
