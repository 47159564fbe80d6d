#!/usr/bin/python3
"""Draws beside NumPy's default generator, both in this process.

    random_numpy.py LIBRARY [rounds]

The candidates of a row alternate and the least counts. Prints nanoseconds a value and our ratio, for MersenneTwister
and for ExtendedCA. Needs NumPy; neither the build nor a test does.
"""

import ctypes
import sys

import numpy

from elementwise_numpy import nanoseconds

COUNT = 1_000_000
METHODS = {"Twister": 3, "CA": 1}


def least(candidates, rounds):
    best = [float("inf")] * len(candidates)
    for _ in range(rounds):
        best = [min(b, nanoseconds(run, 1) / COUNT) for b, run in zip(best, candidates)]
    return best


def with_method(library, method, draw):
    def run():
        library.Runtime_SeedRandom(None, method)
        draw()
    return run


def compare(library, name, draw, peers, rounds):
    ours = [with_method(library, method, draw) for method in METHODS.values()]
    times = least(ours + peers, rounds)
    peer = min(times[len(ours):])
    print(f"{name:<26} {times[0]:8.2f} {times[1]:8.2f} {peer:8.2f} {times[0] / peer:6.2f} {times[1] / peer:6.2f}",
          flush=True)


def main():
    library = ctypes.CDLL(sys.argv[1])
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 15
    library.InitializeTorvaneRTL(None, None, None)
    seed = ctypes.c_uint32(1)
    for method in METHODS.values():
        library.Runtime_SeedRandom(ctypes.byref(seed), method)
    generator = numpy.random.default_rng(1)
    reals, integers = numpy.zeros(COUNT), numpy.zeros(COUNT, numpy.int32)
    to_reals, to_integers = ctypes.c_void_p(reals.ctypes.data), ctypes.c_void_p(integers.ctypes.data)

    def draw_reals():
        library.UniformRandomMReals(to_reals, COUNT, ctypes.c_double(0), ctypes.c_double(1))

    print(f"{'ns a value':<26} {'Twister':>8} {'CA':>8} {'NumPy':>8} {'ratio':>6} {'ratio':>6}")
    compare(library, "reals", draw_reals,
            [lambda: generator.random(COUNT), lambda: generator.random(out=reals)], rounds)
    for last in (1, 2, 99, 255, 1_000_000, 2**31 - 2):
        compare(library, f"integers 0..{last}",
                lambda: library.UniformRandomMIntegers(to_integers, COUNT, 0, last),
                [lambda: generator.integers(0, last + 1, COUNT, dtype=numpy.int32),
                 lambda: generator.integers(0, last + 1, COUNT, dtype=numpy.int64)], rounds)


if __name__ == "__main__":
    main()
