#!/usr/bin/env python3
"""Holds the rooms of the tree against the map in docs/architecture.md, in both directions.

The map has a heading for each DLL's folder (### `commonwnd/`) and below it a table with a line a room: its name, what
lives there, which rooms of the same folder its sources may include, and where its tests are. A room is a folder of
sources; a public header belongs to the room whose source file bears its name.

    scripts/check_rooms.py              the tree
    scripts/check_rooms.py --graph      also prints who uses whom
    scripts/check_rooms.py --self-test  builds small faulty trees and wants each fault to be seen
"""

import pathlib
import re
import sys
import tempfile

MAP = "docs/architecture.md"
NO_ROOMS = {"include", "res", "main"}  # public headers, resources, the entry that a program links
TEST_KINDS = ("rules", "windows")
EVERYTHING = "all"  # what a room that leads the others together may use
HEADING = re.compile(r"^### `([\w/]+)/`")
ROW = re.compile(r"^\| `([\w/]+)/` \|(.*)\|$")
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)


class Room:
    def __init__(self, may_use, tests):
        self.may_use = may_use
        self.tests = tests


def names_in(cell):
    return re.findall(r"`([\w/]+?)/?`", cell)


def read_map(root):
    """Folder of a DLL -> room -> Room, as the document draws it."""
    folders, current = {}, None
    for line in (root / MAP).read_text(encoding="utf-8").splitlines():
        if heading := HEADING.match(line):
            current = folders.setdefault(heading.group(1), {})
        elif line.startswith("#"):
            current = None
        elif current is not None and (row := ROW.match(line)):
            cells = [cell.strip() for cell in row.group(2).split("|")]
            may_use = {EVERYTHING} if cells[1] == EVERYTHING else set(names_in(cells[1]))
            current[row.group(1)] = Room(may_use, names_in(cells[2]))
    return folders


def sources_of(folder):
    return sorted(p for p in folder.rglob("*") if p.suffix in (".cpp", ".h"))


def rooms_of(folder):
    """Room -> its sources, as the tree has them. A room may have rooms of its own."""
    rooms = {}
    for source in sources_of(folder):
        room = source.relative_to(folder).parent
        if room.parts and room.parts[0] not in NO_ROOMS:
            rooms.setdefault(str(room), []).append(source)
    return rooms


def owners_of(folder, rooms):
    """Header as it is included from outside its room -> the room it belongs to."""
    owners, by_stem = {}, {}
    for room, sources in rooms.items():
        for source in sources:
            owners[str(source.relative_to(folder))] = room
            if source.suffix == ".cpp":
                by_stem[source.stem] = room
    for header in sources_of(folder / "include"):
        if header.stem in by_stem:
            owners[header.name] = by_stem[header.stem]
    return owners


def uses_of(rooms, owners):
    """Room -> used room -> one include that says so."""
    uses = {room: {} for room in rooms}
    for room, sources in rooms.items():
        for source in sources:
            for included in INCLUDE.findall(source.read_text(encoding="utf-8")):
                used = owners.get(included)
                if used and used != room:
                    uses[room].setdefault(used, f"{source.name} includes {included}")
    return uses


def check_folder(root, name, drawn):
    folder = root / name
    if not folder.is_dir():
        return [f"{name}/ is on the map and not in the tree"], {}
    rooms = rooms_of(folder)
    faults = [f"{name}/{room}/ is on the map and holds no sources" for room in drawn if room not in rooms]
    faults += [f"{name}/{room}/ is not on the map" for room in rooms if room not in drawn]
    faults += [f"{name}/{p.name} stands in no room" for p in sorted(folder.glob("*.cpp")) + sorted(folder.glob("*.h"))]
    uses = uses_of(rooms, owners_of(folder, rooms))
    for room, used in uses.items():
        allowed = drawn[room].may_use if room in drawn else {EVERYTHING}
        faults += [f"{name}/{room}/ may not use {other}/: {why}" for other, why in used.items()
                   if EVERYTHING not in allowed and other not in allowed]
        faults += [f"{name}/{room}/ does not use {other}/, and the map says that it does"
                   for other in sorted(allowed - {EVERYTHING} - set(used))]
    for room, line in drawn.items():
        faults += [f"the tests of {name}/{room}/ are not in tests/{path}/" for path in line.tests
                   if not any((root / "tests" / path).rglob("*.cpp"))]
    return faults, uses


