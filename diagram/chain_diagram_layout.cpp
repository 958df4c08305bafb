#include "diagram/chain_diagram_layout.h"

#include "diagram/analytic_bar.h"
#include "diagram/field_pieces.h"
#include "diagram/law_shape.h"
#include "diagram/limit_markers.h"

#include <string>
#include <utility>

namespace
{

constexpr int kBaseInset = 20;  // base line and the texts below it, above the area's bottom
constexpr int kCaptionRow = 7;
constexpr int kNominalLineTop = 20;
constexpr int kRequiredLineTop = 40;
constexpr int kMismatchInset = 40;  // of the computed nominal's marker from the area's side
constexpr int kMessageSpacing = 20;

// Rows that differ between the two methods' pictures, pixels below the top.
struct MethodRows
{
    int requiredWord;
    int computedLineTop;
};

constexpr MethodRows kAnalyticRows{80, 120};
constexpr MethodRows kProbabilisticRows{60, 100};
constexpr int kBarLimitRow = 180;  // computed limits below the analytic bar

// The parts of one diagram; each appends its primitives.
class DiagramWriter
{
public:
    DiagramWriter(const ChainDiagramInput& input, const ChainResult& result)
        : m_input(input), m_result(result), m_centre(input.width / 2), m_base(input.height - kBaseInset)
    {
    }

    DisplayList Write() &&
    {
        m_list.Text(m_centre, kCaptionRow, TextAlign::Center, m_input.caption);
        m_list.Text(m_centre, m_base, TextAlign::Center, m_input.nominalText);
        m_list.Line(m_centre, kNominalLineTop, m_centre, m_base);
        m_list.Line(0, m_base, m_input.width, m_base);
        if (!m_result.nominalMatches)
            WriteMismatch();
        else if (m_input.method == kAnalyticMethod)
            WriteAnalytic();
        else
            WriteProbabilistic();
        return std::move(m_list);
    }

private:
    void WriteMismatch()
    {
        const bool isGreater = m_result.nominal > m_input.closing.nominal;
        const int x = isGreater ? m_input.width - kMismatchInset : kMismatchInset;
        m_list.Line(x, kNominalLineTop, x, m_base);
        m_list.Text(isGreater ? x + 1 : x, m_base, isGreater ? TextAlign::Left : TextAlign::Right,
                    m_result.nominalText);

        int y = m_input.height / 2 - kMessageSpacing;
        for (const std::string& line : m_input.mismatchLines)
        {
            m_list.Text(m_centre, y, TextAlign::Center, line, kOutsideColor);
            y += kMessageSpacing;
        }
    }

    void WriteAnalytic()
    {
        const LimitMarkers markers = PlaceSpreadMarkers(Deviations(), m_input.width);
        WriteRequired(markers, kAnalyticRows);
        if (HasScale() && m_base > kFieldTop)
            DrawAnalyticBar(m_list, CutField(Deviations(), markers));
        // The markers of the computed limits come after the bar, whose ends would hide a part of them.
        WriteAnalyticLimit(markers.computedUpper, m_result.upperDevText, m_result.upperLimitText);
        WriteAnalyticLimit(markers.computedLower, m_result.lowerDevText, m_result.lowerLimitText);
    }

    void WriteAnalyticLimit(const LimitMarker& marker, const std::string& deviation, const std::string& limit)
    {
        WriteMarkerLine(marker, kAnalyticRows.computedLineTop);
        WriteLabel(marker, kAnalyticRows.computedLineTop, deviation);
        WriteLabel(marker, kBarLimitRow, limit);
    }

    void WriteProbabilistic()
    {
        const DiagramDeviations deviations = Deviations();
        const LimitMarkers markers = PlaceMarkers(deviations, m_input.width);
        WriteRequired(markers, kProbabilisticRows);
        // A shape needs a field to stand on and one to be compared with.
        if (HasScale() && deviations.requiredLower <= deviations.requiredUpper &&
            deviations.computedLower <= deviations.computedUpper)
            DrawLawShape(m_list, m_input.closing.law, m_result, CutField(deviations, markers), m_base);
        WriteProbabilisticLimit(markers.computedUpper, m_result.upperLimitText);
        WriteProbabilisticLimit(markers.computedLower, m_result.lowerLimitText);
    }

    void WriteProbabilisticLimit(const LimitMarker& marker, const std::string& limit)
    {
        WriteMarkerLine(marker, kProbabilisticRows.computedLineTop);
        WriteLabel(marker, kProbabilisticRows.computedLineTop, limit);
    }

    void WriteRequired(const LimitMarkers& markers, const MethodRows& rows)
    {
        WriteRequiredLimit(markers.requiredUpper, m_result.requiredUpperText, m_input.upperWord, rows);
        WriteRequiredLimit(markers.requiredLower, m_result.requiredLowerText, m_input.lowerWord, rows);
    }

    void WriteRequiredLimit(const LimitMarker& marker, const std::string& limit, const std::string& word,
                            const MethodRows& rows)
    {
        WriteMarkerLine(marker, kRequiredLineTop);
        WriteLabel(marker, kRequiredLineTop, limit);
        WriteLabel(marker, rows.requiredWord, word);
    }

    void WriteMarkerLine(const LimitMarker& marker, int top)
    {
        if (marker.x)
            m_list.Line(*marker.x, top, *marker.x, m_base);
    }

    void WriteLabel(const LimitMarker& marker, int y, const std::string& text)
    {
        m_list.Text(marker.labelX, y, marker.labelAlign, text);
    }

    DiagramDeviations Deviations() const
    {
        return {m_input.closing.upperDev, m_input.closing.lowerDev, m_result.upperDev, m_result.lowerDev};
    }

    bool HasScale() const { return ScaleReach(m_input.width) > 0; }

    const ChainDiagramInput& m_input;
    const ChainResult& m_result;
    int m_centre;
    int m_base;
    DisplayList m_list;
};

}  // namespace

DisplayList LayoutChainDiagram(const ChainDiagramInput& input)
{
    const bool hasMethod = input.method == kAnalyticMethod || input.method == kProbabilisticMethod;
    if (!hasMethod || !input.result)
        return {};
    return DiagramWriter(input, *input.result).Write();
}
