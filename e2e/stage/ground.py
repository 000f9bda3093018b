"""What the rest of the stage stands on: places in the checkout, waiting, calls of tools."""

import contextlib
import ctypes
import fcntl
import os
import pathlib
import shutil
import signal
import subprocess
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
E2E = ROOT / "e2e"
WORK = ROOT / "build" / "stage"
SCREENSHOTS = ROOT / "build" / "screenshots"

SCREEN_SIZE = (1024, 768)

# Debian's script "wine" prints a hint about 32-bit programs at every start; the loaders do not.
WINE32 = pathlib.Path("/usr/lib/wine/wine")
WINE64 = pathlib.Path("/usr/lib/wine/wine64")


class StageError(AssertionError):
    """The stage did not come to what a test waits for, or could not be set."""


def wine_loader():
    """The program that starts Windows programs; with 32-bit Wine present it starts both kinds."""
    for loader in (WINE32, WINE64, shutil.which("wine64"), shutil.which("wine")):
        if loader and os.access(loader, os.X_OK):
            return str(loader)
    raise StageError("Wine is not installed (Debian's packages wine and wine64)")


def _is_32_bit_program(path):
    data = pathlib.Path(path).read_bytes()[:4096]
    start = int.from_bytes(data[0x3C:0x40], "little")
    return data[start:start + 4] == b"PE\0\0" and data[start + 4:start + 6] == b"\x4c\x01"


def refuse_unrunnable(path):
    """A 32-bit program without 32-bit Wine prints nothing and ends with 0; that is no success."""
    if not pathlib.Path(path).is_file():
        raise StageError(f"{path} is missing")
    if _is_32_bit_program(path) and not WINE32.exists():
        raise StageError(f"{path} is a 32-bit program and this machine has no 32-bit Wine")


def wait_for(condition, what, seconds=5.0, every=0.02):
    """The first true value of condition(); StageError with `what` when it does not come in time."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise StageError(f"waited {seconds:g} s in vain: {what}")
        time.sleep(every)


def call(*command, env=None, seconds=60.0):
    """Runs a tool to its end and returns what it printed; StageError when it fails."""
    try:
        done = subprocess.run(
            [str(part) for part in command], env=env, timeout=seconds, check=True,
            stdin=subprocess.DEVNULL, capture_output=True, encoding="utf-8", errors="replace")
    except FileNotFoundError as error:
        raise StageError(f"{command[0]} is not installed") from error
    except subprocess.CalledProcessError as error:
        raise StageError(f"{command[0]} ended with {error.returncode}: {error.stderr.strip()}") from error
    except subprocess.TimeoutExpired as error:
        raise StageError(f"{command[0]} did not end within {seconds:g} s") from error
    return done.stdout


@contextlib.contextmanager
def one_at_a_time():
    """Holds off other processes of the same checkout while something shared is being made."""
    WORK.mkdir(parents=True, exist_ok=True)
    with open(WORK / "lock", "wb") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        yield


def die_with_parent():
    """The calling process gets a termination signal when its parent ends, even when that is killed."""
    set_parent_death_signal = 1
    ctypes.CDLL(None).prctl(set_parent_death_signal, signal.SIGTERM)


def adopt_orphans():
    """Wine's services cut themselves off from who started them; with this they stay children of ours."""
    set_child_subreaper = 36
    ctypes.CDLL(None).prctl(set_child_subreaper, 1)


def reap_orphans():
    """Takes leave of every child that has ended, so that no process is left, not even a dead one."""
    with contextlib.suppress(ChildProcessError):
        while os.waitpid(-1, os.WNOHANG)[0]:
            pass


def is_alive(pid):
    try:
        os.kill(pid, 0)
    except ProcessLookupError:
        return False
    except PermissionError:
        pass
    return True
