#include "tests/support/message_box_guard.h"

#include <algorithm>
#include <cwchar>
#include <list>
#include <utility>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/support/framework_printers.h"

namespace
{
constexpr int kTextId = 0xFFFF;  // of the static control that shows a message box's text

std::wstring WindowText(HWND window)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

// A dialog of ours has an object; the box of Windows has none.
bool IsMessageBox(HWND window)
{
    wchar_t name[16];
    return ::GetClassNameW(window, name, 16) > 0 && ::wcscmp(name, L"#32770") == 0 &&
           CWnd::FromHandlePermanent(window) == nullptr && ::GetDlgItem(window, kTextId) != nullptr;
}

std::vector<int> ButtonsOf(HWND box)
{
    std::vector<std::pair<LONG, int>> found;
    for (HWND child = ::GetWindow(box, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        wchar_t name[16];
        if (::GetClassNameW(child, name, 16) == 0 || ::_wcsicmp(name, L"Button") != 0 ||
            (::GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) == 0)
            continue;
        RECT rect;
        ::GetWindowRect(child, &rect);
        found.emplace_back(rect.left, ::GetDlgCtrlID(child));
    }
    std::sort(found.begin(), found.end());
    std::vector<int> ids;
    for (const auto& [left, id] : found)
        ids.push_back(id);
    return ids;
}
}  // namespace

/// The boxes that are expected and the one that is open.
class MessageBoxes
{
public:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto window = reinterpret_cast<HWND>(wParam);
        if (code == HCBT_ACTIVATE && IsMessageBox(window) && !IsAnswered(window))
            Answer(window);
        else if (code == HCBT_DESTROYWND)
            answered.remove(window);
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static std::list<ExpectMessageBox*> expected;

private:
    static bool IsAnswered(HWND box) { return std::find(answered.begin(), answered.end(), box) != answered.end(); }

    static void Answer(HWND box)
    {
        answered.push_back(box);
        const std::wstring text = WindowText(::GetDlgItem(box, kTextId));
        const std::vector<int> buttons = ButtonsOf(box);
        if (expected.empty())
        {
            ADD_FAILURE() << "unexpected message box: " << ::testing::PrintToString(CString(text.c_str()));
            const int last = buttons.empty() ? IDCANCEL : buttons.back();  // the least that the box offers to do
            ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(last), 0);
            return;
        }
        ExpectMessageBox& expectation = *expected.front();
        expected.pop_front();
        expectation.m_shown = true;
        expectation.m_text = text;
        expectation.m_caption = WindowText(box);
        expectation.m_owner = ::GetWindow(box, GW_OWNER);
        expectation.m_buttons = buttons;
        if (expectation.m_whileShown)
            expectation.m_whileShown();
        EXPECT_NE(std::find(buttons.begin(), buttons.end(), expectation.m_answer), buttons.end())
            << "the message box has no button " << expectation.m_answer;
        ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(expectation.m_answer), 0);
    }

    static std::list<HWND> answered;
};

std::list<ExpectMessageBox*> MessageBoxes::expected;
std::list<HWND> MessageBoxes::answered;

MessageBoxGuard::MessageBoxGuard()
    : m_hook(::SetWindowsHookExW(WH_CBT, &MessageBoxes::OnHook, nullptr, ::GetCurrentThreadId()))
{
}

MessageBoxGuard::~MessageBoxGuard()
{
    ::UnhookWindowsHookEx(m_hook);
}

ExpectMessageBox::ExpectMessageBox(int answer) : m_answer(answer)
{
    MessageBoxes::expected.push_back(this);
}

ExpectMessageBox::~ExpectMessageBox()
{
    MessageBoxes::expected.remove(this);
    if (!m_shown)
        ADD_FAILURE() << "an expected message box did not come";
}

void ExpectMessageBox::WhileShown(std::function<void()> action)
{
    m_whileShown = std::move(action);
}
