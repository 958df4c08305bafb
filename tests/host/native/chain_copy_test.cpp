#include "host/chain_copy.h"

#include <gtest/gtest.h>

namespace
{
const int kObjects[] = {0, 1, 2, 3};
const void* const kA = &kObjects[0];
const void* const kB = &kObjects[1];
const void* const kC = &kObjects[2];
const void* const kX = &kObjects[3];

using Objects = std::vector<const void*>;
using Lines = std::vector<std::string>;

CopiedLink Link(const char* name, const char* nominal, const char* upper, const char* lower, double mean,
                std::int32_t increasing = 1, std::int32_t law = 1)
{
    return {.name = name,
            .nominal = nominal,
            .field = "",
            .upperDev = upper,
            .lowerDev = lower,
            .kind = 1,
            .increasing = increasing,
            .law = law,
            .mean = mean};
}

const CopiedLink kTen = Link("A", "10", "0.1", "-0.1", 10);
const CopiedLink kFour = Link("B", "4", "+0.05", "0", 4.025, 0);
const CopiedLink kClosing = Link("X", "6", "0.15", "-0.15", 6);

/// Adds a link as the host does: the module lists one object more, then the values are set.
void Add(ChainCopy& chain, const void* object, const CopiedLink& values)
{
    Objects objects;
    for (const FollowedLink& link : chain.Links())
        objects.push_back(link.object);
    objects.push_back(object);
    chain.Follow(objects, chain.Closing() ? chain.Closing()->object : nullptr);
    chain.SetLastLink(values);
}

std::string NameOf(const void* object)
{
    return object == kA ? "A" : object == kB ? "B" : object == kC ? "C" : "?";
}

/// The values of the links in order: their names, or ? where they are unknown.
std::string Known(const ChainCopy& chain)
{
    std::string names;
    for (const FollowedLink& link : chain.Links())
        names += link.values ? link.values->name : "?";
    return names;
}
}  // namespace

TEST(ChainCopy, KeepsTheValuesOfLinksThatStay)
{
    ChainCopy chain;
    Add(chain, kA, kTen);
    Add(chain, kB, kFour);
    chain.Follow(Objects{kB}, nullptr);
    EXPECT_EQ(Known(chain), "B");

    chain.Follow(Objects{}, nullptr);
    EXPECT_EQ(Known(chain), "");
}

TEST(ChainCopy, ALinkThatTheHostDidNotAddIsUnknown)
{
    ChainCopy chain;
    Add(chain, kA, kTen);
    chain.Follow(Objects{kA, kB}, nullptr);

    EXPECT_EQ(Known(chain), "A?");
}

TEST(ChainCopy, LinksDeletedAndAddedBetweenTwoLooksAreToldApart)
{
    ChainCopy chain;
    Add(chain, kA, kTen);
    Add(chain, kB, kFour);
    chain.Follow(Objects{kB, kC, kA}, nullptr);

    EXPECT_EQ(Known(chain), "B??");
}

TEST(ChainCopy, OneOfTwoLinksOfTheSameDimensionIsUnknownWhenTheOtherIsGone)
{
    ChainCopy chain;
    Add(chain, kA, kTen);
    Add(chain, kB, kFour);
    Add(chain, kA, Link("A'", "10", "0.2", "-0.2", 10));
    chain.Follow(Objects{kA, kB}, nullptr);
    EXPECT_EQ(Known(chain), "AB") << "the link behind B is the one that is gone";

    Add(chain, kA, Link("A'", "10", "0.2", "-0.2", 10));
    chain.Follow(Objects{kA}, nullptr);
    EXPECT_EQ(Known(chain), "?");
}

TEST(ChainCopy, EqualLinksNeedNotBeToldApart)
{
    ChainCopy chain;
    Add(chain, kA, kTen);
    Add(chain, kA, kTen);
    chain.Follow(Objects{kA}, nullptr);

    EXPECT_EQ(Known(chain), "A");
}

TEST(ChainCopy, FollowsTheClosingLink)
{
    ChainCopy chain;
    chain.SetClosing(kX, kClosing);
    chain.Follow(Objects{}, kX);
    ASSERT_TRUE(chain.Closing().has_value());
    EXPECT_EQ(chain.Closing()->values, kClosing);

    chain.Follow(Objects{}, kC);  // set by somebody else
    ASSERT_TRUE(chain.Closing().has_value());
    EXPECT_EQ(chain.Closing()->values, std::nullopt);

    chain.Follow(Objects{}, nullptr);
    EXPECT_FALSE(chain.Closing().has_value());
}

