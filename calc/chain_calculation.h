#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

// The closing link of a dimension chain, computed from its component links. All sizes share one length unit.

// Methods; a dialog in which none is chosen yet has 0.
inline constexpr std::int32_t kAnalyticMethod = 1;       // worst case, maximum-minimum
inline constexpr std::int32_t kProbabilisticMethod = 2;  // from the links' distribution laws

/// A component link.
struct ComponentLink
{
    double nominal = 0.0;
    double upperDev = 0.0;        // ES, signed
    double lowerDev = 0.0;        // EI, signed
    std::int32_t increasing = 0;  // 0 decreasing, anything else increasing
    std::int32_t law = 0;         // distribution law, read by the probabilistic method only
    double mean = 0.0;            // centre of grouping, an absolute size; read by the probabilistic method only
};

/// The closing link as it is required.
struct ClosingLink
{
    double nominal = 0.0;
    double upperDev = 0.0;  // required ES, signed
    double lowerDev = 0.0;  // required EI, signed
    std::int32_t law = 0;   // distribution law, read by the probabilistic method only
};

/// The computed closing link and the texts to print. Values that a method does not compute are 0 with an empty text.
/// Texts have up to nine decimal places, those of the limits by the probabilistic method up to four.
struct ChainResult
{
    double requiredUpper = 0.0;  // required limits, rounded to nine decimal places
    double requiredLower = 0.0;
    double nominal = 0.0;     // A0
    double upperLimit = 0.0;  // computed limits
    double lowerLimit = 0.0;
    double upperDev = 0.0;        // ES0
    double lowerDev = 0.0;        // EI0
    double middle = 0.0;          // M0, middle of the field; probabilistic method, as all that follow
    double grouping = 0.0;        // E0, centre of grouping
    double variance = 0.0;        // D0, may be negative
    double field = 0.0;           // T; NaN when the variance is negative and the closing link has a law
    bool nominalMatches = false;  // |A0 - required nominal| <= 1e-9; never when A0 is not a number

    std::string requiredUpperText;
    std::string requiredLowerText;
    std::string nominalText;
    std::string upperLimitText;
    std::string lowerLimitText;
    std::string upperDevText;
    std::string lowerDevText;
    std::string middleText;
    std::string groupingText;
    std::string varianceText;
    std::string fieldText;
};

/// Computes the closing link.
///
/// Increasing and decreasing links are summed separately, each in chain order, and the sums subtracted.
///
/// Analytic: sum of limits, a decreasing link enters with its opposite limit, so that every combination of sizes within
/// the links' limits stays within the result.
///
/// Probabilistic: the field of the closing link from its variance and its own law, around the sum of the fields'
/// middles. The variances of decreasing links are subtracted from those of the increasing ones, which makes the
/// variance small, or negative where they prevail; a negative one makes the field and the limits NaN. A link without a
/// known law takes the standard deviation of the link before it (0 for the first), a closing link without one the
/// computed nominal as its field, whatever the variance is.
///
/// @param links  in chain order
/// @return       nothing for another method or for fewer than two links
/// Never fails: NaN and infinite values run through. Time is proportional to the number of links.
std::optional<ChainResult> Calculate(std::int32_t method, std::span<const ComponentLink> links,
                                     const ClosingLink& closing);
