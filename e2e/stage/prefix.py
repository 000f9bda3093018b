"""Windows' folders and registry: made once a checkout, copied for every stage."""

import hashlib
import os
import pathlib
import shutil
import subprocess

from . import german
from .ground import SCREEN_SIZE, WORK, StageError, call, is_alive, one_at_a_time, wine_loader

FONT_FOLDERS = ("/usr/share/wine/fonts", "/usr/share/fonts/truetype/liberation2",
                "/usr/share/fonts/truetype/liberation")

# One desktop for all programs; a crash ends a program instead of asking; faces that look like the
# ones that Windows has.
SETTINGS = rf"""REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\Explorer]
"Desktop"="D"

[HKEY_CURRENT_USER\Software\Wine\Explorer\Desktops]
"D"="{SCREEN_SIZE[0]}x{SCREEN_SIZE[1]}"

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"Arial"="Liberation Sans"
"Courier New"="Liberation Mono"
"Lucida Console"="Liberation Mono"
"Times New Roman"="Liberation Serif"

[HKEY_CURRENT_USER\Software\Microsoft\Notepad]
"lfFaceName"="Liberation Mono"
"lfWeight"=dword:00000190
"iPointSize"=dword:0000006e
"""


class Prefix:
    """A Windows of its own in a folder, with its server; from open() to close()."""

    def __init__(self, folder):
        self.folder = folder
        self.drive_c = folder / "windows" / "drive_c"

    def environment(self):
        home = self.folder / "home"
        kept = {name: value for name, value in os.environ.items()
                if not name.startswith(("WINE", "XDG_", "LC_", "LANG"))}
        return {**kept, **german.environment(),
                "HOME": str(home), "WINEPREFIX": str(self.folder / "windows"), "WINEARCH": "win64",
                "WINELOADER": wine_loader(), "WINEDEBUG": os.environ.get("WINEDEBUG", "fixme-all"),
                "WINEDLLOVERRIDES": "mscoree,winemenubuilder.exe="}

    def open(self):
        (self.folder / "home").mkdir(parents=True)
        with one_at_a_time():
            call("cp", "-a", "--reflink=auto", _template().folder / "windows", self.folder / "windows")

    def start_server(self, env):
        """The server outlives single programs, so that later ones start at once."""
        _run(env, "wineserver", "-p600")
        _run(env, wine_loader(), "cmd", "/c", "rem")

    def close(self):
        end_server(self.folder)
        shutil.rmtree(self.folder, ignore_errors=True)


def end_server(folder):
    """Ends every program of a prefix and waits until the last is gone."""
    if not (folder / "windows").exists():
        return
    env = {**os.environ, "WINEPREFIX": str(folder / "windows")}
    for option in ("-k", "-w"):
        _end_code(env, "wineserver", option)


def sweep():
    """Ends and removes what stages left behind whose process was killed."""
    for folder in WORK.glob("run-*"):
        owner = folder.name.split("-")[1]
        if owner.isdigit() and not is_alive(int(owner)):
            end_server(folder)
            shutil.rmtree(folder, ignore_errors=True)


def _template():
    """The prepared prefix; made at the first call and whenever its recipe or Wine changes."""
    recipe = hashlib.sha256((SETTINGS + pathlib.Path(__file__).read_text(encoding="utf-8") +
                             call("wineserver", "--version")).encode()).hexdigest()[:16]
    template = Prefix(WORK / f"template-{recipe}")
    if not template.folder.exists():
        for old in WORK.glob("template-*"):
            shutil.rmtree(old, ignore_errors=True)
        _make(template)
    return template


def _make(template):
    """Made under another name first: what was interrupted half-way is never taken for a whole."""
    unfinished = Prefix(WORK / f"run-{os.getpid()}-template")
    shutil.rmtree(unfinished.folder, ignore_errors=True)
    (unfinished.folder / "home").mkdir(parents=True)
    env = unfinished.environment()
    env.pop("DISPLAY", None)
    try:
        settings = unfinished.folder / "settings.reg"
        settings.write_text(SETTINGS, encoding="ascii")
        _run(env, wine_loader(), "wineboot", "-i")
        _run(env, wine_loader(), "regedit", "/S", settings)
        _bring_fonts(unfinished.drive_c / "windows" / "Fonts")
    finally:
        end_server(unfinished.folder)
    _keep_links_inside(unfinished.drive_c)
    unfinished.folder.rename(template.folder)


def _run(env, *command):
    code = _end_code(env, *command)
    if code:
        raise StageError(f"{' '.join(map(str, command))} ended with {code}")


def _end_code(env, *command):
    """What Wine's server and its background services inherit, they keep: nothing of ours, no pipe."""
    nowhere = subprocess.DEVNULL
    return subprocess.run([str(part) for part in command], env=env, timeout=180, check=False,
                          stdin=nowhere, stdout=nowhere, stderr=nowhere).returncode


def _bring_fonts(target):
    for folder in map(pathlib.Path, FONT_FOLDERS):
        for font in (*folder.glob("*.ttf"), *folder.glob("*.fon")):
            shutil.copy(font, target / font.name)


def _keep_links_inside(drive):
    """Documents and its like are links into the home folder; a copy needs folders of its own."""
    for link in (drive / "users").glob("*/*"):
        if link.is_symlink():
            link.unlink()
            link.mkdir()
