#include "grid_window.h"

#include "tests/support/input.h"
#include "tests/support/message_pump.h"

#include <set>
#include <sstream>
#include <utility>

namespace
{
std::string Utf8(const CString& text)
{
    std::string narrow(static_cast<std::size_t>(text.GetLength()) * 3, '\0');
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), narrow.data(),
                                             static_cast<int>(narrow.size()), nullptr, nullptr);
    narrow.resize(static_cast<std::size_t>(length));
    return narrow;
}

void AddSolidImage(CImageList& images, COLORREF colour)
{
    constexpr int kSide = 16;
    CClientDC screen(nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, kSide, kSide);
    CBitmap* const former = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, kSide, kSide, colour);
    memory.SelectObject(former);
    images.Add(&bitmap, RGB(255, 0, 255));
}

HWND WindowAt(const CWnd& grid, CPoint point)
{
    const HWND child = ::ChildWindowFromPointEx(grid.GetSafeHwnd(), point, CWP_SKIPINVISIBLE);
    return child != nullptr ? child : grid.GetSafeHwnd();
}

void PostMouse(const CWnd& grid, CPoint point, std::initializer_list<UINT> messages)
{
    const HWND target = WindowAt(grid, point);
    CPoint local = point;
    ::MapWindowPoints(grid.GetSafeHwnd(), target, &local, 1);
    for (const UINT message : messages)
        ::PostMessageW(target, message, 0, MAKELPARAM(local.x, local.y));
    PumpUntilIdle();
}
}  // namespace

GridWindow::GridWindow()
{
    CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), L"grid", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN,
             CRect(20, 20, 20 + kWidth, 20 + kHeight), nullptr, 0);
    grid.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT, CRect(0, 0, kWidth, kHeight), this, kGridId);
    EXPECT_TRUE(::IsWindowVisible(grid.GetSafeHwnd()));  // without a display nothing could be tested
    grid.SetExtendedStyle(grid.GetExtendedStyle() | LVS_EX_GRIDLINES | LVS_EX_HEADERDRAGDROP | LVS_EX_TWOCLICKACTIVATE);
    m_images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 9);
    for (const COLORREF colour : {kExpandedColour, kCollapsedColour, kRowImageColour, kCheckedColour, kUncheckedColour})
        AddSolidImage(m_images, colour);
    grid.SetImageList(&m_images, LVSIL_SMALL);
}

GridWindow::~GridWindow()
{
    onTold = nullptr;
    onListTold = nullptr;
    DestroyWindow();
    PumpUntilIdle();
}

RowKey GridWindow::Remember(RowKey key, const wchar_t* name)
{
    m_names[key] = Utf8(name);
    for (int column = 1; column < grid.ColumnCount(); ++column)
    {
        CString text;
        text.Format(L"%s%d", name, column);
        grid.SetCellText(key, column, text);
    }
    return key;
}

RowKey GridWindow::AddTop(const wchar_t* name, int image)
{
    return Remember(grid.AddTopRow(grid.CreateRow(name, image)), name);
}

RowKey GridWindow::AddChild(RowKey parent, const wchar_t* name, int image)
{
    return Remember(grid.AddChildRow(parent, grid.CreateRow(name, image)), name);
}

std::string GridWindow::NameOf(RowKey key) const
{
    const auto found = m_names.find(key);
    return found != m_names.end() ? found->second : key == nullptr ? "none" : "unknown";
}

std::string GridWindow::ShownNames() const
{
    std::string names;
    for (int index = 0; index < grid.GetItemCount(); ++index)
        names += (index > 0 ? " " : "") + NameOf(grid.RowAtIndex(index)->Key());
    return names;
}

bool GridWindow::IndicesAreExact() const
{
    std::set<RowKey> shown;
    for (int index = 0; index < grid.GetItemCount(); ++index)
    {
        if (grid.RowAtIndex(index)->ListIndex() != index)
            return false;
        shown.insert(grid.RowAtIndex(index)->Key());
    }
    for (const auto& [key, name] : m_names)
        if (const auto* const row = grid.FindRow(key); row != nullptr && !shown.contains(key) && row->ListIndex() != -1)
            return false;
    return true;
}

std::vector<std::string> GridWindow::TakeTold()
{
    return std::exchange(told, {});
}

BOOL GridWindow::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if (reinterpret_cast<HWND>(lParam) == grid.GetSafeHwnd() && LOWORD(wParam) == kGridId)
        told.push_back("command " + std::to_string(HIWORD(wParam)));
    return CWnd::OnCommand(wParam, lParam);
}

