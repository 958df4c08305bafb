#!/usr/bin/env python3
"""Prints how many tests passed, failed and were skipped, from CTest's report of a build.

    count_tests.py REPORT.xml

REPORT.xml is what `ctest --output-junit` writes. A GoogleTest program counts with the tests inside it, any other entry of
CTest as one. A program that ended badly without a failed test inside it counts as one failed test.
"""

import re
import sys
import xml.etree.ElementTree as xml

RAN = re.compile(r"^\[=+\] (\d+) tests? from \d+ test (?:suite|case)s? ran\.", re.MULTILINE)
FAILED = re.compile(r"^\[  FAILED  \] (\d+) tests?, listed below", re.MULTILINE)
SKIPPED = re.compile(r"^\[  SKIPPED \] (\d+) tests?, listed below", re.MULTILINE)


def total(pattern, text):
    return sum(map(int, pattern.findall(text)))


def counts_of_entry(status, output):
    """(passed, failed, skipped) of one entry; `status` is CTest's word, "run" for success."""
    ran, failed, skipped = (total(pattern, output) for pattern in (RAN, FAILED, SKIPPED))
    if status == "run":
        return (ran - skipped if RAN.search(output) else 1), 0, skipped
    if failed == 0:
        return max(0, ran - skipped), 1, skipped
    return ran - failed - skipped, failed, skipped


def counts_of_report(report):
    passed = failed = skipped = 0
    for entry in xml.fromstring(report).iter("testcase"):
        counts = counts_of_entry(entry.get("status"), entry.findtext("system-out") or "")
        passed, failed, skipped = passed + counts[0], failed + counts[1], skipped + counts[2]
    return passed, failed, skipped


if __name__ == "__main__":
    with open(sys.argv[1], encoding="utf-8") as file:
        print(*counts_of_report(file.read()))
