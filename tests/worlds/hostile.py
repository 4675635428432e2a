"""Folders that others have a hand in, and the settings file in them."""

import contextlib
import fcntl
import os
import shutil
import subprocess
import time

from program import PATIENCE, Skipped, expect, set_hours

USER = 65534
STRANGER = 65533
GROUP = 65532
FRESH = b"[Init]\r\nA1= 17\r\nA4= 9\r\n"
KEPT = FRESH + b"[Setting]\r\nHr_Day= 7\r\nDays= 30\r\n"
PRIVATE = b"what the user has written elsewhere\n"
CHANGE = "start\n" + set_hours(7)
TRIES = 10


def as_user(user=USER, umask=0o022):
    if os.getuid() != 0:
        raise Skipped("only root can be several users")
    return {"user": user, "group": GROUP, "extra_groups": [], "umask": umask}


def owned(path, user, mode=None):
    os.chown(path, user, GROUP, follow_symlinks=False)
    if mode is not None:
        path.chmod(mode)
    return path


def shared_folder(program, mode=0o777):
    """A folder of the stranger's in which everybody may write."""
    return owned(program.folder(), STRANGER, mode)


def private_file(program):
    """Such as the victim of a link would be."""
    place = owned(program.new_place(), USER, 0o755)
    (place / "private").write_bytes(PRIVATE)
    return owned(place / "private", USER, 0o600)


def change(program, folder, user=USER, **options):
    """Sets the hours to 7."""
    program.play(folder, CHANGE, **as_user(user), **options)


def change_within(seconds, program, folder, **options):
    """The quickest of some changes counts: a busy machine holds up one of them, a wait all."""
    quickest = seconds
    for _ in range(TRIES):
        (folder / "norvane.ini").unlink(missing_ok=True)
        begin = time.monotonic()
        change(program, folder, **options)
        quickest = min(quickest, time.monotonic() - begin)
        if quickest < seconds:
            return
    raise AssertionError(f"each of {TRIES} changes takes {seconds} seconds or more")


def expect_kept(folder, *others):
    expect("the settings", (folder / "norvane.ini").read_bytes(), KEPT)
    left = [name.name for name in folder.glob("*.new") if name.name not in others]
    expect("left-overs", left, [])


def lock_of_a_stranger(program):
    as_user()
    folder = shared_folder(program)
    held = os.open(folder, os.O_RDONLY)
    try:
        fcntl.flock(held, fcntl.LOCK_EX)
        change_within(2.5, program, folder)
    finally:
        os.close(held)
    expect_kept(folder)
    return "written without a lock after a fifth of a second"


def no_locks(program):
    library = program.build / "tests/worlds/no_locks.so"
    folder = owned(program.folder(), USER)
    reachable = program.new_place() / "no_locks.so"
    reachable.write_bytes(library.read_bytes())
    change_within(0.8, program, folder, env={**os.environ, "LD_PRELOAD": str(reachable)})
    expect_kept(folder)
    return "written without one, at once"


def planted_link(program):
    victim = private_file(program)
    folder = owned(program.folder(), 0, 0o1777)
    (folder / "norvane.ini").symlink_to(victim)
    owned(folder / "norvane.ini", STRANGER)
    change(program, folder)
    expect("the user's other file", victim.read_bytes(), PRIVATE)
    return "what it leads to stays; nothing is kept"


def folder_owners_link(program):
    victim = private_file(program)
    folder = shared_folder(program)
    (folder / "norvane.ini").symlink_to(victim)
    owned(folder / "norvane.ini", STRANGER)
    change(program, folder)
    expect("the user's other file", victim.read_bytes(), PRIVATE)
    return "what it leads to stays, though the whole folder is the stranger's"


def own_link(program):
    folder = owned(program.folder(), USER)
    elsewhere = owned(program.new_place(), USER)
    (folder / "norvane.ini").symlink_to(elsewhere / "kept.ini")
    owned(folder / "norvane.ini", USER)
    change(program, folder)
    expect("a link", (folder / "norvane.ini").is_symlink(), True)
    expect_kept(folder)
    return "stays one, and what it leads to is written"


def roots_link(program):
    """As whoever has installed the program may have laid it."""
    folder = owned(program.folder(), 0, 0o755)
    elsewhere = owned(program.new_place(), USER)
    (folder / "norvane.ini").symlink_to(elsewhere / "kept.ini")
    change(program, folder)
    expect("a link", (folder / "norvane.ini").is_symlink(), True)
    expect_kept(folder)
    return "stays one, and what it leads to is written"


