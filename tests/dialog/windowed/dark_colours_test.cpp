#include "tests/dialog/windowed/calc_dialog_test.h"
#include "tests/support/pixels.h"

namespace
{

constexpr std::uint32_t kFocusText = 0x000000;
constexpr std::uint32_t kSchemeText = 0xFFFFFF;
constexpr std::uint32_t kFocusGround = 0xF0DC28;

/// White texts, as in a dark high-contrast scheme, as long as this lives.
class WhiteTexts
{
public:
    WhiteTexts() { Set(RGB(255, 255, 255)); }
    ~WhiteTexts() { Set(m_former); }
    WhiteTexts(const WhiteTexts&) = delete;
    WhiteTexts& operator=(const WhiteTexts&) = delete;

private:
    static void Set(COLORREF colour)
    {
        const int index = COLOR_WINDOWTEXT;
        ::SetSysColors(1, &index, &colour);
    }
    const COLORREF m_former = ::GetSysColor(COLOR_WINDOWTEXT);
};

class DarkColours : private WhiteTexts, public CalcDialogTest
{
protected:
    DarkColours() { Open(); }
};

TEST_F(DarkColours, LeaveTheTextOfTheFocusCellLegible)
{
    AddLink(Dimension(L"A1", L"111", L"0.1", L"-0.1"), &objects[0]);
    FocusOnLink(0);
    ClickCell(Links(), 1, 1);
    PumpUntilIdle();
    const CPoint centre = Links().CellCentre(1, 1);
    const Pixels shown = ShownPixels(Links().Window());
    int black = 0;
    int white = 0;
    for (int y = centre.y - 5; y <= centre.y + 5; ++y)
    {
        for (int x = centre.x - 12; x <= centre.x + 12; ++x)
        {
            black += shown.At(x, y) == kFocusText ? 1 : 0;
            white += shown.At(x, y) == kSchemeText ? 1 : 0;
        }
    }
    EXPECT_EQ(shown.At(centre.x - 20, centre.y), kFocusGround);
    EXPECT_GT(black, 10);
    EXPECT_EQ(white, 0);
}

}  // namespace