def check_tests(root, folders):
    """Below tests/<kind>/<DLL's folder>/ stand the same rooms."""
    faults = []
    for kind in TEST_KINDS:
        for name, drawn in folders.items():
            place = root / "tests" / kind / pathlib.PurePath(name).name
            if place.is_dir():
                listed = {path for line in drawn.values() for path in line.tests}
                faults += [f"tests/{kind}/{place.name}/{p.name}/ is no room's" for p in sorted(place.iterdir())
                           if p.is_dir() and p.name not in NO_ROOMS and sources_of(p)
                           and f"{kind}/{place.name}/{p.name}" not in listed]
    return faults


def check(root):
    folders = read_map(root)
    faults = [] if folders else [f"{MAP} draws no rooms"]
    graph = {}
    for name, drawn in folders.items():
        found, graph[name] = check_folder(root, name, drawn)
        faults += found
    return faults + check_tests(root, folders), graph


def print_graph(graph):
    for name, uses in graph.items():
        for room, used in uses.items():
            print(f"{name}/{room} -> {' '.join(sorted(used)) or '-'}")


SMALL_MAP = """### `product/`
| room | what lives here | may use | tests |
|---|---|---|---|
| `low/` | x | | `rules/product/low` |
| `high/` | x | `low` | `rules/product/low` |
"""
SMALL_TREE = {
    MAP: SMALL_MAP,
    "product/low/Low.cpp": '#include "Low.h"\n',
    "product/low/Low.h": "",
    "product/high/High.cpp": '#include "Public.h"\n#include "low/Low.h"\n',
    "product/high/Public.cpp": "",
    "product/include/Public.h": "",
    "tests/rules/product/low/LowTest.cpp": "",
}
# What is added to the small tree, and a word of what must be said then. None takes a file away.
FAULTS = [
    ({}, None),
    ({"product/low/Low.cpp": '#include "high/High.h"\n', "product/high/High.h": ""}, "may not use high"),
    ({"product/low/Low.cpp": '#include "Public.h"\n'}, "may not use high"),
    ({"product/high/High.cpp": ""}, "does not use low"),
    ({"product/attic/Old.cpp": ""}, "attic/ is not on the map"),
    ({"product/Loose.cpp": ""}, "stands in no room"),
    ({"product/low/Low.cpp": None, "product/low/Low.h": None}, "low/ is on the map"),
    ({"tests/rules/product/low/LowTest.cpp": None}, "tests of product/low/"),
    ({"tests/rules/product/else/ElseTest.cpp": ""}, "else/ is no room's"),
    ({MAP: "nothing\n"}, "draws no rooms"),
]


def self_test():
    failed = 0
    for change, expected in FAULTS:
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for name, text in {**SMALL_TREE, **change}.items():
                if text is not None:
                    (root / name).parent.mkdir(parents=True, exist_ok=True)
                    (root / name).write_text(text, encoding="utf-8")
            faults, _ = check(root)
            seen = not faults if expected is None else any(expected in fault for fault in faults)
            if not seen:
                failed += 1
                print(f"expected {expected or 'no fault'}, found {faults}")
    print(f"rooms: {len(FAULTS) - failed} of {len(FAULTS)} small trees judged right")
    return 1 if failed else 0


def main():
    if "--self-test" in sys.argv:
        return self_test()
    faults, graph = check(pathlib.Path(__file__).resolve().parent.parent)
    if "--graph" in sys.argv:
        print_graph(graph)
    for fault in faults:
        print(fault)
    print(f"rooms: {sum(len(uses) for uses in graph.values())} in {len(graph)} folders, "
          f"{'faults found' if faults else 'as drawn'}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
