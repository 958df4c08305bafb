#include "distribution/density_plot_layout.h"

#include "calc/distribution_laws.h"
#include "calc/number_text.h"
#include "distribution/density_plot_scale.h"
#include "distribution/density_shape.h"

#include <optional>

namespace
{

constexpr int kNameRow = 7;
constexpr int kNominalLineTop = 20;
constexpr int kLimitLineTop = 40;
constexpr int kLimitWordRow = 80;
constexpr int kMeanTextRow = 110;
constexpr int kMeanLineTop = 130;

// Numbers of the input.
struct Sizes
{
    double nominal;
    double upperDev;
    double lowerDev;

    double UpperLimit() const { return RoundToNano(nominal + upperDev); }
    double LowerLimit() const { return RoundToNano(nominal + lowerDev); }

    // A field without width at or above the nominal: the limits can't be told apart, nor the mean placed between them.
    bool IsPointAtOrAboveNominal() const { return upperDev == lowerDev && lowerDev >= 0.0; }
};

bool HasDensity(std::int32_t law)
{
    return law == kNormalLaw || law == kUniformLaw || law == kTriangularLaw;
}

void WriteLimitLabels(DisplayList& list, const DensityPlotInput& input, const Sizes& sizes, int upperX, int lowerX)
{
    list.Text(upperX + 1, kLimitLineTop, TextAlign::Left, NumberText9(sizes.UpperLimit()));
    list.Text(upperX + 1, kLimitWordRow, TextAlign::Left, input.upperWord);
    list.Text(lowerX, kLimitLineTop, TextAlign::Right, NumberText9(sizes.LowerLimit()));
    list.Text(lowerX, kLimitWordRow, TextAlign::Right, input.lowerWord);
}

void WriteDensity(DisplayList& list, const DensityPlotInput& input, const Sizes& sizes, const DensityPlotScale& scale)
{
    DensityField field;
    field.lowerLimit = sizes.LowerLimit();
    field.width = sizes.upperDev - sizes.lowerDev;
    field.middle = ((sizes.nominal + sizes.upperDev) + (sizes.nominal + sizes.lowerDev)) / 2.0;
    field.left = scale.lowerX;
    field.right = scale.upperX;
    field.height = input.height;
    if (scale.hasReach)
        DrawDensity(list, input.law, field);
}

void WriteMean(DisplayList& list, const DensityPlotInput& input, const DensityPlotScale& scale)
{
    list.Text(scale.meanX.value_or(scale.centre), kMeanTextRow, TextAlign::Center, NumberText9(input.mean));
    if (scale.meanX)
        list.Line(*scale.meanX, kMeanLineTop, *scale.meanX, input.height - kPlotBaseInset);
}

void WriteField(DisplayList& list, const DensityPlotInput& input, const Sizes& sizes)
{
    const int base = input.height - kPlotBaseInset;
    const auto scale = PlaceOnDensityPlot(input.width, sizes.nominal, sizes.upperDev, sizes.lowerDev, input.mean);
    const int centre = input.width / 2;
    if (!scale || sizes.IsPointAtOrAboveNominal())
    {
        WriteLimitLabels(list, input, sizes, scale ? scale->upperX : centre, scale ? scale->lowerX : centre);
        return;
    }
    list.Line(scale->upperX, kLimitLineTop, scale->upperX, base);
    list.Line(scale->lowerX, kLimitLineTop, scale->lowerX, base);
    WriteLimitLabels(list, input, sizes, scale->upperX, scale->lowerX);
    if (HasDensity(input.law))
    {
        WriteDensity(list, input, sizes, *scale);
        WriteMean(list, input, *scale);
    }
}

}  // namespace

DisplayList LayoutDensityPlot(const DensityPlotInput& input)
{
    const int centre = input.width / 2;
    const int base = input.height - kPlotBaseInset;
    const Sizes sizes{TextToNumber(input.nominalText), TextToNumber(input.upperDevText),
                      TextToNumber(input.lowerDevText)};

    DisplayList list;
    list.textLook = TextLook::PlainOnWhite;
    list.Text(centre, base, TextAlign::Center, input.nominalText);
    list.Text(centre, kNameRow, TextAlign::Center, input.name);
    WriteField(list, input, sizes);
    list.Line(centre, kNominalLineTop, centre, base);
    list.Line(0, base, input.width, base);
    return list;
}
