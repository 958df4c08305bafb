#include <memory>

#include <gtest/gtest.h>

#include <afxext.h>

#include "tests/support/framework_printers.h"
#include "tests/support/message_pump.h"
#include "tests/support/recording_window.h"

namespace
{
/// A window that the framework does not know.
class ForeignWindow
{
public:
    explicit ForeignWindow(const wchar_t* className = L"Static", HWND parent = nullptr)
        : m_window(::CreateWindowExW(0, className, L"foreign", parent == nullptr ? WS_OVERLAPPED : WS_CHILD, 0, 0, 50,
                                     50, parent, nullptr, nullptr, nullptr))
    {
    }
    ~ForeignWindow()
    {
        if (::IsWindow(m_window))
            ::DestroyWindow(m_window);
    }
    ForeignWindow(const ForeignWindow&) = delete;
    ForeignWindow& operator=(const ForeignWindow&) = delete;

    operator HWND() const { return m_window; }

private:
    HWND m_window;
};

class CCountingWindow : public CWnd
{
public:
    int m_answers = 0;
    bool m_prepared = false;

    void PreSubclassWindow() override { m_prepared = true; }

protected:
    afx_msg LRESULT OnAsk(WPARAM, LPARAM)
    {
        ++m_answers;
        return 99;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCountingWindow, CWnd)
    ON_MESSAGE(WM_APP, &CCountingWindow::OnAsk)
END_MESSAGE_MAP()
}  // namespace

TEST(HandleMap, NullHandleHasNoObject)
{
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CMenu::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CImageList::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CFont::FromHandle(nullptr), nullptr);
}

TEST(HandleMap, CreatedWindowHasItsPermanentObject)
{
    RecordingWindow window;
    ASSERT_NE(window.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandle(window), &window);
    EXPECT_EQ(CWnd::FromHandlePermanent(window), &window);
}

TEST(HandleMap, ForeignWindowHasOneTemporaryObjectAndNoPermanentOne)
{
    const ForeignWindow foreign;
    CWnd* object = CWnd::FromHandle(foreign);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->m_hWnd, static_cast<HWND>(foreign));
    EXPECT_EQ(CWnd::FromHandle(foreign), object);
    EXPECT_EQ(CWnd::FromHandlePermanent(foreign), nullptr);
}

TEST(HandleMap, TemporaryObjectHasTheClassOfItsControl)
{
    const ForeignWindow edit(L"Edit");
    const ForeignWindow list(L"SysListView32");
    EXPECT_NE(dynamic_cast<CEdit*>(CWnd::FromHandle(edit)), nullptr);
    EXPECT_NE(dynamic_cast<CListCtrl*>(CWnd::FromHandle(list)), nullptr);
}

TEST(HandleMap, IdleDeletesTemporaryObjectsAndLeavesTheirWindows)
{
    const ForeignWindow foreign;
    CWnd::FromHandle(foreign)->EnableWindow();
    CBrush brush(RGB(1, 2, 3));
    AfxGetThread()->OnIdle(0);
    EXPECT_TRUE(::IsWindow(foreign));
    EXPECT_EQ(CBrush::FromHandle(brush), &brush);
}

TEST(HandleMap, IdleDoesNotDeleteGraphicsObjectsSeenThroughTemporaries)
{
    const HFONT font = ::CreateFontW(10, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    EXPECT_EQ(static_cast<HFONT>(*CFont::FromHandle(font)), font);
    AfxGetThread()->OnIdle(0);
    EXPECT_EQ(::GetObjectType(font), static_cast<DWORD>(OBJ_FONT));
    ::DeleteObject(font);
}

TEST(HandleMap, SubclassedWindowSendsItsMessagesToTheObjectUntilItIsUnsubclassed)
{
    const ForeignWindow foreign;
    CCountingWindow object;
    ASSERT_TRUE(object.SubclassWindow(foreign));
    EXPECT_TRUE(object.m_prepared);
    EXPECT_EQ(::SendMessageW(foreign, WM_APP, 0, 0), 99);
    EXPECT_EQ(object.UnsubclassWindow(), static_cast<HWND>(foreign));
    EXPECT_EQ(::SendMessageW(foreign, WM_APP, 0, 0), 0);
    EXPECT_EQ(object.m_answers, 1);
    EXPECT_EQ(object.m_hWnd, nullptr);
    EXPECT_TRUE(::IsWindow(foreign));
}

TEST(HandleMap, SubclassedControlStillBehavesAsItsClassDoes)
{
    const ForeignWindow edit(L"Edit");
    CCountingWindow object;
    ASSERT_TRUE(object.SubclassWindow(edit));
    object.SetWindowText(L"text");
    EXPECT_EQ(object.SendMessage(EM_LINELENGTH), 4);
    object.UnsubclassWindow();
}

TEST(HandleMap, AttachedObjectGetsNoMessages)
{
    const ForeignWindow foreign;
    CCountingWindow object;
    ASSERT_TRUE(object.Attach(foreign));
    EXPECT_EQ(CWnd::FromHandlePermanent(foreign), &object);
    EXPECT_EQ(::SendMessageW(foreign, WM_APP, 0, 0), 0);
    EXPECT_EQ(object.Detach(), static_cast<HWND>(foreign));
    EXPECT_EQ(CWnd::FromHandlePermanent(foreign), nullptr);
}

TEST(HandleMap, ObjectTakesOneWindowOnly)
{
    const ForeignWindow first;
    const ForeignWindow second;
    CWnd object;
    ASSERT_TRUE(object.Attach(first));
    EXPECT_FALSE(object.Attach(second));
    EXPECT_FALSE(object.SubclassWindow(second));
    EXPECT_FALSE(CWnd().Attach(nullptr));
    object.Detach();
}

TEST(HandleMap, DeletingThePermanentObjectDestroysItsWindow)
{
    auto object = std::make_unique<CWnd>();
    ASSERT_TRUE(object->CreateEx(0, nullptr, L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr));
    const HWND window = object->m_hWnd;
    object.reset();
    EXPECT_FALSE(::IsWindow(window));
}

TEST(HandleMap, DestroyingTheWindowLeavesTheObjectWithoutOne)
{
    CWnd object;
    ASSERT_TRUE(object.CreateEx(0, nullptr, L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr));
    ::DestroyWindow(object);
    EXPECT_EQ(object.m_hWnd, nullptr);
    EXPECT_FALSE(object.DestroyWindow());
}

TEST(HandleMap, DestroyingAnAttachedWindowForgetsIt)
{
    const ForeignWindow foreign;
    CWnd object;
    ASSERT_TRUE(object.Attach(foreign));
    EXPECT_TRUE(object.DestroyWindow());
    EXPECT_EQ(object.m_hWnd, nullptr);
    EXPECT_FALSE(::IsWindow(foreign));
}
