#include "window/command_target.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget() = default;
CCmdTarget::~CCmdTarget() = default;

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP_ENTRY* CCmdTarget::FindMessageEntry(UINT message, UINT code, UINT id) const
{
    const AFX_MSGMAP* map = GetMessageMap();
    while (map != nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nMessage != 0; ++entry)
        {
            if (entry->nMessage == message && entry->nCode == code && entry->nID <= id && id <= entry->nLastID)
                return entry;
        }
        map = map->pfnGetBaseMap == nullptr ? nullptr : map->pfnGetBaseMap();
    }
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    const UINT message = HIWORD(code) == 0 ? WM_COMMAND : HIWORD(code);
    const AFX_MSGMAP_ENTRY* entry = FindMessageEntry(message, LOWORD(code), id);
    if (entry == nullptr)
        return FALSE;
    if (handlerInfo != nullptr)
    {
        handlerInfo->pTarget = this;
        return TRUE;
    }
    const auto* notify = static_cast<const AFX_NOTIFY*>(extra);
    HandlerCall call = {id, notify == nullptr ? 0 : reinterpret_cast<LPARAM>(notify->pNMHDR), 0};
    entry->pfn(*this, call);
    if (notify != nullptr)
        *notify->pResult = call.result;
    return TRUE;
}
