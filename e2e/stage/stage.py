"""The stage: screen, Windows and probe together, and what a test does on it."""

import contextlib
import itertools
import os
import pathlib
import shutil
import signal
import subprocess
import threading
import time

from . import prefix as prefixes
from .ground import (ROOT, SCREENSHOTS, WORK, StageError, adopt_orphans, die_with_parent, reap_orphans,
                     refuse_unrunnable, wait_for, wine_loader)
from .hands import Keyboard, Pointer
from .prefix import Prefix
from .probe import Clipboard, Probe, Registry, helper, select, window_from
from .screen import Screen

PACKAGE = ROOT / "build" / "windows-x86_64" / "package" / "Dorvalin"
WORD_PROCESSOR = r"C:\Program Files\Windows NT\Accessories\wordpad.exe"

_numbers = itertools.count(1)


class Program:
    """A Windows program that was started."""

    def __init__(self, stage, name, process, log):
        self.stage = stage
        self.name = name
        self._log = log
        self._process = process

    @property
    def pid(self):
        """The process on this side, not Windows' number."""
        return self._process.pid

    @property
    def exit_code(self):
        """None while it runs."""
        return self._process.poll()

    def wait(self, seconds=10.0):
        """Its exit code once it has ended by itself."""
        try:
            return self._process.wait(seconds)
        except subprocess.TimeoutExpired as error:
            raise StageError(f"{self.name} does not end") from error

    def windows(self):
        return self.stage.windows(program=self.name)

    def output(self):
        """All that it printed."""
        return self._log.read_text(encoding="utf-8", errors="replace")

    def kill(self):
        self._process.kill()
        self._process.wait()


class Editor:
    """A program with one big text field, the target of what is typed."""

    def __init__(self, program):
        self.program = program
        self.field = wait_for(self._find_field, f"{program.name} shows its text field", seconds=20)
        stage = program.stage
        self.window.bring_up()
        stage.pointer.click(*self.middle)
        stage.wait_for(lambda: stage.foreground() == self.window, f"{program.name} gets the keys")

    def _find_field(self):
        for window in self.program.windows():
            for child in window.children(visible=True):
                if child.class_name.lower().startswith(("edit", "richedit")):
                    return child
        return None

    @property
    def window(self):
        return wait_for(lambda: self.program.windows(), f"{self.program.name} has a window")[-1]

    @property
    def middle(self):
        return self.field.middle

    @property
    def text(self):
        return self.field.text

    @property
    def selection(self):
        return self.field.selection

    def wait_for_text(self, text, seconds=5.0):
        """Waits until the field holds exactly this."""
        try:
            wait_for(lambda: self.text == text, "", seconds)
        except StageError:
            raise StageError(f"the field holds {self.text!r}, not {text!r}") from None

    def close(self):
        """Ends it without asking what is to become of the text."""
        self.program.kill()


