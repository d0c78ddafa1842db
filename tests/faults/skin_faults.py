# A skin on its way into the folder when the game is killed or the disk fails it, at each of the calls by which the
# system is asked. usage: skin_faults.py INSTALL_SKIN

import collections
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ERRORS = {"write": "ENOSPC", "fsync": "EIO", "rename": "EROFS", "openat": "EACCES", "read": "EIO", "unlink": "EROFS"}
CALLS = [*ERRORS, "newfstatat", "fstat", "statx", "access", "readlink", "flock", "lseek", "fchmod", "ftruncate", "mkdir", "close"]


# The skin "new" comes from outside in place of "old"; the exit status, and where each of the two is whole now.
def install(folder, *options):
    root, skins = pathlib.Path(folder), {name: b"P6 3 13 255\n" + name.encode() * 39 for name in ("new", "old")}
    (root / "Art").mkdir(exist_ok=True)
    for name in ("new", "Art/old"):
        (root / name).write_bytes(skins[name[-3:]])
    command = ["strace", "-f", "-o", root / "log", *options, sys.argv[1], root / "new", root / "Art", "old"]
    status = subprocess.run(command, env=os.environ | {"ASAN_OPTIONS": "detect_leaks=0"}).returncode  # strace hinders it
    places = [name for name in ("new", "Art/old", "Art/new") if (root / name).exists()]
    return status, {name for name in places if (root / name).read_bytes() == skins[name[-3:]]}, places


with tempfile.TemporaryDirectory() as folder:
    assert install(folder, "-y", "-e", "trace=" + ",".join(CALLS))[:2] == (0, {"Art/new"})
    count, cases = collections.Counter(), []
    for name, line in re.findall(r"^\d+ +(\w+)(\(.*)$", pathlib.Path(folder, "log").read_text(), re.M):
        count[name] += 1
        faults = ["signal=KILL", "error=" + ERRORS.get(name, "")][:1 + (name in ERRORS)] if folder in line else []
        cases += [(name, f"{fault}:when={count[name]}") for fault in faults]
assert count["fsync"], "a power cut could lose the skin"
came_in = collections.Counter()
for name, fault in cases:
    with tempfile.TemporaryDirectory() as folder:
        status, whole, places = install(folder, "-e", f"trace={name}", "-e", f"inject={name}:{fault}")
        arrived, killed = "Art/new" in whole, "KILL" in fault
        came_in[arrived, killed] += 1
        assert (status < 0) == killed and (arrived or set(places) == whole == {"new", "Art/old"}), (name, fault, whole)
        assert killed or not (arrived and name in ("write", "fsync", "rename")), (name, fault)
        # The next attempt succeeds and clears away what was left behind.
        assert arrived or install(folder)[1] == {"Art/new"} and os.listdir(folder + "/Art") == ["new"], (name, fault)
assert came_in[True, True] and came_in[False, True] > 10, came_in
