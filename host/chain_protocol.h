#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <afxwin.h>

#include "host/chain_copy.h"
#include "host/drawing_objects.h"
#include "host/player/played_host.h"
#include "interface/calc_tol_dlg_base.h"

/// What the calculation dialog is doing, as far as the host is told.
enum class ChainRound
{
    kClosed,               ///< no calculation dialog
    kIdle,                 ///< no dialog of its own is open
    kAddingLink,           ///< the link tolerance dialog waits for a dimension
    kAddingClosing,        ///< the closing-link tolerance dialog waits for a dimension
    kEditing,              ///< a tolerance dialog opens with the values of a row, which one isn't known yet
    kEditingLink,          ///< the link tolerance dialog, filled from a row
    kEditingClosing,       ///< the closing-link tolerance dialog, filled from the row
    kLinkDistribution,     ///< a link's distribution dialog
    kClosingDistribution,  ///< the closing link's distribution dialog
};

/// Wants to know when round, loaded dimension or dialog are others than before.
class ChainProtocolListener
{
public:
    virtual ~ChainProtocolListener() = default;
    virtual void OnProtocolChanged() = 0;
};

/// The host's side of the module's interface: owns the calculation dialog, answers its notifications, loads the
/// dimensions that are picked, and keeps a copy of the chain.
///
/// Which row an edit or a distribution is about is never told. So, as soon as the dialog is open and before the user
/// can change anything in it, its record is read and looked up in the copy; where several rows could be meant, the
/// copy forgets the values of all links rather than change the wrong one. Which of the two tolerance dialogs opens for
/// an edit shows in the same way: the other one's record stays as it was.
///
/// After an applied edit the tolerance dialog waits for the next dimension, which is added: rewriting the row once more
/// would put one dimension's tolerance to another one's nominal size.
class ChainProtocol
{
public:
    using DialogFactory = CCalcTolDlgBase* (*)();

    /// Messages that the protocol posts to the host's window, which passes them on to OnPosted.
    static constexpr UINT kLookAtChild = WM_APP + 1;
    static constexpr UINT kEndDialog = WM_APP + 2;

    /// All must outlive the protocol.
    ChainProtocol(CWnd& hostWindow, const DrawingObjects& objects, DialogFactory factory,
                  ChainProtocolListener& listener);
    ~ChainProtocol();
    ChainProtocol(const ChainProtocol&) = delete;
    ChainProtocol& operator=(const ChainProtocol&) = delete;

    /// Makes and shows the calculation dialog; an object whose window is gone is replaced. Without a label the module
    /// is given none.
    /// @return  false when there is no memory or no window
    bool Open(const std::optional<CString>& label);
    CCalcTolDlgBase* Dialog() const { return m_dialog.get(); }
    bool HasWindow() const { return m_dialog != nullptr && m_dialog->GetSafeHwnd() != nullptr; }
    void DestroyWindow();
    /// Deletes the object, and with it the window.
    void DeleteDialog();
    void CancelDialog();
    void EndModal();

    /// A notification of the module.
    void OnNotified(UINT code);
    /// One of the protocol's own messages.
    void OnPosted(UINT message, WPARAM number);
    /// Whether the notification is answered; at the start all are that have an answer.
    void SetAnswering(UINT code, bool answering);
    /// Told of every notification before the answer; null for none.
    void SetObserver(NotificationObserver* observer) { m_observer = observer; }

    /// Loads a dimension of the drawing into the open tolerance dialog.
    /// @return  false when none waits for one, or when the dimension has no nominal size
    bool Pick(const DrawingObject& object);
    /// The dimension that was loaded last into the tolerance dialog that is open; null for none.
    const DrawingObject* Loaded() const { return m_loaded; }
    ChainRound Round() const { return m_round; }

    /// The chain as the step `print` shows it.
    std::vector<std::string> ChainLines();

private:
    void Begin(ChainRound round);
    void BeginEdit();
    void End();
    void SetRound(ChainRound round);
    void ForgetDialog();
    void LookAtChild();
    void LookAtEdited();
    void LookAtDistribution();
    std::optional<CDimParams> LinkRecord();
    std::optional<CDimParams> ClosingRecord();
    void AcceptLink();
    void AcceptClosing();
    void AcceptDistribution();
    void AddLink(const CDimParams& params);
    void RewriteLink(CDimParams& params);
    const DrawingObject* ObjectFor(const CDimParams& params) const;
    void FollowChain();
    template <class Record>
    void FindEditedLink(const Record& record);
    void ChangeEditedLink(const std::optional<CopiedLink>& values);

    CWnd& m_hostWindow;
    const DrawingObjects& m_objects;
    DialogFactory m_factory;
    ChainProtocolListener& m_listener;
    NotificationObserver* m_observer = nullptr;  // not owned
    std::set<UINT> m_unanswered;

    std::unique_ptr<CCalcTolDlgBase> m_dialog;
    WPARAM m_dialogNumber = 0;  // tells the posted messages of this dialog from those of a former one
    ChainRound m_round = ChainRound::kClosed;
    WPARAM m_roundNumber = 0;
    const DrawingObject* m_loaded = nullptr;       // not owned
    std::optional<CDimParams> m_linkRecordBefore;  // the tolerance dialogs' records when an edit began
    std::optional<CDimParams> m_closingRecordBefore;
    std::optional<std::size_t> m_editedLink;  // place in the chain of the link that is edited, when it is known
    ChainCopy m_copy;
};
