#!/usr/bin/python3
"""Asks our profile operations and the system's real ones, under Wine, the same questions.

  profile_differential.py [--seed NUMBER] [--files NUMBER]

Needs the builds of both systems. Every answer must be the same, or a deviation of Wine that
wine_deviations.py names.
"""

import argparse
import collections
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import threading

import wine_deviations as known
from profile_cases import Cases, Commit, Read, Write

ROOT = pathlib.Path(__file__).resolve().parents[2]
OURS = ROOT / "build/linux/tests/differential/queueshift-profile-answers"
REAL = ROOT / "build/windows/tests/differential/queueshift-profile-answers.exe"
SHOWN = 20


def word(data):
    return "-" + (data.encode() if isinstance(data, str) else data).hex()


def unword(text):
    return bytes.fromhex(text[1:])


def line(question):
    if isinstance(question, Read):
        sizes = " ".join(map(str, question.sizes))
        return f"read {word(question.section)} {word(question.key)} {sizes}"
    if isinstance(question, Write):
        return f"write {word(question.section)} {word(question.key)} {word(question.value)}"
    return "commit"


def asked(cases):
    for case in cases:
        yield "missing" if case.file is None else f"file {word(case.file)}"
        yield from map(line, case.questions)


class Machine(threading.Thread):
    """One build at its answers."""

    def __init__(self, command, questions):
        super().__init__()
        self.command, self.questions = command, questions
        self.answers, self.problem = [], None

    def run(self):
        ran = subprocess.run(self.command, input=self.questions, capture_output=True, check=False)
        self.answers = ran.stdout.decode().splitlines()
        if ran.returncode != 0:
            self.problem = f"{self.command[0]}: {ran.returncode} {ran.stderr.decode()}"


def answers_of_both(cases):
    memory = pathlib.Path("/dev/shm")
    folder = tempfile.mkdtemp(prefix="queueshift-", dir=memory if memory.is_dir() else None)
    questions = "".join(question + "\n" for question in asked(cases)).encode()
    wine = [str(ROOT / "script/lib/run-wine"), str(REAL), f"Z:{folder}/real.ini"]
    machines = [Machine([str(OURS), f"{folder}/ours.ini"], questions), Machine(wine, questions)]
    try:
        for machine in machines:
            machine.start()
        for machine in machines:
            machine.join()
    finally:
        shutil.rmtree(folder)
    expected = sum(len(case.questions) for case in cases)
    for machine in machines:
        if machine.problem or len(machine.answers) != expected:
            sys.exit(machine.problem or f"{len(machine.answers)} answers to {expected} questions")
    return machines[0].answers, machines[1].answers


class Comparison:
    def __init__(self):
        self.read = self.commits = self.writes = 0
        self.excused = collections.Counter()
        self.faults = []

    def compare(self, case, ours, real):
        after = False
        for question, mine, theirs in zip(case.questions, ours, real, strict=True):
            if isinstance(question, Read):
                self.compare_read(case, question, after, mine.split(), theirs.split())
            elif isinstance(question, Commit):
                self.compare_commit(case, mine.split(), theirs.split())
                after = True
            else:
                self.writes += 1
                if mine != theirs:
                    self.fault(case, question, mine, theirs)

    def compare_read(self, case, question, after, mine, theirs):
        def values(answers):
            parts = (answer.split(":") for answer in answers)
            return [(int(error), unword(value).decode()) for error, value in parts]

        ours, real = values(mine), values(theirs)
        whole = max((value for _, value in ours), key=len)
        for size, left, right in zip(question.sizes, ours, real, strict=True):
            self.read += 1
            if left != right:
                excuse = known.read_excuse(case, question, size, after, whole, left, right)
                if excuse is None:
                    self.fault(case, (question, size), left, right)
                else:
                    self.excused[excuse] += 1

    def compare_commit(self, case, mine, theirs):
        self.commits += 1
        left, right = unword(mine[1]), unword(theirs[1])
        if mine[0] != theirs[0]:
            self.fault(case, "the result of the writing", mine[0], theirs[0])
        elif left != right:
            excuses = known.commit_excuses(case, left, right)
            self.excused.update(excuses)
            if not excuses:
                self.fault(case, "the bytes written", left, right)

    def fault(self, case, question, ours, real):
        self.faults.append((case, question, ours, real))

    def shares(self):
        """Name, count, and how many there may be at most."""
        commits = known.REWRITING | {known.UNCHANGED: known.UNCHANGED_SHARE}
        commits |= {name: share for name, (_, _, share) in known.WRITING.items()}
        for name, share in commits.items():
            yield name, self.excused[name], share * self.commits
        for name, (_, share) in known.READING.items():
            yield name, self.excused[name], share * self.read

    def verdicts(self):
        """Name, count, and what is wrong with it, or nothing."""
        for name, count, most in self.shares():
            if count == 0:
                yield name, count, "excuses nothing"
            else:
                yield name, count, f"may excuse {most:.0f}" if count > most else ""

    def totals(self, files):
        asked = f"{files} files, {self.writes} writes in {self.commits} commits, {self.read} reads"
        return f"{asked}: {len(self.faults)} differences beside the known deviations"

    def report(self, files):
        """Prints what was found; true when it is as it should be."""
        for name, count, wrong in self.verdicts():
            print(f"{count:7} answers excused: {name}" + (f"   WRONG: {wrong}" if wrong else ""))
        print(self.totals(files))
        for case, question, ours, real in self.faults[:SHOWN]:
            print(f"\n  {case.kind} file {case.file!r:.600}")
            print(f"  {[one for one in case.questions if isinstance(one, Write)]!r:.600}")
            print(f"  {question}\n    ours {ours!r:.600}\n    real {real!r:.600}")
        return not self.faults and not any(wrong for _, _, wrong in self.verdicts())

    def leave_report(self, files):
        """For who collects the results of all tests in one text."""
        folder = os.environ.get("QUEUESHIFT_REPORT")
        if not folder:
            return
        lines = [
            "## Ours and the system's own profile functions",
            "",
            f"{self.totals(files)} of Wine, by whose functions Windows' are stood for:",
            "",
        ]
        lines += [f"- {name}" for name, _, _ in self.verdicts()]
        pathlib.Path(folder).mkdir(parents=True, exist_ok=True)
        path = pathlib.Path(folder, "differential-profile.md")
        path.write_text("\n".join(lines) + "\n", encoding="utf-8")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--seed", type=int, default=5)
    parser.add_argument("--files", type=int, default=20000)
    wanted = parser.parse_args()
    for program in (OURS, REAL):
        if not program.is_file():
            sys.exit(f"there is no {program}: script/test all builds both systems' programs")
    source = Cases(wanted.seed)
    cases = [source.next() for _ in range(wanted.files)]
    ours, real = answers_of_both(cases)
    comparison = Comparison()
    at = 0
    for case in cases:
        to = at + len(case.questions)
        comparison.compare(case, ours[at:to], real[at:to])
        at = to
    comparison.leave_report(len(cases))
    return 0 if comparison.report(len(cases)) else 1


if __name__ == "__main__":
    sys.exit(main())
