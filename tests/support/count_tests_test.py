#!/usr/bin/env python3
"""Tests of count_tests."""

import unittest

from count_tests import counts_of_entry, counts_of_report

ALL_PASSED = "[==========] 70 tests from 13 test suites ran. (444 ms total)\n[  PASSED  ] 70 tests.\n"
TWO_FAILED = (
    "[==========] 9 tests from 1 test suite ran. (3 ms total)\n[  PASSED  ] 6 tests.\n"
    "[  SKIPPED ] 1 test, listed below:\n[  SKIPPED ] Grid.Scrolls\n"
    "[  FAILED  ] 2 tests, listed below:\n[  FAILED  ] Grid.Paints\n[  FAILED  ] Grid.Sorts\n\n 2 FAILED TESTS\n"
)


class CountsOfEntry(unittest.TestCase):
    def test_a_program_counts_with_its_tests(self):
        self.assertEqual(counts_of_entry("run", ALL_PASSED), (70, 0, 0))

    def test_failed_and_skipped_tests_are_not_passed_ones(self):
        self.assertEqual(counts_of_entry("fail", TWO_FAILED), (6, 2, 1))

    def test_an_entry_without_tests_inside_counts_as_one(self):
        self.assertEqual(counts_of_entry("run", "all well\n"), (1, 0, 0))
        self.assertEqual(counts_of_entry("fail", "oh\n"), (0, 1, 0))
        self.assertEqual(counts_of_entry("notrun", ""), (0, 1, 0))

    def test_a_bad_end_after_passed_tests_is_one_failure(self):
        self.assertEqual(counts_of_entry("fail", ALL_PASSED), (70, 1, 0))


class CountsOfReport(unittest.TestCase):
    def test_entries_are_added_up(self):
        report = (
            '<testsuite><testcase status="run"><system-out>fine</system-out></testcase>'
            f'<testcase status="fail"><system-out>{TWO_FAILED}</system-out></testcase></testsuite>'
        )
        self.assertEqual(counts_of_report(report), (7, 2, 1))


if __name__ == "__main__":
    unittest.main()
