#include "host/standard_output.h"

#include <cstdio>

#include <afxwin.h>

#include "drawing/text_encoding.h"

namespace
{

bool HasHandle(DWORD which)
{
    const HANDLE handle = ::GetStdHandle(which);
    return handle != nullptr && handle != INVALID_HANDLE_VALUE && ::GetFileType(handle) != FILE_TYPE_UNKNOWN;
}

bool JoinConsoleOfParent()
{
    if (!::AttachConsole(ATTACH_PARENT_PROCESS))
        return false;
    ::SetConsoleOutputCP(CP_UTF8);
    return std::freopen("CONOUT$", "w", stdout) != nullptr && std::freopen("CONOUT$", "w", stderr) != nullptr;
}

void Write(std::FILE* stream, const std::string& text)
{
    std::fputs(text.c_str(), stream);
    std::fflush(stream);
}

}  // namespace

StandardOutput::StandardOutput()
    : m_isThere((HasHandle(STD_OUTPUT_HANDLE) && HasHandle(STD_ERROR_HANDLE)) || JoinConsoleOfParent())
{
}

void StandardOutput::Tell(const std::string& text) const
{
    if (m_isThere)
        Write(stdout, text);
    else
        AfxMessageBox(FromUtf8(text), MB_OK | MB_ICONINFORMATION);
}

void StandardOutput::Complain(const std::string& text) const
{
    if (m_isThere)
        Write(stderr, text);
    else
        AfxMessageBox(FromUtf8(text), MB_OK | MB_ICONSTOP);
}
