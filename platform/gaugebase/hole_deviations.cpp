#include "platform/gaugebase/hole_deviations.h"

#include "platform/gaugebase/hole_delta.h"
#include "platform/gaugebase/size_steps.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace iso286
{
namespace
{

using Limit = FundamentalDeviation::Limit;

// Lower limit deviation EI of A to H in all grades, upper limit deviation ES of J to M, micrometres (ISO 286-1, table
// 2). Column JS is left out: its limits are half of IT to either side. K-8 is K up to IT8, K9- the coarser grades. K-8
// and, up to IT8, M are printed with "+ Delta" over 3 to 500 mm.
// Not confirmed: EF over 18 to 30 mm (28 or 25); CD, EF and FG over 10 mm (two sources); K9- over 3 mm (none or 0).
// Laid out as printed, one row a size step:
// clang-format off
constexpr std::array<std::string_view, 11> kHoleLettersAToH = {"A", "B", "C", "CD", "D", "E", "EF", "F", "FG", "G", "H"};
constexpr std::size_t kColumnJ6 = 11, kColumnKTo8 = 14, kColumnKFrom9 = 15, kHoleColumnM = 16;
constexpr SizeTable<DeviationCell, 17, 41> kHolesAToM = {{
    //over  up to      A     B     C    CD    D    E    EF    F    FG   G  H    J6    J7    J8  K-8   K9-    M
    {   0,     3, { 270,  140,   60,   34,  20,  14,   10,   6,    4,  2, 0,    2,    4,    6,   0,    0,  -2}},
    {   3,     6, { 270,  140,   70,   46,  30,  20,   14,  10,    6,  4, 0,    5,    6,   10,  -1, none,  -4}},
    {   6,    10, { 280,  150,   80,   56,  40,  25,   18,  13,    8,  5, 0,    5,    8,   12,  -1, none,  -6}},
    {  10,    14, { 290,  150,   95,   70,  50,  32,   23,  16,   10,  6, 0,    6,   10,   15,  -1, none,  -7}},
    {  14,    18, { 290,  150,   95,   70,  50,  32,   23,  16,   10,  6, 0,    6,   10,   15,  -1, none,  -7}},
    {  18,    24, { 300,  160,  110,   85,  65,  40,   28,  20,   12,  7, 0,    8,   12,   20,  -2, none,  -8}},
    {  24,    30, { 300,  160,  110,   85,  65,  40,   28,  20,   12,  7, 0,    8,   12,   20,  -2, none,  -8}},
    {  30,    40, { 310,  170,  120,  100,  80,  50,   35,  25,   15,  9, 0,   10,   14,   24,  -2, none,  -9}},
    {  40,    50, { 320,  180,  130,  100,  80,  50,   35,  25,   15,  9, 0,   10,   14,   24,  -2, none,  -9}},
    {  50,    65, { 340,  190,  140, none, 100,  60, none,  30, none, 10, 0,   13,   18,   28,  -2, none, -11}},
    {  65,    80, { 360,  200,  150, none, 100,  60, none,  30, none, 10, 0,   13,   18,   28,  -2, none, -11}},
    {  80,   100, { 380,  220,  170, none, 120,  72, none,  36, none, 12, 0,   16,   22,   34,  -3, none, -13}},
    { 100,   120, { 410,  240,  180, none, 120,  72, none,  36, none, 12, 0,   16,   22,   34,  -3, none, -13}},
    { 120,   140, { 460,  260,  200, none, 145,  85, none,  43, none, 14, 0,   18,   26,   41,  -3, none, -15}},
    { 140,   160, { 520,  280,  210, none, 145,  85, none,  43, none, 14, 0,   18,   26,   41,  -3, none, -15}},
    { 160,   180, { 580,  310,  230, none, 145,  85, none,  43, none, 14, 0,   18,   26,   41,  -3, none, -15}},
    { 180,   200, { 660,  340,  240, none, 170, 100, none,  50, none, 15, 0,   22,   30,   47,  -4, none, -17}},
    { 200,   225, { 740,  380,  260, none, 170, 100, none,  50, none, 15, 0,   22,   30,   47,  -4, none, -17}},
    { 225,   250, { 820,  420,  280, none, 170, 100, none,  50, none, 15, 0,   22,   30,   47,  -4, none, -17}},
    { 250,   280, { 920,  480,  300, none, 190, 110, none,  56, none, 17, 0,   25,   36,   55,  -4, none, -20}},
    { 280,   315, {1050,  540,  330, none, 190, 110, none,  56, none, 17, 0,   25,   36,   55,  -4, none, -20}},
    { 315,   355, {1200,  600,  360, none, 210, 125, none,  62, none, 18, 0,   29,   39,   60,  -4, none, -21}},
    { 355,   400, {1350,  680,  400, none, 210, 125, none,  62, none, 18, 0,   29,   39,   60,  -4, none, -21}},
    { 400,   450, {1500,  760,  440, none, 230, 135, none,  68, none, 20, 0,   33,   43,   66,  -5, none, -23}},
    { 450,   500, {1650,  840,  480, none, 230, 135, none,  68, none, 20, 0,   33,   43,   66,  -5, none, -23}},
    { 500,   560, {none, none, none, none, 260, 145, none,  76, none, 22, 0, none, none, none,   0, none, -26}},
    { 560,   630, {none, none, none, none, 260, 145, none,  76, none, 22, 0, none, none, none,   0, none, -26}},
    { 630,   710, {none, none, none, none, 290, 160, none,  80, none, 24, 0, none, none, none,   0, none, -30}},
    { 710,   800, {none, none, none, none, 290, 160, none,  80, none, 24, 0, none, none, none,   0, none, -30}},
    { 800,   900, {none, none, none, none, 320, 170, none,  86, none, 26, 0, none, none, none,   0, none, -34}},
    { 900,  1000, {none, none, none, none, 320, 170, none,  86, none, 26, 0, none, none, none,   0, none, -34}},
    {1000,  1120, {none, none, none, none, 350, 195, none,  98, none, 28, 0, none, none, none,   0, none, -40}},
    {1120,  1250, {none, none, none, none, 350, 195, none,  98, none, 28, 0, none, none, none,   0, none, -40}},
    {1250,  1400, {none, none, none, none, 390, 220, none, 110, none, 30, 0, none, none, none,   0, none, -48}},
    {1400,  1600, {none, none, none, none, 390, 220, none, 110, none, 30, 0, none, none, none,   0, none, -48}},
    {1600,  1800, {none, none, none, none, 430, 240, none, 120, none, 32, 0, none, none, none,   0, none, -58}},
    {1800,  2000, {none, none, none, none, 430, 240, none, 120, none, 32, 0, none, none, none,   0, none, -58}},
    {2000,  2240, {none, none, none, none, 480, 260, none, 130, none, 34, 0, none, none, none,   0, none, -68}},
    {2240,  2500, {none, none, none, none, 480, 260, none, 130, none, 34, 0, none, none, none,   0, none, -68}},
    {2500,  2800, {none, none, none, none, 520, 290, none, 145, none, 38, 0, none, none, none,   0, none, -76}},
    {2800,  3150, {none, none, none, none, 520, 290, none, 145, none, 38, 0, none, none, none,   0, none, -76}},
}};

// Upper limit deviation ES of N to ZC, micrometres (ISO 286-1, table 3). N-8 is N up to IT8, N9- the coarser grades; the
// others hold for all grades. Over 3 to 500 mm, Delta is added to N-8 and, up to IT7, to P to ZC.
constexpr std::size_t kColumnNTo8 = 0, kColumnNFrom9 = 1, kColumnP = 2;
constexpr std::array<std::string_view, 12> kLettersPToZc = {
    "P", "R", "S", "T", "U", "V", "X", "Y", "Z", "ZA", "ZB", "ZC"};
constexpr SizeTable<DeviationCell, 14, 41> kHolesNToZc = {{
    //over  up to    N-8   N9-     P     R      S      T      U     V     X      Y      Z     ZA     ZB     ZC
    {   0,     3, {  -4,   -4,   -6,  -10,   -14,  none,   -18, none,  -20,  none,   -26,   -32,   -40,   -60}},
    {   3,     6, {  -8,    0,  -12,  -15,   -19,  none,   -23, none,  -28,  none,   -35,   -42,   -50,   -80}},
    {   6,    10, { -10,    0,  -15,  -19,   -23,  none,   -28, none,  -34,  none,   -42,   -52,   -67,   -97}},
    {  10,    14, { -12,    0,  -18,  -23,   -28,  none,   -33, none,  -40,  none,   -50,   -64,   -90,  -130}},
    {  14,    18, { -12,    0,  -18,  -23,   -28,  none,   -33,  -39,  -45,  none,   -60,   -77,  -108,  -150}},
    {  18,    24, { -15,    0,  -22,  -28,   -35,  none,   -41,  -47,  -54,   -63,   -73,   -98,  -136,  -188}},
    {  24,    30, { -15,    0,  -22,  -28,   -35,   -41,   -48,  -55,  -64,   -75,   -88,  -118,  -160,  -218}},
    {  30,    40, { -17,    0,  -26,  -34,   -43,   -48,   -60,  -68,  -80,   -94,  -112,  -148,  -200,  -274}},
    {  40,    50, { -17,    0,  -26,  -34,   -43,   -54,   -70,  -81,  -97,  -114,  -136,  -180,  -242,  -325}},
    {  50,    65, { -20,    0,  -32,  -41,   -53,   -66,   -87, -102, -122,  -144,  -172,  -226,  -300,  -405}},
    {  65,    80, { -20,    0,  -32,  -43,   -59,   -75,  -102, -120, -146,  -174,  -210,  -274,  -360,  -480}},
    {  80,   100, { -23,    0,  -37,  -51,   -71,   -91,  -124, -146, -178,  -214,  -258,  -335,  -445,  -585}},
    { 100,   120, { -23,    0,  -37,  -54,   -79,  -104,  -144, -172, -210,  -254,  -310,  -400,  -525,  -690}},
    { 120,   140, { -27,    0,  -43,  -63,   -92,  -122,  -170, -202, -248,  -300,  -365,  -470,  -620,  -800}},
    { 140,   160, { -27,    0,  -43,  -65,  -100,  -134,  -190, -228, -280,  -340,  -415,  -535,  -700,  -900}},
    { 160,   180, { -27,    0,  -43,  -68,  -108,  -146,  -210, -252, -310,  -380,  -465,  -600,  -780, -1000}},
    { 180,   200, { -31,    0,  -50,  -77,  -122,  -166,  -236, -284, -350,  -425,  -520,  -670,  -880, -1150}},
    { 200,   225, { -31,    0,  -50,  -80,  -130,  -180,  -258, -310, -385,  -470,  -575,  -740,  -960, -1250}},
    { 225,   250, { -31,    0,  -50,  -84,  -140,  -196,  -284, -340, -425,  -520,  -640,  -820, -1050, -1350}},
    { 250,   280, { -34,    0,  -56,  -94,  -158,  -218,  -315, -385, -475,  -580,  -710,  -920, -1200, -1550}},
    { 280,   315, { -34,    0,  -56,  -98,  -170,  -240,  -350, -425, -525,  -650,  -790, -1000, -1300, -1700}},
    { 315,   355, { -37,    0,  -62, -108,  -190,  -268,  -390, -475, -590,  -730,  -900, -1150, -1500, -1900}},
    { 355,   400, { -37,    0,  -62, -114,  -208,  -294,  -435, -530, -660,  -820, -1000, -1300, -1650, -2100}},
    { 400,   450, { -40,    0,  -68, -126,  -232,  -330,  -490, -595, -740,  -920, -1100, -1450, -1850, -2400}},
    { 450,   500, { -40,    0,  -68, -132,  -252,  -360,  -540, -660, -820, -1000, -1250, -1600, -2100, -2600}},
    { 500,   560, { -44,  -44,  -78, -150,  -280,  -400,  -600, none, none,  none,  none,  none,  none,  none}},
    { 560,   630, { -44,  -44,  -78, -155,  -310,  -450,  -660, none, none,  none,  none,  none,  none,  none}},
    { 630,   710, { -50,  -50,  -88, -175,  -340,  -500,  -740, none, none,  none,  none,  none,  none,  none}},
    { 710,   800, { -50,  -50,  -88, -185,  -380,  -560,  -840, none, none,  none,  none,  none,  none,  none}},
    { 800,   900, { -56,  -56, -100, -210,  -430,  -620,  -940, none, none,  none,  none,  none,  none,  none}},
    { 900,  1000, { -56,  -56, -100, -220,  -470,  -680, -1050, none, none,  none,  none,  none,  none,  none}},
    {1000,  1120, { -66,  -66, -120, -250,  -520,  -780, -1150, none, none,  none,  none,  none,  none,  none}},
    {1120,  1250, { -66,  -66, -120, -260,  -580,  -840, -1300, none, none,  none,  none,  none,  none,  none}},
    {1250,  1400, { -78,  -78, -140, -300,  -640,  -960, -1450, none, none,  none,  none,  none,  none,  none}},
    {1400,  1600, { -78,  -78, -140, -330,  -720, -1050, -1600, none, none,  none,  none,  none,  none,  none}},
    {1600,  1800, { -92,  -92, -170, -370,  -820, -1200, -1850, none, none,  none,  none,  none,  none,  none}},
    {1800,  2000, { -92,  -92, -170, -400,  -920, -1350, -2000, none, none,  none,  none,  none,  none,  none}},
    {2000,  2240, {-110, -110, -195, -440, -1000, -1500, -2300, none, none,  none,  none,  none,  none,  none}},
    {2240,  2500, {-110, -110, -195, -460, -1100, -1650, -2500, none, none,  none,  none,  none,  none,  none}},
    {2500,  2800, {-135, -135, -240, -550, -1250, -1900, -2900, none, none,  none,  none,  none,  none,  none}},
    {2800,  3150, {-135, -135, -240, -580, -1400, -2100, -3200, none, none,  none,  none,  none,  none,  none}},
}};
// clang-format on
static_assert(IsContiguous(kHolesAToM) && IsContiguous(kHolesNToZc));

constexpr float kTinyHole = 1;                     // footnote: A, B and, above IT8, N are not used up to 1 mm
constexpr float kDeltaOver = 3, kDeltaUpTo = 500;  // sizes for which Delta is added
constexpr int kDeltaUpToGradeKToN = 8;             // coarsest grade of K, M and N with Delta
constexpr int kDeltaUpToGradePToZc = 7;            // coarsest grade of P to ZC with Delta
constexpr float kM6SpecialOver = 250, kM6SpecialUpTo = 315;
constexpr double kM6SpecialDeviation = -9;  // footnote: M6 over 250 to 315 mm is -9, not -11

// Over 3 to 500 mm a fine grade without a tabulated Delta (finer than IT3) has no deviation.
std::optional<FundamentalDeviation> DeviationPlusDelta(DeviationCell cell, int grade, int coarsestWithDelta, float size)
{
    if (cell == none || grade > coarsestWithDelta || size <= kDeltaOver || size > kDeltaUpTo)
        return DeviationInCell(cell, Limit::upper);
    const auto delta = HoleDelta(grade, size);
    return delta ? std::optional(FundamentalDeviation{cell + *delta, Limit::upper}) : std::nullopt;
}

std::optional<FundamentalDeviation> DeviationOfM(DeviationCell cell, int grade, float size)
{
    if (grade == 6 && size > kM6SpecialOver && size <= kM6SpecialUpTo)
        return FundamentalDeviation{kM6SpecialDeviation, Limit::upper};
    return DeviationPlusDelta(cell, grade, kDeltaUpToGradeKToN, size);
}

}  // namespace

std::optional<FundamentalDeviation> HoleFundamentalDeviation(std::string_view letters, int grade, float size)
{
    const auto* const stepAToM = FindStep(kHolesAToM, size);
    const auto* const stepNToZc = FindStep(kHolesNToZc, size);
    if (!stepAToM || !stepNToZc)
        return std::nullopt;
    if (size <= kTinyHole && (letters == "A" || letters == "B" || (letters == "N" && grade > kDeltaUpToGradeKToN)))
        return std::nullopt;

    if (const auto letter = std::ranges::find(kHoleLettersAToH, letters); letter != kHoleLettersAToH.end())
        return DeviationInCell(stepAToM->values[letter - kHoleLettersAToH.begin()], Limit::lower);
    if (letters == "J")
        return grade >= 6 && grade <= 8
                   ? DeviationInCell(stepAToM->values[kColumnJ6 + static_cast<std::size_t>(grade - 6)], Limit::upper)
                   : std::nullopt;
    if (letters == "K")
        return grade > kDeltaUpToGradeKToN
                   ? DeviationInCell(stepAToM->values[kColumnKFrom9], Limit::upper)
                   : DeviationPlusDelta(stepAToM->values[kColumnKTo8], grade, kDeltaUpToGradeKToN, size);
    if (letters == "M")
        return DeviationOfM(stepAToM->values[kHoleColumnM], grade, size);
    if (letters == "N")
        return grade > kDeltaUpToGradeKToN
                   ? DeviationInCell(stepNToZc->values[kColumnNFrom9], Limit::upper)
                   : DeviationPlusDelta(stepNToZc->values[kColumnNTo8], grade, kDeltaUpToGradeKToN, size);
    if (const auto letter = std::ranges::find(kLettersPToZc, letters); letter != kLettersPToZc.end())
        return DeviationPlusDelta(
            stepNToZc->values[kColumnP + static_cast<std::size_t>(letter - kLettersPToZc.begin())], grade,
            kDeltaUpToGradePToZc, size);
    return std::nullopt;
}

}  // namespace iso286
