#include "window/dialog.h"

#include "application/app.h"
#include "window/disabled_owners.h"
#include "window/message_map.h"
#include "window/temporary_objects.h"
#include "window/window_class.h"
#include "window/window_creation.h"

#include <algorithm>
#include <vector>

/// One run of DoModal. It outlives the dialog's window and even the dialog object.
struct ModalRun
{
    DisabledOwners owners;
    INT_PTR result = -1;
    bool ended = false;
    bool abandoned = false;  // the window or the object is gone: neither may be touched
};

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    // window
    ON_MESSAGE(WM_INITDIALOG, &CDialog::OnHandleInitDialog)
    // controls
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace
{
constexpr wchar_t kDialogClass[] = L"#32770";
constexpr UINT kFirstCommandId = 0x8000;  // below it are the IDs of controls, whose commands stay in their dialog
constexpr UINT kLastCommandId = 0xEFFF;   // above it are the IDs of the system menu

/// The template in that module; null when there is none.
const DLGTEMPLATE* FindTemplate(HINSTANCE module, LPCWSTR name)
{
    const HRSRC resource = ::FindResourceW(module, name, RT_DIALOG);
    const HGLOBAL loaded = resource == nullptr ? nullptr : ::LoadResource(module, resource);
    return loaded == nullptr ? nullptr : static_cast<const DLGTEMPLATE*>(::LockResource(loaded));
}

INT_PTR CALLBACK DialogProcedure(HWND, UINT message, WPARAM, LPARAM)
{
    return message == WM_INITDIALOG;
}

HWND OwnerOfModeless(const CWnd* parent)
{
    return HandleOf(parent == nullptr ? AfxGetMainWnd() : parent);
}

HWND OwnerOfModal(const CWnd* parent)
{
    if (parent != nullptr)
        return parent->m_hWnd;
    const HWND main = HandleOf(AfxGetMainWnd());
    return main == nullptr ? nullptr : ::GetLastActivePopup(main);
}

/// The top-level window of that one, and all that own it.
std::vector<HWND> OwnersFrom(HWND window)
{
    std::vector<HWND> owners;
    for (HWND owner = window == nullptr ? nullptr : ::GetAncestor(window, GA_ROOT); owner != nullptr;
         owner = ::GetWindow(owner, GW_OWNER))
        owners.push_back(owner);
    return owners;
}

void ActivateFirstOf(const std::vector<HWND>& windows)
{
    const auto living = std::ranges::find_if(windows, [](HWND window) {
        return ::IsWindow(window) && ::IsWindowEnabled(window) && ::IsWindowVisible(window);
    });
    if (living != windows.end())
        ::SetActiveWindow(*living);
}

// Handles the messages of the whole thread. Uses nothing of the dialog, which may be gone any time.
void RunLoop(ModalRun& run)
{
    const TemporaryObjects::ModalScope temporaryObjectsOutside;
    CWinThread* thread = AfxGetThread();
    MSG waiting;
    while (!run.ended)
    {
        if (!::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE))
            thread->OnIdle(0);
        if (!thread->PumpMessage())
        {
            AfxPostQuitMessage(static_cast<int>(thread->GetCurrentMessage()->wParam));  // for the loop outside
            run.result = -1;
            run.ended = true;
        }
    }
}

// A loop that waits for a message must wake up and see that its dialog has ended.
void WakeLoop()
{
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
}
}  // namespace

CDialog::CDialog() = default;

CDialog::CDialog(UINT templateId, CWnd* parent) : m_templateName(MAKEINTRESOURCEW(templateId)), m_parent(parent) {}

CDialog::CDialog(LPCWSTR templateName, CWnd* parent) : m_parent(parent)
{
    if (IS_INTRESOURCE(templateName))
    {
        m_templateName = templateName;
        return;
    }
    m_templateText = templateName;
    m_templateName = m_templateText;
}

CDialog::~CDialog()
{
    if (m_hWnd != nullptr)
        CDialog::DestroyWindow();
    if (m_modalRun == nullptr)
        return;
    ModalRun& run = *m_modalRun;  // that never had a window
    AbandonModalRun();
    run.owners.Restore();  // now, for whoever opens another dialog in its place
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    return Create(MAKEINTRESOURCEW(templateId), parent);
}

