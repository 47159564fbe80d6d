#!/usr/bin/python3
"""Draws beside NumPy's default generator, from MersenneTwister (method 3) and from ExtendedCA (method 1).

    random_numpy.py LIBRARY [--rounds N] [--only TEXT] [--tsv]
"""

import ctypes

import numpy

from numpy_table import Table

COUNT = 1_000_000
METHODS = {"MersenneTwister": 3, "ExtendedCA": 1}


def with_method(table, method, draw):
    def run():
        table.library.Runtime_SeedRandom(None, method)
        draw()
    return run


def compare(table, what, draw, peers, aim):
    for name, method in METHODS.items():
        table.compare(f"{what}, {name}", COUNT, with_method(table, method, draw), peers, aim)


def main():
    table = Table("random, NumPy", "ns a value")
    table.library.InitializeTorvaneRTL(None, None, None)
    seed = ctypes.c_uint32(1)
    for method in METHODS.values():
        table.library.Runtime_SeedRandom(ctypes.byref(seed), method)
    generator = numpy.random.default_rng(1)
    reals, integers = numpy.zeros(COUNT), numpy.zeros(COUNT, numpy.int32)
    to_reals, to_integers = ctypes.c_void_p(reals.ctypes.data), ctypes.c_void_p(integers.ctypes.data)
    zero, one = ctypes.c_double(0), ctypes.c_double(1)

    compare(table, "reals", lambda: table.library.UniformRandomMReals(to_reals, COUNT, zero, one),
            {"NumPy": lambda: generator.random(COUNT), "NumPy, in place": lambda: generator.random(out=reals)}, 1.1)
    for last, aim in ((1, 0), (2, 0), (99, 0.8), (255, 0.5), (1_000_000, 0), (2**31 - 2, 0)):
        compare(table, f"integers 0..{last}",
                lambda: table.library.UniformRandomMIntegers(to_integers, COUNT, 0, last),
                {f"NumPy, {kind.__name__}": lambda kind=kind: generator.integers(0, last + 1, COUNT, dtype=kind)
                 for kind in (numpy.int32, numpy.int64)}, aim)


if __name__ == "__main__":
    main()
