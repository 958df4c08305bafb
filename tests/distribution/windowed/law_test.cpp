#include "variable_dialog_test.h"

namespace
{

class VariableLawBox : public VariableDialogTest
{
protected:
    HWND Box() const { return Window(IDC_VARIABLE_LAW); }

    bool IsDropped() const { return ::SendMessageW(Box(), CB_GETDROPPEDSTATE, 0, 0) != 0; }

    /// A click on an entry of the list that is dropped down.
    void PostPick(int position) const
    {
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        ::GetComboBoxInfo(Box(), &info);
        RECT entry{};
        ::SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&entry));
        PostClick(info.hwndList, {entry.left + 3, entry.top + 3});
    }
};

TEST_F(VariableLawBox, TakesALawThatIsPickedWithTheMouse)
{
    Run({[this] { ::SendMessageW(Box(), CB_SHOWDROPDOWN, TRUE, 0); }, [this] { PostPick(kTriangular); },
         [this] {
             EXPECT_EQ(Position(), kTriangular);
             EXPECT_EQ(Record().law, 3);
             EXPECT_EQ(Text(IDC_VARIABLE_SIGMA), L"0.061237244");
         }});
}

TEST_F(VariableLawBox, FollowsTheArrowKeys)
{
    Run({[this] {
             FocusOn(IDC_VARIABLE_LAW);
             PostKey(Box(), VK_UP);
         },
         [this] {
             EXPECT_EQ(Record().law, 1);
             EXPECT_EQ(Text(IDC_VARIABLE_SIGMA), L"0.05");
             PostKey(Box(), VK_DOWN);
             PostKey(Box(), VK_DOWN);
         },
         [this] {
             EXPECT_EQ(Record().law, 3);
             EXPECT_EQ(Text(IDC_VARIABLE_SIGMA), L"0.061237244");
         }});
}

// Whatever the list leaves selected, the record, the deviation and the plot agree with it.
TEST_F(VariableLawBox, AgreesWithTheBoxAfterEscInTheDroppedList)
{
    Run({[this] {
             FocusOn(IDC_VARIABLE_LAW);
             PostKey(Box(), VK_F4);
         },
         [this] {
             ASSERT_TRUE(IsDropped());
             PostKey(Box(), VK_DOWN);
         },
         [this] { PostKey(Box(), VK_ESCAPE); },
         [this] {
             EXPECT_FALSE(IsDropped());
             EXPECT_EQ(Record().law, Position() == kUniform ? 2 : 3);
             EXPECT_EQ(DifferentPixels(ShownPlot(), ExpectedPlot()), 0);
         }});
    EXPECT_TRUE(Codes().empty()) << "Esc closed the dialog";
}

TEST_F(VariableLawBox, TakesTheLawByEnterInTheDroppedList)
{
    Run({[this] {
             FocusOn(IDC_VARIABLE_LAW);
             PostKey(Box(), VK_F4);
         },
         [this] { PostKey(Box(), VK_DOWN); }, [this] { PostKey(Box(), VK_RETURN); },
         [this] {
             EXPECT_FALSE(IsDropped());
             EXPECT_EQ(Record().law, 3);
         }});
    EXPECT_TRUE(Codes().empty()) << "Enter closed the dialog";
}

TEST_F(VariableLawBox, TellsTheLawByTheEntrysDataAndNotByItsPosition)
{
    std::int32_t told = 0;
    OnNotification([&](UINT) { told = Record().law; });
    Run({[this] {
        ::SendMessageW(Box(), CB_SETITEMDATA, kNormal, 52722);
        ::SendMessageW(Box(), CB_SETITEMDATA, kTriangular, 52721);
        Choose(kNormal);
        EXPECT_EQ(Record().law, 3);
        EXPECT_EQ(Text(IDC_VARIABLE_SIGMA), L"0.061237244");
        ::SendMessageW(Box(), CB_SETCURSEL, kTriangular, 0);
        Click(IDC_VARIABLE_OK);
    }});
    EXPECT_EQ(told, 1) << "OK asks the box once more";
}

TEST_F(VariableLawBox, RedrawsThePlotAtOnce)
{
    Run({[] {},
         [this] {
             const Pixels former = ShownPlot();
             Choose(kTriangular);
             const Pixels shown = ShownPlot();
             EXPECT_GT(DifferentPixels(shown, former), 0);
             EXPECT_EQ(DifferentPixels(shown, ExpectedPlot()), 0);
         }});
}

TEST_F(VariableLawBox, KeepsTheLawAndTheDeviationWithoutASelection)
{
    Run({[this] {
        Choose(CB_ERR);
        EXPECT_EQ(Record().law, 2);
        EXPECT_EQ(Text(IDC_VARIABLE_SIGMA), L"0.08660254");
    }});
}

TEST_F(VariableLawBox, RedrawsThePlotWithoutASelectionAlike)
{
    Run({[] {},
         [this] {
             MakeDirty(Window(IDC_VARIABLE_PLOT));
             Choose(CB_ERR);
             EXPECT_EQ(DifferentPixels(ShownPlot(), ExpectedPlot()), 0);
         }});
}

TEST_F(VariableLawBox, LeavesTheTypedMeanAndNameAlone)
{
    Run({[this] {
        Write(IDC_VARIABLE_MEAN, L"25.1");
        Write(IDC_VARIABLE_NAME, L"B");
        Choose(kNormal);
        EXPECT_EQ(Text(IDC_VARIABLE_MEAN), L"25.1");
        EXPECT_EQ(Text(IDC_VARIABLE_NAME), L"B");
        EXPECT_EQ(Record().mean, 25.05);
        EXPECT_EQ(Record().name, L"A1");
    }});
}

}  // namespace
