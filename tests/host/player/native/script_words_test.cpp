#include "host/player/script_words.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace
{

std::vector<std::string> Texts(std::string_view line)
{
    std::vector<std::string> texts;
    for (const ScriptWord& word : SplitLine(line))
        texts.push_back(word.text);
    return texts;
}

}  // namespace

TEST(SplitLine, WordsAreSeparatedByBlanks)
{
    EXPECT_EQ(Texts("  press \t link  1004 "), (std::vector<std::string>{"press", "link", "1004"}));
    EXPECT_TRUE(SplitLine("").empty());
    EXPECT_TRUE(SplitLine("   ").empty());
}

TEST(SplitLine, ANumberSignBeginsAComment)
{
    EXPECT_TRUE(SplitLine("# press link 1004").empty());
    EXPECT_EQ(Texts("print # the chain"), (std::vector<std::string>{"print"}));
    EXPECT_EQ(Texts("pick A1#first"), (std::vector<std::string>{"pick", "A1"}));
    EXPECT_EQ(Texts("open \"# 1\"#x"), (std::vector<std::string>{"open", "# 1"}));
}

TEST(SplitLine, AQuotedTextKeepsBlanksAndResolvesEscapes)
{
    const std::vector<ScriptWord> words = SplitLine(R"(open "two words" "say \"x\"" "a\\b" "line\nbreak" "")");
    ASSERT_EQ(words.size(), 6U);
    EXPECT_FALSE(words[0].quoted);
    EXPECT_TRUE(words[1].quoted);
    EXPECT_EQ(words[1].text, "two words");
    EXPECT_EQ(words[1].source, "\"two words\"");
    EXPECT_EQ(words[2].text, "say \"x\"");
    EXPECT_EQ(words[3].text, "a\\b");
    EXPECT_EQ(words[4].text, "line\nbreak");
    EXPECT_EQ(words[5].text, "");
    EXPECT_TRUE(words[5].quoted);
}

TEST(SplitLine, ANameBeforeAnEqualsSignIsKeptApart)
{
    const std::vector<ScriptWord> words = SplitLine(R"(upper="0.2=x" law=2 caption=@52705 "a=b")");
    ASSERT_EQ(words.size(), 4U);
    EXPECT_EQ(words[0].name, "upper");
    EXPECT_EQ(words[0].text, "0.2=x");
    EXPECT_TRUE(words[0].quoted);
    EXPECT_EQ(words[1].name, "law");
    EXPECT_EQ(words[1].text, "2");
    EXPECT_EQ(words[2].text, "@52705");
    EXPECT_EQ(words[3].name, "");
    EXPECT_EQ(words[3].text, "a=b");
}

TEST(SplitLine, BrokenQuotesAreRefused)
{
    for (const char* line : {"open \"x", "open \"x\\", "open \"x\\t\"", "open \"x\"y", "open x\"y\""})
    {
        SCOPED_TRACE(line);
        EXPECT_THROW(SplitLine(line), std::invalid_argument);
    }
}
