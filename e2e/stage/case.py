"""The frame of the end-to-end tests."""

import unittest

from .stage import Stage


class StageTest(unittest.TestCase):
    """Tests of one class share a stage; each begins without programs and with an empty desktop."""

    stage = None

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.stage = cls.enterClassContext(Stage())

    def setUp(self):
        super().setUp()
        self.addCleanup(self.stage.end_programs)

    def _callTestMethod(self, method):
        try:
            method()
        except Exception:
            self.stage.screenshot(f"failed-{type(self).__name__}-{self._testMethodName}")
            raise
