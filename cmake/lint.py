#!/usr/bin/env python3
"""Runs clang-tidy over our sources and fails on any finding.

    lint.py BUILD_FOLDER... [--only PATH...]

A source is looked at as the first build folder that compiles it compiles it, so `lint.py build/native build/windows`
takes the window-free sources from the native build and the rest from the Windows one. Where a build compiles a dozen
sources at once, clang-tidy, too, looks at them together. The folders must be built: what a source includes is asked of
ninja. A source is looked at again only when it, a file of ours that it includes, its compiler options or the settings of
clang-tidy changed since it was last found clean; build/lint remembers that.
"""

import argparse
import concurrent.futures
import functools
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
MEMORY = ROOT / "build" / "lint"
FINDING = re.compile(r"^(?P<place>\S+:\d+:\d+): (?:warning|error): .*\[(?P<check>[\w.,-]+)\]$", re.MULTILINE)


def output_of(*command, **options):
    return subprocess.run(command, check=True, text=True, stdout=subprocess.PIPE, **options).stdout


def is_ours(path):
    return path.is_relative_to(ROOT) and not path.is_relative_to(ROOT / "build")


def without_precompiled_header(command):
    """GCC's precompiled headers mean nothing to clang; the sources include what they need."""
    while "-include" in command:
        at = command.index("-include")
        command = command[:at] + command[at + 2 :]
    return command


class Source:
    """A source file, or several that are compiled at once, and how a build folder does that."""

    def __init__(self, entry, folder):
        self.path = Path(os.path.normpath(Path(entry["directory"], entry["file"])))
        self.folder = folder
        self.command = without_precompiled_header(shlex.split(entry["command"]))
        self.object = self.command[self.command.index("-o") + 1]
        self.is_several = self.path.parent.name == "Unity" and self.path.is_relative_to(folder)

    def name(self):
        return self.path.relative_to(self.folder if self.is_several else ROOT).as_posix()

    def settings_folder(self):
        home = ROOT / self.name().split("/CMakeFiles/")[0] if self.is_several else self.path.parent
        return next(folder for folder in (home, *home.parents) if (folder / ".clang-tidy").exists())


def sources_of(folder):
    entries = json.loads((folder / "compile_commands.json").read_text(encoding="utf-8"))
    sources = (Source(entry, folder) for entry in entries if entry["file"].endswith((".cpp", ".cxx")))
    return [source for source in sources if source.is_several or is_ours(source.path)]


def included_files(folder):
    """Our files that each object of a built folder was made from, by the object's name."""
    files = {}
    for line in output_of("ninja", "-C", str(folder), "-t", "deps").splitlines():
        if line.startswith(" "):
            path = Path(os.path.normpath(folder / line.strip()))
            if is_ours(path):
                files[current].append(path)
        elif ":" in line and not line.startswith("ninja:"):
            current = line.split(":")[0]
            files[current] = []
    return files


def cross_options(compiler):
    """What clang must be told to read a source as a cross compiler of the GCC family does; nothing for the own system."""
    target = output_of(compiler, "-dumpmachine").strip()
    if "mingw32" not in target:
        return []
    report = subprocess.run([compiler, "-v", "-E", "-x", "c++", os.devnull], check=True, text=True, capture_output=True).stderr
    folders = re.search(r"^#include <\.\.\.>.*?$(.*?)^End of search", report, re.MULTILINE | re.DOTALL).group(1).split()
    options = [f"--target={target}", "-nostdlibinc", "-nostdinc++"]
    for folder in map(os.path.normpath, folders):
        if "/c++" in folder:
            options.append(f"-isystem{folder}")
        elif "/lib/gcc/" not in folder:  # GCC's own headers are replaced by clang's
            options.append(f"-idirafter{folder}")
    return options


