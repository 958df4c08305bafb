#include "host/chain_protocol.h"

#include <algorithm>

#include <afxtempl.h>

#include "host/exchanged_records.h"
#include "interface/notifications.h"

namespace
{

bool IsLoaded(const std::optional<CDimParams>& record)
{
    return record && !record->nominal.IsEmpty();
}

}  // namespace

ChainProtocol::ChainProtocol(CWnd& hostWindow, const DrawingObjects& objects, DialogFactory factory,
                             ChainProtocolListener& listener)
    : m_hostWindow(hostWindow), m_objects(objects), m_factory(factory), m_listener(listener)
{
}

ChainProtocol::~ChainProtocol() = default;

bool ChainProtocol::Open(const std::optional<CString>& label)
{
    DeleteDialog();
    m_dialog.reset(m_factory());
    if (m_dialog == nullptr)
        return false;
    if (label)
        m_dialog->SetFileName(*label);
    if (!m_dialog->Create(&m_hostWindow))
    {
        m_dialog.reset();
        return false;
    }
    SetRound(ChainRound::kIdle);
    return true;
}

void ChainProtocol::DestroyWindow()
{
    if (!HasWindow())
        return;
    ForgetDialog();
    m_dialog->DestroyWindow();
    SetRound(ChainRound::kClosed);
}

void ChainProtocol::DeleteDialog()
{
    if (m_dialog == nullptr)
        return;
    ForgetDialog();
    // Out of the member first: the window's end may bring messages that ask for the dialog.
    const std::unique_ptr<CCalcTolDlgBase> dialog = std::move(m_dialog);
    if (dialog->GetSafeHwnd() != nullptr)
        dialog->DestroyWindow();
    SetRound(ChainRound::kClosed);
}

// The rows go with the window.
void ChainProtocol::ForgetDialog()
{
    ++m_dialogNumber;
    m_copy.Clear();
}

void ChainProtocol::CancelDialog()
{
    if (m_dialog == nullptr)
        return;
    m_dialog->CancelDialog();
    FollowChain();
}

void ChainProtocol::EndModal()
{
    if (m_dialog == nullptr)
        return;
    m_dialog->EndModal();
    if (HasWindow())
        End();
}

void ChainProtocol::SetAnswering(UINT code, bool answering)
{
    if (answering)
        m_unanswered.erase(code);
    else
        m_unanswered.insert(code);
}

void ChainProtocol::OnNotified(UINT code)
{
    if (m_observer != nullptr)
        m_observer->OnNotified(code);
    if (!HasWindow())
        return;  // the observer may have ended it
    const bool answers = !m_unanswered.contains(code);
    switch (code)
    {
    case kLinkBegins:
        Begin(ChainRound::kAddingLink);
        break;
    case kClosingBegins:
        Begin(ChainRound::kAddingClosing);
        break;
    case kEditBegins:
        BeginEdit();
        break;
    case kLinkAccepted:
    case kLinkApplied:
        if (answers)
            AcceptLink();
        break;
    case kClosingAccepted:
        if (answers)
            AcceptClosing();
        break;
    case kDistributionAccepted:
        if (answers)
            AcceptDistribution();
        break;
    case kDialogClosed:
        // Not at once: the dialog's own code is still running, as may be that of a child dialog.
        if (answers)
            m_hostWindow.PostMessage(kEndDialog, m_dialogNumber);
        break;
    default:
        break;
    }
    switch (code)
    {
    case kLinkApplied:
        m_loaded = nullptr;
        m_editedLink.reset();
        SetRound(ChainRound::kAddingLink);
        break;
    case kLinkAccepted:
    case kClosingAccepted:
    case kDistributionAccepted:
    case kChildCancelled:
    case kDialogClosed:
        End();
        break;
    default:
        break;
    }
}

void ChainProtocol::OnPosted(UINT message, WPARAM number)
{
    if (message == kLookAtChild && number == m_roundNumber && HasWindow())
        LookAtChild();
    else if (message == kEndDialog && number == m_dialogNumber)
        DeleteDialog();
}

void ChainProtocol::Begin(ChainRound round)
{
    FollowChain();
    m_loaded = nullptr;
    m_editedLink.reset();
    ++m_roundNumber;
    SetRound(round);
    // Handled by the loop of the dialog that opens now.
    m_hostWindow.PostMessage(kLookAtChild, m_roundNumber);
}

void ChainProtocol::BeginEdit()
{
    FollowChain();
    m_linkRecordBefore = LinkRecord();
    m_closingRecordBefore = ClosingRecord();
    Begin(ChainRound::kEditing);
}

