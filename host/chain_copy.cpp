#include "host/chain_copy.h"

#include <algorithm>

#include "calc/chain_calculation.h"
#include "calc/distribution_laws.h"
#include "calc/number_text.h"

namespace
{

using Links = std::vector<FollowedLink>;
using Objects = std::span<const void* const>;

// The places in `links` of the first objects of the list, each as early as possible; those behind them are new.
std::vector<std::size_t> EarliestPlaces(const Links& links, Objects objects)
{
    std::vector<std::size_t> places;
    std::size_t next = 0;
    for (const void* const object : objects)
    {
        while (next < links.size() && links[next].object != object)
            ++next;
        if (next == links.size())
            break;
        places.push_back(next++);
    }
    return places;
}

// The places of the same objects, each as late as possible.
std::vector<std::size_t> LatestPlaces(const Links& links, Objects objects)
{
    std::vector<std::size_t> places(objects.size());
    std::size_t behind = links.size();
    for (std::size_t i = objects.size(); i-- > 0;)
    {
        while (links[behind - 1].object != objects[i])
            --behind;
        places[i] = --behind;
    }
    return places;
}

// The values of a link that was somewhere between the two places, if it does not matter where.
std::optional<CopiedLink> ValuesBetween(const Links& links, std::size_t first, std::size_t last)
{
    for (std::size_t i = first; i <= last; ++i)
    {
        if (links[i].object == links[first].object && links[i].values != links[first].values)
            return std::nullopt;
    }
    return links[first].values;
}

const char* LawWord(std::int32_t law)
{
    switch (law)
    {
    case kNormalLaw:
        return "normal";
    case kUniformLaw:
        return "uniform";
    case kTriangularLaw:
        return "triangular";
    default:
        return "none";
    }
}

// Name, nominal size, deviations: what both kinds of lines share, numbers as the module prints them.
std::string Sizes(const CopiedLink& link)
{
    std::string sizes;
    for (const std::string* const text : {&link.nominal, &link.upperDev, &link.lowerDev})
        sizes += " " + NumberText9(TextToNumber(*text));
    return sizes;
}

ComponentLink ToComponent(const CopiedLink& link)
{
    return {.nominal = TextToNumber(link.nominal),
            .upperDev = TextToNumber(link.upperDev),
            .lowerDev = TextToNumber(link.lowerDev),
            .increasing = link.increasing,
            .law = link.law,
            .mean = link.mean};
}

ClosingLink ToClosing(const CopiedLink& link)
{
    return {.nominal = TextToNumber(link.nominal),
            .upperDev = TextToNumber(link.upperDev),
            .lowerDev = TextToNumber(link.lowerDev),
            .law = link.law};
}

std::string LimitsLine(const std::string& method, const ChainResult& result)
{
    return method + " A0=" + result.nominalText + " upper=" + result.upperLimitText +
           " lower=" + result.lowerLimitText + " ES0=" + result.upperDevText + " EI0=" + result.lowerDevText;
}

}  // namespace

void ChainCopy::Follow(std::span<const void* const> objects, const void* closingObject)
{
    const std::vector<std::size_t> earliest = EarliestPlaces(m_links, objects);
    const std::vector<std::size_t> latest = LatestPlaces(m_links, objects.first(earliest.size()));
    std::vector<FollowedLink> links;
    for (std::size_t i = 0; i < objects.size(); ++i)
    {
        const bool isKnown = i < earliest.size();
        links.push_back({objects[i], isKnown ? ValuesBetween(m_links, earliest[i], latest[i]) : std::nullopt});
    }
    m_links = std::move(links);

    if (closingObject == nullptr)
        m_closing.reset();
    else if (!m_closing || m_closing->object != closingObject)
        m_closing = FollowedLink{closingObject, std::nullopt};
}

void ChainCopy::SetLastLink(const CopiedLink& values)
{
    if (!m_links.empty())
        m_links.back().values = values;
}

void ChainCopy::SetClosing(const void* object, const CopiedLink& values)
{
    m_closing = FollowedLink{object, values};
}

void ChainCopy::ForgetLinks()
{
    for (FollowedLink& link : m_links)
        link.values.reset();
}

void ChainCopy::Clear()
{
    m_links.clear();
    m_closing.reset();
}

std::vector<std::string> ChainCopy::Lines(const std::function<std::string(const void*)>& nameOf) const
{
    std::vector<std::string> lines;
    std::vector<ComponentLink> components;
    for (const FollowedLink& link : m_links)
    {
        if (!link.values)
        {
            lines.push_back("link " + nameOf(link.object) + " unknown");
            continue;
        }
        const CopiedLink& values = *link.values;
        lines.push_back("link " + values.name + Sizes(values) +
                        (values.increasing != 0 ? " increasing " : " decreasing ") + LawWord(values.law));
        components.push_back(ToComponent(values));
    }
    if (!m_closing)
    {
        lines.emplace_back("closing none");
        return lines;
    }
    if (!m_closing->values)
    {
        lines.emplace_back("closing unknown");
        return lines;
    }
    const CopiedLink& closing = *m_closing->values;
    lines.push_back("closing" + Sizes(closing) + " " + LawWord(closing.law));
    if (components.size() != m_links.size())
        return lines;
    if (const auto result = Calculate(kAnalyticMethod, components, ToClosing(closing)))
        lines.push_back(LimitsLine("analytic", *result));
    if (const auto result = Calculate(kProbabilisticMethod, components, ToClosing(closing)))
        lines.push_back(LimitsLine("probabilistic", *result) + " D0=" + result->varianceText +
                        " T=" + result->fieldText);
    return lines;
}
