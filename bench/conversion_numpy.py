#!/usr/bin/python3
"""Conversions of numeric arrays beside NumPy, both in this process and on the same memory.

    conversion_numpy.py MODULE [rounds]

MODULE is the build's bench_conversion_module. The candidates of a row alternate and the least counts. Prints
nanoseconds an element and our ratio. NumPy's peer is copyto, which is astype without the allocation; its
figure has a call from Python in it, of about half a microsecond. Needs NumPy; neither the build nor a test does.
"""

import ctypes
import sys

import numpy

from elementwise_numpy import nanoseconds, tensor_over

TAGS = {"uint8": 2, "int16": 3, "int32": 5, "float32": 9, "float64": 10}
COERCE, CLIP_AND_COERCE, ROUND, SCALE = 3, 4, 5, 7


def array_over(array):
    record = tensor_over(array)  # the same layout
    record.elementType = TAGS[array.dtype.name]
    return record


def clipped(target, source, scratch):
    numpy.clip(source, 0, 255, out=scratch)
    numpy.copyto(target, scratch, casting="unsafe")


ROWS = (
    ("f64 to i32, Round", "float64", "int32", ROUND, lambda t, x, s: numpy.copyto(t, x, casting="unsafe")),
    ("f64 to f32, Coerce", "float64", "float32", COERCE, lambda t, x, s: numpy.copyto(t, x, casting="unsafe")),
    ("i32 to u8, ClipAndCoerce", "int32", "uint8", CLIP_AND_COERCE, clipped),
    ("i32 to u8, unclipped peer", "int32", "uint8", CLIP_AND_COERCE, lambda t, x, s: numpy.copyto(t, x, casting="unsafe")),
    ("i16 to f64, Coerce", "int16", "float64", COERCE, lambda t, x, s: numpy.copyto(t, x, casting="unsafe")),
    ("u8 to f32, Scale", "uint8", "float32", SCALE, lambda t, x, s: numpy.divide(x, numpy.float32(255), out=t)),
    ("u8 to f32, unscaled peer", "uint8", "float32", SCALE, lambda t, x, s: numpy.copyto(t, x, casting="unsafe")),
)


def main():
    module = ctypes.CDLL(sys.argv[1])
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 25
    module.benchStart()
    print(f"{'ns an element':<28} {'count':>9} {'ours':>9} {'NumPy':>9} {'ratio':>7}")
    for name, source_type, target_type, method, peer in ROWS:
        for count in (1000, 10_000, 100_000, 1_000_000, 10_000_000):
            x = numpy.random.default_rng(1).integers(0, 200, count).astype(source_type)
            target, scratch = numpy.zeros(count, target_type), numpy.zeros_like(x)
            source, result = array_over(x), array_over(target)
            repeats = max(1, 200_000 // count)
            own = other = float("inf")
            for _ in range(rounds):
                own = min(own, nanoseconds(lambda: module.benchConvert(ctypes.byref(result), ctypes.byref(source), method, repeats), 1))
                other = min(other, nanoseconds(lambda: peer(target, x, scratch), repeats))
            assert module.benchConvert(ctypes.byref(result), ctypes.byref(source), method, 1) == 0
            own, other = own / repeats / count, other / count
            print(f"{name:<28} {count:9d} {own:9.3f} {other:9.3f} {own / other:7.2f}", flush=True)


if __name__ == "__main__":
    main()