BOOL GridWindow::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    auto& header = *reinterpret_cast<NMHDR*>(lParam);
    constexpr UINT kFirstCode = kGridRowExpanded;
    constexpr UINT kLastCode = kGridEndList;
    if (header.hwndFrom != grid.GetSafeHwnd() || header.code < kFirstCode || header.code > kLastCode)
    {
        if (onListTold)
            onListTold(header.code);
        return CWnd::OnNotify(wParam, lParam, result);
    }

    EXPECT_EQ(wParam, kGridId);
    EXPECT_EQ(header.idFrom, kGridId);
    const auto& record = *reinterpret_cast<const NMFLISTCTRL*>(lParam);
    std::ostringstream line;
    line << header.code << ' ' << NameOf(record.rowKey) << ' ' << record.column << " \"" << Utf8(record.text) << '"';
    if (record.collapsed == 0)
        line << " expanded";
    if (record.extra != 0)
        line << " extra=" << record.extra;
    told.push_back(line.str());
    if (header.code == kGridListContents)
    {
        auto& request = *reinterpret_cast<NMFLISTCOMBO*>(lParam);
        EXPECT_EQ(request.selected, -1);
        for (const auto& [text, value] : entries)
            request.items->Add({text, value});
        request.selected = selectedEntry;
    }
    const auto answer = answers.find(header.code);
    *result = answer != answers.end() ? answer->second : 0;
    if (onTold)
        onTold(record);
    return TRUE;
}

void PressKey(UINT key)
{
    PostKey(::GetFocus(), key);
    PumpUntilIdle();
}

void PressKeyWith(BYTE modifier, UINT key)
{
    const HeldKey held(modifier);
    PressKey(key);
}

void TypeText(const wchar_t* text)
{
    for (; *text != L'\0'; ++text)  // each character may move the focus
    {
        const wchar_t character[] = {*text, L'\0'};
        PostText(::GetFocus(), character);
        PumpUntilIdle();
    }
}

void LeftClick(const CWnd& grid, CPoint point)
{
    PostMouse(grid, point, {WM_LBUTTONDOWN, WM_LBUTTONUP});
}

void DoubleClick(const CWnd& grid, CPoint point)
{
    PostMouse(grid, point, {WM_LBUTTONDOWN, WM_LBUTTONUP});
    PostMouse(grid, point, {WM_LBUTTONDBLCLK, WM_LBUTTONUP});
}

void RightClick(const CWnd& grid, CPoint point)
{
    PostMouse(grid, point, {WM_RBUTTONDOWN, WM_RBUTTONUP});
}

Pixels PartOf(const Pixels& picture, const CRect& part)
{
    Pixels pixels{.width = part.Width(), .height = part.Height(), .colours = {}};
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x)
            pixels.colours.push_back(picture.At(x, y));
    return pixels;
}

std::vector<HWND> EditorWindows(HWND grid)
{
    std::vector<HWND> editors;
    for (HWND child = ::GetWindow(grid, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        const int id = ::GetDlgCtrlID(child);
        if (id >= 301 && id <= 303)
            editors.push_back(child);
    }
    return editors;
}

void PickByMouse(HWND list, int entry)
{
    ::SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    EXPECT_TRUE(::GetComboBoxInfo(list, &info));
    EXPECT_TRUE(::IsWindowVisible(info.hwndList));
    CRect place;
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&place));
    const CPoint point = place.CenterPoint();
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP})
        ::PostMessageW(info.hwndList, message, message == WM_LBUTTONDOWN ? MK_LBUTTON : 0,
                       MAKELPARAM(point.x, point.y));
    PumpUntilIdle();
}

LargeGridFont::LargeGridFont(CFListCtrl& grid)
    : m_grid(grid), m_former(reinterpret_cast<HFONT>(grid.SendMessage(WM_GETFONT)))
{
    LOGFONT description{};
    description.lfHeight = -28;
    description.lfWeight = FW_BOLD;
    ::lstrcpyW(description.lfFaceName, L"Tahoma");
    m_font.CreateFontIndirect(&description);
    m_grid.SetFont(&m_font);
}

LargeGridFont::~LargeGridFont()
{
    m_grid.CloseEditor();
    m_grid.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(m_former), TRUE);
}

int LargeGridFont::WidthOf(const wchar_t* text) const
{
    CClientDC dc(&m_grid);
    const HGDIOBJ former = ::SelectObject(dc.GetSafeHdc(), m_font.GetSafeHandle());
    const int width = dc.GetTextExtent(CString(text)).cx;
    ::SelectObject(dc.GetSafeHdc(), former);
    return width;
}

GridTest::GridTest()
{
    grid.SetRowMode(false);
    grid.InsertFColumn(0, L"tree", LVCFMT_LEFT, 130, true);
    grid.InsertFColumn(1, L"centred", LVCFMT_CENTER, 80, false);
    grid.InsertFColumn(2, L"left", LVCFMT_LEFT, 80, false);
    // The grids of all tests share what was told last: the first row of a test must count as new.
    grid.SetFocus();
    PumpUntilIdle();
}

HWND GridTest::Editor(int id) const
{
    // A list that has reported its end may still be there beside the open one: only the open one has the focus.
    const HWND focus = ::GetFocus();
    return grid.HasEditor() && ::GetDlgCtrlID(focus) == id ? focus : nullptr;
}
