#!/usr/bin/env python3
"""Single-line mutation run: how many small faults in the sources do the tests catch?

Each mutant changes one line of one .cpp file (a comparison flipped, a bound moved by one,
a condition inverted, a constant changed). The mutant is written into the source tree, the
build dir is rebuilt incrementally, CTest runs until the first failure, and the file is put
back byte for byte. The mutants are drawn from the candidate lines with a fixed seed, so two
runs over the same sources try the same faults.

    nice -n 15 python3 scripts/mutate.py --build-dir build-mut --count 60 --seed 1

Results are appended to <build-dir>/mutants/<seed>.jsonl as they finish, so a stopped run
keeps what it measured; --report prints the summary of that file again. The original of the
file under mutation is kept in <build-dir>/mutants/backup until it is restored, and a later
start restores it if a run was killed hard.
"""

import argparse
import datetime
import json
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DEFAULT_PATHS = ["lib/plib/src", "lib/suite"]

# Binary operators are spaced by clang-format, which tells them apart from template brackets,
# stream operators and arrows.
FLIP = {"==": "!=", "!=": "==", "<": ">", ">": "<", "<=": ">=", ">=": "<="}
BOUND = {"<": "<=", "<=": "<", ">": ">=", ">=": ">"}
COMPARISON = re.compile(r"(?<=\s)(==|!=|<=|>=|<|>)(?=\s)")
LOGIC = re.compile(r"(?<=\s)(&&|\|\|)(?=\s)")
NOT = re.compile(r"(?<![\w)\]!])!(?=[\w(])(?!=)")
CONDITION = re.compile(r"\b(if|while)\s*\(")
INTEGER = re.compile(r"(?<![\w.])(0[xX][0-9a-fA-F]+|\d+)(?![\w.])")
BOOLEAN = re.compile(r"\b(true|false)\b")


def masked(line):
    """The line with string and character literals and a trailing comment blanked out."""
    out = []
    i, n = 0, len(line)
    while i < n:
        c = line[i]
        if c == "/" and line.startswith("//", i):
            out.append(" " * (n - i))
            break
        if c in "\"'":
            j = i + 1
            while j < n and line[j] != c:
                j += 2 if line[j] == "\\" else 1
            j = min(j + 1, n)
            out.append(c + " " * (j - i - 2) + c if j - i >= 2 else c)
            i = j
            continue
        out.append(c)
        i += 1
    return "".join(out)


def closing_paren(text, open_at):
    depth = 0
    for i in range(open_at, len(text)):
        if text[i] == "(":
            depth += 1
        elif text[i] == ")":
            depth -= 1
            if depth == 0:
                return i
    return -1


def candidates(line):
    """Every single change this line offers: (kind, start, end, replacement)."""
    stripped = line.strip()
    if not stripped or stripped.startswith(("#", "//", "/*", "*")) or "static_assert" in line:
        return []
    text = masked(line)
    found = []
    for m in COMPARISON.finditer(text):
        op = m.group(1)
        found.append(("comparison flipped", m.start(), m.end(), FLIP[op]))
        if op in BOUND:
            found.append(("bound moved by one", m.start(), m.end(), BOUND[op]))
    for m in LOGIC.finditer(text):
        found.append(("condition inverted", m.start(), m.end(), "||" if m.group(1) == "&&" else "&&"))
    for m in NOT.finditer(text):
        found.append(("condition inverted", m.start(), m.end(), ""))
    for m in CONDITION.finditer(text):
        open_at = m.end() - 1
        close_at = closing_paren(text, open_at)
        if close_at > open_at + 1:
            inner = line[open_at + 1:close_at]
            found.append(("condition inverted", open_at + 1, close_at, "!(" + inner + ")"))
    for m in INTEGER.finditer(text):
        literal = m.group(1)
        value = int(literal, 0)
        changed = value - 1 if value > 1 else value + 1
        if literal.lower().startswith("0x"):
            digits = f"{changed:x}"
            replacement = literal[:2] + (digits.upper() if literal[2:].isupper() else digits)
        else:
            replacement = str(changed)
        found.append(("constant changed", m.start(), m.end(), replacement))
    for m in BOOLEAN.finditer(text):
        found.append(("constant changed", m.start(), m.end(), "false" if m.group(1) == "true" else "true"))
    return found


def in_block_comment(lines):
    """Which lines lie inside /* ... */ comments."""
    inside, flags = False, []
    for line in lines:
        starts_inside = inside
        text = masked(line)
        if inside:
            inside = "*/" not in text
        elif "/*" in text and "*/" not in text[text.index("/*"):]:
            inside = True
        flags.append(starts_inside)
    return flags


