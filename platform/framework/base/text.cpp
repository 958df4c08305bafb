#include "base/text.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <utility>

#include "base/exceptions.h"
#include "base/or_empty.h"

namespace
{
std::size_t Size(int length)
{
    return static_cast<std::size_t>(std::max(length, 0));
}

std::wstring FromAnsi(LPCSTR text, int length)
{
    if (text == nullptr || length <= 0)
        return {};
    const int wideLength = ::MultiByteToWideChar(CP_ACP, 0, text, length, nullptr, 0);
    std::wstring wide(Size(wideLength), L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text, length, wide.data(), wideLength);
    return wide;
}

std::wstring FromAnsi(LPCSTR text)
{
    return FromAnsi(text, text != nullptr ? static_cast<int>(std::strlen(text)) : 0);
}
}  // namespace

CString::CString(LPCWSTR text) : m_text(OrEmpty(text)) {}

CString::CString(LPCSTR text) : m_text(FromAnsi(text)) {}

CString::CString(LPCWSTR text, int length) : m_text(OrEmpty(text), text != nullptr ? Size(length) : 0) {}

CString::CString(LPCSTR text, int length) : m_text(FromAnsi(text, length)) {}

CString::CString(wchar_t unit, int repeat) : m_text(Size(repeat), unit) {}

CString::CString(std::wstring text) : m_text(std::move(text)) {}

CString::~CString() = default;

CString& CString::operator=(LPCWSTR text)
{
    m_text.assign(OrEmpty(text));  // copies correctly when the text is a part of this one
    return *this;
}

CString& CString::operator=(LPCSTR text)
{
    m_text = FromAnsi(text);
    return *this;
}

CString& CString::operator=(wchar_t unit)
{
    m_text.assign(1, unit);
    return *this;
}

void CString::SetString(LPCWSTR text)
{
    *this = text;
}

void CString::SetString(LPCWSTR text, int length)
{
    m_text.assign(OrEmpty(text), text != nullptr ? Size(length) : 0);
}

int CString::GetLength() const
{
    return static_cast<int>(m_text.size());
}

BOOL CString::IsEmpty() const
{
    return m_text.empty();
}

LPCWSTR CString::GetString() const
{
    return m_text.c_str();
}

wchar_t CString::GetAt(int index) const
{
    if (index < 0 || index >= GetLength())
        AfxThrowInvalidArgException();
    return m_text[Size(index)];
}

wchar_t CString::operator[](int index) const
{
    return GetAt(index);
}

int CString::Compare(LPCWSTR other) const
{
    return std::wcscmp(m_text.c_str(), OrEmpty(other));
}

int CString::CompareNoCase(LPCWSTR other) const
{
    return ::CompareStringOrdinal(m_text.c_str(), -1, OrEmpty(other), -1, TRUE) - CSTR_EQUAL;
}

CString CString::Mid(int first) const
{
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const
{
    const std::size_t start = std::min(Size(first), m_text.size());
    return CString(m_text.substr(start, Size(count)));
}

CString CString::Left(int count) const
{
    return Mid(0, count);
}

CString CString::Right(int count) const
{
    return Mid(GetLength() - std::clamp(count, 0, GetLength()));
}

CString CString::SpanIncluding(LPCWSTR set) const
{
    return CString(m_text.substr(0, m_text.find_first_not_of(OrEmpty(set))));
}

CString CString::SpanExcluding(LPCWSTR set) const
{
    return CString(m_text.substr(0, m_text.find_first_of(OrEmpty(set))));
}

int CString::Find(wchar_t unit, int start) const
{
    if (start < 0 || start >= GetLength())
        return -1;
    return static_cast<int>(m_text.find(unit, Size(start)));  // npos becomes -1
}

int CString::Find(LPCWSTR text, int start) const
{
    if (text == nullptr || start < 0 || start >= GetLength())
        return -1;
    return static_cast<int>(m_text.find(text, Size(start)));
}

int CString::ReverseFind(wchar_t unit) const
{
    return static_cast<int>(m_text.rfind(unit));
}

int CString::FindOneOf(LPCWSTR set) const
{
    return static_cast<int>(m_text.find_first_of(OrEmpty(set)));
}

CString operator+(const CString& left, const CString& right)
{
    CString sum(left);
    sum += right;
    return sum;
}

CString operator+(const CString& left, LPCWSTR right)
{
    CString sum(left);
    sum += right;
    return sum;
}

CString operator+(LPCWSTR left, const CString& right)
{
    return CString(left) + right;
}

CString operator+(const CString& left, LPCSTR right)
{
    return left + CString(right);
}

CString operator+(LPCSTR left, const CString& right)
{
    return CString(left) + right;
}

CString operator+(const CString& left, wchar_t right)
{
    CString sum(left);
    sum += right;
    return sum;
}

CString operator+(wchar_t left, const CString& right)
{
    return CString(left) + right;
}
