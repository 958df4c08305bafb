#include "platform/gaugebase/limit_deviations.h"
#include "platform/gaugebase/tolerance_classes.h"

#include <chrono>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

// Cost of one look-up of limit deviations, over every code at sizes from the first step to the last.
int main()
{
    std::vector<std::string> codes;
    for (const std::string_view letters : iso286::DeviationLetters())
        for (const std::string_view grade : iso286::Grades())
            codes.push_back(std::string(letters) + std::string(grade));

    constexpr int kRounds = 200;
    constexpr float kSizes[] = {0.5F, 3, 20, 50, 300, 500, 1000, 3150};
    long lookUps = 0;
    long known = 0;
    const auto start = std::chrono::steady_clock::now();
    for (int round = 0; round < kRounds; ++round)
    {
        for (const std::string& code : codes)
        {
            for (const float size : kSizes)
            {
                ++lookUps;
                known += iso286::FindLimitDeviations(size, code) ? 1 : 0;
            }
        }
    }
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    std::printf("limit deviations: %ld look-ups, %ld known, %.0f ns each\n", lookUps, known,
                taken.count() / static_cast<double>(lookUps));
    return known > 0 ? 0 : 1;
}
