"""Proves that the core's tests notice changes: changes one constant or operator of core/ at a time, and runs the tests.

    python3 tests/tools/Mutants.py [--sample N] [--seed S] [FILE...]

A change that no test notices survives, and is printed. EquivalentMutants.txt lists the survivors that change no result,
each with the reason. Ends with status 1 if any other survives. Builds in build/mutants. For a changed header, the sources
of the core that include it are compiled again, but of the tests only its own.
"""

import argparse
import concurrent.futures
import functools
import json
import os
import pathlib
import random
import re
import resource
import shlex
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build" / "mutants"
EQUIVALENTS = pathlib.Path(__file__).with_name("EquivalentMutants.txt")
FLAGS = "-O1 -DDUNMOOR_SAMPLES"  # tests of whole ranges take samples
TIME_LIMIT = 120  # seconds for the tests; an endless loop is noticed
MEMORY_LIMIT = 4 << 30  # bytes

OPERATORS = {
    " + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ", " += ": " -= ", " -= ": " += ", "++": "--",
    " < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == ",
    " && ": " || ", " || ": " && ", "(!": "(", " !": " ",
}
NUMBER = re.compile(r"(?<![\w.'])(\d+\.?\d*)(?=(e-?\d+)?[FLU]*\b)(?![\w]*x)")
SKIPPED = re.compile(r'"(?:[^"\\]|\\.)*"|\'(?:[^\'\\]|\\.)*\'|//.*|^\s*#.*|^using .*|static_assert.*')


@functools.cache
def lines_of(file):
    return (ROOT / file).read_text().splitlines()


def changed_number(digits):
    """The last digit plus 1; a 9 becomes 8."""
    return digits[:-1] + ("8" if digits[-1] == "9" else str(int(digits[-1]) + 1)) if digits[-1] != "." else digits + "1"


def mutants_of(file):
    """(file, line number, old line, new line) for each change."""
    for number, line in enumerate(lines_of(file), 1):
        plain = SKIPPED.sub(lambda match: "\0" * len(match.group()), line)
        changes = [(m.start(1), m.group(1), changed_number(m.group(1))) for m in NUMBER.finditer(plain)]
        for old, new in OPERATORS.items():
            changes += [(m.start(), old, new) for m in re.finditer(re.escape(old), plain)]
        for at, old, new in changes:
            yield file, number, line, line[:at] + new + line[at + len(old):]


def build():
    subprocess.run(["cmake", "-S", ROOT, "-B", BUILD, "-G", "Ninja", f"-DCMAKE_CXX_FLAGS={FLAGS}", "-DDUNMOOR_BENCH=OFF",
                    "-DDUNMOOR_TOUR=OFF"], check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", BUILD, "--target", "test_core"], check=True, stdout=subprocess.DEVNULL,
                   env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})


def compile_commands():
    """The arguments that compile each source file of the core and of its tests, without its output."""
    commands = {}
    for entry in json.loads((BUILD / "compile_commands.json").read_text()):
        file = pathlib.Path(entry["file"]).relative_to(ROOT)
        if "core" in file.parts[:2]:
            arguments = shlex.split(entry["command"])
            commands[str(file)] = arguments[:arguments.index("-o")]
    return commands


def users_of(file, commands):
    """The source files that a change of this file concerns. Of the tests, only the header's own."""
    if file.endswith(".cpp"):
        return [file]
    users = [test for test in [f"tests/core/{pathlib.Path(file).stem}Test.cpp"] if test in commands]
    for source, command in commands.items():
        if not source.startswith("core/"):
            continue
        needed = subprocess.run([*command, "-MM", ROOT / source], check=True, capture_output=True, text=True).stdout
        if f"/{file}" in needed:
            users.append(source)
    return users


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))


def run_tests(program):
    try:
        return subprocess.run([program, "--gtest_fail_fast", "--gtest_brief=1"], stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, timeout=TIME_LIMIT, preexec_fn=limit_memory).returncode
    except subprocess.TimeoutExpired:
        return 1


def survives(mutant, commands, users):
    """True if the tests pass with the change; None if it doesn't compile."""
    file, number, _, new = mutant
    with tempfile.TemporaryDirectory() as folder:
        lines = list(lines_of(file))
        lines[number - 1] = new
        changed = pathlib.Path(folder, file)
        changed.parent.mkdir(parents=True)
        changed.write_text("\n".join(lines) + "\n")
        objects = []
        for source in users[file]:
            objects.append(f"{folder}/{pathlib.Path(source).stem}.o")
            origin = changed if source == file else ROOT / source
            command = [commands[source][0], f"-I{folder}", *commands[source][1:], "-w", "-o", objects[-1], "-c", origin]
            if subprocess.run(command, stderr=subprocess.DEVNULL).returncode != 0:
                return None
        compiled = {f"{pathlib.Path(source).name}.o" for source in users[file]}
        tests = [test for test in sorted((BUILD / "tests/CMakeFiles/test_core.dir/core").glob("*.o")) if test.name not in compiled]
        subprocess.run([commands[users[file][0]][0], *objects, *tests, BUILD / "core/libdunmoor_core.a", "-lgtest_main",
                        "-lgtest", "-o", f"{folder}/test"], check=True)
        return run_tests(f"{folder}/test") == 0


def equivalents():
    """The (file, line) pairs of the list, whose lines are "FILE: LINE  // REASON"."""
    pairs = set()
    for line in EQUIVALENTS.read_text().splitlines():
        if line and not line.startswith("#"):
            file, rest = line.split(": ", 1)
            pairs.add((file, rest.rsplit("  // ", 1)[0].strip()))
    return pairs


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--sample", type=int, help="take only so many changes, at random")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("files", nargs="*", metavar="FILE")
    arguments = parser.parse_args()
    files = arguments.files or sorted(str(p.relative_to(ROOT)) for p in (ROOT / "core").iterdir() if p.suffix in (".cpp", ".h"))
    mutants = [mutant for file in files for mutant in mutants_of(file)]
    if arguments.sample and arguments.sample < len(mutants):
        mutants = random.Random(arguments.seed).sample(mutants, arguments.sample)
    build()
    commands = compile_commands()
    users = {file: users_of(file, commands) for file in {mutant[0] for mutant in mutants}}
    known = equivalents()
    counts = {"killed": 0, "not compiled": 0, "equivalent": 0, "survived": 0}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for mutant, alive in zip(mutants, pool.map(lambda m: survives(m, commands, users), mutants)):
            file, number, old, new = mutant
            is_known = alive and {(file, old.strip()), (file, new.strip())} & known
            counts["not compiled" if alive is None else "killed" if not alive else "equivalent" if is_known else "survived"] += 1
            if alive and not is_known:
                print(f"{file}:{number}: survived\n  - {old.strip()}\n  + {new.strip()}", flush=True)
    print(", ".join(f"{count} {what}" for what, count in counts.items()))
    return 1 if counts["survived"] else 0


if __name__ == "__main__":
    sys.exit(main())
