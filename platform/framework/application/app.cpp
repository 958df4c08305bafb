#include "application/app.h"

#include "window/temporary_objects.h"
#include "window/window_class.h"
#include "window/wnd.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace
{
CWinApp* application = nullptr;

CString ProgramName()
{
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH - 1);
    CString name(path);
    name = name.Mid(name.ReverseFind(L'\\') + 1);
    const int dot = name.ReverseFind(L'.');
    return dot > 0 ? name.Left(dot) : name;
}
}  // namespace

CWinThread::CWinThread() = default;
CWinThread::~CWinThread() = default;

BOOL CWinThread::InitInstance()
{
    return TRUE;
}

int CWinThread::Run()
{
    MSG waiting;
    for (;;)
    {
        LONG count = 0;
        while (!::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE) && OnIdle(count))
            ++count;
        do
        {
            if (!PumpMessage())
                return ExitInstance();
        } while (::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE));
    }
}

int CWinThread::ExitInstance()
{
    return static_cast<int>(m_currentMessage.wParam);
}

BOOL CWinThread::PreTranslateMessage(MSG* message)
{
    return CWnd::WalkPreTranslateTree(HandleOf(m_pMainWnd), message);
}

BOOL CWinThread::PumpMessage()
{
    if (::GetMessageW(&m_currentMessage, nullptr, 0, 0) <= 0)
        return FALSE;
    MSG message = m_currentMessage;  // a handler may run a loop of its own
    if (!PreTranslateMessage(&message))
    {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return TRUE;
}

BOOL CWinThread::OnIdle(LONG)
{
    TemporaryObjects::DeleteUnused();
    return FALSE;
}

LRESULT CWinThread::ProcessWndProcException(CException* exception, const MSG* message)
{
    switch (message->message)
    {
    case WM_CREATE:
        return -1;
    case WM_PAINT:
        ::ValidateRect(message->hwnd, nullptr);  // else it comes again for ever
        return 0;
    default:
        exception->ReportError(MB_OK | MB_ICONSTOP);
        return 0;
    }
}

CWinApp::CWinApp(LPCWSTR appName)
{
    ASSERT(application == nullptr);
    application = this;
    m_appName = appName == nullptr ? ProgramName() : CString(appName);
    m_pszAppName = m_appName;
}

CWinApp::~CWinApp()
{
    application = nullptr;
}

CWinApp* AfxGetApp()
{
    return application;
}

CWinThread* AfxGetThread()
{
    static auto& foreignThread = *new CWinThread;  // never destroyed: windows may go after the static objects
    return application != nullptr ? application : &foreignThread;
}

CWnd* AfxGetMainWnd()
{
    return AfxGetThread()->m_pMainWnd;
}

LPCWSTR AfxGetAppName()
{
    if (application != nullptr)
        return application->m_pszAppName;
    static const CString name = ProgramName();
    return name;
}

BOOL AfxWinInit(HINSTANCE instance, HINSTANCE, LPWSTR commandLine, int showCommand)
{
    RegisterCommonControls();
    if (application != nullptr)
    {
        application->m_hInstance = instance;
        application->m_lpCmdLine = commandLine;
        application->m_nCmdShow = showCommand;
    }
    return TRUE;
}

int AfxWinMain(HINSTANCE instance, HINSTANCE previousInstance, LPWSTR commandLine, int showCommand)
{
    CWinThread* thread = AfxGetThread();
    if (!AfxWinInit(instance, previousInstance, commandLine, showCommand))
        return -1;
    if (thread->InitInstance())
        return thread->Run();
    if (thread->m_pMainWnd != nullptr)
        thread->m_pMainWnd->DestroyWindow();
    return thread->ExitInstance();
}

void AfxPostQuitMessage(int exitCode)
{
    ::PostQuitMessage(exitCode);
}
