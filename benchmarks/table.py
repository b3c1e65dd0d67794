#!/usr/bin/env python3
"""Makes one readable table of what the benchmarks measured.

Reads the JSON of a run from a file. A name is "work/contestant/letters/density"; of several runs of one name the fastest counts.
Exits with 1 when a measurement is missing, or when the contestants did not break the text into about as many lines.
"""

import json
import sys

PEERS = ("QTextDocument", "Pango")
DENSITIES = ("plain", "typical", "dense")
WORK_WITH_PEERS = ("measure and lay out", "insert a character and lay out", "find a position", "memory")
WORK = ("read", "write", "measure", "lay out", "measure and lay out", "find a position", "insert a character and lay out",
        "type a key in a session", "type a key as an undo step", "copy for undo", "memory")
AT_ONE_PLACE = ("find a position", "insert a character and lay out", "type a key in a session", "type a key as an undo step")
HEADINGS = ("work", "text", "letters", "scribe", "per letter", *PEERS, "memcpy", "of nearest peer")
NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}
# Fonts are scaled a little differently by each; more than this would be another amount of work.
LINES_MAY_DIFFER = 0.05


def measured(run):
    """Figures and line counts by (work, contestant, letters, density). Times are nanoseconds, memory bytes."""
    figures, lines = {}, {}
    for row in run["benchmarks"]:
        if row.get("run_type") == "aggregate" or row.get("error_occurred"):
            continue
        work, contestant, letters, density = row["name"].split("/")[:4]
        key = work, contestant, int(letters), int(density)
        figure = row["bytes"] if "bytes" in row else row["cpu_time"] * NANOSECONDS[row["time_unit"]]
        figures[key] = min(figure, figures.get(key, figure))
        if "lines" in row:
            lines[key] = row["lines"]
    return figures, lines


def amount(value, units):
    """A figure with three digits, in the largest of the units of which it has at least one."""
    if value is None:
        return "-"
    size, unit = next(((size, unit) for size, unit in units if value >= size), units[-1])
    value /= size
    digits = 2 if value < 10 else 1 if value < 100 else 0
    return f"{value:.{digits}f} {unit}"


def time(value):
    return amount(value, ((1e9, "s"), (1e6, "ms"), (1e3, "µs"), (1, "ns")))


def memory(value):
    return amount(value, ((1 << 20, "MiB"), (1 << 10, "KiB"), (1, "B")))


def per_letter(work, own, letters):
    if work in AT_ONE_PLACE:
        return "-"
    return amount(own / letters, ((1, "B" if work == "memory" else "ns"),))


def row_of(figures, work, letters, density):
    """The cells of one row, or None when scribe was not measured."""
    own = figures.get((work, "scribe", letters, density))
    if own is None:
        return None
    peers = [figures.get((work, peer, letters, density)) for peer in PEERS]
    known = [peer for peer in peers if peer is not None]
    show = memory if work == "memory" else time
    yardstick = 2 * letters if work == "memory" else figures.get(("copy bytes", "memcpy", letters, density))
    return [work, DENSITIES[density], f"{letters:,}", show(own), per_letter(work, own, letters), *map(show, peers), show(yardstick),
            f"{own / min(known):.2f}" if known else "-"]


def table(figures):
    texts = sorted({(density, letters) for _, _, letters, density in figures})
    rows = [row for work in WORK for density, letters in texts if (row := row_of(figures, work, letters, density))]
    return [list(HEADINGS), *rows]


def markdown(rows):
    """The rows with a rule below the first; words stand left, figures right."""
    widths = [max(len(row[i]) for row in rows) for i in range(len(rows[0]))]
    words = 2

    def line(row):
        cells = [cell.ljust(width) if i < words else cell.rjust(width) for i, (cell, width) in enumerate(zip(row, widths))]
        return "| " + " | ".join(cells) + " |"

    rule = "|" + "|".join("-" * (width + 2) if i < words else "-" * (width + 1) + ":" for i, width in enumerate(widths)) + "|"
    return "\n".join([line(rows[0]), rule, *map(line, rows[1:])])


def faults(figures, lines):
    """What makes the table incomplete or unfair, as sentences. Only work that was measured at all is looked at."""
    found = []
    for work, contestant, letters, density in sorted(figures):
        if contestant != "scribe":
            continue
        for peer in PEERS if work in WORK_WITH_PEERS else ():
            if (work, peer, letters, density) not in figures:
                found.append(f"{work} of {letters} letters, {DENSITIES[density]}: nothing of {peer}")
        own = lines.get((work, contestant, letters, density))
        for peer in PEERS if own else ():
            other = lines.get((work, peer, letters, density), 0)
            if abs(other - own) > LINES_MAY_DIFFER * own + 1:
                found.append(f"{work} of {letters} letters, {DENSITIES[density]}: {own:.0f} lines, but {other:.0f} of {peer}")
    return found


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        figures, lines = measured(json.load(file))
    print(markdown(table(figures)))
    found = faults(figures, lines)
    for sentence in found:
        print(sentence, file=sys.stderr)
    return 1 if found or not figures else 0


if __name__ == "__main__":
    sys.exit(main())
