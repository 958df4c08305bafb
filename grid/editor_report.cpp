#include "grid/editor_report.h"

#include "grid/cell_geometry.h"

void EndByKey(CWnd& editor, EditedCell& cell, UINT key)
{
    if (cell.isReported)
        return;
    cell.endingKey = key;
    editor.GetParent()->SetFocus();
}

bool ReportEnd(CWnd& editor, EditedCell& cell, UINT code, std::int32_t extra)
{
    if (cell.isReported)
        return false;
    cell.isReported = true;
    CWnd* const grid = editor.GetParent();
    NMFLISTCTRL report;
    report.hdr.hwndFrom = grid->GetSafeHwnd();
    report.hdr.idFrom = static_cast<UINT_PTR>(grid->GetDlgCtrlID());
    report.hdr.code = code;
    report.rowKey = cell.rowKey;
    report.column = cell.column;
    report.userData = static_cast<LPARAM>(cell.endingKey);
    report.extra = extra;
    editor.GetWindowText(report.text);
    grid->SendMessage(WM_NOTIFY, report.hdr.idFrom, reinterpret_cast<LPARAM>(&report));
    return true;
}

bool GrowToText(CWnd& editor)
{
    CWnd* const grid = editor.GetParent();
    CString text;
    editor.GetWindowText(text);
    CClientDC dc(&editor);
    CFont* const former = dc.SelectObject(grid->GetFont());
    const int textWidth = dc.GetTextExtent(text).cx;
    dc.SelectObject(former);

    CRect place;
    editor.GetWindowRect(&place);
    grid->ScreenToClient(&place);
    CRect client;
    editor.GetClientRect(&client);
    CRect limits;
    grid->GetClientRect(&limits);
    const int width = GrownWidth(place.left, client.Width(), textWidth, limits.right);
    if (width <= client.Width())
        return false;
    editor.SetWindowPos(nullptr, 0, 0, place.Width() + width - client.Width(), place.Height(),
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return true;
}