TEST(ChainCopy, ForgettingTheLinksKeepsTheirObjects)
{
    ChainCopy chain;
    Add(chain, kA, kTen);
    chain.SetClosing(kX, kClosing);
    chain.ForgetLinks();
    EXPECT_EQ(Known(chain), "?");
    EXPECT_EQ(chain.Closing()->values, kClosing);

    chain.Clear();
    EXPECT_TRUE(chain.Links().empty());
    EXPECT_FALSE(chain.Closing().has_value());
}

// By hand: A0 = 10 - 4; upper 10.1 - 4, lower 9.9 - 4.05; ES0 = 0.1 - 0, EI0 = -0.1 - 0.05. Sigmas 0.2/6 and 0.05/6:
// D0 = 0.0011111111 - 0.0000694444 = 0.001041667, T = 6 * sqrt(D0) = 0.193649198 (0.19364919848..), middle 10 - 4.025
// = 5.975; limits 5.975 +- 0.0968.
TEST(ChainCopy, PrintsTheChainAndWhatBothMethodsMakeOfIt)
{
    ChainCopy chain;
    Add(chain, kA, kTen);
    Add(chain, kB, kFour);
    chain.SetClosing(kX, kClosing);

    const Lines lines = chain.Lines(NameOf);
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0], "link A 10 0.1 -0.1 increasing normal");
    EXPECT_EQ(lines[1], "link B 4 0.05 0 decreasing normal");
    EXPECT_EQ(lines[2], "closing 6 0.15 -0.15 normal");
    EXPECT_EQ(lines[3], "analytic A0=6 upper=6.1 lower=5.85 ES0=0.1 EI0=-0.15");
    EXPECT_EQ(lines[4].substr(0, 48), "probabilistic A0=6 upper=6.0718 lower=5.8782 ES0");
    EXPECT_EQ(lines[4].substr(lines[4].find(" D0=")), " D0=0.001041667 T=0.193649198");
}

TEST(ChainCopy, PrintsLawsInWords)
{
    ChainCopy chain;
    Add(chain, kA, Link("A", "1", "", "", 1, 1, 2));
    Add(chain, kB, Link("B", "1", "", "", 1, 1, 3));
    Add(chain, kC, Link("C", "1", "", "", 1, 1, 0));

    EXPECT_EQ(chain.Lines(NameOf), (Lines{"link A 1 0 0 increasing uniform", "link B 1 0 0 increasing triangular",
                                          "link C 1 0 0 increasing none", "closing none"}));
}

TEST(ChainCopy, ComputesNothingFromOneLinkOrWithoutAClosingLink)
{
    ChainCopy chain;
    Add(chain, kA, kTen);
    chain.SetClosing(kX, kClosing);
    EXPECT_EQ(chain.Lines(NameOf).size(), 2U);

    Add(chain, kB, kFour);
    chain.Follow(Objects{kA, kB}, nullptr);
    EXPECT_EQ(chain.Lines(NameOf).back(), "closing none");
}

TEST(ChainCopy, ComputesNothingFromUnknownValues)
{
    ChainCopy chain;
    Add(chain, kA, kTen);
    Add(chain, kB, kFour);
    chain.SetClosing(kX, kClosing);
    chain.SetLink(1, std::nullopt);
    EXPECT_EQ(chain.Lines(NameOf),
              (Lines{"link A 10 0.1 -0.1 increasing normal", "link B unknown", "closing 6 0.15 -0.15 normal"}));

    chain.SetLink(1, kFour);
    chain.Follow(Objects{kA, kB}, kC);
    EXPECT_EQ(chain.Lines(NameOf).back(), "closing unknown");
}

// Variance 0.2^2/36 of the increasing link minus 0.4^2/36 of the decreasing one is negative.
TEST(ChainCopy, ANegativeVariancePrintsNoNumbers)
{
    ChainCopy chain;
    Add(chain, kA, kTen);
    Add(chain, kB, Link("B", "4", "0.2", "-0.2", 4, 0));
    chain.SetClosing(kX, kClosing);

    EXPECT_EQ(chain.Lines(NameOf).back(),
              "probabilistic A0=6 upper=nan lower=nan ES0=nan EI0=nan D0=-0.003333333 T=nan");
}
