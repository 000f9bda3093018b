"""Wheel and panel at every edge of the screen."""

from dorvalin import DorvalinTest
from stage.ground import SCREEN_SIZE
from wheel import find_panel, find_wheel

RIGHT, BOTTOM = SCREEN_SIZE[0] - 3, SCREEN_SIZE[1] - 3
MIDDLE = (SCREEN_SIZE[0] // 2, SCREEN_SIZE[1] // 2)
SIDEBAR = 20  # pixels that a ring leaves free at the right


class Edges(DorvalinTest):
    def test_everything_is_wholly_visible_and_flipped_where_due(self):
        self.start()
        self.editor.close()
        for x in (2, MIDDLE[0], RIGHT):
            for y in (2, MIDDLE[1] + 80, BOTTOM):
                with self.subTest(x=x, y=y):
                    self.call_wheel(x, y)
                    self.expect_visible_at(y)
                    self.stage.screenshot(f"place-{x}-{y}")
                    self.stage.keyboard.press("Escape")
                    self.stage.pointer.click(*find_wheel(self.stage).middle)
                    self.expect_no_window()

    def expect_visible_at(self, y):
        wheel, panel = find_wheel(self.stage), find_panel(self.stage)
        for window in (wheel, panel):
            left, top, right, bottom = window.rect
            self.assertTrue(0 <= left and 0 <= top and right <= SCREEN_SIZE[0] and bottom <= SCREEN_SIZE[1],
                            window)
        self.assertLessEqual(wheel.rect[2], SCREEN_SIZE[0] - SIDEBAR)
        if y > MIDDLE[1]:
            self.assertEqual(panel.rect[3], wheel.rect[1] + 20)
        else:
            self.assertEqual(panel.rect[1], wheel.rect[3] - 20)
