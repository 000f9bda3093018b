"""The stage itself: what a test does on it is what a person would have done at a real Windows."""

import pathlib
import re
import subprocess
import sys
import tempfile
import time
import unittest

from stage import StageError, StageTest
from stage.ground import E2E, WINE32, WORK, refuse_unrunnable


class OnStage(StageTest):
    def test_what_a_german_keyboard_types_arrives_and_leaves_scroll_lock_switched(self):
        editor = self.stage.open_editor()
        lamp = self.stage.scroll_lock()
        self.stage.keyboard.press("Scroll_Lock")
        typed = "größer: ÄÖÜ äöü ß € × ² ° § ~ | @ \\ {[]} 'x' \"y\"\nzweite Zeile"
        self.stage.keyboard.type(typed)
        editor.wait_for_text(typed)
        self.assertNotEqual(self.stage.scroll_lock(), lamp)
        self.stage.keyboard.press("Scroll_Lock")

    def test_the_caret_follows_arrows_and_selects_with_shift(self):
        editor = self.stage.open_editor("eins zwei")
        self.stage.keyboard.press("ctrl+End", "Left", "shift+Left", "shift+Left")
        self.stage.wait_for(lambda: editor.selection == (6, 8), "two characters are selected")

    def test_text_goes_through_the_clipboard_in_both_directions(self):
        editor = self.stage.open_editor("außen")
        self.stage.keyboard.press("ctrl+a", "ctrl+c")
        self.stage.wait_for(lambda: self.stage.clipboard.text == "außen", "the editor's text is copied")
        self.stage.clipboard.text = "innen\n5 €"
        self.stage.keyboard.press("ctrl+v")
        editor.wait_for_text("innen\n5 €")

    def test_bold_typed_in_the_word_processor_is_bold_on_the_clipboard_and_where_it_is_pasted(self):
        self.stage.open_word_processor()
        self.stage.keyboard.press("ctrl+b")
        self.stage.keyboard.type("fett")
        self.stage.keyboard.press("ctrl+a", "ctrl+c")
        self.stage.wait_for(lambda: r"\b" in (self.stage.clipboard.rich_text or ""), "Rich Text is copied")
        target = self.stage.open_rich_editor()
        self.stage.keyboard.press("ctrl+v", "ctrl+a", "ctrl+c")
        self.stage.wait_for(lambda: target.text.startswith("fett"), "the text is pasted")
        self.assertRegex(self.stage.clipboard.rich_text, re.compile(r"\\b\b.*fett", re.DOTALL))

    def test_a_picture_shows_what_is_on_the_screen(self):
        empty = self.stage.wait_until_still()
        editor = self.stage.open_editor()
        self.stage.pointer.park()
        picture = self.stage.wait_until_still()
        self.assertEqual(picture.pixel(*editor.middle), (255, 255, 255))
        self.assertNotEqual(picture.pixel(*editor.middle), empty.pixel(*editor.middle))

    def test_a_file_with_an_umlaut_in_its_name_is_seen_from_both_sides(self):
        self.stage.path(r"C:\Grüße.txt").write_bytes("von außen".encode("cp1252"))
        self.stage.open(r"notepad", r"C:\Grüße.txt").wait_for_text("von außen")

    def test_the_registry_keeps_numbers_and_text_and_speaks_german(self):
        key = r"HKCU\Software\Stage"
        for name, value in (("Zahl", 4294967295), ("Text", 'mit "Anführung" und 100 %'), ("", "")):
            self.stage.registry.set(key, name, value)
            self.assertEqual(self.stage.registry.get(key, name), value)
        self.stage.registry.delete(key)
        self.assertIsNone(self.stage.registry.get(key, "Zahl"))
        self.assertEqual(self.stage.registry.get(r"HKCU\Control Panel\International", "sDecimal"), ",")


class Programs(unittest.TestCase):
    @unittest.skipIf(WINE32.exists(), "this Wine runs both word sizes")
    def test_one_of_the_other_word_size_or_none_is_refused_instead_of_passing_silently(self):
        with tempfile.NamedTemporaryFile() as program:
            program.write(b"MZ".ljust(0x3C, b"\0") + (64).to_bytes(4, "little") + b"PE\0\0\x4c\x01")
            program.flush()
            with self.assertRaisesRegex(StageError, "32-bit"):
                refuse_unrunnable(program.name)
        with self.assertRaisesRegex(StageError, "missing"):
            refuse_unrunnable(program.name)


class Ending(unittest.TestCase):
    def test_a_terminated_test_leaves_no_process_and_no_folder(self):
        code = ("import time; from stage import Stage\n"
                "with Stage() as stage:\n"
                "    stage.open_editor(); print(stage.folder, flush=True); time.sleep(60)")
        with subprocess.Popen([sys.executable, "-c", code], cwd=E2E, stdout=subprocess.PIPE,
                              encoding="utf-8") as process:
            folder = pathlib.Path(process.stdout.readline().strip())
            self.assertTrue(folder.is_relative_to(WORK) and folder.exists())
            process.terminate()
            self.assertEqual(process.wait(30), 128 + 15)
        self.assertFalse(folder.exists())
        time.sleep(0.1)
        self.assertEqual(_processes_of(folder), [])


def _processes_of(folder):
    """Command lines of all processes that were started with this folder in their environment."""
    found = []
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            if str(folder).encode() in (process / "environ").read_bytes():
                found.append((process / "cmdline").read_bytes())
        except OSError:
            continue
    return found


if __name__ == "__main__":
    unittest.main()
