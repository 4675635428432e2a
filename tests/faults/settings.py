"""The settings file while two copies of the program write it, and are killed in the middle."""

import random
import subprocess

from program import PATIENCE, expect, set_hours, values_of

SENTINELS = [f"; line {number} of somebody else" for number in range(300)]
BEFORE = ("[Init]\r\nA1= 17\r\nA4= 9\r\nLanguage=en\r\n[Setting]\r\nHr_Day= 24\r\nDays= 30\r\n" +
          "".join(line + "\r\n" for line in SENTINELS))
LANGUAGES = ["de", "en", "fr"]
HOURS = range(1, 21)


def language_script(times):
    """Chooses languages by turns, the last one is slot 2."""
    choices = "".join(f"click Lang.Label2({1 + number % 2})\n" for number in range(times))
    return "start\nclick lblMenu(1)\n" + choices


def hours_script(times):
    return "start\n" + "".join(set_hours(HOURS[number % len(HOURS)]) for number in range(times))


def expect_whole(file):
    """Not torn, and no key lost or doubled."""
    text = file.read_bytes().decode()
    lines = text.split("\r\n")
    expect("the number of lines", len(lines), BEFORE.count("\r\n") + 1)
    expect("somebody else's lines", [line for line in lines if line[:1] == ";"], SENTINELS)
    values = values_of(text)
    expect("A1", values.get("A1"), ["17"])
    expect("A4", values.get("A4"), ["9"])
    expect("Days", values.get("Days"), ["30"])
    language = values.get("Language", [])
    expect("Language", len(language) == 1 and language[0] in LANGUAGES, True)
    hours = values.get("Hr_Day", [])
    expect("Hr_Day", len(hours) == 1 and int(hours[0]) in [24, *HOURS], True)
    return text


def killed(program):
    rounds = 20 if program.short else 1000
    chance = random.Random(1)
    changed = survivors = 0
    folder = program.folder()
    file = folder / "norvane.ini"
    scripts = [language_script(20).encode(), hours_script(20).encode()]
    longest_life = 0.1
    for number in range(rounds):
        file.write_bytes(BEFORE.encode())
        writers = [program.start(folder) for _ in scripts]
        for writer, script in zip(writers, scripts):
            writer.stdin.write(script)
            writer.stdin.close()
            writer.stdin = None
        spared = writers[0] if number % 4 == 0 else None
        try:
            writers[1].wait(chance.random() * longest_life)
        except subprocess.TimeoutExpired:
            pass
        for writer in writers:
            if writer is not spared:
                writer.kill()
        for writer in writers:
            writer.communicate(timeout=PATIENCE)
        text = expect_whole(file)
        changed += text != BEFORE
        if spared:
            # Nobody is locked out by the one that died.
            expect("the survivor's exit status", spared.returncode, 0)
            expect("the survivor's last language", values_of(text)["Language"], ["fr"])
            survivors += 1
    expect("a round in which something was written", changed > rounds // 4, True)
    return (f"{rounds} rounds, {changed} with something written: never torn, no key lost; "
            f"{survivors} survivors wrote on")


def both_to_their_end(program):
    times = 25 if program.short else 300
    folder = program.folder()
    file = folder / "norvane.ini"
    file.write_bytes(BEFORE.encode())
    writers = [program.start(folder), program.start(folder)]
    scripts = [language_script(2 * times), hours_script(times)]
    for writer, script in zip(writers, scripts):
        writer.stdin.write(script.encode())
        writer.stdin.close()
        writer.stdin = None
    for writer in writers:
        writer.communicate(timeout=PATIENCE)
        expect("a writer's exit status", writer.returncode, 0)
    values = values_of(expect_whole(file))
    expect("the last language", values["Language"], ["fr"])
    expect("the last hours", values["Hr_Day"], [str(HOURS[(times - 1) % len(HOURS)])])
    expect("what lies beside it", (folder / "norvane.ini.new").exists(), False)
    return f"{2 * times} and {times} writings at once: both last ones are there"
