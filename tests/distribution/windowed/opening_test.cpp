#include "variable_dialog_test.h"

namespace
{

using VariableOpening = VariableDialogTest;

TEST_F(VariableOpening, OffersTheLawsWithTheirStringsAsData)
{
    Run({[this] {
        const HWND box = Window(IDC_VARIABLE_LAW);
        ASSERT_EQ(::SendMessageW(box, CB_GETCOUNT, 0, 0), 3);
        const std::vector<UINT> ids{52721, 52720, 52722};  // normal, uniform, triangular
        for (WPARAM position = 0; position < 3; ++position)
        {
            SCOPED_TRACE(position);
            wchar_t text[100] = L"";
            ::SendMessageW(box, CB_GETLBTEXT, position, reinterpret_cast<LPARAM>(text));
            EXPECT_EQ(::SendMessageW(box, CB_GETITEMDATA, position, 0), static_cast<LRESULT>(ids[position]));
            EXPECT_EQ(CString(text), ResourceText(ids[position]));
            EXPECT_FALSE(CString(text).IsEmpty());
        }
    }});
}

TEST_F(VariableOpening, ShowsTheRecord)
{
    Run({[this] {
        EXPECT_EQ(Text(IDC_VARIABLE_NAME), L"A1");
        EXPECT_EQ(Text(IDC_VARIABLE_NOMINAL), L"25");
        EXPECT_EQ(Text(IDC_VARIABLE_CAPTION), L"Size:");
        EXPECT_EQ(Text(IDC_VARIABLE_MEAN), L"25.05");
        EXPECT_EQ(Position(), kUniform);
        EXPECT_EQ(Record(), UniformLink());
    }});
}

TEST_F(VariableOpening, ShowsAWholeMeanWithoutAPoint)
{
    Record().mean = 25.0;
    Run({[this] { EXPECT_EQ(Text(IDC_VARIABLE_MEAN), L"25"); }});
}

// Means in millimetres have up to nine decimal places.
TEST_F(VariableOpening, RoundsTheShownMeanToNineDecimalPlaces)
{
    Record().mean = 25.05 + 1.0 / 3.0e8;
    Run({[this] { EXPECT_EQ(Text(IDC_VARIABLE_MEAN), L"25.050000003"); }});
}

struct LawCase
{
    std::int32_t law;
    int position;
    const wchar_t* sigma;
};

void PrintTo(const LawCase& testCase, std::ostream* out)
{
    *out << "law " << testCase.law;
}

class VariableLaw : public VariableDialogTest, public testing::WithParamInterface<LawCase>
{
};

TEST_P(VariableLaw, SelectsItsEntryAndShowsItsDeviation)
{
    Record().law = GetParam().law;
    Run({[this] {
        EXPECT_EQ(Position(), GetParam().position);
        EXPECT_EQ(Text(IDC_VARIABLE_SIGMA), GetParam().sigma);
        EXPECT_EQ(Record().law, GetParam().law);
    }});
}

// 0.3 / 6, 0.3 / (2 sqrt 3) = 0.0866025403..., 0.3 / (2 sqrt 6) = 0.0612372435...
INSTANTIATE_TEST_SUITE_P(Laws, VariableLaw,
                         testing::Values(LawCase{1, kNormal, L"0.05"}, LawCase{2, kUniform, L"0.08660254"},
                                         LawCase{3, kTriangular, L"0.061237244"}, LawCase{0, kNormal, L""},
                                         LawCase{4, kNormal, L""}, LawCase{-1, kNormal, L""}));

TEST_F(VariableOpening, TakesDeviationsThatAreNoNumbersAsZero)
{
    Record().upperDev = L"es";
    Record().lowerDev.Empty();
    Run({[this] { EXPECT_EQ(Text(IDC_VARIABLE_SIGMA), L"0"); }});
}

TEST_F(VariableOpening, ShowsNothingOfARecordWithoutANominal)
{
    Record().nominal.Empty();
    Run({[this] {
        EXPECT_EQ(Text(IDC_VARIABLE_NAME), L"");
        EXPECT_EQ(Text(IDC_VARIABLE_CAPTION), L"");
        EXPECT_EQ(Text(IDC_VARIABLE_MEAN), L"");
        EXPECT_EQ(Text(IDC_VARIABLE_SIGMA), L"");
        EXPECT_EQ(Position(), kNormal);
        EXPECT_FALSE(IsShown(IDC_VARIABLE_PICTURE));
    }});
}

class VariableKind : public VariableDialogTest, public testing::WithParamInterface<std::pair<std::int32_t, UINT>>
{
};

TEST_P(VariableKind, ShowsItsPictureInItsOwnSize)
{
    Record().dimKind = GetParam().first;
    const Pixels expected = ResourcePicture(GetParam().second);
    ASSERT_GT(expected.width, 8);
    Run({[] {},
         [&] {
             EXPECT_TRUE(IsShown(IDC_VARIABLE_PICTURE));
             const Pixels shown = ShownPixels(Window(IDC_VARIABLE_PICTURE));
             EXPECT_GE(shown.width, expected.width) << "the frame cuts the picture";
             EXPECT_GE(shown.height, expected.height) << "the frame cuts the picture";
             EXPECT_EQ(DifferentPixels(shown, expected), 0);
         }});
}

TEST_P(VariableKind, KeepsItsPictureWhenItWasCovered)
{
    Record().dimKind = GetParam().first;
    const Pixels expected = ResourcePicture(GetParam().second);
    Run({[] {},
         [&] {
             const HWND frame = Window(IDC_VARIABLE_PICTURE);
             MakeDirty(frame);
             ::RedrawWindow(frame, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
             EXPECT_EQ(DifferentPixels(ShownPixels(frame), expected), 0);
         }});
}

INSTANTIATE_TEST_SUITE_P(Kinds, VariableKind,
                         testing::Values(std::pair(1, 1003U), std::pair(2, 1000U), std::pair(3, 1002U)));

TEST_F(VariableOpening, HidesThePictureOfKindZero)
{
    Record().dimKind = 0;
    Run({[this] { EXPECT_FALSE(IsShown(IDC_VARIABLE_PICTURE)); }});
}

TEST_F(VariableOpening, ShowsAnEmptyFrameForAnUnknownKind)
{
    Record().dimKind = 4;
    Run({[] {},
         [this] {
             EXPECT_TRUE(IsShown(IDC_VARIABLE_PICTURE));
             const Pixels shown = ShownPixels(Window(IDC_VARIABLE_PICTURE));
             EXPECT_EQ(shown.Count(shown.At(0, 0)), shown.width * shown.height);
         }});
}

TEST_F(VariableOpening, TellsTheHostNothing)
{
    Run({[] {}});
    EXPECT_TRUE(Codes().empty());
}

TEST_F(VariableOpening, LeavesTheMainWindowDisabledAsLongAsItIsOpen)
{
    Run({[] {}, [this] { EXPECT_FALSE(::IsWindowEnabled(host.m_hWnd)); }});
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(VariableOpening, OpensASecondTimeLikeTheFirst)
{
    for (int time = 0; time < 2; ++time)
    {
        SCOPED_TRACE(time);
        Record() = UniformLink();
        const INT_PTR result = Run({[this] {
            EXPECT_EQ(Text(IDC_VARIABLE_NAME), L"A1");
            EXPECT_EQ(::SendMessageW(Window(IDC_VARIABLE_LAW), CB_GETCOUNT, 0, 0), 3);
            EXPECT_EQ(Position(), kUniform);
            EXPECT_TRUE(IsShown(IDC_VARIABLE_PICTURE));
        }});
        EXPECT_EQ(result, ModalScript::kStepsDone);
    }
}

TEST_F(VariableOpening, ShowsNoPictureOfTheLinkBefore)
{
    Run({[] {}});
    Record() = UniformLink();
    Record().dimKind = 0;
    Run({[this] { EXPECT_FALSE(IsShown(IDC_VARIABLE_PICTURE)); }});
}

}  // namespace