def all_candidates(paths):
    lines_with_candidates = []
    for base in paths:
        for path in sorted((ROOT / base).rglob("*.cpp")):
            lines = path.read_text(encoding="utf-8").split("\n")
            for number, (line, commented) in enumerate(zip(lines, in_block_comment(lines)), 1):
                if commented:
                    continue
                found = candidates(line)
                if found:
                    lines_with_candidates.append((path.relative_to(ROOT).as_posix(), number, line, found))
    return lines_with_candidates


def choose(paths, seed, count):
    """The same seed over the same sources draws the same mutants."""
    pool = all_candidates(paths)
    order = list(pool)
    random.Random(seed).shuffle(order)
    mutants = []
    # a larger count draws the same first mutants and then more
    for file, number, line, found in order[:count]:
        rng = random.Random(f"{seed}:{file}:{number}")
        # kind first, so that lines full of literals do not make every mutant a constant
        kind = rng.choice(sorted({f[0] for f in found}))
        kind, start, end, replacement = rng.choice([f for f in found if f[0] == kind])
        mutated = line[:start] + replacement + line[end:]
        mutants.append({"file": file, "line": number, "kind": kind,
                        "original": line.strip(), "mutated": mutated.strip(), "text": mutated})
    return mutants, len(pool)


class Stopped(Exception):
    pass


def on_signal(signum, frame):
    raise Stopped()


def run(command, cwd, timeout, log):
    with open(log, "ab") as out:
        out.write(("\n$ " + " ".join(command) + "\n").encode())
        out.flush()
        proc = subprocess.Popen(command, cwd=cwd, stdout=out, stderr=subprocess.STDOUT,
                                start_new_session=True)
        try:
            return proc.wait(timeout=timeout)
        except subprocess.TimeoutExpired:
            os.killpg(proc.pid, signal.SIGKILL)
            proc.wait()
            return None
        except BaseException:
            os.killpg(proc.pid, signal.SIGKILL)
            proc.wait()
            raise


def log_since(log, offset):
    with open(log, "rb") as f:
        f.seek(offset)
        return f.read().decode("utf-8", "replace")


def failed_tests(text):
    """The tests that CTest reported failing."""
    return " ".join(re.findall(r"^\s*\d+ - (\S+) \(", text, re.M))


def failed_functions(text):
    """The QtTest functions that failed, as Class::function, from CTest's output on failure."""
    return sorted(set(re.findall(r"FAIL!  : (\S+?::\w+)\(", text)))


def restore_leftover(backup_dir):
    record = backup_dir / "file"
    if record.exists():
        target = ROOT / record.read_text(encoding="utf-8")
        shutil.copyfile(backup_dir / "original", target)
        record.unlink()
        print(f"restored {target.relative_to(ROOT)} left mutated by an earlier run")


