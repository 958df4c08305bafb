#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <afxext.h>

#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/message_pump.h"
#include "tests/support/recording_window.h"

namespace
{
using Calls = std::vector<std::string>;

class CParentWindow : public CWnd
{
public:
    Calls m_calls;

protected:
    afx_msg void OnNotification(NMHDR*, LRESULT*) { m_calls.push_back("parent notification"); }
    afx_msg void OnChanged() { m_calls.push_back("parent command"); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CParentWindow, CWnd)
    ON_NOTIFY(NM_CLICK, IDC_FIRST, &CParentWindow::OnNotification)
    ON_NOTIFY(NM_RCLICK, IDC_FIRST, &CParentWindow::OnNotification)
    ON_EN_CHANGE(IDC_SECOND, &CParentWindow::OnChanged)
    ON_EN_UPDATE(IDC_SECOND, &CParentWindow::OnChanged)
END_MESSAGE_MAP()

class CReflectingList : public CListCtrl
{
public:
    Calls m_calls;

    void DrawItem(LPDRAWITEMSTRUCT draw) override { m_calls.push_back("draw " + std::to_string(draw->itemID)); }

protected:
    afx_msg void OnClicked(NMHDR*, LRESULT* result)
    {
        m_calls.push_back("reflected");
        *result = 5;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CReflectingList, CListCtrl)
    ON_NOTIFY_REFLECT(NM_CLICK, &CReflectingList::OnClicked)
END_MESSAGE_MAP()

class CReflectingEdit : public CEdit
{
public:
    Calls m_calls;

protected:
    afx_msg void OnChanged() { m_calls.push_back("reflected"); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CReflectingEdit, CEdit)
    ON_CONTROL_REFLECT(EN_CHANGE, &CReflectingEdit::OnChanged)
END_MESSAGE_MAP()

/// Draws its list itself and leaves the selection field to the class of the window.
class CDrawnBox : public CComboBoxEx
{
public:
    int m_entriesDrawn = 0;
    int m_requests = 0;

protected:
    afx_msg void OnDrawItem(int controlId, LPDRAWITEMSTRUCT draw)
    {
        ++m_requests;
        if ((draw->itemState & ODS_COMBOBOXEDIT) != 0)
            CComboBoxEx::OnDrawItem(controlId, draw);
        else
            ++m_entriesDrawn;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDrawnBox, CComboBoxEx)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

class Reflection : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_parent.CreateEx(0, nullptr, L"parent", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300, nullptr,
                                      nullptr));
    }

    LRESULT Notify(HWND from, UINT code)
    {
        NMHDR header = {from, IDC_FIRST, code};
        return m_parent.SendMessage(WM_NOTIFY, IDC_FIRST, reinterpret_cast<LPARAM>(&header));
    }

    CParentWindow m_parent;
};
}  // namespace

TEST_F(Reflection, ControlDealsWithItsNotificationAndTheParentDoesNotSeeIt)
{
    CReflectingList list;
    ASSERT_TRUE(list.Create(LVS_REPORT, CRect(0, 0, 100, 100), &m_parent, IDC_FIRST));
    EXPECT_EQ(Notify(list, NM_CLICK), 5);
    EXPECT_EQ(list.m_calls, Calls{"reflected"});
    EXPECT_EQ(m_parent.m_calls, Calls{});
}

TEST_F(Reflection, ParentGetsTheNotificationThatTheControlDoesNotReflect)
{
    CReflectingList list;
    ASSERT_TRUE(list.Create(LVS_REPORT, CRect(0, 0, 100, 100), &m_parent, IDC_FIRST));
    Notify(list, NM_RCLICK);
    EXPECT_EQ(list.m_calls, Calls{});
    EXPECT_EQ(m_parent.m_calls, Calls{"parent notification"});
}

TEST_F(Reflection, NotificationSentToTheControlItselfIsReflectedToIt)
{
    CReflectingList list;
    ASSERT_TRUE(list.Create(LVS_REPORT, CRect(0, 0, 100, 100), &m_parent, IDC_FIRST));
    NMHDR header = {list, IDC_FIRST, NM_CLICK};
    EXPECT_EQ(list.SendMessage(WM_NOTIFY, IDC_FIRST, reinterpret_cast<LPARAM>(&header)), 5);
    EXPECT_EQ(list.m_calls, Calls{"reflected"});
}

TEST_F(Reflection, CommandNotificationOfAnEditIsReflected)
{
    CReflectingEdit edit;
    ASSERT_TRUE(edit.Create(WS_VISIBLE, CRect(0, 0, 100, 20), &m_parent, IDC_SECOND));
    m_parent.m_calls.clear();
    edit.m_calls.clear();
    edit.SendMessage(WM_CHAR, L'x', 1);
    EXPECT_EQ(edit.m_calls, Calls{"reflected"});
    EXPECT_EQ(m_parent.m_calls, Calls{"parent command"}) << "the update notification alone";
}

TEST_F(Reflection, OwnerDrawRequestOfAListReachesItsDrawItem)
{
    CReflectingList list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT | LVS_OWNERDRAWFIXED, CRect(0, 0, 200, 100), &m_parent, IDC_FIRST));
    list.InsertColumn(0, L"A", LVCFMT_LEFT, 80);
    list.InsertItem(0, L"one");
    list.RedrawWindow();
    ASSERT_FALSE(list.m_calls.empty());
    EXPECT_EQ(list.m_calls.front(), "draw 0");
}

TEST_F(Reflection, ExtendedComboGetsTheDrawRequestsOfItsInnerCombo)
{
    CDrawnBox box;
    ASSERT_TRUE(box.Create(WS_VISIBLE | CBS_DROPDOWN, CRect(10, 10, 160, 200), &m_parent, IDC_FIRST));
    COMBOBOXEXITEM item = {};
    item.mask = CBEIF_TEXT | CBEIF_LPARAM;
    wchar_t text[] = L"H7";
    item.iItem = -1;
    item.pszText = text;
    item.lParam = 1;
    ASSERT_EQ(box.InsertItem(&item), 0);
    box.GetComboBoxCtrl()->ShowDropDown();
    EXPECT_TRUE(WaitUntil([&box] { return box.m_entriesDrawn > 0; }));
    EXPECT_GE(box.m_requests, box.m_entriesDrawn);
    box.GetComboBoxCtrl()->ShowDropDown(FALSE);
}
