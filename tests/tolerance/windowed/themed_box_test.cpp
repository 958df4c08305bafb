#include "tests/support/message_pump.h"
#include "tolerance_dialog_test.h"

// With the themed controls that hosts of today have.
namespace
{

template <class Controls>
class ThemedBox : public ToleranceDialogTest<Controls>
{
protected:
    /// How many pixels of the edit part are not what it paints when it is asked to.
    int StalePixels() const
    {
        PumpUntilIdle();
        const Pixels shown = ShownPixels(this->FieldEdit());
        ::RedrawWindow(this->FieldEdit(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        return DifferentPixels(shown, ShownPixels(this->FieldEdit()));
    }
};
using Dialogs = testing::Types<LinkDialog, ClosingDialog>;
TYPED_TEST_SUITE(ThemedBox, Dialogs, );

TYPED_TEST(ThemedBox, ShowsTheFieldOfALoadedDimension)
{
    this->RunLoaded(FittedDimension(), {[this] {
                        EXPECT_EQ(this->StalePixels(), 0);
                        const Pixels shown = ShownPixels(this->FieldEdit());
                        EXPECT_LT(shown.Count(shown.At(0, 0)), shown.width * shown.height) << "there is no text";
                    }});
}

TYPED_TEST(ThemedBox, ShowsThatItTakesNoInput)
{
    CDimParams withoutTolerance = FittedDimension();
    withoutTolerance.dimKind = 2;
    this->RunLoaded(FittedDimension(), {[this, withoutTolerance] {
                        this->StalePixels();
                        this->Load(withoutTolerance);
                        EXPECT_EQ(this->StalePixels(), 0);
                    }});
}

}  // namespace
