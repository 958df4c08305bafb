#include "grid/custom_draw_list_ctrl.h"

#include <utility>

namespace
{
int ItemOf(const NMLVCUSTOMDRAW& draw)
{
    return static_cast<int>(draw.nmcd.dwItemSpec);
}

CDC& ContextOf(const NMLVCUSTOMDRAW& draw)
{
    return *CDC::FromHandle(draw.nmcd.hdc);
}

// Selects the font, if there is one, and remembers the former one for PutFontBack.
bool SelectFont(CDC& dc, CFont* font, HGDIOBJ& former)
{
    if (font == nullptr)
        return false;
    former = ::SelectObject(dc.GetSafeHdc(), font->GetSafeHandle());
    return true;
}

void PutFontBack(CDC& dc, HGDIOBJ& former)
{
    if (former != nullptr)
        ::SelectObject(dc.GetSafeHdc(), std::exchange(former, nullptr));
}
}  // namespace

BEGIN_MESSAGE_MAP(CListCtrlWithCustomDraw, CListCtrl)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CListCtrlWithCustomDraw::OnCustomDraw)
END_MESSAGE_MAP()

void CListCtrlWithCustomDraw::OnCustomDraw(NMHDR* header, LRESULT* result)
{
    auto& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(header);
    *result = CDRF_DODEFAULT;
    switch (draw.nmcd.dwDrawStage)
    {
    case CDDS_PREPAINT:
        *result = OnControlPrePaint(draw);
        break;
    case CDDS_POSTPAINT:
        OnControlPostPaint(draw);
        break;
    case CDDS_ITEMPREPAINT:
        *result = OnItemPrePaint(draw);
        break;
    case CDDS_ITEMPOSTPAINT:
        OnItemPostPaint(draw);
        break;
    case CDDS_SUBITEM | CDDS_ITEMPREPAINT:
        *result = OnSubItemPrePaint(draw);
        break;
    case CDDS_SUBITEM | CDDS_ITEMPOSTPAINT:
        OnSubItemPostPaint(draw);
        break;
    default:
        break;
    }
}

LRESULT CListCtrlWithCustomDraw::OnControlPrePaint(const NMLVCUSTOMDRAW& draw)
{
    LRESULT answer = CDRF_DODEFAULT;
    if (WantControlDraw() && DrawControl(ContextOf(draw)))
        answer |= CDRF_SKIPDEFAULT;
    if (WantItemNotify())
        answer |= CDRF_NOTIFYITEMDRAW;
    if (WantPostPaintNotify())
        answer |= CDRF_NOTIFYPOSTPAINT;
    return answer;
}

void CListCtrlWithCustomDraw::OnControlPostPaint(const NMLVCUSTOMDRAW& draw)
{
    if (WantControlPostDraw())
        PostDrawControl(ContextOf(draw));
}

LRESULT CListCtrlWithCustomDraw::OnItemPrePaint(NMLVCUSTOMDRAW& draw)
{
    CDC& dc = ContextOf(draw);
    const int item = ItemOf(draw);
    const UINT state = draw.nmcd.uItemState;
    const LPARAM data = draw.nmcd.lItemlParam;
    LRESULT answer = CDRF_DODEFAULT;

    if (SelectFont(dc, ItemFont(item, state, data), m_fontBeforeItem))
        answer |= CDRF_NOTIFYPOSTPAINT;
    draw.clrText = ItemTextColour(item, state, data);
    draw.clrTextBk = ItemBackColour(item, state, data);
    if (WantItemDraw() && PaintItem(dc, item, state, data))
    {
        answer |= CDRF_SKIPDEFAULT;
        // A list view need not tell of the end of an item that it didn't paint.
        PutFontBack(dc, m_fontBeforeItem);
    }
    if (WantSubItemNotify())
        answer |= CDRF_NOTIFYSUBITEMDRAW;
    if (WantItemPostPaintNotify())
        answer |= CDRF_NOTIFYPOSTPAINT;
    return answer;
}

void CListCtrlWithCustomDraw::OnItemPostPaint(const NMLVCUSTOMDRAW& draw)
{
    CDC& dc = ContextOf(draw);
    PutFontBack(dc, m_fontBeforeItem);
    if (WantItemPostDraw())
        PostPaintItem(dc, ItemOf(draw), draw.nmcd.uItemState, draw.nmcd.lItemlParam);
}