BOOL CDialog::Create(LPCWSTR templateName, CWnd* parent)
{
    return CreateFromTemplate(templateName, OwnerOfModeless(parent));
}

// This object may be deleted when the function returns. The template's module is the instance that Windows is given,
// because the menu that the template names lies there.
BOOL CDialog::CreateFromTemplate(LPCWSTR templateName, HWND owner)
{
    const HINSTANCE module = AfxFindResourceHandle(templateName, RT_DIALOG);
    const DLGTEMPLATE* dialogTemplate = FindTemplate(module, templateName);
    if (dialogTemplate == nullptr)
        return FALSE;
    RegisterCommonControls();
    const WindowCreation creation(*this, kDialogClass);
    const HWND window = ::CreateDialogIndirectParamW(module, dialogTemplate, owner, &DialogProcedure, 0);
    return window != nullptr && ::IsWindow(window);
}

INT_PTR CDialog::DoModal()
{
    if (m_modalRun != nullptr || m_hWnd != nullptr)
        return -1;
    const HWND owner = OwnerOfModal(m_parent);
    const std::vector<HWND> owners = OwnersFrom(owner);
    ModalRun run;
    m_modalRun = &run;
    try
    {
        run.owners.Disable(owner);  // they are told, and may end the run or delete this object
        if (!run.ended && CreateFromTemplate(m_templateName, owner) && !run.ended)
        {
            const HWND window = m_hWnd;
            ::ShowWindow(window, SW_SHOWNORMAL);
            ::UpdateWindow(window);
            RunLoop(run);
        }
    }
    catch (...)  // of a PreTranslateMessage or OnIdle, which Windows does not call
    {
        EndModalRun(run);
        throw;
    }
    EndModalRun(run);
    if (run.abandoned && ::GetActiveWindow() == nullptr)
        ActivateFirstOf(owners);
    return run.result;
}

void CDialog::EndModalRun(ModalRun& run)
{
    run.owners.Restore();
    if (run.abandoned)
        return;
    m_modalRun = nullptr;
    DestroyWindow();
}

BOOL CDialog::DestroyWindow()
{
    const HWND window = m_hWnd;
    if (m_modalRun != nullptr && window != nullptr)
    {
        m_modalRun->owners.Restore();  // before the window goes, so that activation can return to the owner
        if (!::IsWindow(window))       // an owner that was told has destroyed it, and this object may be deleted
            return TRUE;
    }
    return CWnd::DestroyWindow();
}

void CDialog::EndDialog(int result)
{
    if (m_modalRun != nullptr)
    {
        m_modalRun->result = result;
        m_modalRun->ended = true;
        WakeLoop();
    }
    else if (m_hWnd != nullptr)
    {
        ShowWindow(SW_HIDE);
    }
}

BOOL CDialog::ContinueModal() const
{
    return m_modalRun != nullptr && !m_modalRun->ended;
}

void CDialog::AbandonModalRun()
{
    m_modalRun->result = -1;
    m_modalRun->ended = true;
    m_modalRun->abandoned = true;
    m_modalRun = nullptr;
    WakeLoop();
}

LRESULT CDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCDESTROY && m_modalRun != nullptr)
        AbandonModalRun();
    return CWnd::WindowProc(message, wParam, lParam);
}

LRESULT CDialog::OnHandleInitDialog(WPARAM, LPARAM)
{
    Default();
    return OnInitDialog();
}

BOOL CDialog::OnInitDialog()
{
    if (!UpdateData(FALSE))
    {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    const bool key = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    const bool mouse = message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST;
    return m_hWnd != nullptr && (key || mouse) && IsDialogMessage(message);
}

BOOL CDialog::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    if (CWnd::OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    if (code != CN_COMMAND || id < kFirstCommandId || id > kLastCommandId)
        return FALSE;
    CWnd* owner = FromHandlePermanent(::GetParent(m_hWnd));
    if (owner != nullptr && owner->OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    return AfxGetThread()->OnCmdMsg(id, code, extra, handlerInfo);
}

void CDialog::GotoDlgCtrl(CWnd* control)
{
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(HandleOf(control)), TRUE);
}
