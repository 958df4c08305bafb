#pragma once

#include "window/command_target.h"

class CWnd;

/// The user-interface thread: its main window and its message loop.
class FRAMEWORK_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;  ///< not owned; null again when that window is destroyed

    virtual BOOL InitInstance();
    /// Runs the message loop until WM_QUIT.
    /// @return  what ExitInstance gives
    virtual int Run();
    /// The exit code: that of WM_QUIT.
    virtual int ExitInstance();

    /// Offers the message to the windows from its target upwards, until the main window.
    /// @return  non-zero when it is done with
    virtual BOOL PreTranslateMessage(MSG* message);
    /// Waits for one message and handles it.
    /// @return  zero for WM_QUIT
    virtual BOOL PumpMessage();
    /// Called when no message waits; deletes the temporary objects.
    /// @param count  how often it was called since the last message
    /// @return       non-zero to be called once more
    virtual BOOL OnIdle(LONG count);
    /// Called for an exception that no handler caught. A window that could not be created fails, a window that could
    /// not be painted counts as painted; everything else is reported to the user.
    /// @param exception  stays the caller's
    /// @return           the message's result
    virtual LRESULT ProcessWndProcException(CException* exception, const MSG* message);

    const MSG* GetCurrentMessage() const { return &m_currentMessage; }

private:
    MSG m_currentMessage = {};
};

/// The application: a program that uses the framework's main function has exactly one, a global.
class FRAMEWORK_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    /// @param appName  caption of message boxes; null for the program file's name
    explicit CWinApp(LPCWSTR appName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    LPWSTR m_lpCmdLine = nullptr;  ///< without the program's name
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCWSTR m_pszAppName = nullptr;

private:
    CString m_appName;
};

/// The application; null in a process whose program does not use the framework.
FRAMEWORK_API CWinApp* AfxGetApp();
/// The application or, without one, an object for the user-interface thread; never null.
FRAMEWORK_API CWinThread* AfxGetThread();
/// The main window of AfxGetThread; null when none is set.
FRAMEWORK_API CWnd* AfxGetMainWnd();
/// The application's name or, without an application, the program file's name.
FRAMEWORK_API LPCWSTR AfxGetAppName();

/// Prepares the framework and the application object; the framework's main function calls it.
FRAMEWORK_API BOOL AfxWinInit(HINSTANCE instance, HINSTANCE previousInstance, LPWSTR commandLine, int showCommand);
/// Runs the whole program: AfxWinInit, then the application's InitInstance and Run.
/// @return  the exit code
FRAMEWORK_API int AfxWinMain(HINSTANCE instance, HINSTANCE previousInstance, LPWSTR commandLine, int showCommand);
FRAMEWORK_API void AfxPostQuitMessage(int exitCode);
