#!/usr/bin/env python3
"""Fails when a GoogleTest test can't fail.

    every_test_checks.py FOLDER

Looks at every TEST, TEST_F, TEST_P and TYPED_TEST of the .cpp files below FOLDER. A test checks something when its body
has an EXPECT_..., ASSERT_..., FAIL or ADD_FAILURE, or calls a function that does, directly or through others. Such
functions may stand in the same file, in a header below FOLDER, or in a .cpp there that has no tests. Functions are known
by their bare names. SUCCEED and static_assert are no checks.
"""

import re
import sys
from pathlib import Path

CHECK = re.compile(r"\b(?:(?:EXPECT|ASSERT)_[A-Z]\w*|FAIL|ADD_FAILURE|ADD_FAILURE_AT|GTEST_FAIL|GTEST_FAIL_AT)\s*\(")
TEST = re.compile(r"^[ \t]*(?:TYPED_)?TEST(?:_F|_P)?\s*\(\s*(\w+)\s*,\s*(\w+)\s*\)\s*(?=\{)", re.MULTILINE)
CALL = re.compile(r"\b([A-Za-z_]\w*)\s*(?:<[^<>;(){}]*>\s*)?\(")
NOT_TEXT = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<mark>[^\s()\\]{0,16})\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|'
    r"(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'",
    re.DOTALL,
)
NO_FUNCTIONS = {"if", "for", "while", "switch", "catch", "return", "sizeof", "decltype", "noexcept", "alignas", "requires"}


def without_comments_and_literals(source):
    """The source with blanks in place of comments, strings and characters; every line keeps its number."""
    return NOT_TEXT.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), source)


def after_closing(source, start):
    """The index behind the bracket that closes the one at `start`, or None when nothing closes it."""
    closing = {"(": ")", "{": "}"}[source[start]]
    depth = 0
    for index in range(start, len(source)):
        if source[index] == source[start]:
            depth += 1
        elif source[index] == closing:
            depth -= 1
            if depth == 0:
                return index + 1
    return None


def tests_of(source):
    """(line, "Suite.Name", body) of each test."""
    for found in TEST.finditer(source):
        line = source.count("\n", 0, found.start(1)) + 1
        end = after_closing(source, found.end())
        yield line, f"{found.group(1)}.{found.group(2)}", source[found.end() : end]


def functions_of(source):
    """(name, body) of each function definition, members and those of classes included."""
    for found in CALL.finditer(source):
        name = found.group(1)
        after_parameters = after_closing(source, found.end() - 1)
        if name in NO_FUNCTIONS or after_parameters is None:
            continue
        # const, noexcept, override, a return type or nothing may stand before the body; an operator or a semicolon not
        qualifiers = re.compile(r"[\s\w:&*<>-]*(?=\{)").match(source, after_parameters)
        if qualifiers:
            yield name, source[qualifiers.end() : after_closing(source, qualifiers.end())]


def calls_in(body):
    return {found.group(1) for found in CALL.finditer(body)}


def checking_functions(functions):
    """Names of the functions that check, directly or through another one."""
    checking = {name for name, body in functions if CHECK.search(body)}
    remaining = [(name, calls_in(body)) for name, body in functions]
    while True:
        more = {name for name, calls in remaining if name not in checking and calls & checking}
        if not more:
            return checking
        checking |= more


def tests_without_check(sources):
    """`sources` maps paths to source texts. Gives "path:line: Suite.Name ..." for each test that can't fail."""
    cleaned = {path: without_comments_and_literals(text) for path, text in sources.items()}
    with_tests = {path for path, text in cleaned.items() if Path(path).suffix == ".cpp" and TEST.search(text)}
    shared = [function for path, text in cleaned.items() if path not in with_tests for function in functions_of(text)]
    complaints = []
    for path in sorted(with_tests):
        own = [function for function in functions_of(cleaned[path]) if not re.match(r"(TYPED_)?TEST(_F|_P)?$", function[0])]
        checking = checking_functions(own + shared)
        for line, name, body in tests_of(cleaned[path]):
            if not CHECK.search(body) and not calls_in(body) & checking:
                complaints.append(f"{path}:{line}: {name} has no check that could fail")
    return complaints, len(with_tests)


def main(folder):
    sources = {str(path): path.read_text(encoding="utf-8") for path in Path(folder).rglob("*") if path.suffix in (".h", ".cpp")}
    complaints, files = tests_without_check(sources)
    print("\n".join(complaints) if complaints else f"Every test of {files} files checks something.")
    if files == 0:
        print(f"No tests below {folder}.")
    return 1 if complaints or files == 0 else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
