#include "platform/gaugebase/hole_delta.h"

#include "platform/gaugebase/size_steps.h"

#include <cstddef>

namespace iso286
{
namespace
{

constexpr int kFinestGradeWithDelta = 3;
constexpr int kCoarsestGradeWithDelta = 8;

// Delta of IT3 to IT8, micrometres (ISO 286-1, right part of table 3).
// Laid out as printed, one row a size step:
// clang-format off
constexpr SizeTable<double, 6, 13> kDeltas = {{
    //over  up to     3    4  5   6   7   8
    {   0,     3, {  0,   0, 0,  0,  0,  0}},
    {   3,     6, {  1, 1.5, 1,  3,  4,  6}},
    {   6,    10, {  1, 1.5, 2,  3,  6,  7}},
    {  10,    18, {  1,   2, 3,  3,  7,  9}},
    {  18,    30, {1.5,   2, 3,  4,  8, 12}},
    {  30,    50, {1.5,   3, 4,  5,  9, 14}},
    {  50,    80, {  2,   3, 5,  6, 11, 16}},
    {  80,   120, {  2,   4, 5,  7, 13, 19}},
    { 120,   180, {  3,   4, 6,  7, 15, 23}},
    { 180,   250, {  3,   4, 6,  9, 17, 26}},
    { 250,   315, {  4,   4, 7,  9, 20, 29}},
    { 315,   400, {  4,   5, 7, 11, 21, 32}},
    { 400,   500, {  5,   5, 7, 13, 23, 34}},
}};
// clang-format on
static_assert(IsContiguous(kDeltas));

}  // namespace

std::optional<double> HoleDelta(int grade, float size)
{
    const auto* const step = FindStep(kDeltas, size);
    if (!step || grade < kFinestGradeWithDelta || grade > kCoarsestGradeWithDelta)
        return std::nullopt;
    return step->values[static_cast<std::size_t>(grade - kFinestGradeWithDelta)];
}

}  // namespace iso286
