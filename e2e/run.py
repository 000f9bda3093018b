"""Runs the end-to-end tests and counts them: run.py SUITE [NAME...]

Without names it runs every test_*.py beside it. The count goes to build/results/SUITE.json.
"""

import json
import sys
import unittest

from stage.ground import E2E, ROOT, die_with_parent

RESULTS = ROOT / "build" / "results"


class Counting(unittest.TextTestResult):
    """Counts cases: one with several failing parts is one failure."""

    def __init__(self, *arguments, **named):
        super().__init__(*arguments, **named)
        self.passed = []

    def addSuccess(self, test):
        super().addSuccess(test)
        self.passed.append(test.id())

    def count(self):
        faulty = (*self.failures, *self.errors)
        failed = {getattr(test, "test_case", test).id() for test, _ in faulty}
        failed |= {test.id() for test in self.unexpectedSuccesses}
        return {"passed": len(self.passed), "failed": sorted(failed),
                "skipped": sorted(test.id() for test, _ in self.skipped)}


def main(suite, names):
    die_with_parent()
    loader = unittest.TestLoader()
    tests = loader.loadTestsFromNames(names) if names else loader.discover(E2E)
    result = unittest.TextTestRunner(sys.stdout, resultclass=Counting, verbosity=2).run(tests)
    RESULTS.mkdir(parents=True, exist_ok=True)
    (RESULTS / f"{suite}.json").write_text(json.dumps(result.count(), indent=1), encoding="utf-8")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2:])
