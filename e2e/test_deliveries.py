"""Text arrives to the letter, whatever it holds."""

import random

from dorvalin import DorvalinTest
from wheel import find_panel

DELIVERIES = 200
LONGEST = 60
# All that means something to typing, and characters of several alphabets and lengths.
ALPHABET = "abcXYZ019 {}[]()+^%~\"'\\/|<>&@#*=_-.,;:!?äöüÄÖÜß€§°²µéñçÆøЖдΩ→✓日本😀🎈"


class Deliveries(DorvalinTest):
    def free_host(self):
        self.start(settings={"WaitBeforeSend": 100})
        self.call_wheel(*self.editor.middle)
        panel = self.set_free()
        self.result = self.result_field()
        self.title_row = panel.middle[0], panel.rect[1] + 11
        self.face = self.stage.pixel(*self.title_row)

    def panel_is_back(self):
        panel = find_panel(self.stage)
        # The screen lags behind: a click that comes too early would go to the window behind.
        return panel is not None and panel.enabled and self.stage.pixel(*self.title_row) == self.face

    def deliver(self, text):
        """Puts the text into the result line, as the user may, and sends it from there."""
        self.stage.wait_for(self.panel_is_back, "the panel is back from the delivery before")
        self.stage.pointer.click(*self.result.middle)
        self.stage.wait_for(lambda: self.stage.focus() == self.result, "the result line has the keys")
        self.result.write(text)
        self.stage.keyboard.press("Return")

    def deliver_random_texts(self, editor, count):
        luck = random.Random(20261122)
        for number in range(count):
            text = "".join(luck.choice(ALPHABET) for _ in range(luck.randint(1, LONGEST)))
            if number % 10 == 0:
                editor.field.write("")  # long lines slow every target down
            before = editor.text
            self.deliver(text)
            editor.wait_for_text(before + text, seconds=10)

    def test_no_character_is_lost_or_swapped_in_the_text_editor(self):
        self.free_host()
        self.deliver_random_texts(self.editor, DELIVERIES)

    def test_no_character_is_lost_or_swapped_in_the_word_processor(self):
        self.editor.close()
        self.editor = self.stage.open_word_processor()
        self.free_host()
        self.deliver_random_texts(self.editor, DELIVERIES // 10)
