#pragma once

#include "afx.h"

class CCmdTarget;

/// Marks a message handler, for the reader.
#define afx_msg

/// What a message-map entry's handler is called with, and what it answers.
struct HandlerCall
{
    WPARAM wParam;  ///< for a command: its ID
    LPARAM lParam;  ///< for a notification: its NMHDR
    LRESULT result;
};

/// One row of a message map: which message, and the function that unpacks it and calls the handler of `target`.
struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;  ///< 0 in the row that ends a map
    UINT nCode;     ///< notification code of WM_COMMAND and WM_NOTIFY, else 0
    UINT nID;       ///< first control or command ID, else 0
    UINT nLastID;   ///< last ID of the range
    void (*pfn)(CCmdTarget& target, HandlerCall& call);
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)();  ///< null in the root
    const AFX_MSGMAP_ENTRY* lpEntries;
};

/// What OnCmdMsg's `extra` points to when the command is a WM_NOTIFY.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

/// Who would handle a command, when OnCmdMsg is asked instead of told.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
};

/// Notification code of a menu or accelerator command, the same as BN_CLICKED.
constexpr int CN_COMMAND = 0;

/// Added to WM_COMMAND and WM_NOTIFY where a control's own map handles what the control sent to its parent.
constexpr UINT kReflectedMessage = 0xBC00;

/// An object with a message map.
class FRAMEWORK_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();
    ~CCmdTarget() override;

    /// Routes a command or notification to a handler of this object's map.
    /// @param code         the notification code; for WM_NOTIFY MAKELONG(code, WM_NOTIFY)
    /// @param extra        AFX_NOTIFY for WM_NOTIFY, else null
    /// @param handlerInfo  when given, the handling object is stored there and no handler runs
    /// @return             non-zero when there is a handler
    virtual BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo);

protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    /// The first row, of the most derived class first, for that message, code and ID; null when there is none.
    const AFX_MSGMAP_ENTRY* FindMessageEntry(UINT message, UINT code, UINT id) const;
};
