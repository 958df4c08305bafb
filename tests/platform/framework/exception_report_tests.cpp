// CException::ReportError, whose message box is answered by a hook.

#include <gtest/gtest.h>

#include "tests/platform/framework/string_ids.h"
#include "tests/support/framework_printers.h"

namespace
{
// Answers the message boxes of this thread and remembers the text of the last one.
class BoxAnswer
{
public:
    explicit BoxAnswer(WORD button)
    {
        answer = button;
        shown.Empty();
        m_hook = ::SetWindowsHookExW(WH_CBT, OnWindowEvent, nullptr, ::GetCurrentThreadId());
    }
    ~BoxAnswer() { ::UnhookWindowsHookEx(m_hook); }
    BoxAnswer(const BoxAnswer&) = delete;
    BoxAnswer& operator=(const BoxAnswer&) = delete;

    static CString shown;

private:
    static constexpr int kTextOfMessageBox = 0xFFFF;

    static LRESULT CALLBACK OnWindowEvent(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto window = reinterpret_cast<HWND>(wParam);
        if (code == HCBT_ACTIVATE && ::GetDlgItem(window, kTextOfMessageBox) != nullptr)
        {
            ::GetDlgItemTextW(window, kTextOfMessageBox, shown.GetBuffer(255), 256);
            shown.ReleaseBuffer();
            ::PostMessageW(window, WM_COMMAND, answer, 0);
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static WORD answer;
    HHOOK m_hook;
};

CString BoxAnswer::shown;
WORD BoxAnswer::answer = IDOK;

class CSilentException : public CException
{
public:
    CSilentException() : CException(FALSE) {}
};
}  // namespace

TEST(CExceptionReport, ShowsTheMessageAndGivesTheButton)
{
    const BoxAnswer box(IDYES);
    CInvalidArgException exception(FALSE);
    EXPECT_EQ(exception.ReportError(MB_YESNO), IDYES);
    EXPECT_EQ(box.shown, L"The operation was given a value that it can't work with.");
}

TEST(CExceptionReport, ShowsTheGivenStringWhenTheExceptionHasNoMessage)
{
    const BoxAnswer box(IDOK);
    EXPECT_EQ(CSilentException().ReportError(MB_OK, IDS_IN_PROGRAM), IDOK);
    EXPECT_EQ(box.shown, L"of the program alone");
}

TEST(CExceptionReport, ShowsAGeneralSentenceWhenThereIsNothingElse)
{
    const BoxAnswer box(IDOK);
    EXPECT_EQ(CSilentException().ReportError(), IDOK);
    EXPECT_EQ(box.shown, L"The operation failed. Nothing more is known about the cause.");
    box.shown.Empty();
    EXPECT_EQ(CSilentException().ReportError(MB_OK, IDS_NOWHERE), IDOK);
    EXPECT_EQ(box.shown, L"The operation failed. Nothing more is known about the cause.");
}
