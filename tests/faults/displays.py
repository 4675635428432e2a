"""The real windows on a display that goes away."""

import os
import shutil
import subprocess
import tempfile
import time

from program import PATIENCE, Skipped, expect


def plain_environment(home):
    kept = {name: os.environ[name] for name in ("PATH",)}
    return {**kept, "HOME": str(home), "XDG_RUNTIME_DIR": str(home), "QT_QPA_PLATFORM": "xcb",
            "QT_ACCESSIBILITY": "0", "LC_ALL": "C.UTF-8"}


def wait_until(condition, what):
    begin = time.monotonic()
    while not condition():
        if time.monotonic() - begin > PATIENCE:
            raise AssertionError(f"{what} doesn't come")
        time.sleep(0.02)


def start_display():
    reading, writing = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24",
                               "-nolisten", "tcp"], pass_fds=[writing], stderr=subprocess.DEVNULL)
    os.close(writing)
    with os.fdopen(reading) as number:
        return server, number.readline().strip()


def lose_display(program, life):
    """How the program ends, when its display dies `life` seconds after the settings came."""
    folder = program.folder()
    shutil.copy(program.installed / "norvane", folder)
    server, number = start_display()
    try:
        with tempfile.TemporaryFile() as said:
            run = subprocess.Popen([folder / "norvane"], stderr=said, cwd=folder,
                                   env={**plain_environment(folder), "DISPLAY": f":{number}"})
            try:
                wait_until((folder / "norvane.ini").exists, "the settings file")
                time.sleep(life)
                expect("the program still runs", run.poll(), None)
                server.kill()
                run.wait(PATIENCE)
            finally:
                run.kill()
    finally:
        server.kill()
        server.wait()
    text = (folder / "norvane.ini").read_bytes()
    if life > 0:
        expect("the settings", text, b"[Init]\r\nA1= 17\r\nA4= 9\r\n")
    expect("the settings end with their line", text.endswith(b"\r\n"), True)
    expect("left-overs", sorted(folder.glob("*.new")) + sorted(folder.glob("core*")), [])
    return run.returncode


def lost(program):
    if shutil.which("Xvfb") is None or not (program.installed / "norvane").exists():
        raise Skipped("there is no Xvfb or no desktop program")
    lives = [0, 0.5] if program.short else [0, 0.02, 0.05, 0.1, 0.2, 0.5, 1, 2, 3, 3.1, 3.3, 4, 6]
    ends = [lose_display(program, life) for life in lives]
    # By a signal it would be a negative number.
    expect("an exit status of its own", all(0 < end < 128 for end in ends), True)
    return f"{len(ends)} times: ends by itself, exit status {ends[0]}, the settings are whole"
