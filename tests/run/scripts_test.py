#!/usr/bin/env python3
"""Tests of ./run and ./test, and of what both read: how they install packages and find a display.

The programs that the scripts call are stubs here: nothing is installed or built, and no display is started.
"""

import os
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
REAL_PROGRAMS = ("basename", "bash", "cat", "dirname", "env", "grep", "locale", "mkdir", "mktemp", "realpath", "rm", "sh",
                 "sleep", "tail", "timeout")
DISPLAY = 93217  # no real one has this number

INSTALLED = "printf installed"
NEVER_INSTALLED = "exit 1"
ROOT_USER, OTHER_USER = "echo 0", "echo 1000"
SUDO = 'exec "$@"'
XVFB = f'echo $$ >>"$FOLDER/displays"; echo {DISPLAY} >&3; exec sleep 60'
DYING_XVFB = "exit 1"


def is_running(process):
    try:
        return Path(f"/proc/{process}/stat").read_text().rsplit(")", 1)[1].split()[0] != "Z"
    except FileNotFoundError:
        return False


class ScriptTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.programs = self.folder / "bin"
        self.reports = self.folder / "tmp"
        self.project = self.folder / "project"
        for made in (self.programs, self.reports, self.project / "cmake", self.project / "examples" / "plays"):
            made.mkdir(parents=True)
        for program in REAL_PROGRAMS:
            (self.programs / program).symlink_to(shutil.which(program))
        for script in ("run", "test", "cmake/packages.sh", "cmake/display.sh"):
            shutil.copy(ROOT / script, self.project / script)
        (self.project / "examples" / "plays" / "typical_road.play").touch()
        self.environment = {"PATH": str(self.programs), "FOLDER": str(self.folder), "TMPDIR": str(self.reports),
                            "HOME": str(self.folder), "LC_ALL": "C.UTF-8"}

    def stub(self, name, body, path=None):
        """A program that notes how it was called and then does what `body` says."""
        path = path or self.programs / name
        path.write_text(f'#!{shutil.which("bash")}\necho "{name} $*" >>"$FOLDER/calls"\n{body}\n')
        path.chmod(0o755)

    def calls(self, *names):
        """How the stubs of these names were called, in order."""
        file = self.folder / "calls"
        lines = file.read_text().splitlines() if file.exists() else []
        return [line for line in lines if line.split(" ")[0] in names]

    def run_command(self, *command):
        return subprocess.run(command, cwd=self.project, env=self.environment, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, timeout=30)

    def run_shell(self, text):
        """Runs `text` as a script that has read both files."""
        return self.run_command("bash", "-c", f"set -u -o pipefail; . cmake/packages.sh; . cmake/display.sh\n{text}")

    def assert_refused(self, done, code, *texts):
        for text in texts:
            self.assertIn(text, done.stderr)
        self.assertEqual(done.returncode, code, done.stderr)


class Packages(ScriptTest):
    def setUp(self):
        super().setUp()
        self.stub("dpkg-query", '[ "${!#}" != wine ] && printf installed')
        self.stub("id", ROOT_USER)
        self.stub("sudo", SUDO)
        self.stub("apt-get", 'echo "as $DEBIAN_FRONTEND"')

    def install(self):
        return self.run_shell("install_missing cmake wine xvfb")

    def assert_installed_wine(self):
        update, install = self.calls("apt-get")
        self.assertTrue(update.endswith(" update"), update)
        self.assertTrue(install.endswith(" install --no-install-recommends wine"), install)
        self.assertIn(" -y ", install)

    def test_nothing_is_done_when_all_are_there(self):
        self.stub("dpkg-query", INSTALLED)
        done = self.install()
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        self.assertEqual(self.calls("apt-get", "sudo"), [])

    def test_root_installs_what_is_missing(self):
        done = self.install()
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "Installing wine ...\n", ""))
        self.assert_installed_wine()
        self.assertEqual(self.calls("sudo"), [])
        self.assertEqual(list(self.reports.iterdir()), [])

    def test_a_removed_package_of_which_files_are_left_is_missing(self):
        self.stub("dpkg-query", '[ "${!#}" = wine ] && printf config-files || printf installed')
        self.assertEqual(self.install().returncode, 0)
        self.assert_installed_wine()

    def test_another_user_installs_with_sudo(self):
        self.stub("id", OTHER_USER)
        self.assertEqual(self.install().returncode, 0)
        self.assert_installed_wine()
        self.assertEqual(len(self.calls("sudo")), 2)

    def test_no_question_is_asked(self):
        self.stub("apt-get", '[ "$DEBIAN_FRONTEND" = noninteractive ]')
        self.stub("id", OTHER_USER)
        self.assertEqual(self.install().returncode, 0)

    def test_no_debian_system(self):
        (self.programs / "dpkg-query").unlink()
        self.assert_refused(self.install(), 1, "not a Debian system", "cmake wine xvfb")
        self.assertEqual(self.calls("apt-get"), [])

    def test_neither_root_nor_sudo(self):
        self.stub("id", OTHER_USER)
        (self.programs / "sudo").unlink()
        self.assert_refused(self.install(), 1, "Missing packages: wine.", "Neither root nor sudo")
        self.assertEqual(self.calls("apt-get"), [])

    def test_package_lists_that_can_not_be_read(self):
        self.stub("apt-get", "echo E: no network; exit 100")
        self.assert_refused(self.install(), 1, "E: no network\nMissing packages: wine.", "could not be installed")
        self.assertEqual(len(self.calls("apt-get")), 1)
        self.assertEqual(list(self.reports.iterdir()), [])

    def test_a_package_that_can_not_be_installed(self):
        self.stub("apt-get", '[ "${!#}" = update ] || { echo E: no such package >&2; exit 100; }')
        self.assert_refused(self.install(), 1, "E: no such package\nMissing packages: wine.", "could not be installed")
        self.assertEqual(list(self.reports.iterdir()), [])


