#!/usr/bin/python3
"""Orders and transpositions beside NumPy.

    sorting_numpy.py LIBRARY [--rounds N] [--only TEXT] [--tsv]
"""

import ctypes

import numpy

from numpy_table import Table, tensor_over


def inputs_of(generator, count):
    yield "integers", generator.integers(-(2**31), 2**31, count, dtype=numpy.int32)
    yield "reals", generator.uniform(size=count)
    if count != 1_000_000:
        yield "10 distinct integers", generator.integers(0, 10, count, dtype=numpy.int32)
        yield "10 distinct reals", generator.integers(0, 10, count) * 0.1
        yield "sorted integers", numpy.arange(count, dtype=numpy.int32)
        yield "sorted reals", numpy.arange(count) * 0.1


def orders(table):
    generator = numpy.random.default_rng(1)
    order = table.library.Runtime_MTensor_computeSortPermutation
    for count in (1000, 100_000, 1_000_000):
        for name, x in inputs_of(generator, count):
            permutation = numpy.zeros(count, numpy.int32)
            tensor, result = tensor_over(x), tensor_over(permutation)
            order(ctypes.byref(result), ctypes.byref(tensor))
            assert (permutation - 1 == numpy.argsort(x, kind="stable")).all()
            table.compare(f"order, {name}", count, lambda: order(ctypes.byref(result), ctypes.byref(tensor)),
                          {"NumPy": lambda: numpy.argsort(x, kind="stable")}, 0.5)


def transpositions(table):
    transpose = table.library.Runtime_MTensor_12TransposeConjugate
    for rows, columns in ((100, 100), (1000, 1000), (1500, 700), (4096, 4096), (3, 1000000), (1000000, 3)):
        x = numpy.arange(rows * columns, dtype=numpy.float64).reshape(rows, columns)
        target = numpy.zeros((columns, rows))
        tensor, result = tensor_over(x), tensor_over(target)
        slot = ctypes.pointer(result)
        transpose(ctypes.byref(slot), ctypes.byref(tensor), 0)
        assert (target == x.T).all()
        table.compare(f"transposed {rows}x{columns}", x.size,
                      lambda: transpose(ctypes.byref(slot), ctypes.byref(tensor), 0),
                      {"NumPy": lambda: numpy.copyto(target, x.T)})


def main():
    table = Table("sorting, NumPy", "ns an element")
    table.library.InitializeTorvaneRTL(None, None, None)
    orders(table)
    transpositions(table)


if __name__ == "__main__":
    main()
