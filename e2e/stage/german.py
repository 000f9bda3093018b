"""A German locale of the checkout's own, so that the machine's locales do not matter."""

from .ground import WORK, call

NAME = "de_DE.UTF-8"


def environment():
    """The variables that make Wine German; the locale is generated at the first call."""
    folder = WORK / "locale"
    if not (folder / NAME / "LC_CTYPE").exists():
        folder.mkdir(parents=True, exist_ok=True)
        call("localedef", "-i", "de_DE", "-f", "UTF-8", folder / NAME)
    return {"LOCPATH": str(folder), "LC_ALL": NAME, "LANG": NAME, "TZ": "Europe/Berlin"}
