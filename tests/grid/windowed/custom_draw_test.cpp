#include "grid/custom_draw_list_ctrl.h"
#include "grid/f_list_ctrl.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace
{
constexpr UINT kListId = 77;

/// Writes down which hooks ran, and answers as a test says.
class RecordingList : public CListCtrlWithCustomDraw
{
public:
    std::vector<std::string> ran;
    // the answers of all yes/no hooks of a stage
    bool wantDraw = false;
    bool skips = false;
    bool wantParts = false;
    bool wantPostPaint = false;
    bool wantPostDraw = false;
    CFont* font = nullptr;
    COLORREF itemText = CLR_DEFAULT;
    COLORREF itemBack = CLR_DEFAULT;
    COLORREF subItemText = CLR_DEFAULT;
    COLORREF subItemBack = CLR_DEFAULT;
    HGDIOBJ fontInPostDraw = nullptr;
    std::vector<HDC> drawnOn;  // by the hooks that draw

    // The places of the hooks in the table of virtual functions, in bytes.
    static std::vector<std::ptrdiff_t> HookPlaces();
    static std::ptrdiff_t PlaceBeforeHooks() { return Place(&RecordingList::DrawItem); }

protected:
    bool WantControlDraw() override { return Ran("WantControlDraw", wantDraw); }
    bool DrawControl(CDC& dc) override
    {
        drawnOn.push_back(dc.GetSafeHdc());
        return Ran("DrawControl", skips);
    }
    bool WantItemNotify() override { return Ran("WantItemNotify", wantParts); }
    bool WantPostPaintNotify() override { return Ran("WantPostPaintNotify", wantPostPaint); }
    bool WantControlPostDraw() override { return Ran("WantControlPostDraw", wantPostDraw); }
    void PostDrawControl(CDC& dc) override
    {
        drawnOn.push_back(dc.GetSafeHdc());
        Ran("PostDrawControl", true);
    }
    CFont* ItemFont(int item, UINT state, LPARAM data) override
    {
        Ran("ItemFont", item, state, data);
        return font;
    }
    COLORREF ItemTextColour(int item, UINT state, LPARAM data) override
    {
        Ran("ItemTextColour", item, state, data);
        return itemText;
    }
    COLORREF ItemBackColour(int item, UINT state, LPARAM data) override
    {
        Ran("ItemBackColour", item, state, data);
        return itemBack;
    }
    bool WantItemDraw() override { return Ran("WantItemDraw", wantDraw); }
    bool PaintItem(CDC& dc, int item, UINT state, LPARAM data) override
    {
        drawnOn.push_back(dc.GetSafeHdc());
        Ran("PaintItem", item, state, data);
        return skips;
    }
    bool WantSubItemNotify() override { return Ran("WantSubItemNotify", wantParts); }
    bool WantItemPostPaintNotify() override { return Ran("WantItemPostPaintNotify", wantPostPaint); }
    bool WantItemPostDraw() override { return Ran("WantItemPostDraw", wantPostDraw); }
    void PostPaintItem(CDC& dc, int item, UINT state, LPARAM data) override
    {
        drawnOn.push_back(dc.GetSafeHdc());
        Ran("PostPaintItem", item, state, data);
        fontInPostDraw = ::GetCurrentObject(dc.GetSafeHdc(), OBJ_FONT);
    }
    CFont* SubItemFont(int item, int subItem, UINT state, LPARAM data) override
    {
        Ran("SubItemFont" + std::to_string(subItem), item, state, data);
        return font;
    }
    COLORREF SubItemTextColour(int item, int subItem, UINT state, LPARAM data) override
    {
        Ran("SubItemTextColour" + std::to_string(subItem), item, state, data);
        return subItemText;
    }
    COLORREF SubItemBackColour(int item, int subItem, UINT state, LPARAM data) override
    {
        Ran("SubItemBackColour" + std::to_string(subItem), item, state, data);
        return subItemBack;
    }
    bool WantSubItemDraw() override { return Ran("WantSubItemDraw", wantDraw); }
    bool PaintSubItem(CDC& dc, int item, int subItem, UINT state, LPARAM data) override
    {
        drawnOn.push_back(dc.GetSafeHdc());
        Ran("PaintSubItem" + std::to_string(subItem), item, state, data);
        return skips;
    }
    bool WantSubItemPostPaintNotify() override { return Ran("WantSubItemPostPaintNotify", wantPostPaint); }
    bool WantSubItemPostDraw() override { return Ran("WantSubItemPostDraw", wantPostDraw); }
    void PostPaintSubItem(CDC& dc, int item, int subItem, UINT state, LPARAM data) override
    {
        drawnOn.push_back(dc.GetSafeHdc());
        Ran("PostPaintSubItem" + std::to_string(subItem), item, state, data);
        fontInPostDraw = ::GetCurrentObject(dc.GetSafeHdc(), OBJ_FONT);
    }

private:
    bool Ran(const char* hook, bool answer)
    {
        ran.emplace_back(hook);
        return answer;
    }
    void Ran(const std::string& hook, int item, UINT state, LPARAM data)
    {
        ran.push_back(hook + " " + std::to_string(item) + " " + std::to_string(state) + " " + std::to_string(data));
    }

    // A pointer to a virtual member function holds the function's place plus one in its first word.
    template <typename Hook>
    static std::ptrdiff_t Place(Hook hook)
    {
        std::ptrdiff_t words[2];
        static_assert(sizeof(hook) == sizeof(words));
        std::memcpy(words, &hook, sizeof(words));
        return words[0] - 1;
    }
};

std::vector<std::ptrdiff_t> RecordingList::HookPlaces()
{
    using L = RecordingList;
    return {Place(&L::WantControlDraw),
            Place(&L::DrawControl),
            Place(&L::WantItemNotify),
            Place(&L::WantPostPaintNotify),
            Place(&L::WantControlPostDraw),
            Place(&L::PostDrawControl),
            Place(&L::ItemFont),
            Place(&L::ItemTextColour),
            Place(&L::ItemBackColour),
            Place(&L::WantItemDraw),
            Place(&L::PaintItem),
            Place(&L::WantSubItemNotify),
            Place(&L::WantItemPostPaintNotify),
            Place(&L::WantItemPostDraw),
            Place(&L::PostPaintItem),
            Place(&L::SubItemFont),
            Place(&L::SubItemTextColour),
            Place(&L::SubItemBackColour),
            Place(&L::WantSubItemDraw),
            Place(&L::PaintSubItem),
            Place(&L::WantSubItemPostPaintNotify),
            Place(&L::WantSubItemPostDraw),
            Place(&L::PostPaintSubItem)};
}

/// A parent that passes made-up drawing stages on to its list.
template <typename List>
class DrawnList
{
public:
    DrawnList()
    {
        parent.CreateEx(0, AfxRegisterWndClass(0), L"custom draw", WS_POPUP | WS_VISIBLE, CRect(20, 20, 320, 220),
                        nullptr, 0);
        list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 200), &parent, kListId);
        screen = ::GetDC(list.GetSafeHwnd());
    }
    ~DrawnList()
    {
        ::ReleaseDC(list.GetSafeHwnd(), screen);
        parent.DestroyWindow();
    }

    /// @return  the list's answer
    LRESULT Stage(DWORD stage, int subItem = 0)
    {
        record = {};
        record.nmcd.hdr = {list.GetSafeHwnd(), kListId, static_cast<UINT>(NM_CUSTOMDRAW)};
        record.nmcd.dwDrawStage = stage;
        record.nmcd.hdc = screen;
        record.nmcd.dwItemSpec = 3;
        record.nmcd.uItemState = 5;
        record.nmcd.lItemlParam = 7;
        record.iSubItem = subItem;
        record.clrText = RGB(1, 2, 3);
        record.clrTextBk = RGB(4, 5, 6);
        return parent.SendMessage(WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&record));
    }

    HGDIOBJ CurrentFont() const { return ::GetCurrentObject(screen, OBJ_FONT); }

    CWnd parent;
    List list;
    HDC screen = nullptr;
    NMLVCUSTOMDRAW record{};
};

