#include "tolerance/typed_deviation.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

// The rules of typed deviations written out one by one, also where one follows from another, and compared with the
// program on every text of up to six characters that can matter to them.
namespace
{

enum class Verdict
{
    empty,
    accepted,
    refused
};

bool AllIn(const std::string& text, std::size_t from, std::string_view allowed)
{
    for (std::size_t i = from; i < text.size(); ++i)
        if (allowed.find(text[i]) == std::string_view::npos)
            return false;
    return true;
}

int PointsFrom(const std::string& text, std::size_t from)
{
    int points = 0;
    for (std::size_t i = from; i < text.size(); ++i)
        points += text[i] == '.' || text[i] == ',' ? 1 : 0;
    return points;
}

bool IsIn(char character, std::string_view set)
{
    return set.find(character) != std::string_view::npos;
}

Verdict Judge(std::string text)
{
    while (!text.empty() && text.front() == ' ')
        text.erase(0, 1);
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    while (!text.empty() && text.front() == '0')
        text.erase(0, 1);
    if (text.empty())
        return Verdict::empty;

    const char first = text[0];
    if (!IsIn(first, ".,+-0123456789"))
        return Verdict::refused;
    if (IsIn(first, ".,"))
    {
        text = "0" + text;
        if (!AllIn(text, 2, "0123456789"))
            return Verdict::refused;
    }
    if (IsIn(first, "+-") && text.size() >= 2)
    {
        if (!IsIn(text[1], ".,"))
        {
            if (PointsFrom(text, 1) > 1 || !AllIn(text, 1, ".,0123456789"))
                return Verdict::refused;
        }
        else
        {
            const std::string prefix = first == '+' ? "" : "+.3g";
            text = prefix + text.substr(1);
            if (!AllIn(text, 3, "0123456789"))
                return Verdict::refused;
        }
    }
    if (PointsFrom(text, 1) > 1 || !AllIn(text, 1, ".,0123456789"))
        return Verdict::refused;
    return Verdict::accepted;
}

Verdict VerdictOf(const std::optional<TypedDeviation>& deviation)
{
    if (!deviation)
        return Verdict::refused;
    return deviation->isEmpty ? Verdict::empty : Verdict::accepted;
}

TEST(LiteralRules, JudgeEveryShortTextLikeTheProgram)
{
    constexpr std::string_view kAlphabet = " 05.,+-g";
    constexpr std::size_t kLongest = 6;
    int counts[3] = {};
    int wrong = 0;
    std::string firstWrong;
    std::vector<std::size_t> indices;
    while (indices.size() <= kLongest)
    {
        std::string text;
        for (const std::size_t index : indices)
            text += kAlphabet[index];
        const Verdict expected = Judge(text);
        ++counts[static_cast<int>(expected)];
        if (VerdictOf(ReadTypedDeviation(text)) != expected && ++wrong <= 20)
            firstWrong += "[" + text + "]\n";

        std::size_t digit = 0;  // count on, least significant place first
        while (digit < indices.size() && ++indices[digit] == kAlphabet.size())
            indices[digit++] = 0;
        if (digit == indices.size())
            indices.push_back(0);
    }
    EXPECT_EQ(wrong, 0) << firstWrong;
    EXPECT_EQ(counts[0] + counts[1] + counts[2], 299593);  // 8^0 + 8^1 + ... + 8^6
    EXPECT_GT(counts[static_cast<int>(Verdict::empty)], 50);
    EXPECT_GT(counts[static_cast<int>(Verdict::accepted)], 1000);
}

}  // namespace
