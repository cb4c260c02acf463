#!/usr/bin/env python3
"""Chooses a few seeds that cover most of what a fuzz target reaches.

    pick_seeds.py <fuzzer> <count> <input folder> <output folder>

Runs the fuzzer's merge step over each input on its own to learn the code edges it reaches,
then copies the inputs that add the most edges, one by one, until <count> are chosen or
nothing new is added.
"""
import os
import shutil
import subprocess
import sys
import tempfile


def edges_of(fuzzer, path, scratch):
    single = os.path.join(scratch, "in")
    out = os.path.join(scratch, "out")
    control = os.path.join(scratch, "control")
    if os.path.exists(control):
        os.remove(control)
    for folder in (single, out):
        shutil.rmtree(folder, ignore_errors=True)
        os.makedirs(folder)
    shutil.copy(path, single)
    subprocess.run([fuzzer, "-merge=1", "-use_counters=0", "-use_cmp=0", "-timeout=20",
                    "-merge_control_file=" + control, out, single],
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    edges = set()
    with open(control) as lines:
        for line in lines:
            if line.startswith("COV "):
                edges.update(line.split()[2:])
    return edges


def main():
    fuzzer, count, source, target = sys.argv[1], int(sys.argv[2]), sys.argv[3], sys.argv[4]
    with tempfile.TemporaryDirectory() as scratch:
        reached = {name: edges_of(fuzzer, os.path.join(source, name), scratch)
                   for name in sorted(os.listdir(source))}
    everything = set().union(*reached.values())
    covered = set()
    os.makedirs(target, exist_ok=True)
    for _ in range(count):
        best = max(reached, key=lambda name: len(reached[name] - covered), default=None)
        if best is None or not reached[best] - covered:
            break
        covered |= reached.pop(best)
        shutil.copy(os.path.join(source, best), target)
    print(f"{len(os.listdir(target))} seeds cover {len(covered)} of {len(everything)} edges",
          file=sys.stderr)


if __name__ == "__main__":
    main()
