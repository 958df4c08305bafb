#include "distribution/sigma_text.h"

#include "calc/distribution_laws.h"
#include "calc/number_text.h"

std::string SigmaText(std::int32_t law, std::string_view upperDev, std::string_view lowerDev)
{
    const auto sigma = StandardDeviation(law, TextToNumber(upperDev) - TextToNumber(lowerDev));
    return sigma ? NumberText9(RoundToNano(*sigma)) : std::string();
}