void ChainProtocol::End()
{
    m_loaded = nullptr;
    m_editedLink.reset();
    ++m_roundNumber;
    SetRound(ChainRound::kIdle);
}

void ChainProtocol::SetRound(ChainRound round)
{
    m_round = round;
    if (round == ChainRound::kClosed)
        m_loaded = nullptr;
    m_listener.OnProtocolChanged();
}

void ChainProtocol::LookAtChild()
{
    // The tolerance dialogs let the user pick in the drawing, the distribution dialog doesn't.
    const bool mayPick = m_hostWindow.IsWindowEnabled() != FALSE;
    if (m_round == ChainRound::kEditing)
        LookAtEdited();
    else if (!mayPick)
        LookAtDistribution();
}

// The link that alone may have filled the dialog; nothing when there are several, or links without known values.
template <class Record>
void ChainProtocol::FindEditedLink(const Record& record)
{
    m_editedLink.reset();
    const std::vector<FollowedLink>& links = m_copy.Links();
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < links.size(); ++i)
    {
        const bool mayBe = !links[i].values || MayShow(record, *links[i].values);
        if (mayBe && found)
            return;
        if (mayBe)
            found = i;
    }
    m_editedLink = found;
}

void ChainProtocol::LookAtEdited()
{
    const std::optional<CDimParams> link = LinkRecord();
    const std::optional<CDimParams> closing = ClosingRecord();
    const bool linkChanged = IsLoaded(link) && link != m_linkRecordBefore;
    const bool closingChanged = IsLoaded(closing) && closing != m_closingRecordBefore;
    const bool isLink = linkChanged != closingChanged ? linkChanged : IsLoaded(link);
    const bool isClosing = linkChanged != closingChanged ? closingChanged : IsLoaded(closing);
    if (isLink && !isClosing)
    {
        FindEditedLink(*link);
        SetRound(ChainRound::kEditingLink);
    }
    else if (isClosing && !isLink)
        SetRound(ChainRound::kEditingClosing);
}

void ChainProtocol::LookAtDistribution()
{
    const bool isLink = m_round == ChainRound::kAddingLink;
    if (isLink)
    {
        CVariableParams params;
        m_dialog->GetVariableDlgParams(params);
        FindEditedLink(params);
    }
    SetRound(isLink ? ChainRound::kLinkDistribution : ChainRound::kClosingDistribution);
}

// A record may be asked for only when a dialog of its kind was open before: without one there is no such row.
std::optional<CDimParams> ChainProtocol::LinkRecord()
{
    if (m_copy.Links().empty())
        return std::nullopt;
    CDimParams params;
    m_dialog->GetDimDlgParams(params);
    return params;
}

std::optional<CDimParams> ChainProtocol::ClosingRecord()
{
    if (!m_copy.Closing())
        return std::nullopt;
    CDimParams params;
    m_dialog->GetCloseDimDlgParams(params);
    return params;
}

bool ChainProtocol::Pick(const DrawingObject& object)
{
    if (!HasWindow() || object.dimension.nominal.empty())
        return false;
    switch (m_round)
    {
    case ChainRound::kAddingLink:
    case ChainRound::kEditingLink:
        m_loaded = &object;
        LoadRecord(*m_dialog, &CCalcTolDlgBase::SetDlgParams, ToParams(object.dimension));
        break;
    case ChainRound::kAddingClosing:
    case ChainRound::kEditingClosing:
        m_loaded = &object;
        LoadRecord(*m_dialog, &CCalcTolDlgBase::SetCloseDimDlgParams, ToParams(object.dimension));
        break;
    default:
        return false;
    }
    m_listener.OnProtocolChanged();
    return true;
}

void ChainProtocol::FollowChain()
{
    if (m_dialog == nullptr)
        return;
    CArray<void*, void*> objects;
    m_dialog->GetArrayObject(objects);
    const std::vector<const void*> list(objects.GetData(), objects.GetData() + objects.GetSize());
    const auto isSame = [](const FollowedLink& link, const void* object) { return link.object == object; };
    const std::vector<FollowedLink>& links = m_copy.Links();
    if (!std::equal(links.begin(), links.end(), list.begin(), list.end(), isSame))
        m_editedLink.reset();  // its place is no longer sure
    m_copy.Follow(list, m_dialog->GetCloseObject());
}

std::vector<std::string> ChainProtocol::ChainLines()
{
    FollowChain();
    return m_copy.Lines([this](const void* object) {
        const DrawingObject* const known = m_objects.Known(object);
        return known == nullptr ? std::string("?") : known->Name();
    });
}
