#!/usr/bin/env python3
"""Puts the releases of a changelog in the place of @RELEASES@ in a metainfo file.

usage: add_releases.py CHANGELOG METAINFO.in METAINFO
"""
import pathlib
import re
import sys
from xml.sax.saxutils import escape


def split(heading, text):
    """The groups of each heading, and what stands below it up to the next."""
    pattern = re.compile(rf"^{heading}$", re.M)
    return list(zip(*[iter(pattern.split(text)[1:])] * (pattern.groups + 1)))


def release(version, date, changes):
    yield f'    <release version="{version}" date="{date}">'
    yield "      <description>"
    for kind, items in split(r"### (\w+)", changes):
        yield f"        <p>{kind}:</p>"
        yield "        <ul>"
        for item in re.split(r"^- ", items, flags=re.M)[1:]:
            yield f"          <li>{escape(' '.join(item.split()))}</li>"
        yield "        </ul>"
    yield "      </description>"
    yield "    </release>"


changelog, template, target = map(pathlib.Path, sys.argv[1:])
releases = split(r"## ([\d.]+) - (\d{4}-\d\d-\d\d)", changelog.read_text())
lines = [line for each in releases for line in release(*each)]
target.write_text(template.read_text().replace("@RELEASES@", "\n".join(lines).strip()))
