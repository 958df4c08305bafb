#include "distribution/mean_range.h"

#include "calc/number_text.h"

bool IsMeanInsideField(double mean, double nominal, double upperDev, double lowerDev)
{
    const double rounded = RoundToNano(mean);
    return RoundToNano(nominal + lowerDev) <= rounded && rounded <= RoundToNano(nominal + upperDev);
}
