#include "platform/gaugebase/shaft_deviations.h"

#include "platform/gaugebase/size_steps.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace iso286
{
namespace
{

using Limit = FundamentalDeviation::Limit;

// Upper limit deviation es of a to h in all grades, lower limit deviation ei of j; micrometres (ISO 286-1, table 4).
// Column js is left out: its limits are half of IT to either side.
// Not confirmed: ef over 18 to 30 mm (-28 or -25); cd, ef and fg over 10 mm (two sources only).
// Laid out as printed, one row a size step:
// clang-format off
constexpr std::array<std::string_view, 11> kShaftLettersAToH = {"a", "b", "c", "cd", "d", "e", "ef", "f", "fg", "g", "h"};
constexpr std::size_t kColumnJ5To6 = 11, kColumnJ7 = 12, kColumnJ8 = 13;
constexpr SizeTable<DeviationCell, 14, 41> kShaftsAToJ = {{
    //over  up to       a     b     c    cd     d     e    ef     f    fg    g  h  j5-6    j7    j8
    {   0,     3, { -270, -140,  -60,  -34,  -20,  -14,  -10,   -6,   -4,  -2, 0,   -2,   -4,   -6}},
    {   3,     6, { -270, -140,  -70,  -46,  -30,  -20,  -14,  -10,   -6,  -4, 0,   -2,   -4, none}},
    {   6,    10, { -280, -150,  -80,  -56,  -40,  -25,  -18,  -13,   -8,  -5, 0,   -2,   -5, none}},
    {  10,    14, { -290, -150,  -95,  -70,  -50,  -32,  -23,  -16,  -10,  -6, 0,   -3,   -6, none}},
    {  14,    18, { -290, -150,  -95,  -70,  -50,  -32,  -23,  -16,  -10,  -6, 0,   -3,   -6, none}},
    {  18,    24, { -300, -160, -110,  -85,  -65,  -40,  -28,  -20,  -12,  -7, 0,   -4,   -8, none}},
    {  24,    30, { -300, -160, -110,  -85,  -65,  -40,  -28,  -20,  -12,  -7, 0,   -4,   -8, none}},
    {  30,    40, { -310, -170, -120, -100,  -80,  -50,  -35,  -25,  -15,  -9, 0,   -5,  -10, none}},
    {  40,    50, { -320, -180, -130, -100,  -80,  -50,  -35,  -25,  -15,  -9, 0,   -5,  -10, none}},
    {  50,    65, { -340, -190, -140, none, -100,  -60, none,  -30, none, -10, 0,   -7,  -12, none}},
    {  65,    80, { -360, -200, -150, none, -100,  -60, none,  -30, none, -10, 0,   -7,  -12, none}},
    {  80,   100, { -380, -220, -170, none, -120,  -72, none,  -36, none, -12, 0,   -9,  -15, none}},
    { 100,   120, { -410, -240, -180, none, -120,  -72, none,  -36, none, -12, 0,   -9,  -15, none}},
    { 120,   140, { -460, -260, -200, none, -145,  -85, none,  -43, none, -14, 0,  -11,  -18, none}},
    { 140,   160, { -520, -280, -210, none, -145,  -85, none,  -43, none, -14, 0,  -11,  -18, none}},
    { 160,   180, { -580, -310, -230, none, -145,  -85, none,  -43, none, -14, 0,  -11,  -18, none}},
    { 180,   200, { -660, -340, -240, none, -170, -100, none,  -50, none, -15, 0,  -13,  -21, none}},
    { 200,   225, { -740, -380, -260, none, -170, -100, none,  -50, none, -15, 0,  -13,  -21, none}},
    { 225,   250, { -820, -420, -280, none, -170, -100, none,  -50, none, -15, 0,  -13,  -21, none}},
    { 250,   280, { -920, -480, -300, none, -190, -110, none,  -56, none, -17, 0,  -16,  -26, none}},
    { 280,   315, {-1050, -540, -330, none, -190, -110, none,  -56, none, -17, 0,  -16,  -26, none}},
    { 315,   355, {-1200, -600, -360, none, -210, -125, none,  -62, none, -18, 0,  -18,  -28, none}},
    { 355,   400, {-1350, -680, -400, none, -210, -125, none,  -62, none, -18, 0,  -18,  -28, none}},
    { 400,   450, {-1500, -760, -440, none, -230, -135, none,  -68, none, -20, 0,  -20,  -32, none}},
    { 450,   500, {-1650, -840, -480, none, -230, -135, none,  -68, none, -20, 0,  -20,  -32, none}},
    { 500,   560, { none, none, none, none, -260, -145, none,  -76, none, -22, 0, none, none, none}},
    { 560,   630, { none, none, none, none, -260, -145, none,  -76, none, -22, 0, none, none, none}},
    { 630,   710, { none, none, none, none, -290, -160, none,  -80, none, -24, 0, none, none, none}},
    { 710,   800, { none, none, none, none, -290, -160, none,  -80, none, -24, 0, none, none, none}},
    { 800,   900, { none, none, none, none, -320, -170, none,  -86, none, -26, 0, none, none, none}},
    { 900,  1000, { none, none, none, none, -320, -170, none,  -86, none, -26, 0, none, none, none}},
    {1000,  1120, { none, none, none, none, -350, -195, none,  -98, none, -28, 0, none, none, none}},
    {1120,  1250, { none, none, none, none, -350, -195, none,  -98, none, -28, 0, none, none, none}},
    {1250,  1400, { none, none, none, none, -390, -220, none, -110, none, -30, 0, none, none, none}},
    {1400,  1600, { none, none, none, none, -390, -220, none, -110, none, -30, 0, none, none, none}},
    {1600,  1800, { none, none, none, none, -430, -240, none, -120, none, -32, 0, none, none, none}},
    {1800,  2000, { none, none, none, none, -430, -240, none, -120, none, -32, 0, none, none, none}},
    {2000,  2240, { none, none, none, none, -480, -260, none, -130, none, -34, 0, none, none, none}},
    {2240,  2500, { none, none, none, none, -480, -260, none, -130, none, -34, 0, none, none, none}},
    {2500,  2800, { none, none, none, none, -520, -290, none, -145, none, -38, 0, none, none, none}},
    {2800,  3150, { none, none, none, none, -520, -290, none, -145, none, -38, 0, none, none, none}},
}};

// Lower limit deviation ei of k to zc, micrometres (ISO 286-1, table 5). The first column is k in IT4 to IT7, the second
// k in the finer and coarser grades; the others hold for all grades.
constexpr std::size_t kColumnK4To7 = 0, kColumnKElse = 1, kShaftColumnM = 2;
constexpr std::array<std::string_view, 14> kLettersMToZc = {
    "m", "n", "p", "r", "s", "t", "u", "v", "x", "y", "z", "za", "zb", "zc"};
constexpr SizeTable<DeviationCell, 16, 41> kShaftsKToZc = {{
    //over  up to   k4-7  k   m    n    p    r     s     t     u     v     x     y     z    za    zb    zc
    {   0,     3, {   0, 0,  2,   4,   6,  10,   14, none,   18, none,   20, none,   26,   32,   40,   60}},
    {   3,     6, {   1, 0,  4,   8,  12,  15,   19, none,   23, none,   28, none,   35,   42,   50,   80}},
    {   6,    10, {   1, 0,  6,  10,  15,  19,   23, none,   28, none,   34, none,   42,   52,   67,   97}},
    {  10,    14, {   1, 0,  7,  12,  18,  23,   28, none,   33, none,   40, none,   50,   64,   90,  130}},
    {  14,    18, {   1, 0,  7,  12,  18,  23,   28, none,   33,   39,   45, none,   60,   77,  108,  150}},
    {  18,    24, {   2, 0,  8,  15,  22,  28,   35, none,   41,   47,   54,   63,   73,   98,  136,  188}},
    {  24,    30, {   2, 0,  8,  15,  22,  28,   35,   41,   48,   55,   64,   75,   88,  118,  160,  218}},
    {  30,    40, {   2, 0,  9,  17,  26,  34,   43,   48,   60,   68,   80,   94,  112,  148,  200,  274}},
    {  40,    50, {   2, 0,  9,  17,  26,  34,   43,   54,   70,   81,   97,  114,  136,  180,  242,  325}},
    {  50,    65, {   2, 0, 11,  20,  32,  41,   53,   66,   87,  102,  122,  144,  172,  226,  300,  405}},
    {  65,    80, {   2, 0, 11,  20,  32,  43,   59,   75,  102,  120,  146,  174,  210,  274,  360,  480}},
    {  80,   100, {   3, 0, 13,  23,  37,  51,   71,   91,  124,  146,  178,  214,  258,  335,  445,  585}},
    { 100,   120, {   3, 0, 13,  23,  37,  54,   79,  104,  144,  172,  210,  254,  310,  400,  525,  690}},
    { 120,   140, {   3, 0, 15,  27,  43,  63,   92,  122,  170,  202,  248,  300,  365,  470,  620,  800}},
    { 140,   160, {   3, 0, 15,  27,  43,  65,  100,  134,  190,  228,  280,  340,  415,  535,  700,  900}},
    { 160,   180, {   3, 0, 15,  27,  43,  68,  108,  146,  210,  252,  310,  380,  465,  600,  780, 1000}},
    { 180,   200, {   4, 0, 17,  31,  50,  77,  122,  166,  236,  284,  350,  425,  520,  670,  880, 1150}},
    { 200,   225, {   4, 0, 17,  31,  50,  80,  130,  180,  258,  310,  385,  470,  575,  740,  960, 1250}},
    { 225,   250, {   4, 0, 17,  31,  50,  84,  140,  196,  284,  340,  425,  520,  640,  820, 1050, 1350}},
    { 250,   280, {   4, 0, 20,  34,  56,  94,  158,  218,  315,  385,  475,  580,  710,  920, 1200, 1550}},
    { 280,   315, {   4, 0, 20,  34,  56,  98,  170,  240,  350,  425,  525,  650,  790, 1000, 1300, 1700}},
    { 315,   355, {   4, 0, 21,  37,  62, 108,  190,  268,  390,  475,  590,  730,  900, 1150, 1500, 1900}},
    { 355,   400, {   4, 0, 21,  37,  62, 114,  208,  294,  435,  530,  660,  820, 1000, 1300, 1650, 2100}},
    { 400,   450, {   5, 0, 23,  40,  68, 126,  232,  330,  490,  595,  740,  920, 1100, 1450, 1850, 2400}},
    { 450,   500, {   5, 0, 23,  40,  68, 132,  252,  360,  540,  660,  820, 1000, 1250, 1600, 2100, 2600}},
    { 500,   560, {   0, 0, 26,  44,  78, 150,  280,  400,  600, none, none, none, none, none, none, none}},
    { 560,   630, {   0, 0, 26,  44,  78, 155,  310,  450,  660, none, none, none, none, none, none, none}},
    { 630,   710, {   0, 0, 30,  50,  88, 175,  340,  500,  740, none, none, none, none, none, none, none}},
    { 710,   800, {   0, 0, 30,  50,  88, 185,  380,  560,  840, none, none, none, none, none, none, none}},
    { 800,   900, {   0, 0, 34,  56, 100, 210,  430,  620,  940, none, none, none, none, none, none, none}},
    { 900,  1000, {   0, 0, 34,  56, 100, 220,  470,  680, 1050, none, none, none, none, none, none, none}},
    {1000,  1120, {   0, 0, 40,  66, 120, 250,  520,  780, 1150, none, none, none, none, none, none, none}},
    {1120,  1250, {   0, 0, 40,  66, 120, 260,  580,  840, 1300, none, none, none, none, none, none, none}},
    {1250,  1400, {   0, 0, 48,  78, 140, 300,  640,  960, 1450, none, none, none, none, none, none, none}},
    {1400,  1600, {   0, 0, 48,  78, 140, 330,  720, 1050, 1600, none, none, none, none, none, none, none}},
    {1600,  1800, {   0, 0, 58,  92, 170, 370,  820, 1200, 1850, none, none, none, none, none, none, none}},
    {1800,  2000, {   0, 0, 58,  92, 170, 400,  920, 1350, 2000, none, none, none, none, none, none, none}},
    {2000,  2240, {   0, 0, 68, 110, 195, 440, 1000, 1500, 2300, none, none, none, none, none, none, none}},
    {2240,  2500, {   0, 0, 68, 110, 195, 460, 1100, 1650, 2500, none, none, none, none, none, none, none}},
    {2500,  2800, {   0, 0, 76, 135, 240, 550, 1250, 1900, 2900, none, none, none, none, none, none, none}},
    {2800,  3150, {   0, 0, 76, 135, 240, 580, 1400, 2100, 3200, none, none, none, none, none, none, none}},
}};
// clang-format on
static_assert(IsContiguous(kShaftsAToJ) && IsContiguous(kShaftsKToZc));

constexpr float kTinyShaft = 1;  // footnote: a and b are not used up to 1 mm

std::optional<std::size_t> ColumnOfJ(int grade)
{
    switch (grade)
    {
    case 5:
    case 6:
        return kColumnJ5To6;
    case 7:
        return kColumnJ7;
    case 8:
        return kColumnJ8;
    default:
        return std::nullopt;
    }
}

}  // namespace

std::optional<FundamentalDeviation> ShaftFundamentalDeviation(std::string_view letters, int grade, float size)
{
    const auto* const stepAToJ = FindStep(kShaftsAToJ, size);
    const auto* const stepKToZc = FindStep(kShaftsKToZc, size);
    if (!stepAToJ || !stepKToZc || (size <= kTinyShaft && (letters == "a" || letters == "b")))
        return std::nullopt;

    if (const auto letter = std::ranges::find(kShaftLettersAToH, letters); letter != kShaftLettersAToH.end())
        return DeviationInCell(stepAToJ->values[letter - kShaftLettersAToH.begin()], Limit::upper);
    if (letters == "j")
    {
        const auto column = ColumnOfJ(grade);
        return column ? DeviationInCell(stepAToJ->values[*column], Limit::lower) : std::nullopt;
    }
    if (letters == "k")
        return DeviationInCell(stepKToZc->values[grade >= 4 && grade <= 7 ? kColumnK4To7 : kColumnKElse], Limit::lower);
    if (const auto letter = std::ranges::find(kLettersMToZc, letters); letter != kLettersMToZc.end())
        return DeviationInCell(
            stepKToZc->values[kShaftColumnM + static_cast<std::size_t>(letter - kLettersMToZc.begin())], Limit::lower);
    return std::nullopt;
}

}  // namespace iso286
