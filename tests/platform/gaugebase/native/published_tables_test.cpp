#include "platform/gaugebase/limit_deviations.h"
#include "platform/gaugebase/tolerance_classes.h"
#include "tests/platform/gaugebase/native/published_tables.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace
{

struct Fact
{
    int gradeFrom, gradeTo;
    double over, upTo, value;
    std::string which;
    bool addDelta;
};

// Position of a grade in "01", "0", "1", ...
int GradeIndex(const std::string& grade)
{
    return grade == "01" ? 0 : std::stoi(grade) + 1;
}

// Limits taken from the published lines alone, along a road of their own: no row or column of the program's tables.
class PublishedLimits
{
public:
    PublishedLimits()
    {
        for (const auto& line : published::Lines(published::standard_tolerances))
        {
            AddBorders(line[0], line[1]);
            for (std::size_t column = 2; column < line.size(); ++column)
                if (!line[column].empty())
                    m_tolerances[static_cast<int>(column) - 2].push_back(
                        {0, 0, std::stod(line[0]), std::stod(line[1]), std::stod(line[column]), "", false});
        }
        for (const auto& line : published::Lines(published::hole_delta))
            for (std::size_t column = 2; column < line.size(); ++column)
                m_deltas[static_cast<int>(column) + 2].push_back(  // the first column is IT3, index 4
                    {0, 0, std::stod(line[0]), std::stod(line[1]), std::stod(line[column]), "", false});
        AddDeviations(published::shaft_deviations);
        AddDeviations(published::hole_deviations);
    }

    std::optional<iso286::LimitDeviations> Find(double size, const std::string& letters, int gradeIndex) const
    {
        const Fact* const tolerance = FindFact(m_tolerances, gradeIndex, size);
        const Fact* deviation = nullptr;
        for (const Fact& fact : m_deviations.at(letters))
        {
            if (size > fact.over && size <= fact.upTo && gradeIndex >= fact.gradeFrom && gradeIndex <= fact.gradeTo)
            {
                if (deviation)
                    throw std::logic_error("two published deviations for " + letters);
                deviation = &fact;
            }
        }
        if (!tolerance || !deviation)
            return std::nullopt;
        if (deviation->which == "sym")
            return Narrow(tolerance->value / 2, -tolerance->value / 2);
        const double value =
            deviation->value + (deviation->addDelta ? FindFact(m_deltas, gradeIndex, size)->value : 0.0);
        if (deviation->which == "es" || deviation->which == "ES")
            return Narrow(value, value - tolerance->value);
        return Narrow(value + tolerance->value, value);
    }

    // Every border, the next float above it and a size inside each step.
    std::vector<float> Sizes() const
    {
        std::vector<float> sizes;
        for (auto border = m_borders.begin(); border != m_borders.end(); ++border)
        {
            sizes.push_back(static_cast<float>(*border));
            sizes.push_back(std::nextafter(static_cast<float>(*border), 1e9F));
            if (const auto next = std::next(border); next != m_borders.end())
                sizes.push_back(static_cast<float>((*border + *next) / 2));
        }
        return sizes;
    }

private:
    using FactsByGrade = std::map<int, std::vector<Fact>>;

    static iso286::LimitDeviations Narrow(double upper, double lower)
    {
        return {static_cast<float>(upper), static_cast<float>(lower)};
    }

    static const Fact* FindFact(const FactsByGrade& facts, int gradeIndex, double size)
    {
        const auto ofGrade = facts.find(gradeIndex);
        if (ofGrade == facts.end())
            return nullptr;
        const auto fact = std::ranges::find_if(
            ofGrade->second, [size](const Fact& candidate) { return size > candidate.over && size <= candidate.upTo; });
        return fact == ofGrade->second.end() ? nullptr : &*fact;
    }

    void AddBorders(const std::string& over, const std::string& upTo)
    {
        m_borders.insert(std::stod(over));
        m_borders.insert(std::stod(upTo));
    }

    void AddDeviations(std::string_view csv)
    {
        for (const auto& line : published::Lines(csv))
        {
            AddBorders(line[3], line[4]);
            m_deviations[line[0]].push_back({GradeIndex(line[1]), GradeIndex(line[2]), std::stod(line[3]),
                                             std::stod(line[4]), line[5].empty() ? 0.0 : std::stod(line[5]), line[6],
                                             line.size() > 7 && line[7] == "1"});
        }
    }

    FactsByGrade m_tolerances, m_deltas;
    std::map<std::string, std::vector<Fact>> m_deviations;
    std::set<double> m_borders;
};

std::string Text(const std::optional<iso286::LimitDeviations>& limits)
{
    return limits ? std::to_string(limits->upper) + " / " + std::to_string(limits->lower) : "none";
}

bool Same(const std::optional<iso286::LimitDeviations>& expected, const std::optional<iso286::LimitDeviations>& actual)
{
    if (!expected || !actual)
        return expected.has_value() == actual.has_value();
    return expected->upper == actual->upper && expected->lower == actual->lower;
}

TEST(PublishedTables, EveryClassHasTheirLimitsInEverySizeStepAndAtItsBorders)
{
    const PublishedLimits published;
    const std::span grades = iso286::Grades();
    int compared = 0;
    int known = 0;
    int wrong = 0;
    std::string firstWrong;
    for (const std::string_view letters : iso286::DeviationLetters())
    {
        for (std::size_t grade = 0; grade < grades.size(); ++grade)
        {
            const std::string code = std::string(letters) + std::string(grades[grade]);
            for (const float size : published.Sizes())
            {
                const auto expected = published.Find(size, std::string(letters), static_cast<int>(grade));
                const auto actual = iso286::FindLimitDeviations(size, code);
                ++compared;
                known += expected.has_value() ? 1 : 0;
                if (!Same(expected, actual) && ++wrong <= 20)
                    firstWrong += std::to_string(size) + " " + code + ": published " + Text(expected) + ", found " +
                                  Text(actual) + "\n";
            }
        }
    }
    EXPECT_EQ(wrong, 0) << "of " << compared << ", the first:\n" << firstWrong;
    // 43 borders (0, 1, 3 and so on up to 3150), 42 steps between them: 128 sizes of 56 letters in 20 grades.
    EXPECT_EQ(compared, 128 * 56 * 20);
    EXPECT_GT(known, compared / 2);
}

TEST(PublishedTables, PreferredClassesStandInTheirOrder)
{
    std::vector<std::string> expected;
    for (const auto& line : published::Lines(published::preferred_classes))
        expected.push_back(line[1]);
    const std::span classes = iso286::PreferredClasses();
    EXPECT_EQ(std::vector<std::string>(classes.begin(), classes.end()), expected);
    EXPECT_EQ(expected.size(), 95U);  // 45 holes and 50 shafts
}

}  // namespace