class CustomDraw : public testing::Test
{
protected:
    CustomDraw()
    {
        LOGFONT description{};
        description.lfHeight = -20;
        font.CreateFontIndirect(&description);
        fontBefore = drawn.CurrentFont();
    }

    CFont font;
    DrawnList<RecordingList> drawn;
    RecordingList& list = drawn.list;
    HGDIOBJ fontBefore = nullptr;
};
using Ran = std::vector<std::string>;

constexpr DWORD kSubItemPrePaint = CDDS_SUBITEM | CDDS_ITEMPREPAINT;
constexpr DWORD kSubItemPostPaint = CDDS_SUBITEM | CDDS_ITEMPOSTPAINT;
}  // namespace

TEST(CustomDrawHooks, FollowAllVirtualFunctionsOfTheListInTheirOrder)
{
    const std::vector<std::ptrdiff_t> places = RecordingList::HookPlaces();
    ASSERT_EQ(places.size(), 23U);
    EXPECT_GT(places[0], RecordingList::PlaceBeforeHooks());
    for (std::size_t hook = 1; hook < places.size(); ++hook)
        EXPECT_EQ(places[hook], places[hook - 1] + static_cast<std::ptrdiff_t>(sizeof(void*))) << hook;
}

TEST(CustomDrawHooks, LeaveEverythingToTheListUnlessOverridden)
{
    DrawnList<CListCtrlWithCustomDraw> drawn;
    EXPECT_EQ(drawn.Stage(CDDS_PREPAINT), CDRF_DODEFAULT);
    EXPECT_EQ(drawn.Stage(CDDS_POSTPAINT), CDRF_DODEFAULT);
    EXPECT_EQ(drawn.Stage(CDDS_ITEMPREPAINT), CDRF_DODEFAULT);
    EXPECT_EQ(drawn.record.clrText, 0xFF000000);
    EXPECT_EQ(drawn.record.clrTextBk, 0xFF000000);
    EXPECT_EQ(drawn.Stage(CDDS_ITEMPOSTPAINT), CDRF_DODEFAULT);
    EXPECT_EQ(drawn.Stage(kSubItemPrePaint), CDRF_DODEFAULT);
    EXPECT_EQ(drawn.record.clrText, 0xFF000000);
    EXPECT_EQ(drawn.record.clrTextBk, 0xFF000000);
    EXPECT_EQ(drawn.Stage(kSubItemPostPaint), CDRF_DODEFAULT);
}

