#include "host/player/notification_log.h"

#include <utility>

#include "host/player/window_roles.h"
#include "interface/calc_tol_dlg_base.h"
#include "interface/notifications.h"
#include "platform/moduleskin/resource.h"

namespace
{

bool OpensDistribution(int command)
{
    return command == ID_LINK_DISTRIBUTION || command == ID_CONTEXT_LINK_DISTRIBUTION ||
           command == ID_CLOSING_DISTRIBUTION || command == ID_CONTEXT_CLOSING_DISTRIBUTION;
}

}  // namespace

void NotificationLog::NoteDialogs()
{
    const CCalcTolDlgBase* const dialog = m_host.Dialog();
    const HWND window = dialog == nullptr ? nullptr : dialog->GetSafeHwnd();
    if (window != m_dialogWindow)
    {
        m_dialogWindow = window;
        m_linkMade = m_closingMade = m_distributionMade = false;
    }
    if (window == nullptr)
        return;
    const HWND hostWindow = m_host.MainWindow();
    m_linkMade = m_linkMade || RoleExists(WindowRole::kLink, hostWindow);
    m_closingMade = m_closingMade || RoleExists(WindowRole::kClosing, hostWindow);
    m_distributionMade = m_distributionMade || RoleExists(WindowRole::kDistribution, hostWindow);
}

ReadRecords NotificationLog::ReadNow()
{
    NoteDialogs();
    ReadRecords records;
    CCalcTolDlgBase* const dialog = m_host.Dialog();
    if (dialog == nullptr)
        return records;
    if (m_linkMade)
        dialog->GetDimDlgParams(records.link.emplace());
    if (m_closingMade)
        dialog->GetCloseDimDlgParams(records.closing.emplace());
    if (m_distributionMade)
        dialog->GetVariableDlgParams(records.distribution.emplace());
    return records;
}

void NotificationLog::OnNotified(UINT code)
{
    m_codes.push_back(code);
    // The distribution dialog is there, filled, when its beginning is told, but has no window yet.
    if ((code == kLinkBegins || code == kClosingBegins) && OpensDistribution(m_lastCommand))
    {
        NoteDialogs();
        m_distributionMade = true;
    }
    ReadRecords records = ReadNow();
    const std::optional<CDimParams>& own = code == kClosingAccepted ? records.closing : records.link;
    if (own)
        m_lastDimension = *own;
    if (records.distribution)
        m_lastDistribution = *records.distribution;
    m_readInside[code] = std::move(records);

    // Taken out first: a call may bring the next notification with the same code.
    const auto [first, last] = m_calls.equal_range(code);
    std::vector<std::function<void()>> calls;
    for (auto call = first; call != last; ++call)
        calls.push_back(std::move(call->second));
    m_calls.erase(first, last);
    for (const std::function<void()>& call : calls)
        call();
}

std::vector<UINT> NotificationLog::TakeCodes()
{
    return std::exchange(m_codes, {});
}

void NotificationLog::CallInsideNext(UINT code, std::function<void()> call)
{
    m_calls.emplace(code, std::move(call));
}

const ReadRecords* NotificationLog::ReadInside(UINT code) const
{
    const auto records = m_readInside.find(code);
    return records == m_readInside.end() ? nullptr : &records->second;
}
