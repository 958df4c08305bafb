#include "tolerance/deviation_text.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Feeds the fuzz target with random inputs where no fuzzing engine is at hand: random_inputs [COUNT [SEED]].
namespace
{

using Random = std::mt19937_64;

std::size_t Below(Random& random, std::size_t end)
{
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
}

std::string AnyBytes(Random& random)
{
    std::string bytes(Below(random, 40), '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(Below(random, 256));
    return bytes;
}

// Characters that deviations are made of, so that many are accepted.
std::string NearlyADeviation(Random& random)
{
    constexpr std::string_view kAlphabet = "00112233445566778899...,+-- e";
    std::string text(Below(random, Below(random, 20) == 0 ? 400 : 16), '\0');
    for (char& character : text)
        character = kAlphabet[Below(random, kAlphabet.size())];
    return text;
}

std::string Number(Random& random)
{
    std::string text = Below(random, 2) == 0 ? "-" : "";
    const std::size_t wholeDigits = 1 + Below(random, Below(random, 20) == 0 ? 400 : 12);
    for (std::size_t i = 0; i < wholeDigits; ++i)
        text += static_cast<char>('0' + Below(random, 10));
    text += '.';
    const std::size_t decimals = Below(random, 14);
    for (std::size_t i = 0; i < decimals; ++i)
        text += static_cast<char>('0' + Below(random, 10));
    return text;
}

std::string Input(Random& random)
{
    switch (Below(random, 4))
    {
    case 0:
        return AnyBytes(random);
    case 1:
        return NearlyADeviation(random) + '\n' + NearlyADeviation(random);
    default:
        return Number(random) + '\n' + Number(random);
    }
}

bool IsAccepted(const std::string& input)
{
    const std::size_t end = input.find('\n');
    DeviationPair texts{input.substr(0, end), end == std::string::npos ? "" : input.substr(end + 1)};
    return CheckDeviations(texts) == 0;
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    const unsigned long count = argumentCount > 1 ? std::strtoul(arguments[1], nullptr, 10) : 100000;
    const unsigned long seed = argumentCount > 2 ? std::strtoul(arguments[2], nullptr, 10) : std::random_device{}();
    std::printf("seed %lu, %lu inputs\n", seed, count);
    std::fflush(stdout);

    Random random(seed);
    unsigned long accepted = 0;
    for (unsigned long i = 0; i < count; ++i)
    {
        const std::string input = Input(random);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
        accepted += IsAccepted(input) ? 1U : 0U;
    }
    std::printf("%lu accepted\n", accepted);
    return accepted > count / 10 ? 0 : 1;  // else the inputs show too little
}