LRESULT CListCtrlWithCustomDraw::OnSubItemPrePaint(NMLVCUSTOMDRAW& draw)
{
    CDC& dc = ContextOf(draw);
    const int item = ItemOf(draw);
    const UINT state = draw.nmcd.uItemState;
    const LPARAM data = draw.nmcd.lItemlParam;
    LRESULT answer = CDRF_DODEFAULT;

    if (SelectFont(dc, SubItemFont(item, draw.iSubItem, state, data), m_fontBeforeSubItem))
        answer |= CDRF_NOTIFYPOSTPAINT;
    draw.clrText = SubItemTextColour(item, draw.iSubItem, state, data);
    draw.clrTextBk = SubItemBackColour(item, draw.iSubItem, state, data);
    if (WantSubItemDraw() && PaintSubItem(dc, item, draw.iSubItem, state, data))
    {
        answer |= CDRF_SKIPDEFAULT;
        PutFontBack(dc, m_fontBeforeSubItem);  // as for items
    }
    if (WantSubItemPostPaintNotify())
        answer |= CDRF_NOTIFYPOSTPAINT;
    return answer;
}

void CListCtrlWithCustomDraw::OnSubItemPostPaint(const NMLVCUSTOMDRAW& draw)
{
    CDC& dc = ContextOf(draw);
    PutFontBack(dc, m_fontBeforeSubItem);
    if (WantSubItemPostDraw())
        PostPaintSubItem(dc, ItemOf(draw), draw.iSubItem, draw.nmcd.uItemState, draw.nmcd.lItemlParam);
}

// What a class does that overrides nothing: the list draws itself in its own colours.

bool CListCtrlWithCustomDraw::WantControlDraw()
{
    return false;
}

bool CListCtrlWithCustomDraw::DrawControl(CDC&)
{
    return false;
}

bool CListCtrlWithCustomDraw::WantItemNotify()
{
    return false;
}

bool CListCtrlWithCustomDraw::WantPostPaintNotify()
{
    return false;
}

bool CListCtrlWithCustomDraw::WantControlPostDraw()
{
    return false;
}

void CListCtrlWithCustomDraw::PostDrawControl(CDC&) {}

CFont* CListCtrlWithCustomDraw::ItemFont(int, UINT, LPARAM)
{
    return nullptr;
}

COLORREF CListCtrlWithCustomDraw::ItemTextColour(int, UINT, LPARAM)
{
    return CLR_DEFAULT;
}

COLORREF CListCtrlWithCustomDraw::ItemBackColour(int, UINT, LPARAM)
{
    return CLR_DEFAULT;
}

bool CListCtrlWithCustomDraw::WantItemDraw()
{
    return false;
}

bool CListCtrlWithCustomDraw::PaintItem(CDC&, int, UINT, LPARAM)
{
    return false;
}

bool CListCtrlWithCustomDraw::WantSubItemNotify()
{
    return false;
}

bool CListCtrlWithCustomDraw::WantItemPostPaintNotify()
{
    return false;
}

bool CListCtrlWithCustomDraw::WantItemPostDraw()
{
    return false;
}

void CListCtrlWithCustomDraw::PostPaintItem(CDC&, int, UINT, LPARAM) {}

CFont* CListCtrlWithCustomDraw::SubItemFont(int, int, UINT, LPARAM)
{
    return nullptr;
}

COLORREF CListCtrlWithCustomDraw::SubItemTextColour(int, int, UINT, LPARAM)
{
    return CLR_DEFAULT;
}

COLORREF CListCtrlWithCustomDraw::SubItemBackColour(int, int, UINT, LPARAM)
{
    return CLR_DEFAULT;
}

bool CListCtrlWithCustomDraw::WantSubItemDraw()
{
    return false;
}

bool CListCtrlWithCustomDraw::PaintSubItem(CDC&, int, int, UINT, LPARAM)
{
    return false;
}

bool CListCtrlWithCustomDraw::WantSubItemPostPaintNotify()
{
    return false;
}

bool CListCtrlWithCustomDraw::WantSubItemPostDraw()
{
    return false;
}

void CListCtrlWithCustomDraw::PostPaintSubItem(CDC&, int, int, UINT, LPARAM) {}
