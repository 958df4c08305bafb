#include "platform/text/text_encoding.h"

std::string ToUtf8(const CString& text)
{
    if (text.IsEmpty())
        return {};
    const int length = text.GetLength();
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text.GetString(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.GetString(), length, result.data(), size, nullptr, nullptr);
    return result;
}

CString FromUtf8(std::string_view text)
{
    if (text.empty())
        return {};
    const int size = static_cast<int>(text.size());
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), length);
    return CString(wide.data(), length);
}