def summary(results):
    counts = {"killed": 0, "survived": 0, "not compiling": 0}
    for r in results:
        counts[r["result"]] += 1
    compiling = counts["killed"] + counts["survived"]
    score = 100.0 * counts["killed"] / compiling if compiling else 0.0
    lines = [f"mutants: {len(results)}  killed: {counts['killed']}  survived: {counts['survived']}  "
             f"not compiling: {counts['not compiling']}  score: {score:.1f}% of compiling"]
    alone = {}
    for r in results:
        if len(r.get("functions", [])) == 1:
            alone.setdefault(r["functions"][0], []).append(f"{r['file']}:{r['line']}")
    if alone:
        lines.append("test functions that alone catch a mutant:")
        for function, caught in sorted(alone.items()):
            lines.append(f"  {function}: {' '.join(caught)}")
    survivors = [r for r in results if r["result"] == "survived"]
    if survivors:
        lines.append("survivors:")
        for r in survivors:
            lines.append(f"  {r['file']}:{r['line']} ({r['kind']}): {r['original']}  ->  {r['mutated']}")
    return "\n".join(lines)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--build-dir", default="build-mut")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=60)
    parser.add_argument("--paths", nargs="+", default=DEFAULT_PATHS)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--test-timeout", type=int, default=60, help="seconds for one test")
    parser.add_argument("--only", nargs="+", metavar="FILE:LINE",
                        help="of the mutants drawn, run these alone (to check a new test on a survivor)")
    parser.add_argument("--every-test", action="store_true",
                        help="run every test on each mutant and note the test functions that fail, "
                             "so that the report tells which tests alone catch a mutant")
    parser.add_argument("--list", action="store_true", help="only print the mutants the seed draws")
    parser.add_argument("--report", action="store_true", help="only summarize the results file")
    args = parser.parse_args()

    build = (ROOT / args.build_dir).resolve()
    work = build / "mutants"
    results_file = work / (f"seed-{args.seed}{'-only' if args.only else ''}"
                           f"{'-every-test' if args.every_test else ''}.jsonl")
    if args.report:
        if not results_file.exists():
            print(f"no results in {results_file}")
            return 1
        results = [json.loads(l) for l in results_file.read_text().splitlines() if l.strip()]
        print(summary(results))
        return 0

    mutants, pool = choose(args.paths, args.seed, args.count)
    if args.only:
        mutants = [m for m in mutants if f"{m['file']}:{m['line']}" in args.only]
    if args.list:
        print(f"{pool} candidate lines")
        for m in mutants:
            print(f"{m['file']}:{m['line']} ({m['kind']}): {m['original']}  ->  {m['mutated']}")
        return 0

    work.mkdir(parents=True, exist_ok=True)
    backup_dir = work / "backup"
    backup_dir.mkdir(exist_ok=True)
    restore_leftover(backup_dir)
    log = work / f"seed-{args.seed}.log"
    build_cmd = ["cmake", "--build", str(build), f"-j{args.jobs}"]
    test_cmd = ["ctest", "--test-dir", str(build), f"-j{args.jobs}", "--timeout", str(args.test_timeout)]
    test_cmd.append("--output-on-failure" if args.every_test else "--stop-on-failure")
    test_env_timeout = args.test_timeout * 20

    signal.signal(signal.SIGTERM, on_signal)
    signal.signal(signal.SIGINT, on_signal)
    started = time.time()
    print(f"{datetime.datetime.utcnow():%Y-%m-%d %H:%M} UTC, seed {args.seed}, {len(mutants)} of "
          f"{pool} candidate lines, host {os.uname().nodename}, {os.cpu_count()} cores", flush=True)
    try:
        if run(build_cmd, ROOT, None, log) != 0 or run(test_cmd, ROOT, test_env_timeout, log) != 0:
            print(f"the unchanged sources do not build or pass their tests; see {log}")
            return 2
        results_file.write_text("")
        results = []
        for index, m in enumerate(mutants, 1):
            target = ROOT / m["file"]
            original = target.read_bytes()
            shutil.copyfile(target, backup_dir / "original")
            (backup_dir / "file").write_text(m["file"], encoding="utf-8")
            lines = original.decode("utf-8").split("\n")
            lines[m["line"] - 1] = m["text"]
            t0 = time.time()
            killer, functions = "", []
            try:
                target.write_bytes("\n".join(lines).encode("utf-8"))
                if run(build_cmd, ROOT, None, log) != 0:
                    outcome = "not compiling"
                else:
                    mark = log.stat().st_size
                    code = run(test_cmd, ROOT, test_env_timeout, log)
                    outcome = "survived" if code == 0 else "killed"
                    text = log_since(log, mark)
                    killer, functions = failed_tests(text), failed_functions(text)
            finally:
                # a second Ctrl-C must not cut the restore short
                signal.pthread_sigmask(signal.SIG_BLOCK, {signal.SIGINT, signal.SIGTERM})
                target.write_bytes(original)
                (backup_dir / "file").unlink()
                signal.pthread_sigmask(signal.SIG_UNBLOCK, {signal.SIGINT, signal.SIGTERM})
            entry = {k: m[k] for k in ("file", "line", "kind", "original", "mutated")}
            entry["result"] = outcome
            if killer:
                entry["killed by"] = killer
            if args.every_test and functions:
                entry["functions"] = functions
            entry["seconds"] = round(time.time() - t0)
            results.append(entry)
            with open(results_file, "a", encoding="utf-8") as out:
                out.write(json.dumps(entry) + "\n")
            print(f"[{index}/{len(mutants)}] {outcome:13} {m['file']}:{m['line']} ({m['kind']}) "
                  f"{entry['seconds']}s {killer}", flush=True)
    except Stopped:
        print("stopped; the file under mutation is restored", flush=True)
    try:
        # The build still holds the last mutant; a copy of the tree unpacked later with old file
        # times would not rebuild it.
        run(build_cmd, ROOT, None, log)
    except Stopped:
        print("the build dir may still hold a mutant: rebuild it", flush=True)
    if not results_file.exists():
        return 1
    results = [json.loads(l) for l in results_file.read_text().splitlines() if l.strip()]
    print(f"{round((time.time() - started) / 60)} minutes")
    print(summary(results))
    return 0


if __name__ == "__main__":
    sys.exit(main())
