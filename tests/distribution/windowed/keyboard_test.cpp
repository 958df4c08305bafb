#include "variable_dialog_test.h"

namespace
{

using VariableKeyboard = VariableDialogTest;

TEST_F(VariableKeyboard, StartsInTheName)
{
    Run({[] {}, [this] { EXPECT_EQ(Focused(), IDC_VARIABLE_NAME); }});
}

TEST_F(VariableKeyboard, AcceptsByEnterInAnyInput)
{
    for (const int control : {IDC_VARIABLE_NAME, IDC_VARIABLE_LAW, IDC_VARIABLE_MEAN, IDC_VARIABLE_OK})
    {
        SCOPED_TRACE(control);
        Record() = UniformLink();
        const INT_PTR result = Run({[&] {
                                        FocusOn(control);
                                        PostKey(::GetFocus(), VK_RETURN);
                                    },
                                    [] {}});
        EXPECT_EQ(result, IDOK);
    }
    EXPECT_EQ(Codes(), (std::vector<WPARAM>(4, kDistributionAccepted)));
}

TEST_F(VariableKeyboard, CancelsByEscAnywhere)
{
    for (const int control :
         {IDC_VARIABLE_NAME, IDC_VARIABLE_LAW, IDC_VARIABLE_MEAN, IDC_VARIABLE_REDRAW, IDC_VARIABLE_OK})
    {
        SCOPED_TRACE(control);
        Record() = UniformLink();
        const INT_PTR result = Run({[&] {
                                        FocusOn(control);
                                        PostKey(::GetFocus(), VK_ESCAPE);
                                    },
                                    [] {}});
        EXPECT_EQ(result, IDCANCEL);
    }
    EXPECT_EQ(Codes(), (std::vector<WPARAM>(5, kChildCancelled)));
}

TEST_F(VariableKeyboard, RedrawsByEnterOnItsButton)
{
    Run({[this] {
             Write(IDC_VARIABLE_MEAN, L"25.1");
             FocusOn(IDC_VARIABLE_REDRAW);
             PostKey(::GetFocus(), VK_RETURN);
         },
         [this] { EXPECT_EQ(Record().mean, 25.1); }});
    EXPECT_TRUE(Codes().empty());
}

TEST_F(VariableKeyboard, CancelsByEnterOnTheCancelButton)
{
    const INT_PTR result = Run({[this] {
                                    FocusOn(IDC_VARIABLE_CANCEL);
                                    PostKey(::GetFocus(), VK_RETURN);
                                },
                                [] {}});
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(VariableKeyboard, WalksTheControlsAsTheyStand)
{
    EXPECT_EQ(TabOrder(IDC_VARIABLE_NAME, 7),
              (std::vector<int>{IDC_VARIABLE_NAME, IDC_VARIABLE_LAW, IDC_VARIABLE_MEAN, IDC_VARIABLE_REDRAW,
                                IDC_VARIABLE_OK, IDC_VARIABLE_CANCEL, IDC_VARIABLE_NAME}));
}

TEST_F(VariableKeyboard, TakesATypedMeanByEnter)
{
    double told = 0;
    OnNotification([&](UINT) { told = Record().mean; });
    Run({[this] {
             FocusOn(IDC_VARIABLE_MEAN);  // selects the text, so that typing replaces it
             PostText(::GetFocus(), L"25.125");
         },
         [] { PostKey(::GetFocus(), VK_RETURN); }, [] {}});
    EXPECT_EQ(told, 25.125);
}

TEST_F(VariableKeyboard, StaysOnTheMeanThatEnterInTheNameRefused)
{
    const ExpectMessageBox box;
    Run({[this] {
             Write(IDC_VARIABLE_MEAN, L"");
             FocusOn(IDC_VARIABLE_NAME);
             PostKey(::GetFocus(), VK_RETURN);
         },
         [] {}, [this] { EXPECT_EQ(Focused(), IDC_VARIABLE_MEAN); }});
}

}  // namespace
