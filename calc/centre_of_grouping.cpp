#include "calc/centre_of_grouping.h"

#include "calc/number_text.h"

double CentreOfGrouping(std::string_view nominal, std::string_view upperDev, std::string_view lowerDev)
{
    const double size = TextToNumber(nominal);
    return ((TextToNumber(lowerDev) + size) + (TextToNumber(upperDev) + size)) * 0.5;
}
