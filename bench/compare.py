#!/usr/bin/env python3
"""Runs orx_bench_geometry and prints its results as Markdown tables: the median time of
every operation and size in this library beside CGAL and Boost.Geometry, with the ratios
this library / peer, then the cases where the results' areas or intersection counts differ.

    bench/compare.py                                  # everything (slow: see the README)
    bench/compare.py --max-segments 10000 --max-holes 1000 --repetitions 5
    bench/compare.py --json run1.json --json run2.json  # tables from saved runs, merged

Run from the repository root after `cmake --build --preset native --target
orx_bench_geometry`. The program's console output goes to stderr while it runs; the tables
go to stdout. --save FILE keeps the JSON of the run.
"""

import argparse
import json
import os
import statistics
import subprocess
import sys
import tempfile

PEERS = [("cgal", "CGAL"), ("boost", "Boost.Geometry")]

# The peer benchmark each of this library's operations is compared with. A one-loop region is
# a polygon for the peers, so the region operations meet the peers' polygon booleans.
PEER_OPERATION = {
    "bool_union": "bool_union",
    "bool_diff": "bool_diff",
    "bool_sect": "bool_sect",
    "region_union": "bool_union",
    "region_diff": "bool_diff",
    "region_sect": "bool_sect",
    "intersect": "intersect",
    "pt_inside": "pt_inside",
    "pt_in_region": "pt_inside",
    "plate_diff": "plate_diff",
}

OPERATION_LABEL = {
    "bool_union": "g_vl_bool union",
    "bool_diff": "g_vl_bool difference",
    "bool_sect": "g_vl_bool intersection",
    "region_union": "g_region_union",
    "region_diff": "g_region_diff",
    "region_sect": "g_region_sect",
    "intersect": "intersectWith",
    "pt_inside": "g_vl_pt_inside (µs per point)",
    "pt_in_region": "g_vll_pt_inside (µs per point)",
    "prepared_pt_inside": "COrxOutlineIndex::inside (µs per point)",
    "offset": "offset",
    "norm": "norm(false)",
    "pts": "pts(true, 0.01)",
    "plate_regions": "g_vll_regions",
    "plate_diff": "g_region_diff plate - cutter",
}

# Relative area differences above these are listed: CGAL is exact, Boost.Geometry works on
# 16 chords per arc and so misses the slivers between arcs and chords.
AREA_TOLERANCE = {"cgal": 1e-6, "boost": 1e-2}

INPUT_ORDER = ["circ", "wavy", "scal", "plate"]

TO_MILLISECONDS = {"ns": 1e-6, "us": 1e-3, "ms": 1.0, "s": 1e3}


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--program", default="build/native/bin/orx_bench_geometry")
    parser.add_argument("--max-segments", type=int, help="largest outline size to run")
    parser.add_argument("--max-holes", type=int, help="largest plate to run")
    parser.add_argument("--filter", help="--benchmark_filter of the run")
    parser.add_argument("--repetitions", type=int, default=3)
    parser.add_argument("--time", choices=["cpu", "real"], default="cpu",
                        help="CPU time of the benchmark's thread (default: steadier on a "
                        "shared machine, where wall time counts the waits for other jobs) "
                        "or wall time")
    parser.add_argument("--save", help="keep the run's JSON in this file")
    parser.add_argument("--json", action="append", help="read results instead of running")
    return parser.parse_args()


def run_program(arguments):
    """Runs the benchmark program and returns its JSON output."""
    with tempfile.TemporaryDirectory() as folder:
        out = arguments.save or os.path.join(folder, "run.json")
        command = [arguments.program, "--benchmark_out=" + out, "--benchmark_out_format=json",
                   "--benchmark_repetitions=%d" % arguments.repetitions]
        if arguments.max_segments is not None:
            command.append("--max_segments=%d" % arguments.max_segments)
        if arguments.max_holes is not None:
            command.append("--max_holes=%d" % arguments.max_holes)
        if arguments.filter:
            command.append("--benchmark_filter=" + arguments.filter)
        subprocess.run(command, stdout=sys.stderr, check=True)
        with open(out) as file:
            return json.load(file)


class Case:
    """The repetitions of one benchmark: library/operation/input/size."""

    def __init__(self):
        self.times = []  # milliseconds per iteration
        self.counters = {}

    def median(self):
        return statistics.median(self.times)


def collect(runs, clock):
    """Cases by (library, operation, input, size) from the iteration rows of the runs, timed
    by clock ("cpu" or "real"); a later run replaces an earlier one's case."""
    cases = {}
    for run in runs:
        fresh = {}
        for row in run["benchmarks"]:
            if row.get("run_type", "iteration") != "iteration" or row.get("error_occurred"):
                continue
            key = tuple(row["run_name"].split("/"))
            if len(key) != 4:
                continue
            key = (key[0], key[1], key[2], int(key[3]))
            case = fresh.setdefault(key, Case())
            case.times.append(row[clock + "_time"] * TO_MILLISECONDS[row["time_unit"]])
            for name in ("area", "points"):
                if name in row:
                    case.counters[name] = row[name]
        cases.update(fresh)
    return cases