class Displays(ScriptTest):
    def has_display(self, answer):
        self.stub("xdpyinfo", answer)
        return self.run_shell("has_display").returncode == 0

    def test_a_display_is_one_that_answers(self):
        self.environment["DISPLAY"] = ":5"
        self.assertTrue(self.has_display("exit 0"))
        self.assertFalse(self.has_display("exit 1"))
        self.environment["DISPLAY"] = ""
        self.assertFalse(self.has_display("exit 0"))
        del self.environment["DISPLAY"]
        self.assertFalse(self.has_display("exit 0"))

    def started(self):
        """The processes that stand for displays."""
        return [int(line) for line in (self.folder / "displays").read_text().split()]

    def assert_all_end(self, processes):
        deadline = time.monotonic() + 10
        while any(map(is_running, processes)) and time.monotonic() < deadline:
            time.sleep(0.01)
        left = [process for process in processes if is_running(process)]
        for process in left:
            os.kill(process, signal.SIGKILL)
        self.assertEqual(left, [])

    def test_a_virtual_display_becomes_the_one_in_use(self):
        self.stub("Xvfb", XVFB)
        self.environment["XAUTHORITY"] = "of another display"
        done = self.run_shell('start_virtual_display && env; kill "${virtual_displays[0]%:*}"')
        self.assertIn(f"DISPLAY=:{DISPLAY}\n", done.stdout)
        self.assertNotIn("XAUTHORITY", done.stdout)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual(list(self.reports.iterdir()), [])
        self.assert_all_end(self.started())

    def test_all_virtual_displays_are_stopped(self):
        self.stub("Xvfb", XVFB)
        done = self.run_shell("start_virtual_display && start_virtual_display && stop_virtual_displays")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertEqual(len(self.started()), 2)
        self.assert_all_end(self.started())

    def assert_no_display(self, done):
        self.assert_refused(done, 1, "There is no display, and the virtual one (Xvfb) does not start.\n")
        self.assertEqual(done.stdout, "")
        self.assertEqual(list(self.reports.iterdir()), [])

    def test_a_virtual_display_that_dies(self):
        self.stub("Xvfb", DYING_XVFB)
        self.assert_no_display(self.run_shell("start_virtual_display"))

    def test_no_program_for_a_virtual_display(self):
        self.assert_no_display(self.run_shell("start_virtual_display"))

    def test_a_virtual_display_that_never_answers(self):
        self.stub("Xvfb", f'echo $$ >>"$FOLDER/displays"; exec {shutil.which("sleep")} 60')
        (self.programs / "sleep").unlink()
        self.stub("sleep", f'exec {shutil.which("sleep")} 0.01')  # the ten seconds go by faster
        self.assert_no_display(self.run_shell("start_virtual_display"))
        self.assert_all_end(self.started())


class Scripts(ScriptTest):
    """All packages are there, and a display can be started."""

    def setUp(self):
        super().setUp()
        self.stub("dpkg-query", INSTALLED)
        self.stub("Xvfb", XVFB)
        self.stub("cmake", "exit 0")
        self.stub("ctest", "exit 0")
        self.stub("wine", "exit 7", self.project / "cmake" / "run-wine.sh")