namespace
{
/// A grid whose drawing is written down instead.
class DrawingGrid : public CFListCtrl
{
public:
    std::vector<std::string> ran;

protected:
    bool DrawControl(CDC& dc) override
    {
        ran.emplace_back("DrawControl");
        return CFListCtrl::DrawControl(dc);
    }
    bool PaintItem(CDC& dc, int item, UINT state, LPARAM data) override
    {
        ran.emplace_back("PaintItem");
        return CFListCtrl::PaintItem(dc, item, state, data);
    }
    bool PaintSubItem(CDC&, int, int, UINT, LPARAM) override
    {
        ran.emplace_back("PaintSubItem");
        return true;
    }
};
}  // namespace

TEST(GridDrawing, WantsControlItemsAndSubItemsAndSkipsTheDefaultOfSubItemsAlone)
{
    DrawnList<DrawingGrid> drawn;
    EXPECT_EQ(drawn.Stage(CDDS_PREPAINT), 0x20);
    EXPECT_EQ(drawn.Stage(CDDS_ITEMPREPAINT), 0x20);
    EXPECT_EQ(drawn.Stage(kSubItemPrePaint), 0x04);
    EXPECT_EQ(drawn.list.ran, (Ran{"DrawControl", "PaintItem", "PaintSubItem"}));
}

TEST_F(CustomDraw, ControlPrePaintAsksItsHooks)
{
    EXPECT_EQ(drawn.Stage(CDDS_PREPAINT), 0);
    EXPECT_EQ(list.ran, (Ran{"WantControlDraw", "WantItemNotify", "WantPostPaintNotify"}));
}

