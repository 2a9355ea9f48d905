#!/usr/bin/env python3
"""One table out of the figures that the benchmark programs left: name, ours, peer, ratio, goal.

    scripts/bench_table.py FOLDER

Reads FOLDER/*.json (Google Benchmark; see cmake/QVBenchmarks.cmake for the names) and the lines "bench|..." of
FOLDER/*.log. Ends with 1 when a goal is missed or a figure is absent.
"""

import dataclasses
import json
import pathlib
import sys

# What stands for a benchmark of several turns; the last one that it reports counts.
AGGREGATES = ("median", "quickest")
NS_PER_UNIT = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


@dataclasses.dataclass
class Row:
    ours: float | None = None
    unit: str = "ns"
    peer_name: str = ""
    peer: float | None = None
    goal_ratio: float | None = None
    goal_absolute: float | None = None

    def ratio(self):
        return self.ours / self.peer if self.ours is not None and self.peer else None

    def met(self):
        """True, False, or None when there is no goal."""
        if self.goal_ratio is not None:
            return self.ratio() is not None and self.ratio() <= self.goal_ratio
        if self.goal_absolute is not None:
            return self.ours is not None and self.ours <= self.goal_absolute
        return None


def display(value, unit):
    if value is None:
        return "-"
    if unit != "ns":
        return f"{value:.4g} {unit}"
    for name, size in (("s", 1e9), ("ms", 1e6), ("us", 1e3)):
        if value >= size:
            return f"{value / size:.3g} {name}"
    return f"{value:.3g} ns"


def without_suffixes(name):
    """Google Benchmark appends /real_time and the like to the registered name."""
    parts = [p for p in name.split("/") if p not in ("real_time", "process_time", "manual_time")
             and not p.startswith(("iterations:", "repeats:", "min_time:"))]
    return parts


def read_json(path, rows):
    for run in json.loads(path.read_text()).get("benchmarks", []):
        if run.get("run_type") == "aggregate" and run.get("aggregate_name") not in AGGREGATES:
            continue
        parts = without_suffixes(run.get("run_name", run["name"]))
        side = next((i for i, p in enumerate(parts) if p == "ours" or p.startswith("peer:")), None)
        topic = "/".join(parts[:side] + parts[side + 1:]) if side is not None else "/".join(parts)
        row = rows.setdefault(topic, Row())
        if run.get("error_occurred"):
            continue
        time_ns = run["real_time"] * NS_PER_UNIT[run["time_unit"]]
        if side is not None and parts[side] != "ours":
            row.peer, row.peer_name = time_ns, parts[side].removeprefix("peer:")
            continue
        row.ours = time_ns
        row.goal_ratio = run.get("goal_ratio", row.goal_ratio)
        row.goal_absolute = run.get("goal_ns", row.goal_absolute)


def read_log(path, rows):
    for line in path.read_text(errors="replace").splitlines():
        if not line.startswith("bench|"):
            continue
        _, topic, ours, unit, peer_name, peer, goal = (line.strip().split("|") + [""] * 7)[:7]
        scale = NS_PER_UNIT.get(unit, 1.0)
        rows[topic] = Row(ours=float(ours) * scale, unit="ns" if unit in NS_PER_UNIT else unit,
                          peer_name=peer_name, peer=float(peer) * scale if peer else None)
        if goal and peer:
            rows[topic].goal_ratio = float(goal)
        elif goal:
            rows[topic].goal_absolute = float(goal) * scale


def goal_text(row):
    if row.goal_ratio is not None:
        return f"<= {row.goal_ratio:.3g} x"
    return f"<= {display(row.goal_absolute, row.unit)}" if row.goal_absolute is not None else "-"


def cells(topic, row):
    ratio = row.ratio()
    verdict = {True: "met", False: "MISSED", None: ""}[row.met()]
    peer = f"{display(row.peer, row.unit)} ({row.peer_name})" if row.peer is not None else "-"
    return [topic, display(row.ours, row.unit), peer, f"{ratio:.3g}" if ratio is not None else "-", goal_text(row),
            verdict]


def main():
    folder = pathlib.Path(sys.argv[1])
    rows = {}
    for path in sorted(folder.glob("*.json")):
        if path.stat().st_size:
            read_json(path, rows)
    for path in sorted(folder.glob("*.log")):
        read_log(path, rows)
    table = [["name", "ours", "peer", "ratio", "goal", ""]] + [cells(t, r) for t, r in rows.items()]
    widths = [max(len(line[i]) for line in table) for i in range(len(table[0]))]
    for line in table:
        print("  ".join(text.ljust(width) for text, width in zip(line, widths)).rstrip())
    return 1 if any(row.met() is False for row in rows.values()) else 0


if __name__ == "__main__":
    sys.exit(main())
