"""The virtual screen: an X server of its own with a German keyboard."""

import os
import re
import subprocess
import tempfile

from .ground import SCREEN_SIZE, StageError, call, die_with_parent, wait_for
from .picture import read_frame_buffer


class Screen:
    """An X server on a free display number, from open() to close(); or a display that is there already
    and stays as it is."""

    def __init__(self, folder, display=None):
        self._folder = folder
        self._server = None
        self.display = display
        self.is_borrowed = display is not None

    def open(self):
        if self.is_borrowed:
            return
        self._folder.mkdir(parents=True, exist_ok=True)
        self.display = self._start_server()
        try:
            self._set_keyboard()
        except BaseException:
            self.close()
            raise

    def close(self):
        if self._server is None:
            return
        self._server.terminate()
        try:
            self._server.wait(5)
        except subprocess.TimeoutExpired:
            self._server.kill()
            self._server.wait()
        self._server = None

    def environment(self):
        return {"DISPLAY": self.display}

    def picture(self):
        if self.is_borrowed:
            raise StageError("only the screen of a stage's own can be pictured")
        return read_frame_buffer(self._folder / "Xvfb_screen0")

    def _start_server(self):
        width, height = SCREEN_SIZE
        reader, writer = os.pipe()
        # Without -noreset the server forgets the key map together with its last client.
        command = ["Xvfb", "-displayfd", str(writer), "-noreset", "-nolisten", "tcp",
                   "-screen", "0", f"{width}x{height}x24", "-fbdir", str(self._folder)]
        try:
            with open(self._folder / "xvfb.log", "wb") as log:
                self._server = subprocess.Popen(
                    command, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                    pass_fds=(writer,), preexec_fn=die_with_parent, start_new_session=True)
        except FileNotFoundError as error:
            os.close(reader)
            raise StageError("Xvfb is not installed (Debian's package xvfb)") from error
        finally:
            os.close(writer)
        with os.fdopen(reader, "rb") as answer:
            number = answer.readline().strip().decode()
        if not number:
            raise StageError("Xvfb did not start: " + (self._folder / "xvfb.log").read_text().strip())
        return ":" + number

    def _set_keyboard(self):
        env = {**os.environ, **self.environment()}
        call("setxkbmap", "de", env=env)
        key_map = call("xkbcomp", "-xkb", self.display, "-", env=env)
        # Without a modifier of its own for Scroll Lock, Wine switches the lock off at the next key.
        key_map = re.sub(r"(xkb_symbols [^{]*\{)", r"\1\n    modifier_map Mod3 { <SCLK> };", key_map, count=1)
        with tempfile.NamedTemporaryFile("w", suffix=".xkb", dir=self._folder) as file:
            file.write(key_map)
            file.flush()
            call("xkbcomp", "-w", "0", file.name, self.display, env=env)
        wait_for(lambda: "<SCLK>" in call("xkbcomp", "-xkb", self.display, "-", env=env),
                 "the display takes the German key map")
