#!/usr/bin/python3
"""Conversions of numeric arrays beside NumPy.

    conversion_numpy.py MODULE [--rounds N] [--only TEXT] [--tsv]

MODULE is the build's bench_conversion_module. NumPy's peer is copyto, which is astype without the allocation.
"""

import ctypes

import numpy

from numpy_table import Table, tensor_over

TAGS = {"uint8": 2, "int16": 3, "int32": 5, "float32": 9, "float64": 10}
COERCE, CLIP_AND_COERCE, ROUND, SCALE = 3, 4, 5, 7


def array_over(array):
    record = tensor_over(array)  # the same layout
    record.elementType = TAGS[array.dtype.name]
    return record


def cut(target, source, scratch):
    numpy.copyto(target, source, casting="unsafe")


def clipped(target, source, scratch):
    numpy.clip(source, 0, 255, out=scratch)
    numpy.copyto(target, scratch, casting="unsafe")


def scaled(target, source, scratch):
    numpy.divide(source, numpy.float32(255), out=target)


# Name, types, method, peer, aim. NumPy's rounding is none, but a cut.
ROWS = (
    ("f64 to i32, Round", "float64", "int32", ROUND, cut, 1.1),
    ("f64 to f32, Coerce", "float64", "float32", COERCE, cut, 1.1),
    ("i32 to u8, ClipAndCoerce", "int32", "uint8", CLIP_AND_COERCE, clipped, 1.1),
    ("i32 to u8, peer does not clip", "int32", "uint8", CLIP_AND_COERCE, cut, 0),
    ("i16 to f64, Coerce", "int16", "float64", COERCE, cut, 1.1),
    ("u8 to f32, Scale", "uint8", "float32", SCALE, scaled, 1.1),
    ("u8 to f32, peer does not scale", "uint8", "float32", SCALE, cut, 0),
)


def compare(table, row, count):
    name, source_type, target_type, method, peer, aim = row
    x = numpy.random.default_rng(1).integers(0, 200, count).astype(source_type)
    target, scratch = numpy.zeros(count, target_type), numpy.zeros_like(x)
    source, result = array_over(x), array_over(target)
    convert = table.library.benchConvert
    assert convert(ctypes.byref(result), ctypes.byref(source), method) == 0
    table.compare(name, count, lambda: convert(ctypes.byref(result), ctypes.byref(source), method),
                  {"NumPy": lambda: peer(target, x, scratch)}, aim)


def main():
    table = Table("conversion, NumPy", "ns an element")
    table.library.benchStart()
    for row in ROWS:
        for count in (1000, 100_000, 10_000_000):
            compare(table, row, count)


if __name__ == "__main__":
    main()
