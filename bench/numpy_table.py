"""The table of the benchmarks for those that have NumPy as their peer: what table.h is for the others.

Both live in this process and work on the same memory. Rounds alternate, the least time of each counts, and every
call has a call from Python in it, ours one through ctypes: of some hundred nanoseconds, so that short rows tell
little of the loops. Needs NumPy; neither the build nor a test does.
"""

import argparse
import ctypes
import time

import numpy

INTEGER, REAL, COMPLEX = 2, 3, 4
TYPES = {"int32": INTEGER, "float64": REAL, "complex128": COMPLEX}


class Tensor(ctypes.Structure):
    """The record of a tensor, as torvane/tensor.h declares it, over the memory of an array."""

    _fields_ = [
        ("numericBound", ctypes.c_double),
        ("dimensions", ctypes.c_void_p),
        ("rank", ctypes.c_int32),
        ("type", ctypes.c_int32),
        ("flags", ctypes.c_uint32),
        ("elementType", ctypes.c_int32),
        ("elementCount", ctypes.c_int32),
        ("data", ctypes.c_void_p),
        ("refCount", ctypes.c_int64),
    ]


def tensor_over(array):
    extents = (ctypes.c_int32 * max(array.ndim, 1))(*array.shape)
    record = Tensor()
    record.rank, record.dimensions = array.ndim, ctypes.addressof(extents) if array.ndim else None
    record.type = TYPES.get(array.dtype.name, 0)
    record.elementCount, record.data = array.size, array.ctypes.data
    record.keep = (extents, array)
    return record


def nanoseconds(call, repeats):
    start = time.perf_counter_ns()
    for _ in range(repeats):
        call()
    return (time.perf_counter_ns() - start) / repeats


class Table:
    """A room's rows. The first argument of the command line is the library, which `library` holds."""

    def __init__(self, room, unit, rounds=25):
        parser = argparse.ArgumentParser(description=f"{room}: ours beside NumPy {numpy.__version__}")
        parser.add_argument("library")
        parser.add_argument("--rounds", type=int, default=rounds)
        parser.add_argument("--only", default="")
        parser.add_argument("--tsv", action="store_true", help="for bench/run, one line a row")
        self.settings, self.room, self.unit = parser.parse_args(), room, unit
        self.library = ctypes.CDLL(self.settings.library)
        if not self.settings.tsv:
            print(f"{unit:<44} {'count':>10} {'ours':>10} {'/ best':>7} {'aim':>6}  peers")

    def is_wanted(self, name):
        return self.settings.only in name

    def compare(self, name, count, ours, peers, aim=0.0):
        """`peers` are calls by their names. A row ends after a second, but not before three rounds."""
        if not self.is_wanted(name):
            return
        calls = [ours, *peers.values()]
        repeats = [max(1, min(2000, int(100_000 / max(nanoseconds(call, 1), 1)))) for call in calls]
        least, start, rounds = [float("inf")] * len(calls), time.monotonic(), 0
        while rounds < self.settings.rounds and (rounds < 3 or time.monotonic() < start + 1):
            least = [min(t, nanoseconds(call, r)) for t, call, r in zip(least, calls, repeats)]
            rounds += 1
        self.print(name, count, [t / count for t in least], list(peers), aim)

    def print(self, name, count, times, names, aim):
        own, best = times[0], min(times[1:])
        asked = f"{aim:.2f}" if aim else "-"
        if self.settings.tsv:
            peers = ";".join(f"{n}={t:.4g}" for n, t in zip(names, times[1:]))
            cells = (self.room, name, self.unit, count, f"{own:.4g}", names[times.index(best, 1) - 1],
                     f"{own / best:.4g}", "-", asked, peers)
            print(*cells, sep="\t", flush=True)
        else:
            peers = "  ".join(f"{n} {t:.4g}" for n, t in zip(names, times[1:]))
            print(f"{name:<44} {count:10d} {own:10.4g} {own / best:7.2f} {asked:>6}  {peers}", flush=True)
