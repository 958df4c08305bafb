#pragma once

#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "host/player/played_host.h"
#include "interface/dim_params.h"
#include "interface/variable_params.h"

/// The records of the dialogs that were there when they were read.
struct ReadRecords
{
    std::optional<CDimParams> link;
    std::optional<CDimParams> closing;
    std::optional<CVariableParams> distribution;
};

/// Keeps what the host was told and what could be read then, and makes the calls that a script wants inside a
/// notification.
class NotificationLog : public NotificationObserver
{
public:
    explicit NotificationLog(PlayedHost& host) : m_host(host) {}

    void OnNotified(UINT code) override;

    /// The codes since the last call, in order.
    std::vector<UINT> TakeCodes();

    /// Made inside the next notification `code`, once, after those that were given before.
    void CallInsideNext(UINT code, std::function<void()> call);

    /// What was read inside the last notification `code`; null when there was none.
    const ReadRecords* ReadInside(UINT code) const;

    /// Reads the records now, of all dialogs that the calculation dialog has made.
    ReadRecords ReadNow();

    /// Looks which dialogs are there, so that their records may be read later too. To be called now and then.
    void NoteDialogs();
    /// A command is about to reach the calculation dialog: some make a dialog before their notification comes.
    void NoteCommand(int command) { m_lastCommand = command; }

    /// The records that were read last, which calls with single fields start from.
    CDimParams& LastDimension() { return m_lastDimension; }
    CVariableParams& LastDistribution() { return m_lastDistribution; }

private:
    PlayedHost& m_host;
    std::vector<UINT> m_codes;
    std::multimap<UINT, std::function<void()>> m_calls;
    std::map<UINT, ReadRecords> m_readInside;
    CDimParams m_lastDimension;
    CVariableParams m_lastDistribution;
    int m_lastCommand = 0;

    // The calculation dialog keeps the last dialog of each kind, but its window's end makes it forget them.
    HWND m_dialogWindow = nullptr;
    bool m_linkMade = false;
    bool m_closingMade = false;
    bool m_distributionMade = false;
};
