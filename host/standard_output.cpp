#include "host/standard_output.h"

#include <cstdio>

#include <afxwin.h>

#include "platform/text/text_encoding.h"

namespace
{

bool HasHandle(DWORD which)
{
    const HANDLE handle = ::GetStdHandle(which);
    return handle != nullptr && handle != INVALID_HANDLE_VALUE && ::GetFileType(handle) != FILE_TYPE_UNKNOWN;
}

bool JoinConsoleOfParent()
{
    const bool isJoined = ::AttachConsole(ATTACH_PARENT_PROCESS) != FALSE;
    if (isJoined)
        ::SetConsoleOutputCP(CP_UTF8);
    return isJoined;
}

void Show(std::FILE* stream, bool hasStream, const std::string& text, bool mayAsk, UINT icon)
{
    if (hasStream)
    {
        std::fputs(text.c_str(), stream);
        std::fflush(stream);
    }
    else if (mayAsk)
        AfxMessageBox(FromUtf8(text), MB_OK | icon);
}

}  // namespace

StandardOutput::StandardOutput(bool mayAsk)
    : m_mayAsk(mayAsk), m_hasOutput(HasHandle(STD_OUTPUT_HANDLE)), m_hasErrors(HasHandle(STD_ERROR_HANDLE))
{
    // A stream that is redirected stays so; only the missing ones go to the console.
    if ((m_hasOutput && m_hasErrors) || !JoinConsoleOfParent())
        return;
    m_hasOutput = m_hasOutput || std::freopen("CONOUT$", "w", stdout) != nullptr;
    m_hasErrors = m_hasErrors || std::freopen("CONOUT$", "w", stderr) != nullptr;
}

void StandardOutput::Tell(const std::string& text) const
{
    Show(stdout, m_hasOutput, text, m_mayAsk, MB_ICONINFORMATION);
}

void StandardOutput::Complain(const std::string& text) const
{
    Show(stderr, m_hasErrors, text, m_mayAsk, MB_ICONSTOP);
}
