#include "window/window_procedure.h"

#include <exception>
#include <new>

#include "application/app.h"
#include "window/wnd.h"

namespace
{
/// An exception of the standard library, for code that reports the framework's.
class CStandardException : public CException
{
public:
    explicit CStandardException(const std::exception& exception) : CException(FALSE), m_text(exception.what()) {}

    BOOL GetErrorMessage(LPWSTR buffer, UINT capacity, PUINT helpContext) const override
    {
        CException::GetErrorMessage(buffer, capacity, helpContext);
        if (capacity == 0)
            return FALSE;
        ::lstrcpynW(buffer, m_text, static_cast<int>(capacity));
        return !m_text.IsEmpty();
    }

private:
    CString m_text;
};

MSG currentMessage = {};

/// Keeps the message that is being handled, until the end of a scope.
class CurrentMessage
{
public:
    explicit CurrentMessage(const MSG& message) : m_former(currentMessage) { currentMessage = message; }
    ~CurrentMessage() { currentMessage = m_former; }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

private:
    MSG m_former;
};
}  // namespace

// No exception may pass through Windows: whatever a handler lets out ends here.
LRESULT CallWindowObject(CWnd& wnd, const MSG& message)
{
    const CurrentMessage current(message);
    try
    {
        return wnd.WindowProc(message.message, message.wParam, message.lParam);
    }
    catch (CException* exception)
    {
        const LRESULT result = AfxGetThread()->ProcessWndProcException(exception, &message);
        exception->Delete();
        return result;
    }
    catch (const std::bad_alloc&)
    {
        CMemoryException exception(FALSE);
        return AfxGetThread()->ProcessWndProcException(&exception, &message);
    }
    catch (const std::exception& thrown)
    {
        CStandardException exception(thrown);
        return AfxGetThread()->ProcessWndProcException(&exception, &message);
    }
    catch (...)
    {
        CException exception(FALSE);
        return AfxGetThread()->ProcessWndProcException(&exception, &message);
    }
}

namespace
{
LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* wnd = CWnd::FromHandlePermanent(window);
    if (wnd == nullptr)
        return ::DefWindowProcW(window, message, wParam, lParam);
    MSG call = {};
    call.hwnd = window;
    call.message = message;
    call.wParam = wParam;
    call.lParam = lParam;
    return CallWindowObject(*wnd, call);
}
}  // namespace

WNDPROC EnterWindowProcedure(HWND window)
{
    return reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WindowProcedure)));
}

void LeaveWindowProcedure(HWND window, WNDPROC former)
{
    if (::GetWindowLongPtrW(window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&WindowProcedure))
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
}

const MSG* CWnd::GetCurrentMessage()
{
    return &currentMessage;
}
