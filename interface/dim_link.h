#pragma once

#include <cstdint>

/// What the module keeps per link row and for the closing link, beside the texts of the row.
///
/// The calculation dialog makes it when the row gets its values and frees it when the row or the closing link is
/// removed. It is never handed to the host.
struct CDimLink
{
    void* hostObject;         ///< the host's object for this dimension; stored and returned, never dereferenced
    std::int32_t weight;      ///< 1 to 10; the calculation does not read it
    std::int32_t increasing;  ///< non-zero: increasing link; means nothing for the closing link
    double mean;              ///< centre of grouping, millimetres
    std::int32_t law;         ///< distribution law: 1 normal, 2 uniform, 3 triangular (Simpson)
};
