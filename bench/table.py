"""Turns the JSON of the benchmarks into the tables of docs/performance.md.

python3 bench/table.py RESULT.json... [PAGE.md]: with a page, the part between its markers is replaced; without, the tables
are printed. Every time is the median of the repetitions, every ratio the ratio of two medians of the same run.
"""
import json
import re
import statistics
import sys

BEGIN = "<!-- tables: written by tools/bench -->"
END = "<!-- end of tables -->"
SEARCH_LIMIT = 1.5
SAVE_LIMIT = 1.3
MEMORY_LIMIT = 3.0
GROWTH_LIMIT = 2.0  # times the growth of the yardstick; a quadratic operation would take ten times
ROWS_FACTOR = 10.0  # the growth of the work where there is no yardstick
NOISE_MS = 1.0  # below it a growth says nothing


def read(files):
    """{subject: {measure: {rows: median in ms}}} in the order of the run, {subject: counters}, the machine."""
    times, counters, context = {}, {}, {}
    samples = {}
    for name in files:
        with open(name, encoding="utf-8") as file:
            result = json.load(file)
        context = result["context"]
        for run in result["benchmarks"]:
            if run.get("run_type") != "iteration":
                continue
            if run.get("error_occurred"):
                sys.exit(f"{run['name']}: {run['error_message']}")
            subject, measure, rows = run["name"].split("/")[:3]
            key = (run.get("family_index", 0), subject, measure, int(rows))
            samples.setdefault((name,) + key, []).append(run["real_time"])
            if "fileMB" in run:
                counters.setdefault(subject, []).append(run["peakMB"] / run["fileMB"])
    for (_, _, subject, measure, rows), values in sorted(samples.items(), key=lambda item: item[0][:2]):
        times.setdefault(subject, {}).setdefault(measure, {})[rows] = statistics.median(values)
    return times, {subject: statistics.median(values) for subject, values in counters.items()}, context


def milliseconds(value):
    if value is None:
        return ""
    if value < 0.0995:
        return f"{value * 1000:.0f} µs"
    return f"{value:.2f} ms" if value < 9.995 else f"{value:.0f} ms"


def ratio(value):
    return f"{value:.2f}" if value < 9.995 else f"{value:.0f}"


def growth(program):
    """Of the last step of ten times the rows; nothing where it says nothing."""
    sizes = sorted(program)
    if len(sizes) < 2 or sizes[-1] != 10 * sizes[-2] or program[sizes[-1]] < NOISE_MS:
        return None
    return program[sizes[-1]] / program[sizes[-2]]


def relative_growth(measures):
    """The growth in multiples of that of the plain yardstick: large files cost more a byte in any program."""
    grown = growth(measures.get("program", {}))
    if grown is None:
        return None
    plain = measures.get("read + scan") or measures.get("synced copy") or {}
    sizes = sorted(measures["program"])[-2:]
    expected = plain[sizes[1]] / plain[sizes[0]] if all(size in plain for size in sizes) else ROWS_FACTOR
    return grown / max(expected, ROWS_FACTOR)


def worst(measures, yardstick):
    """The largest ratio to the yardstick over the sizes from 10,000 rows on, and its size."""
    ratios = [(measures["program"][rows] / time, rows)
              for rows, time in measures.get(yardstick, {}).items()
              if rows >= 10000 and rows in measures.get("program", {})]
    return max(ratios, default=None)


def verdicts(times, memory):
    lines = ["| Target | Worst case | Where | |", "|---|---|---|---|"]

    def line(target, cases, limit):
        if not cases:
            return
        value, where = max(cases)
        lines.append(f"| {target} | {ratio(value)} | {where} | {'met' if value <= limit else '**missed**'} |")

    def against(yardstick, subjects):
        found = []
        for subject in subjects:
            case = worst(times[subject], yardstick)
            if case:
                found.append((case[0], f"{subject}, {case[1]:,} rows"))
        return found

    searches = [s for s, m in times.items() if "grep" in m and not s.startswith("Click")]
    saves = [s for s, m in times.items() if "synced copy" in m]
    line(f"a search costs at most {SEARCH_LIMIT} × read + scan", against("read + scan", searches), SEARCH_LIMIT)
    line("a search beats grep", against("grep", searches), 1.0)
    line("a search beats SQLite (LIKE over the line)", against("SQLite line", searches), 1.0)
    line("a search beats SQLite (LIKE over the columns)", against("SQLite columns", searches), 1.0)
    line(f"a save costs at most {SAVE_LIMIT} × a synced copy", against("synced copy", saves), SAVE_LIMIT)
    line(f"a search or a save holds at most {MEMORY_LIMIT:.0f} × the file in memory",
         [(value, subject) for subject, value in memory.items()], MEMORY_LIMIT)
    line(f"nothing is quadratic: with ten times the rows, time grows at most {GROWTH_LIMIT:.0f} × as much as the yardstick's",
         [(value, s) for s, m in times.items() if (value := relative_growth(m))], GROWTH_LIMIT)
    return lines


