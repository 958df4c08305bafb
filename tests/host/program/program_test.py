#!/usr/bin/env python3
"""The sample host as a program: exit codes, messages, and plays of the real windows.

program_test.py RUNNER PROGRAM EXAMPLES, where RUNNER starts Windows programs.
"""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

RUNNER, PROGRAM, EXAMPLES = sys.argv[1:4]
HERE = Path(__file__).resolve().parent

ADD_LINK, EXIT = 32772, 40002
CHOOSE_METHOD = "open\ncommand 32788\n"


class Run:
    def __init__(self, *arguments, folder=None, environment=None):
        done = subprocess.run([RUNNER, PROGRAM, *map(str, arguments)], cwd=folder, env=environment, capture_output=True,
                              timeout=100)
        self.code = done.returncode
        self.out = done.stdout.decode("utf-8").replace("\r\n", "\n")
        self.err = done.stderr.decode("utf-8").replace("\r\n", "\n")


class ProgramTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def file(self, name, text):
        path = self.folder / name
        path.write_text(text, encoding="utf-8")
        return path.name

    def run_host(self, *arguments, environment=None):
        return Run(*arguments, folder=self.folder, environment=environment)

    def play(self, script, *arguments):
        return self.run_host("--play", self.file("test.play", script), *arguments)

    def assert_refused(self, run, code, *texts):
        for text in texts:
            self.assertIn(text, run.err)
        self.assertEqual(run.out, "")
        self.assertEqual(run.code, code, run.err)


class CommandLine(ProgramTest):
    def test_unknown_option(self):
        self.assert_refused(self.run_host("--drwaing", "a.json"), 2, "--drwaing", "--help")

    def test_stray_argument(self):
        self.assert_refused(self.run_host("plate.json"), 2, "plate.json")

    def test_timeout_that_is_no_number(self):
        self.assert_refused(self.run_host("--play", "a.play", "--timeout", "soon"), 2, "--timeout")

    def test_help(self):
        run = self.run_host("--help")
        for option in ("--drawing", "--play", "--timeout"):
            self.assertIn(option, run.out)
        self.assertEqual((run.err, run.code), ("", 0))


class Drawings(ProgramTest):
    def test_missing(self):
        self.assert_refused(self.run_host("--drawing", "nowhere.json"), 1, "nowhere.json: there is no such file")

    def test_broken_syntax(self):
        name = self.file("broken.json", '{ "dimensions": [\n  { "id": "A1" "name": "A1" } ] }')
        self.assert_refused(self.run_host("--drawing", name), 1, "broken.json: line 2, column ")

    def test_wrong_member(self):
        name = self.file("wrong.json", '{ "dimensions": [ {}, { "nominal": 40 } ] }')
        self.assert_refused(self.run_host("--drawing", name), 1, "wrong.json: dimensions[1].nominal: must be a text")

    def test_name_beyond_ascii(self):
        self.assert_refused(self.run_host("--drawing", "Wölle.json"), 1, "Wölle.json: there is no such file")

    def test_each_example(self):
        examples = sorted(Path(EXAMPLES).glob("*.json"))
        self.assertGreaterEqual(len(examples), 3)
        for example in examples:
            with self.subTest(example.name):
                run = self.play("expect-open host\n", "--drawing", example)
                self.assertEqual((run.err, run.code), ("", 0))


class Plays(ProgramTest):
    def test_missing_script(self):
        self.assert_refused(self.run_host("--play", "nowhere.play"), 2, "nowhere.play")

    def test_broken_script(self):
        self.assert_refused(self.play("open\nclik calc 1\n"), 2, "test.play:2", "clik")

    def test_expectation_that_does_not_hold(self):
        run = self.play("open\nexpect-rows calc 1000 7\n")
        self.assertIn("FAIL test.play:2", run.out)
        self.assertEqual(run.code, 1)

    def test_unknown_dimension(self):
        run = self.play(CHOOSE_METHOD + f"command {ADD_LINK}\nexpect-open link\npick B9\n")
        self.assertIn("the drawing has no dimension B9", run.out)
        self.assertEqual(run.code, 1)

    def test_drawing_that_can_not_be_read(self):
        run = self.play("drawing nowhere.json\n")
        self.assertIn("there is no such file", run.out)
        self.assertEqual(run.code, 1)

    def test_timeout(self):
        run = self.play("expect-open weight\n", "--timeout", "1")
        self.assertIn("the time is up", run.out)
        self.assertEqual(run.code, 3)

    def test_main_window_closed_before_the_end(self):
        run = self.play(f"open\ncommand host {EXIT}\nexpect-open weight\n")
        self.assertIn("closed before the play had ended", run.err)
        self.assertEqual(run.code, 1)

    def test_main_window_closed_while_a_dialog_waits_for_a_dimension(self):
        script = CHOOSE_METHOD + f"command {ADD_LINK}\nexpect-open link\npick C2\ncommand host {EXIT}\n"
        run = self.play(script + "expect-open weight\n")
        self.assertIn("closed before the play had ended", run.err)
        self.assertEqual(run.code, 1)


