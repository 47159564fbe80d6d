#!/usr/bin/python3
"""Elementwise mathematics beside NumPy, both in this process and on the same memory.

    elementwise_numpy.py LIBRARY [rounds]

The candidates of a row alternate and the median counts. Prints nanoseconds an element and our ratio. Needs
NumPy; neither the build nor a test does.
"""

import ctypes
import statistics
import sys
import time

import numpy

REAL, COMPLEX = 3, 4
NEVER = 2**31 - 1


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
    record.type = COMPLEX if array.dtype == numpy.complex128 else REAL
    record.elementCount, record.data = array.size, array.ctypes.data
    record.keep = (extents, array)
    return record


def nanoseconds(call, repeats):
    start = time.perf_counter_ns()
    for _ in range(repeats):
        call()
    return (time.perf_counter_ns() - start) / repeats


def compare(name, count, ours, peer, rounds):
    repeats = max(1, min(1000, int(200_000 / max(nanoseconds(peer, 1), 1))))
    own, other = [], []
    for _ in range(rounds):
        own.append(nanoseconds(ours, repeats) / count)
        other.append(nanoseconds(peer, repeats) / count)
    a, b = statistics.median(own), statistics.median(other)
    print(f"{name:<30} {count:9d} {a:9.3f} {b:9.3f} {a / b:7.2f}", flush=True)


def main():
    library = ctypes.CDLL(sys.argv[1])
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 15
    library.InitializeTorvaneRTL(None, None, None)
    for index in range(5):
        library.setVectorParallelLengthThreshold(index, NEVER)

    def unary(op, x, result):
        slot, operand = ctypes.pointer(result), ctypes.byref(x)
        slot_address = ctypes.byref(slot)
        kind = result.type
        return lambda: library.MTensorMathUnary(slot_address, operand, op, kind)

    def binary(op, x, y, result):
        slot, first, second = ctypes.pointer(result), ctypes.byref(x), ctypes.byref(y)
        slot_address = ctypes.byref(slot)
        return lambda: library.MTensorMathBinary(slot_address, first, second, op, REAL)

    print(f"{'ns an element':<30} {'count':>9} {'ours':>9} {'NumPy':>9} {'ratio':>7}")
    for rows, columns in ((10, 100), (100, 1000), (1000, 10000)):
        count = rows * columns
        generator = numpy.random.default_rng(count)
        x = generator.uniform(0.001, 5, (rows, columns))
        y = generator.uniform(0.5, 2.5, (rows, columns))
        per_row, scalar, result = y[:, 0].copy(), numpy.array(1.25), numpy.zeros_like(x)
        X, Y, V, S, R = map(tensor_over, (x, y, per_row, scalar, result))
        column = per_row[:, None]
        binaries = ((257, "plus", numpy.add), (258, "subtract", numpy.subtract), (259, "times", numpy.multiply),
                    (260, "div", numpy.divide), (263, "pow", numpy.power))
        for op, name, peer in binaries:
            compare(name, count, binary(op, X, Y, R), lambda: peer(x, y, out=result), rounds)
        compare("plus, scalar", count, binary(257, X, S, R), lambda: numpy.add(x, scalar, out=result), rounds)
        compare("plus, rows", count, binary(257, X, V, R), lambda: numpy.add(x, column, out=result), rounds)
        unaries = ((57, "sqrt", numpy.sqrt), (38, "abs", numpy.abs), (32, "exp", numpy.exp), (34, "log", numpy.log),
                   (1, "sin", numpy.sin), (2, "cos", numpy.cos), (3, "tan", numpy.tan), (11, "tanh", numpy.tanh))
        for op, name, peer in unaries:
            compare(name, count, unary(op, X, R), lambda: peer(x, out=result), rounds)
        x *= generator.choice((-1.0, 1.0), x.shape)
        wide = numpy.zeros(x.shape, numpy.complex128)
        compare("widening sqrt, half negative", count, unary(57, X, tensor_over(wide)),
                lambda: numpy.sqrt(x.astype(numpy.complex128), out=wide), rounds)


if __name__ == "__main__":
    main()
