"""The stage itself: what a test does on it is what a person would have done at a real Windows."""

import pathlib
import re
import subprocess
import sys
import time
import unittest

from stage import Stage, StageError, StageTest
from stage.ground import E2E, WORK


class Typing(StageTest):
    def test_what_a_german_keyboard_types_arrives_in_the_editor(self):
        editor = self.stage.open_editor()
        typed = "größer: ÄÖÜ äöü ß € × ² ° § ~ | @ \\ {[]} 'x' \"y\"\nzweite Zeile"
        self.stage.keyboard.type(typed)
        editor.wait_for_text(typed)

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


class Windows(StageTest):
    def test_of_two_programs_the_clicked_one_gets_the_keys(self):
        first, second = self.stage.open_editor(), self.stage.open_rich_editor()
        self.assertEqual(self.stage.foreground(), second.window)
        left, _, _, bottom = first.field.rect
        self.stage.pointer.click(left + 20, bottom - 20)
        self.stage.wait_for(lambda: self.stage.foreground() == first.window, "the first comes to the front")
        self.stage.keyboard.type("hier")
        first.wait_for_text("hier")
        self.assertEqual(second.text, "")
        self.assertEqual([window.program for window in self.stage.windows()], ["notepad.exe", "richtext.exe"])

    def test_a_message_box_tells_its_text_and_takes_an_answer(self):
        editor = self.stage.open_editor()
        self.stage.keyboard.type("neu")
        editor.window.close()
        box = self.stage.wait_for(self.stage.message_box, "the editor asks whether to save")
        self.assertIn("Text", box.text)
        self.assertEqual(box.buttons, ["Ja", "Nein", "Abbrechen"])
        box.answer("Nein")
        self.assertEqual(editor.program.wait(), 0)

    def test_a_held_middle_button_is_down_for_as_long_as_it_is_held(self):
        editor = self.stage.open_editor()
        self.stage.pointer.move_to(*editor.middle)
        self.assertEqual(self.stage.pointer.position(), editor.middle)
        self.assertEqual(self.stage.buttons(), set())
        self.stage.pointer.press("middle")
        self.stage.wait_for(lambda: self.stage.buttons() == {"middle"}, "Windows sees the button")
        self.stage.pointer.release("middle")
        self.stage.wait_for(lambda: self.stage.buttons() == set(), "Windows sees the release")

    def test_scroll_lock_stays_switched_when_other_keys_follow(self):
        editor = self.stage.open_editor()
        before = self.stage.scroll_lock()
        self.stage.keyboard.press("Scroll_Lock")
        self.stage.keyboard.type("abc")
        editor.wait_for_text("abc")
        self.assertNotEqual(self.stage.scroll_lock(), before)
        self.stage.keyboard.press("Scroll_Lock")


class Screen(StageTest):
    def test_a_screenshot_shows_the_editor_and_is_a_png_of_the_whole_screen(self):
        empty = self.stage.picture()
        self.assertEqual(len(empty.crop(0, 0, 700, 500).colours()), 1)
        editor = self.stage.open_editor("sichtbar")
        self.stage.pointer.park()
        picture = self.stage.wait_until_still()
        self.assertGreater(len(picture.colours()), 10)
        self.assertEqual(picture.pixel(*editor.middle), (255, 255, 255))
        path = self.stage.screenshot("stage")
        self.assertEqual(path.read_bytes()[:8], b"\x89PNG\r\n\x1a\n")
        self.assertEqual((picture.width, picture.height), (1024, 768))


class Files(StageTest):
    def test_a_file_with_an_umlaut_in_its_name_is_seen_from_both_sides(self):
        file = self.stage.path(r"C:\Grüße.txt")
        file.write_bytes("von außen".encode("cp1252"))
        self.assertEqual(self.stage.windows_path(file), r"C:\Grüße.txt")
        editor = self.stage.open(r"notepad", r"C:\Grüße.txt")
        editor.wait_for_text("von außen")
        self.assertTrue(self.stage.application_data.is_dir())

    def test_the_registry_keeps_numbers_and_text(self):
        key = r"HKCU\Software\Stage"
        self.stage.registry.set(key, "Zahl", 4294967295)
        self.stage.registry.set(key, "Text", 'mit "Anführung" und 100 %')
        self.stage.registry.set(key + r"\Unten", "", "Vorgabe")
        self.assertEqual(self.stage.registry.values(key), {"Zahl": 4294967295, "Text": 'mit "Anführung" und 100 %'})
        self.assertEqual(self.stage.registry.keys(key), ["Unten"])
        self.assertEqual(self.stage.registry.get(key + r"\Unten", ""), "Vorgabe")
        self.stage.registry.delete(key)
        self.assertIsNone(self.stage.registry.get(key, "Zahl"))


class Ending(unittest.TestCase):
    def test_windows_speaks_german_on_a_fresh_stage(self):
        with Stage() as stage:
            international = stage.registry.values(r"HKCU\Control Panel\International")
            self.assertEqual((international["sDecimal"], international["sThousand"]), (",", "."))

    def test_a_program_of_the_other_word_size_is_refused_instead_of_passing_silently(self):
        source = b"MZ".ljust(0x3C, b"\0") + (64).to_bytes(4, "little") + b"PE\0\0\x4c\x01"
        with Stage() as stage:
            program = stage.path(r"C:\klein.exe")
            program.write_bytes(source)
            if not pathlib.Path("/usr/lib/wine/wine").exists():
                with self.assertRaises(StageError):
                    stage.start(program)
            with self.assertRaises(StageError):
                stage.start(stage.path(r"C:\fehlt.exe"))

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
