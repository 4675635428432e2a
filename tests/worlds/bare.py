"""A machine on which packages are missing and nobody may install any."""

import os
import subprocess

from program import PATIENCE, expect

USER = "#!/bin/sh\necho 1000\n"
NOTHING = "#!/bin/sh\nexit 1\n"


def without_sudo(program):
    tools = program.new_place()
    for name, script in (("id", USER), ("dpkg-query", NOTHING), ("apt-get", NOTHING)):
        (tools / name).write_text(script)
        (tools / name).chmod(0o755)
    os.symlink("/usr/bin/dirname", tools / "dirname")
    run = subprocess.run(["/bin/sh", program.top / "test.sh", "quick"], env={"PATH": str(tools)},
                         timeout=PATIENCE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                         text=True, check=False)
    expect("the exit status", run.returncode, 1)
    expect("what to install", "apt-get install g++ cmake" in run.stdout, True)
    return "test.sh says what to install"


WORLDS = [("packages are missing, and there is no sudo", without_sudo)]