TEST_F(CustomDraw, ControlPrePaintAnswersWithTheFlagsOfItsHooks)
{
    list.wantDraw = true;
    EXPECT_EQ(drawn.Stage(CDDS_PREPAINT), 0);
    list.skips = true;
    EXPECT_EQ(drawn.Stage(CDDS_PREPAINT), 0x04);
    list.wantParts = true;
    EXPECT_EQ(drawn.Stage(CDDS_PREPAINT), 0x24);
    list.wantPostPaint = true;
    EXPECT_EQ(drawn.Stage(CDDS_PREPAINT), 0x34);
}

TEST_F(CustomDraw, ControlIsDrawnOnlyWhenWanted)
{
    list.skips = true;
    EXPECT_EQ(drawn.Stage(CDDS_PREPAINT), 0);
}

TEST_F(CustomDraw, ControlPostPaintDrawsWhenWanted)
{
    drawn.Stage(CDDS_POSTPAINT);
    list.wantPostDraw = true;
    drawn.Stage(CDDS_POSTPAINT);
    EXPECT_EQ(list.ran, (Ran{"WantControlPostDraw", "WantControlPostDraw", "PostDrawControl"}));
}

TEST_F(CustomDraw, ItemPrePaintRunsItsHooksWithItemStateAndData)
{
    list.wantDraw = true;
    EXPECT_EQ(drawn.Stage(CDDS_ITEMPREPAINT), 0);
    EXPECT_EQ(list.ran, (Ran{"ItemFont 3 5 7", "ItemTextColour 3 5 7", "ItemBackColour 3 5 7", "WantItemDraw",
                             "PaintItem 3 5 7", "WantSubItemNotify", "WantItemPostPaintNotify"}));
}

TEST_F(CustomDraw, ItemPrePaintAnswersWithTheFlagsOfItsHooks)
{
    list.wantPostPaint = true;
    EXPECT_EQ(drawn.Stage(CDDS_ITEMPREPAINT), 0x10);
    list.wantParts = true;
    EXPECT_EQ(drawn.Stage(CDDS_ITEMPREPAINT), 0x30);
    list.wantDraw = true;
    list.skips = true;
    EXPECT_EQ(drawn.Stage(CDDS_ITEMPREPAINT), 0x34);
}

TEST_F(CustomDraw, ColoursOfTheStageGoIntoTheRecord)
{
    list.itemText = RGB(10, 20, 30);
    list.itemBack = RGB(40, 50, 60);
    list.subItemText = RGB(70, 80, 90);
    list.subItemBack = RGB(100, 110, 120);
    drawn.Stage(CDDS_ITEMPREPAINT);
    EXPECT_EQ(drawn.record.clrText, RGB(10, 20, 30));
    EXPECT_EQ(drawn.record.clrTextBk, RGB(40, 50, 60));
    drawn.Stage(kSubItemPrePaint);
    EXPECT_EQ(drawn.record.clrText, RGB(70, 80, 90));
    EXPECT_EQ(drawn.record.clrTextBk, RGB(100, 110, 120));
}

TEST_F(CustomDraw, HooksThatDrawGetTheContextOfTheRecord)
{
    list.wantDraw = true;
    list.wantPostDraw = true;
    for (const DWORD stage :
         {static_cast<DWORD>(CDDS_PREPAINT), static_cast<DWORD>(CDDS_POSTPAINT), static_cast<DWORD>(CDDS_ITEMPREPAINT),
          static_cast<DWORD>(CDDS_ITEMPOSTPAINT), kSubItemPrePaint, kSubItemPostPaint})
        drawn.Stage(stage);
    EXPECT_EQ(list.drawnOn, std::vector<HDC>(6, drawn.screen));
}

TEST_F(CustomDraw, ItemFontIsSelectedAndForcesThePostPaintStage)
{
    list.font = &font;
    EXPECT_EQ(drawn.Stage(CDDS_ITEMPREPAINT), 0x10);
    EXPECT_EQ(drawn.CurrentFont(), font.GetSafeHandle());
    drawn.Stage(CDDS_ITEMPOSTPAINT);
    EXPECT_EQ(drawn.CurrentFont(), fontBefore);
}

