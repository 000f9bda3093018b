"""One program for a user: the second start, and the end."""

from dorvalin import DorvalinTest
from stage.ground import SCREEN_SIZE
from wheel import PROGRAM, find_wheel

NOTICE = (
    "Tolvo Dorvalin läuft bereits im Hintergrund und ist wartet darauf, aufgerufen zu werden. "
    "Um Dorvalin jetzt aufzurufen, haben Sie folgende Möglichkeiten:\n"
    "- Drücken Sie gleichzeitig die linke und die rechte Maustaste und halten Sie sie gedrückt\n"
    "- Drücken Sie die mittlere Maustaste/das Mausrad und halten Sie sie/es gedrückt\n"
    "- Drücken Sie die Rollen-/ScrollLock-Taste auf der Tastatur und halten Sie sie gedrückt")


class Instances(DorvalinTest):
    def test_a_second_start_gives_the_notice_and_leaves_the_first_alone(self):
        self.start()
        second = self.stage.start_dorvalin()
        box = self.stage.wait_for(self.stage.message_box, "the notice comes", 15)
        self.assertEqual((box.title, box.text, box.buttons), ("Tolvo Dorvalin", NOTICE, ["OK"]))
        self.stage.screenshot("second-instance")
        box.answer("OK")
        self.assertEqual(second.wait(), 0)
        self.call_wheel(*self.editor.middle)
        self.calculate("6*7")
        self.expect_arrived("42")

    def test_the_notice_comes_while_the_first_one_has_its_wheel_open(self):
        self.start()
        self.call_wheel(*self.editor.middle)
        second = self.stage.start_dorvalin()
        self.stage.wait_for(self.stage.message_box, "the notice comes", 15).answer("OK")
        self.assertEqual(second.wait(), 0)
        self.assertIsNone(self.program.exit_code)

    def test_quitting_from_the_task_bar_leaves_no_process(self):
        self.start()
        self.stage.pointer.click(SCREEN_SIZE[0] - 11, SCREEN_SIZE[1] - 10, button="right")
        menu = self.stage.wait_for_window(class_name="#32768")
        self.stage.wait_until_still()
        self.stage.screenshot("task-menu")
        # The last entry quits.
        self.stage.pointer.click(menu.middle[0], menu.rect[3] - 12)
        self.assertEqual(self.program.wait(), 0)
        self.assertEqual(self.stage.windows(program=PROGRAM), [])

    def test_the_task_bar_icon_opens_the_wheel(self):
        self.start()
        self.stage.pointer.click(SCREEN_SIZE[0] - 11, SCREEN_SIZE[1] - 10)
        self.stage.wait_for(lambda: find_wheel(self.stage), "the wheel opens", 15)
