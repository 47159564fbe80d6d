#!/usr/bin/python3
"""Elementwise mathematics beside NumPy, on one thread.

    elementwise_numpy.py LIBRARY [--rounds N] [--only TEXT] [--tsv]
"""

import ctypes

import numpy

from numpy_table import REAL, Table, tensor_over

NEVER = 2**31 - 1
BINARIES = ((257, "plus", numpy.add), (258, "subtract", numpy.subtract), (259, "times", numpy.multiply),
            (260, "div", numpy.divide), (263, "pow", numpy.power))
UNARIES = ((57, "sqrt", numpy.sqrt), (38, "abs", numpy.abs), (32, "exp", numpy.exp), (34, "log", numpy.log),
           (1, "sin", numpy.sin), (2, "cos", numpy.cos), (3, "tan", numpy.tan), (11, "tanh", numpy.tanh))
LONG = ("pow", "log", "cos", "tan", "tanh")  # as long with the operands in memory: the others show it


class Calls:
    """Our calls on records: each keeps what its pointers point to."""

    def __init__(self, library):
        self.library = library

    def unary(self, op, x, result):
        slot, operand = ctypes.pointer(result), ctypes.byref(x)
        slot_address, kind = ctypes.byref(slot), result.type
        return lambda: self.library.MTensorMathUnary(slot_address, operand, op, kind)

    def binary(self, op, x, y, result):
        slot, first, second = ctypes.pointer(result), ctypes.byref(x), ctypes.byref(y)
        slot_address = ctypes.byref(slot)
        return lambda: self.library.MTensorMathBinary(slot_address, first, second, op, REAL)


def rows_of(table, rows, columns):
    count, calls = rows * columns, Calls(table.library)
    is_huge = count == 10_000_000
    generator = numpy.random.default_rng(count)
    x = generator.uniform(0.001, 5, (rows, columns))
    y = generator.uniform(0.5, 2.5, (rows, columns))
    per_row, scalar, result = y[:, 0].copy(), numpy.array(1.25), numpy.zeros_like(x)
    X, Y, V, S, R = map(tensor_over, (x, y, per_row, scalar, result))
    column = per_row[:, None]
    for op, name, peer in BINARIES:
        if not (is_huge and name in LONG):
            table.compare(name, count, calls.binary(op, X, Y, R), {"NumPy": lambda: peer(x, y, out=result)})
    table.compare("plus, scalar", count, calls.binary(257, X, S, R), {"NumPy": lambda: numpy.add(x, scalar, out=result)})
    table.compare("plus, rows", count, calls.binary(257, X, V, R), {"NumPy": lambda: numpy.add(x, column, out=result)})
    for op, name, peer in UNARIES:
        if not (is_huge and name in LONG):
            table.compare(name, count, calls.unary(op, X, R), {"NumPy": lambda: peer(x, out=result)})
    x *= generator.choice((-1.0, 1.0), x.shape)
    wide = numpy.zeros(x.shape, numpy.complex128)
    table.compare("widening sqrt, half negative", count, calls.unary(57, X, tensor_over(wide)),
                  {"NumPy": lambda: numpy.sqrt(x.astype(numpy.complex128), out=wide)})


def main():
    table = Table("elementwise, NumPy", "ns an element")
    table.library.InitializeTorvaneRTL(None, None, None)
    for index in range(5):
        table.library.setVectorParallelLengthThreshold(index, NEVER)
    for rows, columns in ((10, 100), (100, 1000), (1000, 10000)):
        rows_of(table, rows, columns)


if __name__ == "__main__":
    main()
