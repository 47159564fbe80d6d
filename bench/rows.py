"""A run of the benchmarks: its rows, and what is known of the machine and of the hour.

A run is kept as text: lines `# key<TAB>value` with the facts, and below them the lines that the programs print,
whose columns are those of Row.
"""

import dataclasses


@dataclasses.dataclass(frozen=True)
class Row:
    room: str
    name: str
    unit: str
    count: int
    ours: float  # nanoseconds for one of count
    peer: str  # the best one, or "-"
    ratio: float | None  # ours to the best peer
    to_limit: float | None  # ours to what the machine can do
    aim: float | None  # of the ratio, or, with is_time, of ours
    is_time: bool
    peers: tuple[tuple[str, float], ...]

    @property
    def label(self):
        return self.name if self.count == 1 else f"{self.name}, {self.count:,}"

    @property
    def judged(self):
        return self.ours if self.is_time else self.ratio

    @property
    def is_above_aim(self):
        """By the two digits that are printed."""
        return None not in (self.aim, self.judged) and round(self.judged, 2) > self.aim

    @property
    def excess(self):
        return self.judged / self.aim


def number_or_none(cell):
    return None if cell == "-" else float(cell)


def row_of(line):
    room, name, unit, count, ours, peer, ratio, to_limit, aim, peers = line.rstrip("\n").split("\t")
    is_time = aim.endswith("ns")
    times = (cell.rsplit("=", 1) for cell in peers.split(";") if cell)
    return Row(room, name, unit, int(count), float(ours), peer, number_or_none(ratio), number_or_none(to_limit),
               number_or_none(aim.removesuffix("ns")), is_time, tuple((name, float(time)) for name, time in times))


@dataclasses.dataclass
class Results:
    facts: dict[str, str]
    rows: list[Row]

    @property
    def rooms(self):
        """Those with rows to compare, in the order of the run."""
        return [room for room in dict.fromkeys(row.room for row in self.rows) if room != "machine"]

    def of(self, room):
        return [row for row in self.rows if row.room == room]

    @property
    def above_aim(self):
        """The worst first."""
        return sorted((row for row in self.rows if row.is_above_aim), key=lambda row: -row.excess)

    @property
    def warnings(self):
        """Why the figures are not to be believed."""
        load, others = (float(self.facts.get(key, 0)) for key in ("load at start", "processors others used"))
        if load > 0.5:
            yield f"The machine was not idle: its load average was {load:.2f} when the run began."
        if others > 0.1:
            yield f"Other programs used {others:.2f} processors on average while it ran."


def read(lines):
    results = Results({}, [])
    for line in lines:
        if line.startswith("# "):
            key, value = line[2:].rstrip("\n").split("\t")
            results.facts[key] = value
        elif line.strip():
            results.rows.append(row_of(line))
    return results
