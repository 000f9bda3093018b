"""The road of a request: from a held button to text in the user's window."""

from dorvalin import DorvalinTest
from stage.ground import SCREEN_SIZE
from wheel import PROGRAM, bubble_of_column, find_column, find_panel, find_wheel, opened_wheel

SIDEBAR = 20  # pixels that a ring leaves free at the right
ONLY = {"BothBtn": 0, "MiddleBtn": 0, "RightBtn": 0, "LeftBtn": 0, "ScrollKey": 0}


class Ring(DorvalinTest):
    def beside_the_text(self):
        """In the editor's status bar. A display gives the release of a button to the window that saw the
        press, even when the wheel covers it: the text itself would open its menu."""
        left, _, _, bottom = self.editor.window.rect
        return left + 300, bottom - 12

    def test_the_middle_button_brings_the_wheel_and_a_result_arrives(self):
        self.store("", LastFunction=2)
        self.start()
        wheel = self.call_wheel(*self.editor.middle, active="Zeichen")
        wheel.choose("Rechner")
        self.stage.screenshot("road-calculator")
        self.calculate("6*7")
        self.expect_arrived("42")
        self.expect_no_window()

    def expect_road_by(self, setting, *buttons):
        self.start(access={**ONLY, setting: 1})
        self.call_wheel(*self.beside_the_text(), *buttons)
        self.calculate("6*7")
        self.expect_arrived("42")

    def test_both_held_buttons_bring_the_wheel(self):
        self.expect_road_by("BothBtn", "left", "right")

    def test_the_held_right_button_brings_the_wheel(self):
        self.expect_road_by("RightBtn", "right")

    def test_the_held_left_button_brings_the_wheel(self):
        self.expect_road_by("LeftBtn", "left")

    def test_scroll_lock_brings_the_wheel_and_stays_as_it_was(self):
        # The release has to come while the wheel has the keyboard already, as Wine takes a key for held
        # that goes up on the way, and before the third tick, when a key that is held on switches the
        # lamp again.
        self.start(access={**ONLY, "ScrollKey": 1}, settings={"DontAnimate": 1, "AnimateFctnsNormal": 0})
        lamp = self.stage.scroll_lock()
        self.stage.pointer.move_to(*self.editor.middle)
        self.stage.keyboard.hold("Scroll_Lock")
        self.stage.wait_for(lambda: find_panel(self.stage) == self.stage.foreground() is not None,
                            "the wheel opens", 15)
        self.stage.keyboard.release("Scroll_Lock")
        opened_wheel(self.stage, "Rechner")
        self.assertEqual(self.stage.scroll_lock(), lamp)
        self.calculate("6*7")
        self.expect_arrived("42")

    def test_drags_of_seven_pixels_open_nothing(self):
        self.start(access={**ONLY, "BothBtn": 1, "MiddleBtn": 1, "RightBtn": 1})
        x, y = self.editor.middle
        for buttons in (("left", "right"), ("middle",), ("right",)):
            with self.subTest(buttons):
                self.stage.pointer.move_to(x, y)
                with self.stage.pointer.holding(*buttons):
                    # The first tick of a hold has noted the place before the pointer moves.
                    self.pause(0.2)
                    self.stage.pointer.move_by(4, 3)
                    self.pause(1.0)
                    self.assertIsNone(find_wheel(self.stage))
                self.stage.keyboard.press("Escape")  # what the release of a button may have opened

    def test_at_every_edge_it_is_wholly_visible_and_flipped_where_due(self):
        self.start()
        self.editor.close()
        right, bottom = SCREEN_SIZE
        for x in (2, right // 2, right - 3):
            for y in (2, bottom // 2 + 80, bottom - 3):
                with self.subTest(x=x, y=y):
                    wheel, panel = self.call_wheel(x, y).window, find_panel(self.stage)
                    for window in (wheel, panel):
                        left, top = window.rect[:2]
                        self.assertTrue(0 <= left <= right - window.width and 0 <= top <= bottom - window.height,
                                        window)
                    self.assertLessEqual(wheel.rect[2], right - SIDEBAR)
                    if y > bottom // 2:
                        self.assertEqual(panel.rect[3], wheel.rect[1] + 20)
                    else:
                        self.assertEqual(panel.rect[1], wheel.rect[3] - 20)
                    self.stage.screenshot(f"place-{x}-{y}")
                    self.stage.keyboard.press("Escape")
                    self.stage.pointer.click(*wheel.middle)
                    self.expect_no_window()

    def test_a_click_elsewhere_and_on_the_middle_close_the_wheel_but_not_the_gestures_own_release(self):
        self.start()
        self.call_wheel(*self.editor.middle)
        self.pause(0.5)
        self.assertIsNotNone(find_wheel(self.stage))
        left, top = self.editor.field.rect[:2]
        self.stage.pointer.click(left + 20, top + 20)
        self.expect_no_window()

        wheel = self.call_wheel(*self.editor.middle)
        self.stage.pointer.click(*wheel.window.middle)
        self.expect_no_window()
        self.stage.wait_for(lambda: self.stage.foreground() == self.editor.window, "the editor has the focus")

    def test_with_stay_after_send_it_stands_free_without_the_focus(self):
        self.start(settings={"StayAfterSend": 1})
        self.call_wheel(*self.editor.middle)
        self.calculate("6*7")
        self.expect_arrived("42")
        self.stage.wait_for(lambda: find_panel(self.stage), "the panel comes back")
        self.assertIsNone(find_wheel(self.stage))
        self.assertEqual(self.stage.foreground(), self.editor.window)


class Sidebar(DorvalinTest):
    def reach_edge(self, click):
        # A pointer that rests at the edge 400 ms after the start opens the sidebar in every mode.
        self.pause(0.6)
        self.stage.pointer.move_to(1000, 400)
        self.stage.pointer.move_to(1023, 400)
        if click:
            self.pause(0.6)
            self.assertIsNone(find_column(self.stage))
            self.stage.pointer.click()
        self.stage.wait_for(lambda: find_column(self.stage) and self.fields(), "the column opens with its panel", 15)
        self.stage.wait_until_still()
        self.assertEqual(self.stage.foreground(), self.editor.window, "the target keeps the focus")

    def expect_road_in_mode(self, mode):
        self.start(settings={"RightBarMode": mode})
        self.reach_edge(click=mode == 1)
        self.stage.screenshot(f"sidebar-{mode}")
        self.stage.pointer.click(*self.term_field().middle)
        self.calculate("6*7")
        self.expect_arrived("42")
        self.expect_no_window()

    def test_contact_with_the_edge_opens_the_column_and_a_result_arrives(self):
        self.expect_road_in_mode(0)

    def test_a_click_at_the_edge_opens_the_column_and_a_result_arrives(self):
        self.expect_road_in_mode(1)

    def test_a_rest_at_the_edge_opens_the_column_and_a_result_arrives(self):
        self.expect_road_in_mode(2)

    def test_another_bubble_of_the_column_opens_its_panel_and_leaving_closes(self):
        self.start(settings={"RightBarMode": 0})
        self.reach_edge(click=False)
        panel = find_panel(self.stage)
        self.stage.pointer.click(*bubble_of_column(find_column(self.stage), "Zeichen", active="Rechner"))
        self.stage.wait_for(lambda: find_panel(self.stage) not in (None, panel), "another panel opens")
        self.stage.pointer.move_to(100, 100)
        self.expect_no_window()

    def test_the_ring_flies_into_the_column_with_its_panel(self):
        self.start()
        self.call_wheel(*self.editor.middle)
        self.stage.keyboard.type("6*7")
        panel = find_panel(self.stage)
        self.stage.pointer.click(panel.rect[2] - 49, panel.rect[1] + 11)
        self.stage.wait_for(lambda: find_wheel(self.stage) is None and find_column(self.stage),
                            "the column takes over", 15)
        self.stage.wait_until_still()
        self.stage.screenshot("column")
        self.assertEqual(self.term_field().text, "6×7")
        self.assertEqual(len(self.stage.windows(program=PROGRAM)), 3)
