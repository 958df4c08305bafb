#include "host/sheet_fonts.h"

#include <cmath>
#include <numbers>

#include "platform/gdi/scoped_select.h"
#include "platform/text/text_encoding.h"

namespace
{

constexpr int kLabelPoints = 10;
constexpr int kDeviationPoints = 8;
constexpr int kPointsPerInch = 72;
constexpr double kTenthsOfDegree = 1800.0 / std::numbers::pi;

}  // namespace

SheetFonts::SheetFonts(int pixelsPerInch) : m_pixelsPerInch(pixelsPerInch)
{
    NONCLIENTMETRICS metrics = {};
    metrics.cbSize = sizeof(metrics);
    if (::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0))
        m_message = metrics.lfMessageFont;
    const LOGFONT label = Description(TextSize::kLabel);
    const LOGFONT deviation = Description(TextSize::kDeviation);
    m_label.CreateFontIndirect(&label);
    m_deviation.CreateFontIndirect(&deviation);
}

LOGFONT SheetFonts::Description(TextSize size) const
{
    LOGFONT description = m_message;
    const int points = size == TextSize::kLabel ? kLabelPoints : kDeviationPoints;
    description.lfHeight = -::MulDiv(points, m_pixelsPerInch, kPointsPerInch);
    description.lfWidth = 0;
    description.lfOutPrecision = OUT_TT_ONLY_PRECIS;  // only outlines can be turned
    return description;
}

double SheetFonts::Width(std::string_view text, TextSize size) const
{
    CClientDC screen(nullptr);
    const ScopedSelect font(screen, size == TextSize::kLabel ? m_label.GetSafeHandle() : m_deviation.GetSafeHandle());
    return screen.GetTextExtent(FromUtf8(text)).cx;
}

double SheetFonts::Height(TextSize size) const
{
    CClientDC screen(nullptr);
    const ScopedSelect font(screen, size == TextSize::kLabel ? m_label.GetSafeHandle() : m_deviation.GetSafeHandle());
    TEXTMETRIC metrics = {};
    screen.GetTextMetrics(&metrics);
    return metrics.tmHeight;
}

std::unique_ptr<CFont> SheetFonts::Turned(TextSize size, SheetVector direction) const
{
    LOGFONT description = Description(size);
    description.lfEscapement = static_cast<LONG>(std::lround(std::atan2(-direction.y, direction.x) * kTenthsOfDegree));
    description.lfOrientation = description.lfEscapement;
    auto font = std::make_unique<CFont>();
    font->CreateFontIndirect(&description);
    return font;
}