class Run(Scripts):
    def run_script(self, *arguments):
        return self.run_command("./run", *arguments)

    def assert_nothing_was_done(self):
        self.assertEqual(self.calls("dpkg-query", "Xvfb", "cmake", "wine"), [])

    def file(self, name):
        (self.project / name).touch()
        return name

    def windows_path(self, name):
        return str((self.project / name).resolve()).replace("/", "\\")

    def test_the_exit_code_is_that_of_the_host(self):
        done = self.run_script("--drawing", self.file("plate.json"))
        self.assertEqual((done.returncode, done.stderr), (7, ""))
        [call] = self.calls("wine")
        self.assertIn(rf"SampleHost.exe --drawing Z:{self.windows_path('plate.json')} --play Z:", call)
        self.assertTrue(call.endswith(r"\examples\plays\typical_road.play"), call)

    def test_the_host_has_the_display_that_is_there(self):
        self.environment["DISPLAY"] = ":5"
        self.stub("xdpyinfo", "exit 0")
        done = self.run_script("--play", self.file("a.play"))
        self.assertEqual((done.returncode, done.stdout), (7, "Building, the first time takes a few minutes ...\n"))
        self.assertEqual(self.calls("Xvfb"), [])
        [call] = self.calls("wine")
        self.assertTrue(call.endswith(f"SampleHost.exe --play Z:{self.windows_path('a.play')}"), call)

    def test_help_tells_of_every_option(self):
        done = self.run_script("--help")
        for option in ("--drawing FILE", "--play FILE", "--help"):
            self.assertIn(option, done.stdout)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assert_nothing_was_done()

    def test_an_unknown_argument(self):
        for argument in ("--drwaing", "plate.json"):
            with self.subTest(argument):
                done = self.run_script(argument)
                self.assert_refused(done, 2, f"run: unknown argument {argument}\nTry ./run --help.\n")
                self.assert_nothing_was_done()

    def test_an_option_without_a_file(self):
        for option in ("--drawing", "--play"):
            with self.subTest(option):
                self.assert_refused(self.run_script(option), 2, f"run: {option} needs a file\n")
                self.assert_refused(self.run_script(option, "nowhere"), 2, "run: there is no file nowhere\n")
                self.assert_nothing_was_done()

    def test_a_missing_package(self):
        self.stub("dpkg-query", NEVER_INSTALLED)
        self.stub("id", OTHER_USER)
        self.assert_refused(self.run_script(), 1, "Missing packages: cmake ")
        self.assertEqual(self.calls("Xvfb", "cmake", "wine"), [])

    def test_no_display(self):
        self.stub("Xvfb", DYING_XVFB)
        self.stub("xdpyinfo", "exit 1")
        self.environment["DISPLAY"] = ":5"
        done = self.run_script()
        self.assert_refused(done, 1, "There is no display, and the virtual one (Xvfb) does not start.")
        self.assertIn("(:5 does not answer)", done.stdout)
        self.assertEqual(self.calls("cmake", "wine"), [])

    def test_a_build_that_fails(self):
        self.stub("cmake", "echo '[3/9] Building'; echo 'error: no semicolon'; exit 1")
        done = self.run_script()
        self.assert_refused(done, 1, "error: no semicolon\nThe build failed; ", "/build/run.log has its whole output.\n")
        self.assertNotIn("[3/9]", done.stderr)
        self.assertEqual(self.calls("wine"), [])


class Test(Scripts):
    def run_script(self, *arguments):
        return self.run_command("./test", *arguments)

    def test_any_argument_is_unknown(self):
        for argument in ("--help", "grid"):
            with self.subTest(argument):
                self.assert_refused(self.run_script(argument), 2, "usage: ./test ", "README.md")
                self.assertEqual(self.calls("dpkg-query", "Xvfb", "cmake"), [])

    def test_a_missing_package(self):
        self.stub("dpkg-query", NEVER_INSTALLED)
        self.stub("id", OTHER_USER)
        self.assert_refused(self.run_script(), 1, "Missing packages: cmake ", " clang-tidy.")
        self.assertEqual(self.calls("Xvfb", "cmake"), [])

    def test_no_display(self):
        self.stub("Xvfb", DYING_XVFB)
        self.environment["DISPLAY"] = ":5"  # a person's, who is not to be disturbed
        self.assert_refused(self.run_script(), 1, "There is no display, and the virtual one (Xvfb) does not start.")
        self.assertEqual(self.calls("cmake"), [])


if __name__ == "__main__":
    unittest.main()
