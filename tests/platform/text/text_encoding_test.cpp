#include "platform/text/text_encoding.h"

#include <gtest/gtest.h>

#include "tests/support/framework_printers.h"

namespace
{

// Euro sign, Cyrillic Zhe, and a sign beyond the first 65536.
const CString kUtf16 = L"a\x20AC\x0416\xD83D\xDE00";
const std::string kUtf8 = "a\xE2\x82\xAC\xD0\x96\xF0\x9F\x98\x80";

TEST(TextEncoding, WritesUtf8)
{
    EXPECT_EQ(ToUtf8(kUtf16), kUtf8);
}

TEST(TextEncoding, ReadsUtf8)
{
    EXPECT_EQ(FromUtf8(kUtf8), kUtf16);
}

TEST(TextEncoding, KeepsAnEmptyTextEmpty)
{
    EXPECT_EQ(ToUtf8(CString()), "");
    EXPECT_TRUE(FromUtf8("").IsEmpty());
}

TEST(TextEncoding, ReplacesWhatIsNotWellFormed)
{
    EXPECT_EQ(FromUtf8("a\xFF"), L"a\xFFFD");
    EXPECT_EQ(ToUtf8(L"a\xD83D"), "a\xEF\xBF\xBD");
}

}  // namespace