def foretold_link(program):
    victim = private_file(program)
    folder = shared_folder(program)
    (folder / "norvane.ini.new").symlink_to(victim)
    owned(folder / "norvane.ini.new", STRANGER)
    change(program, folder)
    expect("the user's other file", victim.read_bytes(), PRIVATE)
    expect_kept(folder, "norvane.ini.new")
    return "nobody can foretell the name of the new file"


def foretold_pipe(program):
    folder = shared_folder(program)
    os.mkfifo(folder / "norvane.ini.new")
    change(program, folder)
    expect_kept(folder, "norvane.ini.new")
    return "is left alone"


def pipe(program):
    folder = owned(program.folder(), USER)
    os.mkfifo(folder / "norvane.ini")
    owned(folder / "norvane.ini", USER, 0o666)
    change(program, folder)
    expect("a pipe", (folder / "norvane.ini").is_fifo(), True)
    return "default settings, and nothing is kept"


def hard_link(program):
    victim = private_file(program)
    folder = shared_folder(program)
    os.link(victim, folder / "norvane.ini")
    change(program, folder)
    expect("the other name's bytes", victim.read_bytes(), PRIVATE)
    expect("the settings", (folder / "norvane.ini").read_bytes(),
           PRIVATE.replace(b"\n", b"\n" + KEPT.replace(b"\r", b"")))
    return "becomes a file of its own, the other name keeps the old one"


def group_share(program):
    folder = owned(program.folder(), STRANGER, 0o2770)
    file = folder / "norvane.ini"
    file.write_bytes(FRESH)
    owned(file, STRANGER, 0o660)
    change(program, folder)
    expect_kept(folder)
    expect("group and permissions", (file.stat().st_gid, file.stat().st_mode & 0o777),
           (GROUP, 0o660))
    program.play(folder, "start\n" + set_hours(9), **as_user(STRANGER))
    expect("the hours of the other", program.value(folder, "Hr_Day"), b"9")
    return "both write, group and permissions stay"


def anothers_file(program):
    folder = shared_folder(program)
    file = folder / "norvane.ini"
    file.write_bytes(FRESH)
    owned(file, STRANGER, 0o644)
    change(program, folder)
    expect("the settings", file.read_bytes(), FRESH)
    expect("owner", file.stat().st_uid, STRANGER)
    expect("left-overs", list(folder.glob("*.new")), [])
    return "that the user may not write to stays, though the folder would let it go"


def group_of_others(program):
    """Everybody may write, but only root and the group's own may give a file to the group."""
    folder = shared_folder(program)
    file = folder / "norvane.ini"
    file.write_bytes(FRESH)
    os.chown(file, STRANGER, STRANGER)
    file.chmod(0o666)
    change(program, folder)
    expect("the settings", file.read_bytes(), FRESH)
    expect("owner and group", (file.stat().st_uid, file.stat().st_gid), (STRANGER, STRANGER))
    expect("left-overs", list(folder.glob("*.new")), [])
    return "whose group the user isn't in can't be replaced and stays"


def sticky(program):
    folder = owned(program.folder(), 0, 0o1777)
    file = folder / "norvane.ini"
    file.write_bytes(FRESH)
    owned(file, STRANGER, 0o666)
    change(program, folder)
    expect("the settings", file.read_bytes(), FRESH)
    expect("left-overs", list(folder.glob("*.new")), [])
    return "what isn't the user's own can't be replaced and stays"


def unreadable_folder(program):
    folder = owned(program.folder(), USER, 0o755)
    change(program, folder)
    (folder / "norvane.ini").write_bytes(FRESH)
    folder.chmod(0o300)
    # No file can be listed, so that the language files are missing and the start ends.
    program.play(folder, "start\n", **as_user())
    folder.chmod(0o755)
    expect("the settings", (folder / "norvane.ini").read_bytes(), FRESH)
    return "ends as where no language file is; the settings stay"