TEST_F(CustomDraw, SubItemFontInsideAnItemFontIsPutBackFirst)
{
    CFont other;
    LOGFONT description{};
    description.lfHeight = -30;
    other.CreateFontIndirect(&description);
    list.font = &font;
    drawn.Stage(CDDS_ITEMPREPAINT);
    list.font = &other;
    EXPECT_EQ(drawn.Stage(kSubItemPrePaint, 1), 0x10);
    EXPECT_EQ(drawn.CurrentFont(), other.GetSafeHandle());
    drawn.Stage(kSubItemPostPaint, 1);
    EXPECT_EQ(drawn.CurrentFont(), font.GetSafeHandle());
    drawn.Stage(CDDS_ITEMPOSTPAINT);
    EXPECT_EQ(drawn.CurrentFont(), fontBefore);
}

// A list need not send the post-paint stage of what it was told not to paint.
TEST_F(CustomDraw, FontIsPutBackAtOnceWhenTheDefaultPaintingIsSkipped)
{
    list.font = &font;
    list.wantDraw = true;
    list.skips = true;
    EXPECT_EQ(drawn.Stage(CDDS_ITEMPREPAINT), 0x14);
    EXPECT_EQ(drawn.CurrentFont(), fontBefore);
    EXPECT_EQ(drawn.Stage(kSubItemPrePaint), 0x14);
    EXPECT_EQ(drawn.CurrentFont(), fontBefore);
}

TEST_F(CustomDraw, ItemPostPaintDrawsWhenWantedWithTheFormerFont)
{
    list.font = &font;
    list.wantPostDraw = true;
    drawn.Stage(CDDS_ITEMPREPAINT);
    list.ran.clear();
    drawn.Stage(CDDS_ITEMPOSTPAINT);
    EXPECT_EQ(list.ran, (Ran{"WantItemPostDraw", "PostPaintItem 3 5 7"}));
    EXPECT_EQ(list.fontInPostDraw, fontBefore);
}

TEST_F(CustomDraw, SubItemPrePaintRunsItsHooks)
{
    list.wantDraw = true;
    EXPECT_EQ(drawn.Stage(kSubItemPrePaint, 2), 0);
    EXPECT_EQ(list.ran, (Ran{"SubItemFont2 3 5 7", "SubItemTextColour2 3 5 7", "SubItemBackColour2 3 5 7",
                             "WantSubItemDraw", "PaintSubItem2 3 5 7", "WantSubItemPostPaintNotify"}));
}

TEST_F(CustomDraw, SubItemPrePaintAnswersWithTheFlagsOfItsHooks)
{
    list.wantParts = true;
    EXPECT_EQ(drawn.Stage(kSubItemPrePaint), 0);
    list.wantPostPaint = true;
    EXPECT_EQ(drawn.Stage(kSubItemPrePaint), 0x10);
    list.wantDraw = true;
    list.skips = true;
    EXPECT_EQ(drawn.Stage(kSubItemPrePaint), 0x14);
}

TEST_F(CustomDraw, SubItemPostPaintDrawsWhenWanted)
{
    list.wantPostDraw = true;
    drawn.Stage(kSubItemPostPaint, 2);
    EXPECT_EQ(list.ran, (Ran{"WantSubItemPostDraw", "PostPaintSubItem2 3 5 7"}));
}

TEST_F(CustomDraw, RealPaintingReachesTheHooksOfEveryStage)
{
    list.InsertColumn(0, L"one", LVCFMT_LEFT, 100);
    list.InsertItem(0, L"item");
    list.wantParts = true;
    list.wantPostPaint = true;
    list.wantPostDraw = true;
    list.ran.clear();
    list.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    Ran stages;
    for (const std::string& hook : list.ran)
        if (hook.starts_with("WantItemNotify") || hook.starts_with("WantSubItemNotify") ||
            hook.starts_with("WantSubItemDraw") || hook.starts_with("WantSubItemPostDraw") ||
            hook.starts_with("WantItemPostDraw") || hook.starts_with("WantControlPostDraw"))
            stages.push_back(hook);
    EXPECT_EQ(stages, (Ran{"WantItemNotify", "WantSubItemNotify", "WantSubItemDraw", "WantSubItemPostDraw",
                           "WantItemPostDraw", "WantControlPostDraw"}));
}
