"""The frame of the end-to-end tests."""

import unittest

from .stage import Stage


class StageTest(unittest.TestCase):
    """Tests of one class share a stage; each begins without programs and with an empty desktop.

    `fresh = True` in a class gives every test a stage of its own: files and registry untouched.
    """

    fresh = False
    stage = None

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        if not cls.fresh:
            cls.stage = cls.enterClassContext(Stage())

    def setUp(self):
        super().setUp()
        if self.fresh:
            self.stage = self.enterContext(Stage())
        self.addCleanup(self.stage.end_programs)

    def _callTestMethod(self, method):
        try:
            method()
        except Exception:
            self.stage.screenshot(f"failed-{type(self).__name__}-{self._testMethodName}")
            raise