@contextlib.contextmanager
def case_blind_disk(program):
    tools = [shutil.which(name, path=f"{os.environ['PATH']}:/usr/sbin")
             for name in ("mkfs.exfat", "mount.exfat-fuse", "losetup")]
    if None in tools:
        raise Skipped("exfatprogs or exfat-fuse is missing")
    make, mount, loop = tools
    place, image = program.new_place(), program.new_place() / "image"
    with open(image, "wb") as file:
        file.truncate(4 << 20)
    quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
    subprocess.run([make, image], check=True, **quiet)
    device = subprocess.run([loop, "-f", "--show", image], stdout=subprocess.PIPE, check=False,
                            stderr=subprocess.DEVNULL, text=True).stdout.strip()
    if not device:
        raise Skipped("no disk can be mounted here")
    try:
        owner = f"uid={USER},gid={GROUP},allow_other"
        if subprocess.run([mount, "-o", owner, device, place], check=False, **quiet).returncode:
            raise Skipped("no such disk can be mounted here")
        try:
            yield place
        finally:
            subprocess.run(["umount", place], check=True)
    finally:
        subprocess.run([loop, "-d", device], check=True)


def case_blind(program):
    """A disk that takes norvane.ini and NORVANE.INI for the same, and knows no permissions."""
    as_user()
    with case_blind_disk(program) as place:
        program.fill(place)
        (place / "NORVANE.INI").write_bytes(FRESH)
        change(program, place)
        expect_kept(place)
        names = [name for name in os.listdir(place) if name.lower().startswith("norvane.ini")]
        expect("the files of that name", len(names), 1)
    return "one file, and it is written"


RACER = """
import os, sys
folder, victim = sys.argv[1:]
names = ["norvane.ini", "norvane.ini.new", "norvane.ini.tmp"]
while True:
    for name in names:
        path = os.path.join(folder, name)
        for plant in (lambda: os.symlink(victim, path), lambda: os.mkfifo(path),
                      lambda: os.symlink("/dev/zero", path), lambda: os.mkdir(path)):
            try:
                plant()
            except OSError:
                pass
            try:
                os.rmdir(path) if os.path.isdir(path) else os.remove(path)
            except OSError:
                pass
"""


def racer(program):
    victim = private_file(program)
    folder = shared_folder(program)
    who = as_user(STRANGER)
    times = 10 if program.short else 200
    with subprocess.Popen(["python3", "-c", RACER, folder, victim], **who) as other:
        try:
            hours = "".join(set_hours(1 + number % 20) for number in range(times))
            for _ in range(3):
                program.play(folder, "start\n" + hours, **as_user())
        finally:
            other.kill()
    expect("the user's other file", victim.read_bytes(), PRIVATE)
    expect("left-overs", [name for name in folder.glob("norvane.ini.*")
                          if name.name not in ("norvane.ini.new", "norvane.ini.tmp")], [])
    return f"{3 * times} changes beside it: nothing hangs, no other file is touched"


def rests(program):
    folder = owned(program.folder(), USER)
    digits = "0123456789abcdef" * 2
    old = folder / f"norvane.ini.{digits}.new"
    young = folder / f"norvane.ini.{digits[::-1]}.new"
    anothers = folder / f"norvane.ini.{digits[1:]}0.new"
    named = folder / "norvane.ini.mine.new"
    for rest in (old, young, anothers, named):
        rest.write_bytes(b"half a file")
        owned(rest, STRANGER if rest is anothers else USER)
        if rest is not young:
            os.utime(rest, (time.time() - 700,) * 2)
    change(program, folder)
    expect_kept(folder, young.name, anothers.name, named.name)
    expect("what isn't a rest", all(rest.exists() for rest in (young, anothers, named)), True)
    return "go with a later writing, when they are ten minutes old and the user's own"


WORLDS = [
    ("a folder that a stranger has locked", lock_of_a_stranger),
    ("a folder that can't be locked", no_locks),
    ("settings that a stranger's link leads to", planted_link),
    ("settings that a link of the folder's owner leads to", folder_owners_link),
    ("settings that the user's own link leads to", own_link),
    ("settings that a link of root's leads to", roots_link),
    ("a link under a foretold name", foretold_link),
    ("a pipe under a foretold name", foretold_pipe),
    ("a pipe for settings", pipe),
    ("settings with a second name", hard_link),
    ("settings that a group shares", group_share),
    ("settings of another user", anothers_file),
    ("settings of a group that the user isn't in", group_of_others),
    ("another user's settings in a sticky folder", sticky),
    ("a folder that can't be looked into", unreadable_folder),
    ("a disk that is blind to case", case_blind),
    ("another user who races", racer),
    ("what killed runs have left", rests),
]