class Display(ProgramTest):
    def keep_desktop(self):
        """Keeps the desktop up. A host that finds none makes one, and one without a display would outlive it."""
        play = self.file("waits.play", "expect-open host\nexpect-open weight\n")
        other = subprocess.Popen([RUNNER, PROGRAM, "--play", play], cwd=self.folder, stdout=subprocess.PIPE)
        self.addCleanup(other.stdout.close)
        self.addCleanup(other.wait)
        self.addCleanup(other.kill)
        self.assertIn(b"ok   1: expect-open host", other.stdout.readline())

    def test_no_display(self):
        self.keep_desktop()
        environment = {**os.environ, "DISPLAY": ":9999"}
        if "SECOND_DISPLAY" in environment:
            environment["SECOND_DISPLAY"] = ":9999"
        run = self.run_host("--play", self.file("test.play", "expect-open host\n"), environment=environment)
        self.assert_refused(run, 1, "the main window can't be created; is there a display?")


class Roads(ProgramTest):
    def printed(self, run):
        """The groups of lines that were printed, each a list."""
        groups, group = [], []
        for line in run.out.splitlines():
            if line.startswith(("link ", "closing ", "analytic ", "probabilistic ")):
                group.append(line)
            elif group:
                groups.append(group)
                group = []
        return groups

    # Worst case by hand: 12.9 - 3 - 8.4; 13.2 - 2.845 - 8.355; 12.6 - 3.155 - 8.445. Variance: (0.6^2 - 0.31^2 -
    # 0.09^2) / 36 = 0.0071055556, T = 6 sqrt of it.
    def test_typical_road(self):
        run = self.run_host("--play", Path(EXAMPLES) / "plays" / "typical_road.play")
        self.assertEqual(run.code, 0, run.out + run.err)
        [lines] = self.printed(run)
        self.assertEqual(lines[:5], [
            "link C2 12.9 0.3 -0.3 increasing normal",
            "link C4 3 0.155 -0.155 decreasing normal",
            "link C5 8.4 0.045 -0.045 decreasing normal",
            "closing 1.5 0.5 -0.5 normal",
            "analytic A0=1.5 upper=2 lower=1 ES0=0.5 EI0=-0.5"])
        self.assertRegex(lines[5], r"^probabilistic A0=1.5 upper=1.7529 lower=1.2471 ES0=0.252883\d* EI0=-0.252883\d* "
                                   r"D0=0.007105556 T=0.50576676$")
        for picture in ("drawing", "link_tolerance", "closing_tolerance", "calculation_dialog",
                        "calculation_dialog_probabilistic"):
            self.assertEqual((self.folder / f"{picture}.png").read_bytes()[:8], b"\x89PNG\r\n\x1a\n", picture)

    # D0 as published for this rule: -0.002941889.
    def test_negative_variance(self):
        run = self.run_host("--play", HERE / "negative_variance.play")
        self.assertEqual(run.code, 0, run.out + run.err)
        [lines] = self.printed(run)
        self.assertEqual(len(lines), 10)
        self.assertEqual(lines[7:], [
            "closing 0.25 0.55 -0.2 normal",
            "analytic A0=0.25 upper=0.783 lower=0.017 ES0=0.533 EI0=-0.233",
            "probabilistic A0=0.25 upper=nan lower=nan ES0=nan EI0=nan D0=-0.002941889 T=nan"])

    def test_dialog_opened_again(self):
        run = self.run_host("--play", HERE / "opened_again.play")
        self.assertEqual(run.code, 0, run.out + run.err)

    def test_editing(self):
        run = self.run_host("--play", HERE / "editing.play")
        self.assertEqual(run.code, 0, run.out + run.err)
        tolerance, law, closing, links = self.printed(run)
        self.assertEqual(tolerance[2], "link C5 8.4 0.05 -0.045 decreasing normal")
        self.assertEqual(tolerance[4], "analytic A0=1.5 upper=2 lower=0.995 ES0=0.5 EI0=-0.505")
        self.assertEqual(law[1], "link C4 3 0.155 -0.155 decreasing uniform")
        self.assertEqual(closing[3], "closing 1.5 0.3 -0.5 normal")
        self.assertEqual(links[:4], [
            "link C4 3 0.155 -0.155 decreasing uniform",
            "link C5 8.4 0.05 -0.045 decreasing normal",
            "link C5 8.4 0.045 -0.045 decreasing normal",
            "closing 1.5 0.3 -0.5 normal"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
