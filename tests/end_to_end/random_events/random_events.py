#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Random events for the programs of a build on the display, until there were enough of them or something is found.

The folder of the run holds the homes to begin with ("furnished", "new"), a link to each program in "programs", and the
display's dots."""

import argparse
import os
import random
import shutil
import signal
import subprocess
import sys
import time
from collections import Counter
from pathlib import Path

from hands import Gestures, Hands
from watch import Eyes, Finding, Watch
from x_display import Display

HERE = Path(__file__).parent
LIFE = (1500, 12000)  # events until a run of a program is told to end
STUCK = 3000  # events in front of the same window
UNSEEN = 150  # events between two waits for the program
PROGRAMS = {"Kestrill": 0.84, "kestrill-restore": 0.06, "kestrill-export": 0.04, "kestrill-import": 0.06}


class Life:
    """One run of a program, from its start in a home to its end or to a finding."""

    def __init__(self, folder, program, display):
        self.program = program
        self.printed = folder / "printed.log"
        self.acts = folder / "events.log"
        self.picture = folder / "display.png"
        self.dots = folder / "Xvfb_screen0"
        self.log = self.acts.open("w", buffering=1)
        self.hands = Hands(display, self.log)
        with self.printed.open("w") as printed:
            self.process = subprocess.Popen(
                [HERE / "fenced", folder, folder / "programs" / program],
                env=dict(os.environ, HOME=str(folder / "life"), TMPDIR=str(folder)),
                stdout=printed, stderr=printed, cwd=folder / "life",
            )  # fmt: skip
        self.watch = Watch(display, self.process, self.printed)
        self.hands.process = self.process

    def go(self, drive):
        """Returns what is found, or nothing."""
        try:
            self.watch.wait_start()
            drive(self)
            self.end()
        except Finding as finding:
            subprocess.run(["convert", f"xwd:{self.dots}", self.picture], check=False)
            self.wait(5)  # it may be about to tell more, or to leave a core
            return finding
        finally:
            self.process.kill()
            self.process.wait()
            self.log.close()
            self.hands.let_go()
        return None

    def end(self):
        fine = (0,)
        if not self.watch.has_ended():
            self.process.send_signal(signal.SIGTERM)
            fine = (0,) if self.program == "Kestrill" else (0, -signal.SIGTERM)  # the others have nothing to put in order
        if not self.watch.is_over and not self.wait(60):
            raise Finding("told to end, the program goes on")
        self.watch.end(fine)

    def wait(self, seconds):
        try:
            self.process.wait(seconds)
        except subprocess.TimeoutExpired:
            return False
        return True


class Run:
    def __init__(self, options):
        self.options = options
        self.folder = options.folder
        self.display = Display()
        self.eyes = Eyes(self.display)
        self.events = 0
        self.lives = 0
        self.findings = 0
        self.seen = Counter()  # events in front of each kind of window
        self.source = None

    def home(self, origin):
        """Puts a copy of a home in place, and keeps another for a finding."""
        for copy in ("life", "life-before"):
            if origin != self.folder / copy:
                shutil.rmtree(self.folder / copy, ignore_errors=True)
                shutil.copytree(origin, self.folder / copy, symlinks=True)

    def random_life(self):
        self.lives += 1
        self.source = random.Random(f"{self.options.seed} {self.lives}")
        chance = self.source.random()
        goes_on = chance < 0.6 and (self.folder / "life").exists()
        self.home(self.folder / ("life" if goes_on else "new" if chance < 0.65 else "furnished"))
        life = Life(self.folder, self.source.choices(list(PROGRAMS), PROGRAMS.values())[0], self.display)
        life.hands.note(f"{life.program}: seed {self.options.seed}, run {self.lives}")
        self.conclude(life, life.go(self.drive))

    def drive(self, life):
        gestures = Gestures(life.hands, self.eyes, self.source)
        budget = min(self.options.events - self.events, self.source.randrange(*LIFE))
        unseen = same = 0
        last = None
        while life.hands.events < budget and same < STUCK and not life.watch.has_ended():
            before = life.hands.events
            gestures.burst()
            kind = life.watch.look()
            life.hands.note(f"-- {kind} in front, {life.hands.events} events")
            done = life.hands.events - before
            self.seen[kind] += done
            same = same + done if kind == last else 0
            last = kind
            unseen += done
            if unseen > UNSEEN or self.source.random() < 0.5:
                life.watch.settle()
                life.watch.look()
                self.eyes.learn()
                unseen = 0

    def conclude(self, life, finding):
        self.events += life.hands.events
        if not finding:
            return
        self.findings += 1
        left = self.options.pictures / f"finding-{self.findings}"
        shutil.rmtree(left, ignore_errors=True)
        left.mkdir()
        for file in (life.acts, life.printed, life.picture, *(self.folder / "life").glob("core*")):
            shutil.copy(file, left)
        shutil.copytree(self.folder / "life-before", left / "home", symlinks=True)
        print(f"{left}: {life.program}, run {self.lives} of seed {self.options.seed}: {finding}", flush=True)

    def go(self):
        while self.events < self.options.events and (self.options.go_on or not self.findings):
            before = self.events
            self.random_life()
            if self.events // 10_000 > before // 10_000:
                self.tell()

    def tell(self):
        print(f"{time.monotonic():.0f} s: {self.events} events in {self.lives} runs of the programs", flush=True)


def read_options():
    parser = argparse.ArgumentParser()
    parser.add_argument("--folder", type=Path, required=True)
    parser.add_argument("--pictures", type=Path, required=True)
    parser.add_argument("--events", type=int, default=200_000)
    parser.add_argument("--seed", default=str(random.randrange(10**6)))
    parser.add_argument("--go-on", action="store_true", help="after a finding")
    return parser.parse_args()


def main():
    options = read_options()
    run = Run(options)
    print(f"seed {options.seed}", flush=True)
    run.go()
    run.tell()
    lines = (f"{events}\t{kind or 'no window, or the end'}\n" for kind, events in run.seen.items())
    (options.pictures / "seen.txt").write_text("".join(lines))
    sys.exit(1 if run.findings else 0)


main()
