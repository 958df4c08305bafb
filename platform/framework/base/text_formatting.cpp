// CString: formats and string resources.

#include <cwchar>

#include "base/exceptions.h"
#include "base/string_resource.h"
#include "base/text.h"

namespace
{
CString LoadFormat(UINT id)
{
    CString format;
    if (!format.LoadString(id))
        AfxThrowResourceException();
    return format;
}
}  // namespace

// The run-time's own family is used here, in which %s means wide text; the standard-conforming one of this compiler
// takes %s for narrow text. The result is made aside, so that an argument may point into this text.
void CString::FormatV(LPCWSTR format, va_list arguments)
{
    if (format == nullptr)
        AfxThrowInvalidArgException();
    va_list measured;
    va_copy(measured, arguments);
    const int length = _vscwprintf(format, measured);
    va_end(measured);
    if (length < 0)
        AfxThrowInvalidArgException();
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    _vsnwprintf(text.data(), text.size(), format, arguments);
    m_text.swap(text);
}

void CString::Format(LPCWSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void CString::Format(UINT formatId, ...)
{
    const CString format = LoadFormat(formatId);
    va_list arguments;
    va_start(arguments, formatId);
    FormatV(format, arguments);
    va_end(arguments);
}

void CString::AppendFormat(LPCWSTR format, ...)
{
    CString addition;
    va_list arguments;
    va_start(arguments, format);
    addition.FormatV(format, arguments);
    va_end(arguments);
    *this += addition;
}

void CString::AppendFormat(UINT formatId, ...)
{
    const CString format = LoadFormat(formatId);
    CString addition;
    va_list arguments;
    va_start(arguments, formatId);
    addition.FormatV(format, arguments);
    va_end(arguments);
    *this += addition;
}

BOOL CString::LoadString(UINT id)
{
    const std::wstring_view text = StringResource(id);
    if (text.empty())
        return FALSE;
    m_text = text;
    return TRUE;
}

BOOL CString::LoadString(HINSTANCE resourceModule, UINT id)
{
    const std::wstring_view text = StringResourceOf(resourceModule, id);
    if (text.empty())
        return FALSE;
    m_text = text;
    return TRUE;
}
