# A skin on its way into the folder when the game is killed or the disk fails it, at each of the calls by which the
# system is asked. usage: skin_faults.py INSTALL_SKIN

import collections
import os
import pathlib
import re
import subprocess
import sys
import tempfile

SKINS = {name: b"P6 3 13 255\n" + name.encode() * 39 for name in ("new", "old")}
BEFORE, AFTER = {"new": True, "Art/old": True}, {"Art/new": True}


# The skin "new" comes from outside in place of "old"; the exit status, and where there are skins now and whole ones.
def install(root, *options):
    (root / "Art").mkdir(exist_ok=True)
    for name in BEFORE:
        (root / name).write_bytes(SKINS[name[-3:]])
    command = ["strace", "-f", "-o", root / "log", *options, sys.argv[1], root / "new", root / "Art", "old"]
    status = subprocess.run(command, env=os.environ | {"ASAN_OPTIONS": "detect_leaks=0"}).returncode  # strace hinders it
    there = [name for name in BEFORE | AFTER if (root / name).exists()]
    return status, {name: (root / name).read_bytes() == SKINS[name[-3:]] for name in there}


with tempfile.TemporaryDirectory() as root:
    assert install(pathlib.Path(root), "-y", "-e", "trace=%file,%desc") == (0, AFTER)
    count, cases = collections.Counter(), []
    for name, line in re.findall(r"^\d+ +(?!execve)(\w+)(\(.*)$", pathlib.Path(root, "log").read_text(), re.M):
        count[name] += name != "read" or root in line  # a sanitizer reads its memory map in a varying number of steps
        cases += [(name, f"{fault}:when={count[name]}") for fault in ("signal=KILL", "error=EIO") if root in line]
assert count["fsync"], "a power cut could lose the skin"
outcomes = set()
for name, fault in cases:
    with tempfile.TemporaryDirectory() as root:
        only = ["-P", root + "/new"] if name == "read" else []
        status, there = install(pathlib.Path(root), *only, "-e", f"trace={name}", "-e", f"inject={name}:{fault}")
        arrived, killed = "Art/new" in there, "KILL" in fault
        outcomes.add((arrived, killed))
        assert (status < 0) == killed and (there["Art/new"] if arrived else there == BEFORE), (name, fault, there)
        assert killed or not (arrived and name in ("write", "fsync", "rename")), (name, fault)
        # The next attempt succeeds and clears away what was left behind.
        assert arrived or install(pathlib.Path(root))[1] == AFTER and os.listdir(root + "/Art") == ["new"], (name, fault)
assert len(outcomes) == 4, outcomes