def key_of(source, files, settings):
    """Changes whenever clang-tidy could find something else in the source."""
    digest = hashlib.sha256(settings)
    digest.update("\0".join(source.command).encode())
    for path in sorted({source.path, *files}):
        digest.update(str(path).encode() + b"\0" + path.read_bytes())
    for folder in {path.parent for path in files} | {source.settings_folder()}:
        for above in (folder, *folder.parents):
            rules = above / ".clang-tidy"
            if above.is_relative_to(ROOT) and rules.exists():
                digest.update(rules.read_bytes())
    return digest.hexdigest()


def folders_without_settings(folder):
    """The folders below that have no .clang-tidy of their own, neither themselves nor deeper down."""
    for child in sorted(child for child in folder.iterdir() if child.is_dir() and child.name != "build"):
        if not any(child.rglob(".clang-tidy")):
            yield child
        elif not (child / ".clang-tidy").exists():
            yield from folders_without_settings(child)


@functools.cache
def header_filter(settings_folder):
    """Headers are looked at together with the sources that share their .clang-tidy."""
    below = [re.escape(f"{child}/") for child in folders_without_settings(settings_folder)]
    return f"^({'|'.join([re.escape(f'{settings_folder}/') + '[^/]*$', *below])})"


def findings_in(source, options):
    """clang-tidy's report, empty for a clean source."""
    settings = source.settings_folder()
    command = ["clang-tidy", "--quiet", f"--config-file={settings / '.clang-tidy'}", f"--header-filter={header_filter(settings)}"]
    if source.is_several:
        command.append("--checks=-bugprone-suspicious-include")  # it is made of nothing but included sources
    command += [str(source.path), "--", *source.command[1:], "-Wno-unknown-warning-option", *options]
    run = subprocess.run(command, text=True, capture_output=True, cwd=source.folder, stdin=subprocess.DEVNULL)
    if run.returncode == 0 and not FINDING.search(run.stdout):
        return ""
    return run.stdout if run.stdout.strip() else run.stderr


def new_blocks(report, seen):
    """The report without findings that another source's report had already: those of headers."""
    blocks, keep = [], True
    for line in report.splitlines():
        finding = FINDING.match(line)
        if finding:
            mark = finding.group("place", "check")
            keep = mark not in seen
            seen.add(mark)
        if keep:
            blocks.append(line)
    return "\n".join(blocks)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("folders", nargs="+", type=Path, metavar="BUILD_FOLDER")
    parser.add_argument("--only", nargs="+", default=[""], metavar="PATH", help="sources whose path begins like this")
    arguments = parser.parse_args()

    settings = output_of("clang-tidy", "--version").encode() + Path(__file__).read_bytes()
    chosen, work = set(), []
    for folder in (folder.resolve() for folder in arguments.folders):
        if not (folder / "compile_commands.json").exists():
            sys.exit(f"lint.py: {folder} is not a configured build folder")
        files = included_files(folder)
        for source in sources_of(folder):
            if source.name() in chosen or not source.name().startswith(tuple(arguments.only)):
                continue
            if source.object not in files:
                sys.exit(f"lint.py: {source.name()} is not built in {folder}")
            chosen.add(source.name())
            memory = MEMORY / source.name().replace("/", "!")
            key = key_of(source, files[source.object], settings)
            if not memory.exists() or memory.read_text(encoding="utf-8") != key:
                work.append((source, memory, key))

    MEMORY.mkdir(parents=True, exist_ok=True)
    options = {compiler: cross_options(compiler) for compiler in {source.command[0] for source, _, _ in work}}
    seen, bad = set(), 0
    with concurrent.futures.ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
        reports = [pool.submit(findings_in, source, options[source.command[0]]) for source, _, _ in work]
        for (source, memory, key), report in zip(work, reports):
            if report.result():
                bad += 1
                memory.unlink(missing_ok=True)
                print(f"{source.name()}:\n{new_blocks(report.result(), seen)}\n", flush=True)
            else:
                memory.write_text(key, encoding="utf-8")
    print(f"clang-tidy: {len(chosen)} sources, {len(work)} looked at, {bad} with findings")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
