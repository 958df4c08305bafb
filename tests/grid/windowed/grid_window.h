#pragma once

#include "grid/f_list_ctrl.h"
#include "grid/grid_parent.h"
#include "tests/support/pixels.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

/// A bare top-level window that holds one grid, writes down what the grid tells it, and answers as a test says.
class GridWindow : public CWnd
{
public:
    static constexpr UINT kGridId = 1000;
    static constexpr int kWidth = 640;
    static constexpr int kHeight = 320;

    GridWindow();
    ~GridWindow() override;

    CFListCtrl grid;

    /// What the grid told, one line each: `1116 B 2 "text"`, with `collapsed` and `extra=N` where they are set, the row
    /// by its name and the column as the record has it; `command 2` for the double click.
    std::vector<std::string> told;
    /// Answers by notification code; 0 for the others.
    std::map<UINT, LRESULT> answers;
    /// Entries for kGridListContents, the one to select, and -1 for none.
    std::vector<std::pair<CString, std::int32_t>> entries;
    std::int32_t selectedEntry = -1;
    /// Called with every record, after it was written down.
    std::function<void(const NMFLISTCTRL&)> onTold;
    /// Called with the code of every notification that the list view itself sends.
    std::function<void(UINT code)> onListTold;

    /// Adds a row of that name with texts name+column number in the other columns, and remembers the name.
    RowKey AddTop(const wchar_t* name, int image = -1);
    RowKey AddChild(RowKey parent, const wchar_t* name, int image = -1);
    std::string NameOf(RowKey key) const;
    /// The names of the rows as the list control holds them, separated by blanks.
    std::string ShownNames() const;
    /// Whether every row that the list holds knows its place in it, and no other row claims one.
    bool IndicesAreExact() const;
    std::vector<std::string> TakeTold();

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    RowKey Remember(RowKey key, const wchar_t* name);

    CImageList m_images;
    std::map<RowKey, std::string> m_names;
};

/// Images of the small image list: solid 16 x 16 squares.
constexpr COLORREF kExpandedColour = RGB(255, 0, 0);     // image 0
constexpr COLORREF kCollapsedColour = RGB(0, 255, 0);    // image 1
constexpr COLORREF kRowImageColour = RGB(0, 0, 255);     // image 2
constexpr COLORREF kCheckedColour = RGB(0, 255, 255);    // image 3
constexpr COLORREF kUncheckedColour = RGB(255, 255, 0);  // image 4

/// A key goes down and up in the window that has the focus.
void PressKey(UINT key);
/// The same with Shift or Control held.
void PressKeyWith(BYTE modifier, UINT key);
/// Characters arrive, one by one, at the window that has the focus.
void TypeText(const wchar_t* text);

/// Clicks at a client point of the grid, on whatever child lies there.
void LeftClick(const CWnd& grid, CPoint point);
void DoubleClick(const CWnd& grid, CPoint point);
void RightClick(const CWnd& grid, CPoint point);

/// A part of a picture.
Pixels PartOf(const Pixels& picture, const CRect& part);

/// The windows of the in-place editors on a grid, open and closing.
std::vector<HWND> EditorWindows(HWND grid);

/// Opens an in-place list and clicks on an entry.
void PickByMouse(HWND list, int entry);

/// Gives a grid a font that is much larger than its own, until the end of a scope.
class LargeGridFont
{
public:
    explicit LargeGridFont(CFListCtrl& grid);
    ~LargeGridFont();
    LargeGridFont(const LargeGridFont&) = delete;
    LargeGridFont& operator=(const LargeGridFont&) = delete;

    /// Of a text in this font, pixels.
    int WidthOf(const wchar_t* text) const;

private:
    CFListCtrl& m_grid;
    HFONT m_former;
    CFont m_font;
};

/// A grid of three columns: 0 "tree" 130 wide, 1 80 wide and centred, 2 80 wide; focus by cells.
class GridTest : public testing::Test
{
protected:
    GridTest();

    CPoint CellCentre(RowKey key, int column) const { return window.grid.GetCellRect(key, column).CenterPoint(); }
    /// The open editor of that child ID, which has the focus; null when there is none.
    HWND Editor(int id) const;

    GridWindow window;
    CFListCtrl& grid = window.grid;
};
