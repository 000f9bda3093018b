"""The road of a request: from a held button to text in the user's window."""

from dorvalin import DorvalinTest, bubble_of_column
from wheel import PROGRAM, find_panel, find_wheel

ONLY = {"BothBtn": 0, "MiddleBtn": 0, "RightBtn": 0, "LeftBtn": 0, "ScrollKey": 0}


class Gestures(DorvalinTest):
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
        self.opened_wheel()
        self.assertEqual(self.stage.scroll_lock(), lamp)
        self.calculate("6*7")
        self.expect_arrived("42")

    def test_drags_of_seven_pixels_open_nothing(self):
        self.start(access={**ONLY, "BothBtn": 1, "MiddleBtn": 1, "RightBtn": 1})
        x, y = self.editor.middle
        for buttons in (("left", "right"), ("middle",), ("right",)):
            with self.subTest(buttons):
                self.stage.pointer.move_to(x, y)
                with self.holding(*buttons):
                    # The first tick of a hold has noted the place before the pointer moves.
                    self.pause(0.2)
                    self.stage.pointer.move_by(4, 3)
                    self.pause(1.0)
                    self.assertIsNone(find_wheel(self.stage))
                self.stage.keyboard.press("Escape")  # what the release of a button may have opened

    def test_a_click_elsewhere_closes_the_wheel_but_the_gestures_own_release_does_not(self):
        self.start()
        self.call_wheel(*self.editor.middle)
        self.pause(0.5)
        self.assertIsNotNone(find_wheel(self.stage))
        left, top = self.editor.field.rect[:2]
        self.stage.pointer.click(left + 20, top + 20)
        self.expect_no_window()

    def test_closing_the_wheel_gives_the_focus_back(self):
        self.start()
        wheel = self.call_wheel(*self.editor.middle)
        self.stage.pointer.click(*wheel.window.middle)
        self.expect_no_window()
        self.stage.wait_for(lambda: self.stage.foreground() == self.editor.window, "the editor has the focus")


class Host(DorvalinTest):
    def test_set_free_it_delivers_three_times_and_stays(self):
        self.start()
        wheel = self.call_wheel(*self.editor.middle)
        panel = find_panel(self.stage)
        # Free is the second button from the right in the row at the top.
        self.stage.pointer.click(panel.rect[2] - 30, panel.rect[1] + 11)
        self.stage.wait_for(lambda: find_wheel(self.stage) is None, "the wheel goes")
        self.assertIsNotNone(wheel)
        for time in range(1, 4):
            self.stage.pointer.click(*self.term_field().middle)
            self.calculate("6*7")
            self.expect_arrived("42" * time)
            self.stage.wait_for(lambda: find_panel(self.stage) == panel, "the panel stays")
            self.stage.wait_until_still()

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
            self.assertIsNone(self.column())
            self.stage.pointer.click()
        self.stage.wait_for(lambda: self.column() and self.fields(), "the column opens with its panel", 15)
        self.stage.wait_until_still()

    def expect_road_in_mode(self, mode):
        self.start(settings={"RightBarMode": mode})
        self.reach_edge(click=mode == 1)
        self.assertEqual(self.stage.foreground(), self.editor.window)
        self.stage.screenshot(f"sidebar-{mode}")
        self.stage.pointer.click(*self.term_field().middle)
        self.calculate("6*7")
        self.expect_arrived("42")
        self.expect_no_window()

    def test_contact_with_the_edge_opens_the_column_and_the_target_keeps_the_focus(self):
        self.expect_road_in_mode(0)

    def test_a_click_at_the_edge_opens_the_column_and_the_target_keeps_the_focus(self):
        self.expect_road_in_mode(1)

    def test_a_rest_at_the_edge_opens_the_column_and_the_target_keeps_the_focus(self):
        self.expect_road_in_mode(2)

    def test_another_bubble_opens_its_panel_and_leaving_closes(self):
        self.start(settings={"RightBarMode": 0})
        self.reach_edge(click=False)
        panel = find_panel(self.stage)
        self.stage.pointer.click(*bubble_of_column(self.column(), "Zeichen", "Rechner"))
        self.stage.wait_for(lambda: find_panel(self.stage) not in (None, panel), "another panel opens")
        self.stage.pointer.move_to(100, 100)
        self.expect_no_window()

    def test_the_ring_flies_into_the_column_with_its_panel(self):
        self.start()
        self.call_wheel(*self.editor.middle)
        self.stage.keyboard.type("6*7")
        panel = find_panel(self.stage)
        self.stage.pointer.click(panel.rect[2] - 49, panel.rect[1] + 11)
        self.stage.wait_for(lambda: find_wheel(self.stage) is None and self.column(), "the column takes over", 15)
        self.stage.wait_until_still()
        self.stage.screenshot("column")
        self.assertEqual(self.term_field().text, "6×7")
        self.assertEqual(len(self.stage.windows(program=PROGRAM)), 3)