def by_rows(times):
    """Subjects measured over the three sizes."""
    lines = ["| Operation | 1,000 | 10,000 | 100,000 | growth | in multiples of its yardsticks, 100,000 rows |",
             "|---|---:|---:|---:|---:|---|"]
    for subject, measures in times.items():
        program = measures.get("program", {})
        if 100000 not in program:
            continue
        beside = [f"{yardstick} {ratio(program[100000] / values[100000])}"
                  for yardstick, values in measures.items() if yardstick != "program" and values.get(100000)]
        grown = growth(program)
        lines.append("| " + " | ".join([subject, *(milliseconds(program.get(rows)) for rows in (1000, 10000, 100000)),
                                        f"{grown:.1f}" if grown else "", ", ".join(beside)]) + " |")
    return lines


def others(times):
    """Subjects with a parameter of their own."""
    lines = ["| Operation | of | time | in multiples of its yardsticks |", "|---|---:|---:|---|"]
    for subject, measures in times.items():
        program = measures.get("program", {})
        if 100000 in program:
            continue
        for parameter, time in sorted(program.items()):
            beside = [f"{yardstick} {ratio(time / values[parameter])}"
                      for yardstick, values in measures.items() if yardstick != "program" and values.get(parameter)]
            lines.append(f"| {subject} | {parameter:,} | {milliseconds(time)} | {', '.join(beside)} |")
    return lines


def absolute(times):
    """The yardsticks themselves at 100,000 rows, so that a reader can judge the machine."""
    lines = ["| Yardstick | 100,000 rows |", "|---|---:|"]
    for subject, yardstick in (("Customer search, one hit", "read + scan"), ("Customer search, one hit", "grep"),
                               ("Customer search, one hit", "SQLite line"),
                               ("Customer search, one hit", "SQLite columns"), ("Customer by number", "SQLite"),
                               ("Save a changed customer", "synced copy"), ("Save a changed customer", "SQLite")):
        time = times.get(subject, {}).get(yardstick, {}).get(100000)
        if time is not None:
            lines.append(f"| {yardstick}: {subject[0].lower()}{subject[1:]} | {milliseconds(time)} |")
    return lines


def memory_table(memory):
    return ["| Work on 100,000 customers | peak of the process / size of the file |", "|---|---:|",
            *(f"| {subject.removeprefix('Memory, ')} | {ratio(value)} |" for subject, value in memory.items())]


def tables(times, memory, context):
    parts = [f"Run of {context['date'][:10]}: {context['num_cpus']} processors of {context['mhz_per_cpu'] / 1000:.1f} GHz, "
             f"load {context['load_avg'][0]:.1f} at the start." if context.get("load_avg") else ""]
    for title, lines in (("Targets", verdicts(times, memory)), ("By the rows of the tables", by_rows(times)),
                         ("Documents, paper, windows", others(times)), ("Memory", memory_table(memory)),
                         ("The yardsticks themselves", absolute(times))):
        if len(lines) > 2:
            parts += ["", f"### {title}", "", *lines]
    return "\n".join(parts)


def main():
    page = sys.argv[-1] if sys.argv[-1].endswith(".md") else None
    text = tables(*read([name for name in sys.argv[1:] if name != page]))
    if page is None:
        print(text)
        return
    with open(page, encoding="utf-8") as file:
        old = file.read()
    new, count = re.subn(re.escape(BEGIN) + ".*?" + re.escape(END), lambda _: f"{BEGIN}\n{text}\n{END}", old,
                         flags=re.DOTALL)
    if count != 1:
        sys.exit(f"{page} has no place for the tables")
    with open(page, "w", encoding="utf-8") as file:
        file.write(new)


if __name__ == "__main__":
    main()
