#!/usr/bin/env python3
"""Tests of every_test_checks.py."""

import unittest

from every_test_checks import tests_without_check


def complaints(test_file, **others):
    sources = {"t.cpp": test_file}
    sources.update({name.replace("_dot_", "."): text for name, text in others.items()})
    return tests_without_check(sources)[0]


class EveryTestChecks(unittest.TestCase):
    def test_each_kind_of_check_counts(self):
        for check in ("EXPECT_EQ(1, f());", "ASSERT_TRUE(f());", "FAIL() << 1;", "ADD_FAILURE();", "EXPECT_NO_THROW(f());"):
            self.assertEqual(complaints("TEST(A, B)\n{\n    " + check + "\n}\n"), [], check)

    def test_a_test_without_check_is_named_with_its_line(self):
        self.assertEqual(complaints("// head\n\nTEST(A, B)\n{\n    f();\n}\n"), ["t.cpp:3: A.B has no check that could fail"])

    def test_every_kind_of_test_is_looked_at(self):
        for macro in ("TEST", "TEST_F", "TEST_P", "TYPED_TEST"):
            self.assertEqual(len(complaints(macro + "(A, B) { f(); }")), 1, macro)

    def test_the_check_of_a_neighbour_does_not_count(self):
        found = complaints("TEST(A, B) { f(); }\nTEST(A, C) { EXPECT_TRUE(f()); }\nTEST(A, D) {}\n")
        self.assertEqual([line.split()[1] for line in found], ["A.B", "A.D"])

    def test_comments_and_strings_are_no_checks(self):
        body = '// EXPECT_EQ(1, 1);\n/* FAIL() */ f("EXPECT_EQ(1, 1)"); g(R"x(FAIL() " )x");'
        self.assertEqual(len(complaints("TEST(A, B)\n{\n" + body + "\n}\n")), 1)

    def test_braces_in_literals_do_not_end_a_test(self):
        self.assertEqual(complaints("TEST(A, B) { f('}', \"}\"); n(1'000'000); EXPECT_TRUE(f()); }"), [])

    def test_what_can_not_fail_at_run_time_is_no_check(self):
        self.assertEqual(len(complaints("TEST(A, B) { static_assert(1 < 2); ASSERT(f()); SUCCEED(); }")), 1)

    def test_a_function_of_the_same_file_may_check(self):
        helper = "namespace {\nvoid Same(int a) { EXPECT_EQ(a, 1); }\nvoid Twice(int a) const noexcept { Same(a); Same(a); }\n}\n"
        self.assertEqual(complaints(helper + "TEST(A, B) { Same(1); }\nTEST(A, C) { Twice(1); }\n"), [])

    def test_a_template_with_arguments_may_check(self):
        self.assertEqual(complaints("template <class T> void Is() { EXPECT_TRUE(T()); }\nTEST(A, B) { Is<int>(); }"), [])

    def test_a_function_that_does_not_check_is_no_help(self):
        self.assertEqual(len(complaints("bool Same(int a) { return a == 1; }\nTEST(A, B) { Same(1); }")), 1)

    def test_a_header_or_a_file_without_tests_may_hold_the_function(self):
        test_file = "TEST(A, B) { Same(1); }"
        helper = "inline void Same(int a)\n{\n    EXPECT_EQ(a, 1);\n}\n"
        self.assertEqual(complaints(test_file, h_dot_h=helper), [])
        self.assertEqual(complaints(test_file, support_dot_cpp=helper), [])

    def test_a_function_of_another_test_file_is_no_help(self):
        other = "void Same(int a) { EXPECT_EQ(a, 1); }\nTEST(X, Y) { Same(1); }"
        self.assertEqual(complaints("TEST(A, B) { Same(1); }", other_dot_cpp=other), ["t.cpp:1: A.B has no check that could fail"])


if __name__ == "__main__":
    unittest.main()
