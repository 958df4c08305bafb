// Cost of the chain calculation for chains of 10 to 10 000 links, what each further link costs on the way, and the
// ratio of these costs: near 1 when the cost per link is constant. The 10 links cost mostly the texts of the result.

#include "calc/chain_calculation.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <vector>

namespace
{

constexpr std::size_t kShortChain = 10;
constexpr std::size_t kMiddleChain = 1'000;
constexpr std::size_t kLongChain = 10'000;
constexpr std::size_t kLinksPerRun = 4'000'000;
constexpr int kRuns = 9;  // the fastest counts: it was disturbed least

std::vector<ComponentLink> Chain(std::size_t count)
{
    std::vector<ComponentLink> links(count);
    for (std::size_t index = 0; index < count; ++index)
    {
        const double nominal = 5.0 + static_cast<double>(index % 17);
        links[index] = {.nominal = nominal,
                        .upperDev = 0.021,
                        .lowerDev = -0.013,
                        .increasing = index % 3 != 0 ? 1 : 0,
                        .law = static_cast<std::int32_t>(1 + index % 3),
                        .mean = nominal + 0.004};
    }
    return links;
}

double Nanoseconds(std::int32_t method, std::size_t count)
{
    const std::vector<ComponentLink> links = Chain(count);
    const ClosingLink closing{.nominal = 40.0, .upperDev = 0.3, .lowerDev = -0.3, .law = 1};
    const std::size_t repetitions = kLinksPerRun / count;
    double fastest = std::numeric_limits<double>::infinity();
    double total = 0.0;
    for (int run = 0; run < kRuns; ++run)
    {
        const auto start = std::chrono::steady_clock::now();
        for (std::size_t done = 0; done < repetitions; ++done)
            total += Calculate(method, links, closing)->nominal;
        const std::chrono::duration<double, std::nano> elapsed = std::chrono::steady_clock::now() - start;
        fastest = std::min(fastest, elapsed.count() / static_cast<double>(repetitions));
    }
    volatile double used = total;  // keeps the calculation from being optimised away
    static_cast<void>(used);
    return fastest;
}

double PerFurtherLink(double shorterCost, std::size_t shorter, double longerCost, std::size_t longer)
{
    return (longerCost - shorterCost) / static_cast<double>(longer - shorter);
}

void Report(const char* name, std::int32_t method)
{
    const double shortCost = Nanoseconds(method, kShortChain);
    const double middleCost = Nanoseconds(method, kMiddleChain);
    const double longCost = Nanoseconds(method, kLongChain);
    const double toMiddle = PerFurtherLink(shortCost, kShortChain, middleCost, kMiddleChain);
    const double toLong = PerFurtherLink(middleCost, kMiddleChain, longCost, kLongChain);
    std::printf("%s\n", name);
    std::printf("  %6zu links  %9.0f ns\n", kShortChain, shortCost);
    std::printf("  %6zu links  %9.0f ns  %6.2f ns a further link\n", kMiddleChain, middleCost, toMiddle);
    std::printf("  %6zu links  %9.0f ns  %6.2f ns a further link  ratio %.2f\n", kLongChain, longCost, toLong,
                toLong / toMiddle);
}

}  // namespace

int main()
{
    Report("analytic", kAnalyticMethod);
    Report("probabilistic", kProbabilisticMethod);
    return 0;
}
