"""Runs a command with a stage around it: python3 -m stage COMMAND [ARGUMENT...]

The command finds the screen and Windows by its environment; tools/wine-run uses them.
"""

import os
import subprocess
import sys

from .ground import die_with_parent
from .stage import Stage


def main():
    die_with_parent()
    with Stage() as stage:
        # The caller's own home folder stays in use by compilers and their like.
        env = {**os.environ, "DORVALIN_STAGE": str(stage.folder)}
        for name, value in stage.environment.items():
            if value != os.environ.get(name):
                env["DORVALIN_STAGE_" + name] = value
        return subprocess.run(sys.argv[1:], env=env, check=False).returncode


if __name__ == "__main__":
    sys.exit(main() if len(sys.argv) > 1 else __doc__)
