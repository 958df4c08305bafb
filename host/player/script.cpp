#include "host/player/script.h"

#include <algorithm>

std::string_view RoleName(WindowRole role)
{
    switch (role)
    {
    case WindowRole::kHost:
        return "host";
    case WindowRole::kCalc:
        return "calc";
    case WindowRole::kLink:
        return "link";
    case WindowRole::kClosing:
        return "closing";
    case WindowRole::kDistribution:
        return "distribution";
    case WindowRole::kWeight:
        return "weight";
    case WindowRole::kMessage:
        return "message";
    }
    return "";
}

bool Step::Chose(std::string_view word) const
{
    return std::find(choices.begin(), choices.end(), word) != choices.end();
}
