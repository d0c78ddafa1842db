#!/usr/bin/env python3
"""A skin on its way into the folder when the game is killed or the disk fails it, at each call that touches it.

usage: skin_faults.py INSTALL_SKIN
"""
import collections
import os
import pathlib
import re
import subprocess
import sys
import tempfile

CALLS = "openat,read,write,lseek,newfstatat,fstat,statx,access,readlink,flock,fchmod,fsync,fdatasync,ftruncate," \
        "link,linkat,rename,renameat,renameat2,unlink,mkdir,close"
ERRORS = {"write": "ENOSPC", "fsync": "EIO", "rename": "EROFS", "openat": "EACCES", "read": "EIO", "unlink": "EROFS"}
LOSES_NOTHING_AT_ALL = ("write", "fsync", "rename")  # when it fails
NEW, OLD = (f"P3 30 130 255 {f'{red} 100 50 ' * 3900}".encode() for red in (3, 200))


def install(folder, *strace):
    """Installs new.png over Art/old.png in `folder`, under strace with these options."""
    command = [sys.argv[1], folder / "new.png", folder / "Art", "old.png"]
    return subprocess.run([*(["strace", "-f", *strace] if strace else []), *command],
                          env={**os.environ, "ASAN_OPTIONS": "detect_leaks=0"}, timeout=60).returncode


def with_skins(test, *given):
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        (folder / "Art").mkdir()
        (folder / "new.png").write_bytes(NEW)
        (folder / "Art/old.png").write_bytes(OLD)
        return test(folder, *given)


def calls_of_an_installation(folder):
    """What meets each call again that touches the folder: its name and how many of that name came up to it."""
    assert install(folder, "-y", "-o", folder / "log", "-e", f"trace={CALLS}") == 0
    count = collections.Counter()
    for line in (folder / "log").read_text(errors="replace").splitlines():
        if call := re.match(r"\d+ +(\w+)\(", line):
            count[call[1]] += 1
            if str(folder) in line:
                yield call[1], count[call[1]]


def holds(path, content):
    return path.is_file() and path.read_bytes() == content


def fail(folder, call, number, fault):
    """Whether the new skin is in after that fault; the old one may go only then."""
    ended = install(folder, "-o", "/dev/null", "-e", f"trace={call}", "-e", f"inject={call}:{fault}:when={number}")
    came_in, stayed = holds(folder / "Art/new.png", NEW), holds(folder / "new.png", NEW)
    at = f"{call} {number} {fault}: {sorted(folder.rglob('*'))}"
    assert (ended < 0) == (fault == "signal=KILL"), at
    assert came_in or (stayed and holds(folder / "Art/old.png", OLD) and not (folder / "Art/new.png").exists()), at
    assert fault == "signal=KILL" or not (call in LOSES_NOTHING_AT_ALL and came_in), at
    if stayed:  # the next attempt succeeds and clears away what was left behind
        assert install(folder) == 0 and not list((folder / "Art").glob(".incoming*")), at
    return came_in


calls = with_skins(lambda folder: list(calls_of_an_installation(folder)))
assert {"openat", "write", "fsync", "rename", "unlink"} <= {call for call, _ in calls}, calls
ends = [with_skins(fail, *call, "signal=KILL") for call in calls]
assert True in ends and False in ends, ends
for call, number in calls:
    if call in ERRORS:
        with_skins(fail, call, number, f"error={ERRORS[call]}")
