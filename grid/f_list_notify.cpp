#include "grid/f_list_ctrl.h"

namespace
{
constexpr LRESULT kNotSent = -1;
}  // namespace

void CFListCtrl::FillRecord(NMFLISTCTRL& record, UINT code, const CFListRow* row, int column, LPCTSTR text) const
{
    record.hdr.hwndFrom = m_hWnd;
    record.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    record.hdr.code = code;
    record.column = column;
    record.text = text;
    if (row != nullptr)
    {
        record.rowKey = row->Key();
        record.collapsed = row->IsExpanded() ? 0 : 1;
        record.userData = reinterpret_cast<LPARAM>(row->UserData());
    }
}

LRESULT CFListCtrl::SendRecord(NMFLISTCTRL& record)
{
    CWnd* const parent = GetParent();
    if (m_notificationLock != 0 || parent == nullptr)
        return kNotSent;
    return parent->SendMessage(WM_NOTIFY, record.hdr.idFrom, reinterpret_cast<LPARAM>(&record));
}

LRESULT CFListCtrl::Notify(UINT code, const CFListRow* row, int column, LPCTSTR text, std::int32_t extra)
{
    NMFLISTCTRL record;
    FillRecord(record, code, row, column, text);
    record.extra = extra;
    return SendRecord(record);
}
