"""The generated part of docs/performance.md, with its plots and its table, from a run."""

import fnmatch
import math
import pathlib
import re

import plots

BEGIN, END = "<!-- bench/run --page writes from here -->", "<!-- to here -->"
FOLDER = "performance"
MOST_ROWS = 60  # of one plot
HERE = pathlib.Path(__file__).resolve().parent


def patterns(name):
    """Lines `room, row <TAB> text`; # begins a comment. An asterisk stands for any text."""
    with open(HERE / name, encoding="utf-8") as file:
        lines = [line.rstrip("\n") for line in file if line.strip() and not line.startswith("#")]
    return [(line.split("\t") + [""])[:2] for line in lines]


def key_of(row):
    return f"{row.room}: {row.label}"


def first_match(row, table):
    return next((words for pattern, words in table if fnmatch.fnmatchcase(key_of(row), pattern)), None)


def slug(room):
    return re.sub("[^a-z]+", "_", room.lower())


def number(value, digits="{:.2f}"):
    return "-" if value is None else digits.format(value)


def aim_text(row):
    return "-" if row.aim is None else f"{row.aim:g} ns" if row.is_time else f"{row.aim:.2f}"


def cells(*words):
    return "| " + " | ".join(words) + " |"


def heading(*words):
    return [cells(*words), cells("---", *("---:" for _ in words[1:]))]


def row_table(rows):
    lines = heading("Row", "ns", "best peer", "its ns", "ratio", "asked", "to the limit")
    for row in rows:
        best = next((f"{time:.3g}" for name, time in row.peers if name == row.peer), "-")
        ratio = number(row.ratio)
        lines.append(cells(row.label, f"{row.ours:.3g}", row.peer, best, f"**{ratio}**" if row.is_above_aim else ratio,
                           aim_text(row), number(row.to_limit)))
    return lines


def rates(results):
    """What was read, written and copied, in GB/s."""
    found = {row.name: 1 / row.ours for row in results.of("machine")}
    sizes = list(dict.fromkeys(name.split(" ", 1)[1] for name in found if name != "operation"))
    lines = heading("GB/s", *sizes)
    for what in ("read", "written", "copied"):
        lines.append(cells(what, *(number(found.get(f"{what} {size}"), "{:.3g}") for size in sizes)))
    if "operation" in found:
        lines += ["", f"One thread adds and multiplies {found['operation']:.3g} doubles a nanosecond."]
    return lines


def machine(results):
    lines = ["## The machine", ""]
    lines += [f"**{warning} Do not believe these figures.**\n" for warning in results.warnings]
    lines += [f"- {key}: {value}" for key, value in results.facts.items()]
    return lines + ["", "Measured in the same run; a copy counts both sides.", "", *rates(results), ""]


def middle(values):
    """The geometric mean, as befits ratios."""
    return math.exp(sum(map(math.log, values)) / len(values)) if values else None


def overview(results):
    lines = ["## All rooms", "", *heading("Room", "rows", "with peers", "mean ratio", "asked of", "above it")]
    for room in results.rooms:
        rows = results.of(room)
        lines.append(cells(f"[{room}](#{anchor(room)})", str(len(rows)), str(sum(r.ratio is not None for r in rows)),
                           number(middle([r.ratio for r in rows if r.ratio])), str(sum(r.aim is not None for r in rows)),
                           str(sum(r.is_above_aim for r in rows))))
    return lines + ["", f"All rows of the run stand in [{FOLDER}/run.tsv]({FOLDER}/run.tsv).", ""]


def anchor(room):
    return re.sub("[^a-z0-9 _-]", "", room.lower()).replace(" ", "-")


def plots_of(results, room):
    """Names and contents of a room's plots."""
    rows = [row for row in results.of(room) if row.ratio is not None]
    parts = math.ceil(len(rows) / MOST_ROWS)
    size = math.ceil(len(rows) / parts) if parts else 0
    for part in range(parts):
        name = slug(room) + (f"_{part + 1}" if parts > 1 else "") + ".svg"
        title = room + (f", {part + 1} of {parts}" if parts > 1 else "")
        yield name, plots.ratios(title, rows[part * size:(part + 1) * size])


def room_section(results, room, telling):
    rows = results.of(room)
    chosen = [row for row in rows if first_match(row, telling) is not None] or rows[:6]
    lines = [f"### {room}", "", f"Unit: {rows[0].unit}.", "", *row_table(chosen), ""]
    for name, _ in plots_of(results, room):
        lines += [f"![Our ratio to the best peer: {room}]({FOLDER}/{name})", ""]
    return lines


def losses(results, reasons):
    """Rows above what was asked, by reason."""
    lines = ["## Where we lose, and why", ""]
    groups = {}
    for row in results.above_aim:
        groups.setdefault(first_match(row, reasons) or "No reason found yet.", []).append(row)
    if not groups:
        return lines + ["No row is above what was asked.", ""]
    lines += ["Every row above what was asked, the worst first: the figure, and in brackets what was asked.", ""]
    for reason, rows in groups.items():
        lines += [reason, ""] + [f"- {key_of(row)}: {row.judged:.2f} ({aim_text(row)})" for row in rows] + [""]
    return lines


# Title, room, row, and where the number of elements stands: in the row's name, or in its count.
CURVES = (("plus, reals", "elementwise", "plus"), ("exp", "elementwise", "exp"),
          ("order of integers", "sorting", "order, integers"), ("dot, reals", "linalg", r"dot of (\d+)"))


def series(results, room, pattern):
    ours, peer, limit = [], [], []
    for row in results.of(room):
        if not (match := re.fullmatch(pattern, row.name)):
            continue
        elements, ours_each = row.count, row.ours
        if match.groups():
            elements, ours_each = int(match[1]), row.ours / int(match[1])
        ours.append((elements, ours_each))
        if row.ratio:
            peer.append((elements, ours_each / row.ratio))
        if row.to_limit:
            limit.append((elements, ours_each / row.to_limit))
    return [sorted(points) for points in (ours, peer, limit)]


def panels(results):
    found = ((title, series(results, room, pattern)) for title, room, pattern in CURVES)
    return [(title, three) for title, three in found if three[0]]


def growth(results):
    if not panels(results):
        return []
    return ["## How times grow", "", f"![Nanoseconds an element against their number]({FOLDER}/curves.svg)", "",
            "Steps are where the operands leave a cache; at the left the call itself is what costs.", ""]


def generated(results):
    reasons, telling = patterns("reasons.tsv"), patterns("telling.tsv")
    lines = machine(results) + overview(results) + growth(results) + losses(results, reasons) + ["## Room by room", ""]
    for room in results.rooms:
        lines += room_section(results, room, telling)
    return "\n".join(lines)


def write(results, run_text, docs):
    """Rewrites the generated part of docs/performance.md and everything in docs/performance."""
    page = pathlib.Path(docs) / "performance.md"
    head, rest = page.read_text(encoding="utf-8").split(BEGIN)
    tail = rest.split(END)[1]
    page.write_text(f"{head}{BEGIN}\n\n{generated(results)}\n{END}{tail}", encoding="utf-8")
    folder = page.parent / FOLDER
    folder.mkdir(exist_ok=True)
    for old in folder.glob("*.svg"):
        old.unlink()
    files = {name: content for room in results.rooms for name, content in plots_of(results, room)}
    if panels(results):
        files["curves.svg"] = plots.curves(panels(results))
    for name, content in {**files, "run.tsv": run_text}.items():
        (folder / name).write_text(content, encoding="utf-8")