def format_time(ms, operation):
    value = ms * 1e3 if operation.startswith(("pt_", "prepared_pt_")) else ms
    if value >= 100:
        return "%.0f" % value
    if value >= 10:
        return "%.1f" % value
    if value >= 1:
        return "%.2f" % value
    return "%.3g" % value


def format_ratio(ratio):
    return "%.2f" % ratio if ratio >= 0.1 else "%.2g" % ratio


def peer_case(cases, peer, operation, shape, size):
    if operation not in PEER_OPERATION:
        return None
    return cases.get((peer, PEER_OPERATION[operation], shape, size))


def our_cases(cases, compared):
    """This library's cases of the operations that have (compared) or lack a peer, in table
    order."""
    operations = list(OPERATION_LABEL)
    keys = [k for k in cases if k[0] == "orx" and (k[1] in PEER_OPERATION) == compared]
    return sorted(keys, key=lambda k: (operations.index(k[1]), INPUT_ORDER.index(k[2]), k[3]))


def case_cells(operation, shape, size, milliseconds):
    return "| %s | %s | %s | %s |" % (OPERATION_LABEL[operation], shape, "{:,}".format(size),
                                      format_time(milliseconds, operation))


def print_times_beside_peers(cases):
    peers = [(key, name) for key, name in PEERS if any(c[0] == key for c in cases)]
    header = "| operation | input | size | this library |"
    rule = "|---|---|---|---|"
    for _, name in peers:
        header += " %s | this / %s |" % (name, name)
        rule += "---|---|"
    print(header)
    print(rule)
    for _, operation, shape, size in our_cases(cases, True):
        mine = cases[("orx", operation, shape, size)].median()
        line = case_cells(operation, shape, size, mine)
        for peer, _ in peers:
            other = peer_case(cases, peer, operation, shape, size)
            if other is None:
                line += " — | — |"
            else:
                line += " %s | %s |" % (format_time(other.median(), operation),
                                        format_ratio(mine / other.median()))
        print(line)


def print_times_alone(cases):
    keys = our_cases(cases, False)
    if not keys:
        return
    print()
    print("Operations without a counterpart in the peers:")
    print()
    print("| operation | input | size | this library |")
    print("|---|---|---|---|")
    for key in keys:
        print(case_cells(key[1], key[2], key[3], cases[key].median()))


def print_disagreements(cases):
    lines = []
    for (library, operation, shape, size), case in sorted(cases.items()):
        if library != "orx":
            continue
        for peer, name in PEERS:
            other = peer_case(cases, peer, operation, shape, size)
            if other is None:
                continue
            for counter in ("area", "points"):
                mine, theirs = case.counters.get(counter), other.counters.get(counter)
                if mine is None or theirs is None:
                    continue
                difference = abs(mine - theirs) / max(abs(mine), abs(theirs), 1.0)
                limit = AREA_TOLERANCE[peer] if counter == "area" else 0.0
                if difference > limit:
                    lines.append("| %s | %s | %s | %s | %s | %.6g | %.6g |" % (
                        OPERATION_LABEL[operation], shape, "{:,}".format(size), name, counter,
                        mine, theirs))
    print()
    if not lines:
        print("The peers' result areas and intersection counts agree with this library's.")
        return
    print("Results that differ (area beyond %g relative for CGAL, %g for Boost.Geometry; "
          "any difference in the number of intersection points):" %
          (AREA_TOLERANCE["cgal"], AREA_TOLERANCE["boost"]))
    print()
    print("| operation | input | size | peer | counter | this library | peer |")
    print("|---|---|---|---|---|---|---|")
    for line in lines:
        print(line)


def main():
    arguments = parse_arguments()
    if arguments.json:
        runs = []
        for path in arguments.json:
            with open(path) as file:
                runs.append(json.load(file))
    else:
        runs = [run_program(arguments)]
    cases = collect(runs, arguments.time)
    context = runs[-1].get("context", {})
    counts = sorted({len(case.times) for case in cases.values()})
    repetitions = "%d" % counts[0] if len(counts) == 1 else "%d to %d" % (counts[0], counts[-1])
    print("Median %s time of %s repetitions in ms (point queries: µs per point); "
          "%s CPUs, run of %s." % (arguments.time.upper() if arguments.time == "cpu" else
                                   arguments.time, repetitions, context.get("num_cpus", "?"),
                                   context.get("date", "?")))
    print()
    print_times_beside_peers(cases)
    print_times_alone(cases)
    print_disagreements(cases)


if __name__ == "__main__":
    main()
