#!/usr/bin/env python3
"""compiler_outputs.py FOLDER: writes what the programs of examples/compiler/programs should print, one .out beside
each, from models that share nothing with the compiler but the meaning of its programs. Run by hand when a program
changes; the files are committed and the tests compare with them."""
import math
import statistics
import sys


def g(x):
    if isinstance(x, complex):
        return g(x.real) + ("%+.10g" % x.imag) + "i"
    return "%.10g" % x


def row(values):
    return " ".join(str(v) if isinstance(v, int) else g(v) for v in values)


def table(rows):
    return [row(r) for r in rows]


def collatz(n):
    count = 1
    while n != 1:
        n = n // 2 if n % 2 == 0 else 3 * n + 1
        count += 1
    return count


def collatz_program():
    lengths = [collatz(n) for n in range(1, 31)]
    longest = max(range(30), key=lambda i: lengths[i])
    yield "lengths " + row(lengths)
    yield f"longest {longest + 1} with {lengths[longest]}"
    yield f"159487 takes {collatz(159487)}"
    yield from table([[math.gcd(12 * i, 18 * k) for k in range(1, 7)] for i in range(1, 7)])


def factorial_program():
    yield f"10! = {math.factorial(10)}"
    yield f"123456 * 654321 modulo 1000003 = {123456 * 654321 % 1000003}"
    for n in (11, 14, 17, 20):
        f = math.factorial(n)
        yield f"{n} {f if f <= 2**53 else '%.16g' % f}"


def life_program():
    alive = {(0, 1), (1, 2), (2, 0), (2, 1), (2, 2)}
    around = [(i, k) for i in (-1, 0, 1) for k in (-1, 0, 1) if (i, k) != (0, 0)]
    for generation in range(0, 13):
        if generation % 4 == 0:
            yield f"generation {generation} alive {len(alive)}"
            yield from table([[int((i, k) in alive) for k in range(8)] for i in range(8)])
        counts = {}
        for i, k in alive:
            for di, dk in around:
                cell = ((i + di) % 8, (k + dk) % 8)
                counts[cell] = counts.get(cell, 0) + 1
        alive = {c for c, n in counts.items() if n == 3 or (n == 2 and c in alive)}


def escape(c, most):
    z, count = 0j, 0
    while count < most and abs(z) <= 2:
        z, count = z * z + c, count + 1
    return count


def mandelbrot_program():
    yield from ("P2", "32 17", "30")
    for i in range(17):
        yield row([escape(complex(-2.1 + 2.8 * k / 31, 1.2 - 2.4 * i / 16), 30) for k in range(32)])


def moving_average_program():
    series = [10 + d / 4 + (d % 5 - 2) for d in range(1, 25)]
    smooth = [statistics.fmean(series[i : i + 5]) for i in range(20)]
    yield "series " + row(series)
    yield "smooth " + row(smooth)
    yield "rest " + row([s - m for s, m in zip(series[2:], smooth)])
    yield f"median {g(statistics.median(series))} smallest {g(min(series))} largest {g(max(series))}"


def bisected(f, low, high):
    while (low + high) / 2 not in (low, high):
        middle = (low + high) / 2
        low, high = (middle, high) if f(middle) < 0 else (low, middle)
    return low


def newton_program():
    h = math.sqrt(3) / 2
    yield "real " + g(bisected(lambda x: x**3 - 2 * x - 5, 2.0, 3.0))
    yield "of unity " + " ".join(g(z) for z in (1 + 0j, complex(-0.5, h), complex(-0.5, -h)))
    yield "roots " + " ".join(g(z) for z in (3 + 0j, 1.5 + 0j, 2j, 0.5j))
    yield f"one root {g(complex(0, math.sqrt(2)))} its square -2"


def power_iteration_program():
    value = g(2 - 2 * math.cos(3 * math.pi / 4))
    parts = [math.sin(3 * k * math.pi / 4) for k in (1, 2, 3)]
    yield f"eigenvalue {value} against {value}"
    yield "vector " + row([abs(p) / math.sqrt(2) for p in parts])
    yield "trace 6 determinant 4"


