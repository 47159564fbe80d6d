#!/usr/bin/python3
"""Orders and transpositions beside NumPy, both in this process and on the same memory.

    sorting_numpy.py LIBRARY [rounds]

The candidates of a row alternate and the least counts. Prints nanoseconds an element and our ratio. Needs NumPy;
neither the build nor a test does.
"""

import ctypes
import sys

import numpy

from elementwise_numpy import Tensor, nanoseconds, tensor_over

INTEGER = 2


def tensor_of(array):
    record = tensor_over(array)
    if array.dtype == numpy.int32:
        record.type = INTEGER
    return record


def compare(name, count, ours, peer, rounds):
    repeats = max(1, 1_000_000 // count)
    own = min(nanoseconds(ours, repeats) for _ in range(rounds)) / count
    other = min(nanoseconds(peer, repeats) for _ in range(rounds)) / count
    print(f"{name:<30} {count:9d} {own:9.3f} {other:9.3f} {own / other:7.2f}", flush=True)


def orders(library, rounds):
    generator = numpy.random.default_rng(1)
    for count in (1000, 10_000, 100_000, 1_000_000, 10_000_000):
        inputs = {
            "integers": generator.integers(-(2**31), 2**31, count, dtype=numpy.int32),
            "reals": generator.uniform(size=count),
            "integers, 10 distinct": generator.integers(0, 10, count, dtype=numpy.int32),
            "reals, 10 distinct": generator.integers(0, 10, count) * 0.1,
            "integers, sorted": numpy.arange(count, dtype=numpy.int32),
            "reals, sorted": numpy.arange(count) * 0.1,
        }
        for name, x in inputs.items():
            permutation = numpy.zeros(count, numpy.int32)
            tensor, result = tensor_of(x), tensor_of(permutation)
            compare(name, count,
                    lambda: library.Runtime_MTensor_computeSortPermutation(ctypes.byref(result), ctypes.byref(tensor)),
                    lambda: numpy.argsort(x, kind="stable"), rounds)
            assert (permutation - 1 == numpy.argsort(x, kind="stable")).all()


def transpositions(library, rounds):
    for rows, columns in ((100, 100), (1000, 1000), (1500, 700), (4096, 4096), (3, 1000000), (1000000, 3)):
        x = numpy.arange(rows * columns, dtype=numpy.float64).reshape(rows, columns)
        target = numpy.zeros((columns, rows))
        tensor, result = tensor_of(x), tensor_of(target)
        slot = ctypes.pointer(result)
        compare(f"transpose {rows} x {columns}", x.size,
                lambda: library.Runtime_MTensor_12TransposeConjugate(ctypes.byref(slot), ctypes.byref(tensor), 0),
                lambda: numpy.copyto(target, x.T), rounds)
        assert (target == x.T).all()


def main():
    library = ctypes.CDLL(sys.argv[1])
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 7
    library.InitializeTorvaneRTL(None, None, None)
    print(f"{'ns an element':<30} {'count':>9} {'ours':>9} {'NumPy':>9} {'ratio':>7}")
    orders(library, rounds)
    transpositions(library, rounds)


if __name__ == "__main__":
    main()