class Stage:
    """A fresh Windows on a screen of its own; `with` opens it and ends all that was started on it.

    With a `display` Windows' desktop is a window on that display, for a person to use. `package` is the
    folder that start_dorvalin takes the program from; else DORVALIN_PACKAGE names it.
    """

    def __init__(self, display=None, package=None):
        self._package = pathlib.Path(package or os.environ.get("DORVALIN_PACKAGE", PACKAGE))
        self.folder = WORK / f"run-{os.getpid()}-{next(_numbers)}"
        self._screen = Screen(self.folder / "screen", display)
        self._prefix = Prefix(self.folder)
        self._probe = Probe()
        self._programs = []
        self._env = None
        self.pointer = None
        self.keyboard = None
        self.registry = Registry(self._probe)
        self.clipboard = Clipboard(self._probe)

    def __enter__(self):
        _end_by_exception_on_signals()
        adopt_orphans()
        prefixes.sweep()
        try:
            self._open()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def _open(self):
        self._prefix.open()
        self._screen.open()
        self._env = {**self._prefix.environment(), **self._screen.environment()}
        self._prefix.start_server(self._env)
        self._probe.open(self._env, self.folder / "probe.log")
        self.pointer = Pointer(self._screen.display)
        self.keyboard = Keyboard(self._screen.display)
        self._probe.ask("windows")
        if not self._screen.is_borrowed:
            self.pointer.park()

    def close(self):
        """Ends every program, Windows and the screen, whatever state they are in."""
        with contextlib.ExitStack() as steps:
            steps.callback(reap_orphans)
            steps.callback(self._prefix.close)
            steps.callback(self._screen.close)
            steps.callback(prefixes.end_server, self.folder)
            steps.callback(self._probe.close)
            for program in self._programs:
                steps.callback(program.kill)

    @property
    def environment(self):
        """The variables under which a Unix program finds this screen and this Windows."""
        return dict(self._env)

    # Programs

    def start(self, program, *arguments):
        """Starts a program: a path on this side, a Windows path, or the name of one of Wine's own."""
        program = str(program)
        if "/" in program:
            refuse_unrunnable(program)
        name = pathlib.PureWindowsPath(program).name
        name = name if name.lower().endswith(".exe") else name + ".exe"
        log = self.folder / f"{len(self._programs)}-{name}.log"
        with open(log, "wb") as output:
            process = subprocess.Popen(
                [wine_loader(), program, *map(str, arguments)], env=self._env, cwd=self.folder,
                stdin=subprocess.DEVNULL, stdout=output, stderr=output, preexec_fn=die_with_parent)
        self._programs.append(Program(self, name, process, log))
        return self._programs[-1]

    def start_dorvalin(self):
        r"""Starts the program from C:\Dorvalin, where it lies with its data as it is shipped."""
        target = self._prefix.drive_c / "Dorvalin"
        if not target.exists():
            refuse_unrunnable(self._package / "Dorvalin.exe")
            shutil.copytree(self._package, target)
        return self.start(r"C:\Dorvalin\Dorvalin.exe")

    def open(self, program, *arguments):
        """Starts a program with a text field and waits until the field has the keys."""
        return Editor(self.start(program, *arguments))

    def open_editor(self, text=""):
        """Wine's text editor with this text in a file of its own."""
        file = rf"C:\Text{len(self._programs)}.txt"
        self.path(file).write_bytes(b"\xef\xbb\xbf" + text.replace("\n", "\r\n").encode())
        return self.open("notepad", file)

    def open_rich_editor(self):
        """A window with nothing but a rich text control; Wine's takes no drops."""
        return self.open(helper("richtext"))

    def open_word_processor(self):
        """Wine's word processor; it takes no drops."""
        return self.open(WORD_PROCESSOR)

    def end_programs(self):
        """Ends all that was started."""
        for program in self._programs:
            program.kill()
        self._programs.clear()
        self.pointer.park()
        wait_for(lambda: not self.windows(), "all windows are gone")

    # Windows

    def windows(self, **wanted):
        """Visible top-level windows, the top one first: windows(program="notepad.exe")."""
        return select(self._probe, self._probe.ask("windows"), wanted)

    def wait_for_window(self, seconds=5.0, **wanted):
        """The top one of those."""
        return wait_for(lambda: self.windows(**wanted), f"a window with {wanted}", seconds)[0]

    def foreground(self):
        """The window that gets the keys, or None."""
        row = self._probe.ask("foreground")
        return window_from(self._probe, row) if row else None

    def focus(self):
        """The control that gets the keys, or None."""
        row = self._probe.ask("focus")
        return window_from(self._probe, row) if row else None

    def scroll_lock(self):
        """Whether Windows holds Scroll Lock for switched on."""
        return self._probe.ask("scrolllock")

    def message_box(self):
        """The message box that is open, as a MessageBox, or None."""
        for window in self.windows(class_name="#32770"):
            box = MessageBox(self, window)
            if box.buttons:
                return box
        return None

    # What the screen shows

    def picture(self):
        return self._screen.picture()

    def pixel(self, x, y):
        return self.picture().pixel(x, y)

    def screenshot(self, name):
        """Saves the screen as build/screenshots/<name>.png; gives the path."""
        return self.picture().save(SCREENSHOTS / f"{name}.png")

    def wait_until_still(self, seconds=5.0, pause=0.15):
        """Waits until two pictures a pause apart are the same, and gives the last."""
        end = time.monotonic() + seconds
        before = self.picture()
        while time.monotonic() < end:
            time.sleep(pause)
            now = self.picture()
            if now == before:
                return now
            before = now
        raise StageError(f"the screen did not come to rest within {seconds:g} s")

    # Files

    def path(self, windows_path):
        r"""Where C:\... lies on this side."""
        return self._prefix.drive_c.joinpath(*pathlib.PureWindowsPath(windows_path).parts[1:])

    @staticmethod
    def wait_for(condition, what, seconds=5.0):
        return wait_for(condition, what, seconds)


class MessageBox:
    """An open message box."""

    def __init__(self, stage, window):
        children = window.children(visible=True)
        self._stage = stage
        self.window = window
        self.title = window.title
        self.text = "\n".join(c.text for c in children if c.class_name == "Static" and c.text)
        self._buttons = [c for c in children if c.class_name == "Button"]

    @property
    def buttons(self):
        return [button.text.replace("&", "") for button in self._buttons]

    def answer(self, button):
        """Clicks the button with this caption and waits until the box is gone."""
        at = self.buttons.index(button)
        self._stage.pointer.click(*self._buttons[at].middle)
        wait_for(lambda: self.window not in self._stage.windows(), f"the box {self.title!r} closes")


def _end_by_exception_on_signals():
    """A termination signal unwinds the stack like Ctrl+C, so that every `with` ends what it began."""
    def leave(number, _):
        raise SystemExit(128 + number)

    if threading.current_thread() is threading.main_thread():
        for number in (signal.SIGTERM, signal.SIGHUP):
            if signal.getsignal(number) is signal.SIG_DFL:
                signal.signal(number, leave)