def random_walk_program():
    yield "points 1000 apart 0"
    yield "steps from 1 to 1 first 1"
    yield "an even number of steps ends at an even place"
    yield "normal enough"
    yield str(2147483647 + 1000)


def regression_program():
    x = [10, 8, 13, 9, 11, 14, 6, 4, 12, 7, 5]
    y = [8.04, 6.95, 7.58, 8.81, 8.33, 9.96, 7.24, 4.26, 10.84, 4.82, 5.68]
    slope, intercept = statistics.linear_regression(x, y)
    yield f"intercept {g(intercept)} slope {g(slope)}"
    yield "residual sum of squares " + g(sum((b - intercept - slope * a) ** 2 for a, b in zip(x, y)))
    yield "normal matrix"
    yield from ("3 6", "6 14")


def sieve_program():
    primes = [n for n in range(2, 10001) if all(n % d for d in range(2, math.isqrt(n) + 1))]
    yield f"primes below 10000: {len(primes)}"
    yield row(primes[:15])
    yield row(primes[-10:])
    yield f"sum: {sum(primes)}"


def integers_program():
    """Worked out by hand: each line is the meaning of one line of the program."""
    yield "signs -4 1 -4 -1 1024 -4 3.5"
    yield "rounded 2 4 -2 -1 3 -1 3"
    yield "of tensors 1 -2 3 -4 1 2 -1 -2 1 4 8 16"
    yield "mixed 0.5 1 2.5 3.5 0+1i 0+2i 0 1 8 -1+0i"
    yield "scaled 100000 -200000"
    yield "clamped 3 1 2"
    yield f"counted {3 - 3 + sum(range(5))} rows 2 columns 2"
    yield from ("1 -1", "0 1")
    yield from ("6 4", "0 3")
    yield "row 0 2 element -3"
    yield from ("11 -3", "10 -6")
    yield "sorted 1 2 3 2 3 1 4 3 2 1"
    yield "total 6 21 -9 12 1 3 6 11 -4"
    yield "dot 11 8 4 norm 5 digits 2 0 2 6"
    yield "shape 2 2 11 10 -3 -6 2 3 2 3 1"
    yield "stopped at 2"
    yield "ranges 3 0"


def large_sums_program():
    v = [2 * 10**9, 10**9]

    def whole(n):
        return str(n) if abs(n) <= 2**53 else "%.16g" % n

    yield f"half {sum(v) // 2}"
    yield from table([[2 * n // 4 for n in r] for r in ([2 * 10**9, 2], [4, 6])])
    yield f"total {sum(v)} running {v[0]} {sum(v)} dot {whole(sum(n * n for n in v))}"
    squares = " ".join(whole(n * n) for n in v)
    yield f"sum {row([2 * n for n in v])} products 0 {v[1] // 3} squares {squares}"
    yield f"rest {row([-n % 7 for n in v])} largest {max(v)} rounded {15 * 10**9} 2 {-10**12}"
    yield f"second {whole(v[0] * v[1])} places 2 1 range 3 6 9"


def sets_program():
    throws = [3, 1, 4, 1, 5, 9, 2, 6, 5, 3, 5, 8, 9, 7, 9, 3]
    first = dict.fromkeys(throws)
    yield "tally"
    yield from table([[n, throws.count(n)] for n in first])
    evens = list(range(2, 11, 2))
    yield "union " + row(sorted(set(throws) | set(evens)))
    yield "both " + row(sorted(set(throws) & set(evens)))
    yield "only thrown " + row(sorted(set(throws) - set(evens)))


for name, program in list(globals().items()):
    if name.endswith("_program"):
        with open(f"{sys.argv[1]}/{name.removesuffix('_program')}.out", "w") as file:
            file.write("\n".join(program()) + "\n")
