"""Plots as SVG: plain text, selectable, without scripts, on a background of their own, the same for the same run."""

import math
from xml.sax.saxutils import escape

OURS, ABOVE, UNASKED, PEER, LIMIT = "#1f5fa8", "#c2410c", "#7a8ca3", "#b45309", "#6b7280"
INK, GRID = "#1f2933", "#dde3ea"
STEPS = (1, 2, 5)
LETTER = 6.3  # pixels, of an average letter in bold


def text(x, y, words, anchor="start", size=12, colour=INK, more=""):
    return f'<text x="{x:.1f}" y="{y:.1f}" font-size="{size}" text-anchor="{anchor}" fill="{colour}"{more}>{escape(words)}</text>'


def line(x1, y1, x2, y2, colour, width=1.0, more=""):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="{colour}" stroke-width="{width}"{more}/>'


def document(width, height, title, body):
    return "\n".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" width="{width}" height="{height}" '
        'font-family="sans-serif" role="img">',
        f"<title>{escape(title)}</title>",
        f'<rect width="{width}" height="{height}" fill="#ffffff"/>', *body, "</svg>", ""])


def is_power(value):
    return f"{value:.0e}".startswith("1e")


class LogAxis:
    """From the last of 1, 2, 5, 10 ... below the values to the first above, over pixels from `first` to `last`."""

    def __init__(self, values, first, last):
        decades = range(math.floor(math.log10(min(values))) - 1, math.ceil(math.log10(max(values))) + 1)
        marks = [float(f"{step}e{decade}") for decade in decades for step in STEPS]
        self.low = max(mark for mark in marks if mark <= min(values))
        self.high = min(mark for mark in marks if mark >= max(values) and mark > self.low)
        self.marks = [mark for mark in marks if self.low <= mark <= self.high]
        self.first, self.last = first, last

    def at(self, value):
        return self.first + math.log(value / self.low) / math.log(self.high / self.low) * (self.last - self.first)

    def ticks(self):
        """All marks where there is room for them, or whole powers of ten."""
        return self.marks if self.high / self.low <= 1000 else [mark for mark in self.marks if is_power(mark)]


def times_text(row):
    return ", ".join([f"ours {row.ours:g}", *(f"{name} {time:g}" for name, time in row.peers)]) + f" ({row.unit})"


def ratio_row(row, axis, y):
    """One row of the plot: the aim is a tick, ours a dot, hollow where nothing was asked."""
    left, right = axis.first - 8, axis.last + 46
    colour = ABOVE if row.is_above_aim else OURS if row.aim else UNASKED
    fill = colour if row.aim else "#ffffff"
    mark = ' font-weight="bold"' if row.is_above_aim else ""
    yield text(left, y + 4, row.label, "end", 11, ABOVE if row.is_above_aim else INK, mark)
    yield line(axis.at(1), y, axis.at(row.ratio), y, colour, 1.5)
    if row.aim and not row.is_time:
        yield line(axis.at(row.aim), y - 6, axis.at(row.aim), y + 6, INK, 2)
    yield (f'<circle cx="{axis.at(row.ratio):.1f}" cy="{y:.1f}" r="4" fill="{fill}" stroke="{colour}" '
           f'stroke-width="1.5"><title>{escape(times_text(row))}</title></circle>')
    yield text(right, y + 4, f"{row.ratio:.2f}", "end", 11, colour, mark)
    yield text(right + 6, y + 4, row.peer, size=11, colour=UNASKED)


def ratios(title, rows):
    """Our ratio to the best peer, a row each, on a logarithmic axis."""
    top, step = 62, 16
    left, bottom = 24 + round(LETTER * max(len(row.label) for row in rows)), top + step * len(rows)
    # A value on the very edge would draw its dot over the labels.
    values = [row.ratio for row in rows] + [row.aim for row in rows if row.aim and not row.is_time] + [0.5, 2]
    axis = LogAxis([min(values) * 0.97, max(values) * 1.03], left, left + 430)
    body = [text(12, 22, title, size=15),
            text(12, 40, "Our time to the best peer's: left of 1 ours is faster. Tick: what was asked; orange: above "
                 "it. Hollow: nothing was asked.", size=11, colour=LIMIT)]
    for tick in axis.ticks():
        body += [line(axis.at(tick), top - 8, axis.at(tick), bottom, INK if tick == 1 else GRID, 1.2 if tick == 1 else 1),
                 text(axis.at(tick), bottom + 14, f"{tick:g}", "middle", 11)]
    for number, row in enumerate(rows):
        body += ratio_row(row, axis, top + step * number + step / 2)
    return document(max(left + 600, 640), bottom + 26, title, body)


def curve(points, x_axis, y_axis, colour, dash=""):
    places = [(x_axis.at(x), y_axis.at(y)) for x, y in points]
    more = f' stroke-dasharray="{dash}"' if dash else ""
    yield (f'<polyline points="{" ".join(f"{x:.1f},{y:.1f}" for x, y in places)}" fill="none" stroke="{colour}" '
           f'stroke-width="2"{more}/>')
    for x, y in places:
        yield f'<circle cx="{x:.1f}" cy="{y:.1f}" r="3" fill="{colour}"/>'


def panel(left, top, title, series):
    """`series`: for ours, the best peer and the limit, points of count and nanoseconds for one element."""
    xs, ys = zip(*(point for points in series for point in points))
    x_axis, y_axis = LogAxis(xs, left + 48, left + 400), LogAxis(ys, top + 250, top + 30)
    yield text(left + 48, top + 18, title, size=13)
    for tick in x_axis.ticks():
        if is_power(tick):
            yield line(x_axis.at(tick), top + 30, x_axis.at(tick), top + 250, GRID)
            yield text(x_axis.at(tick), top + 265, f"1e{round(math.log10(tick))}", "middle", 11)
    for tick in y_axis.ticks():
        yield line(left + 48, y_axis.at(tick), left + 400, y_axis.at(tick), GRID)
        yield text(left + 42, y_axis.at(tick) + 4, f"{tick:g}", "end", 11)
    for points, colour, dash in zip(series, (OURS, PEER, LIMIT), ("", "6 4", "2 3")):
        if points:
            yield from curve(points, x_axis, y_axis, colour, dash)


def curves(panels):
    """Nanoseconds for one element against their number; `panels` are titles with their three series."""
    title = "Nanoseconds an element against the number of elements"
    body = [text(12, 22, title, size=15)]
    for x, (name, colour, dash) in zip((12, 90, 200), (("ours", OURS, ""), ("best peer", PEER, "6 4"),
                                                       ("the machine's limit", LIMIT, "2 3"))):
        more = f' stroke-dasharray="{dash}"' if dash else ""
        body += [line(x, 38, x + 22, 38, colour, 2, more), text(x + 27, 42, name, size=11)]
    for number, (name, series) in enumerate(panels):
        body += panel(12 + 430 * (number % 2), 54 + 280 * (number // 2), name, series)
    return document(880, 62 + 280 * ((len(panels) + 1) // 2), title, body)
