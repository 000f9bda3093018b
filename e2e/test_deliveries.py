"""Text arrives to the letter, whatever it holds."""

import random

from dorvalin import DorvalinTest
from wheel import find_panel, find_wheel

DELIVERIES = 200
LONGEST = 60
# All that means something to typing, and characters of several alphabets and lengths.
ALPHABET = "abcXYZ019 {}[]()+^%~\"'\\/|<>&@#*=_-.,;:!?äöüÄÖÜß€§°²µéñçÆøЖдΩ→✓日本😀🎈"


class Deliveries(DorvalinTest):
    def free_host(self):
        self.start(settings={"WaitBeforeSend": 100})
        self.call_wheel(*self.editor.middle)
        panel = find_panel(self.stage)
        self.stage.pointer.click(panel.rect[2] - 30, panel.rect[1] + 11)
        self.stage.wait_for(lambda: find_wheel(self.stage) is None, "the wheel goes")
        self.result = self.result_field()

    def deliver(self, text):
        """Puts the text into the result line and sends it from there."""
        self.stage.clipboard.text = text
        self.stage.pointer.click(*self.result.middle)
        self.stage.keyboard.press("Home", "shift+End", "ctrl+v")
        self.stage.wait_for(lambda: self.result.text == text, f"the result line holds {text!r}")
        self.stage.keyboard.press("Return")

    def deliver_random_texts(self, editor, count):
        luck = random.Random(20261122)
        for number in range(count):
            text = "".join(luck.choice(ALPHABET) for _ in range(luck.randint(1, LONGEST)))
            before = editor.text
            self.deliver(text)
            editor.wait_for_text(before + text, seconds=10)
            if number % 10 == 9:
                self.stage.keyboard.press("Return")
                editor.wait_for_text(before + text + "\n")

    def test_no_character_is_lost_or_swapped_in_the_text_editor(self):
        self.free_host()
        self.deliver_random_texts(self.editor, DELIVERIES)

    def test_no_character_is_lost_or_swapped_in_the_word_processor(self):
        self.editor.close()
        self.editor = self.stage.open_word_processor()
        self.free_host()
        self.deliver_random_texts(self.editor, DELIVERIES // 10)
