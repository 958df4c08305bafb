// CString: everything that changes a text.

#include <algorithm>
#include <cwchar>
#include <cwctype>

#include "base/exceptions.h"
#include "base/or_empty.h"
#include "base/text.h"

namespace
{
template <class IsTrimmed>
void TrimLeftWhile(std::wstring& text, IsTrimmed isTrimmed)
{
    text.erase(text.begin(), std::find_if_not(text.begin(), text.end(), isTrimmed));
}

template <class IsTrimmed>
void TrimRightWhile(std::wstring& text, IsTrimmed isTrimmed)
{
    text.erase(std::find_if_not(text.rbegin(), text.rend(), isTrimmed).base(), text.end());
}

bool IsSpace(wchar_t unit)
{
    return std::iswspace(unit) != 0;
}

auto IsUnit(wchar_t wanted)
{
    return [wanted](wchar_t unit) { return unit == wanted; };
}

auto IsOneOf(LPCWSTR set)
{
    return [wanted = std::wstring(OrEmpty(set))](wchar_t unit) { return wanted.find(unit) != std::wstring::npos; };
}
}  // namespace

void CString::Empty()
{
    m_text = std::wstring();
}

void CString::SetAt(int index, wchar_t unit)
{
    if (index < 0 || index >= GetLength())
        AfxThrowInvalidArgException();
    m_text[static_cast<std::size_t>(index)] = unit;
}

CString& CString::operator+=(const CString& text)
{
    m_text += text.m_text;
    return *this;
}

CString& CString::operator+=(LPCWSTR text)
{
    m_text += OrEmpty(text);
    return *this;
}

CString& CString::operator+=(LPCSTR text)
{
    return *this += CString(text);
}

CString& CString::operator+=(wchar_t unit)
{
    m_text += unit;
    return *this;
}

void CString::Append(LPCWSTR text)
{
    *this += text;
}

void CString::Append(LPCWSTR text, int length)
{
    *this += CString(text, length);
}

void CString::AppendChar(wchar_t unit)
{
    *this += unit;
}

CString& CString::Trim()
{
    return TrimRight().TrimLeft();
}

CString& CString::Trim(wchar_t unit)
{
    return TrimRight(unit).TrimLeft(unit);
}

CString& CString::Trim(LPCWSTR set)
{
    const auto isTrimmed = IsOneOf(set);  // copied first: the set may be a part of this text
    TrimRightWhile(m_text, isTrimmed);
    TrimLeftWhile(m_text, isTrimmed);
    return *this;
}

CString& CString::TrimLeft()
{
    TrimLeftWhile(m_text, IsSpace);
    return *this;
}

CString& CString::TrimLeft(wchar_t unit)
{
    TrimLeftWhile(m_text, IsUnit(unit));
    return *this;
}

CString& CString::TrimLeft(LPCWSTR set)
{
    TrimLeftWhile(m_text, IsOneOf(set));
    return *this;
}

CString& CString::TrimRight()
{
    TrimRightWhile(m_text, IsSpace);
    return *this;
}

CString& CString::TrimRight(wchar_t unit)
{
    TrimRightWhile(m_text, IsUnit(unit));
    return *this;
}

CString& CString::TrimRight(LPCWSTR set)
{
    TrimRightWhile(m_text, IsOneOf(set));
    return *this;
}

int CString::Remove(wchar_t unit)
{
    return static_cast<int>(std::erase(m_text, unit));
}

int CString::Replace(wchar_t former, wchar_t replacement)
{
    if (former == replacement)
        return 0;
    const auto count = std::count(m_text.begin(), m_text.end(), former);
    std::replace(m_text.begin(), m_text.end(), former, replacement);
    return static_cast<int>(count);
}

int CString::Replace(LPCWSTR former, LPCWSTR replacement)
{
    const std::wstring wanted(OrEmpty(former));
    const std::wstring inserted(OrEmpty(replacement));
    if (wanted.empty())
        return 0;
    int count = 0;
    std::wstring result;
    std::size_t done = 0;
    for (std::size_t found = m_text.find(wanted); found != std::wstring::npos; found = m_text.find(wanted, done))
    {
        result.append(m_text, done, found - done).append(inserted);
        done = found + wanted.size();
        ++count;
    }
    if (count > 0)
        m_text = result.append(m_text, done);
    return count;
}

int CString::Insert(int index, wchar_t unit)
{
    m_text.insert(static_cast<std::size_t>(std::clamp(index, 0, GetLength())), 1, unit);
    return GetLength();
}

int CString::Insert(int index, LPCWSTR text)
{
    m_text.insert(static_cast<std::size_t>(std::clamp(index, 0, GetLength())), OrEmpty(text));
    return GetLength();
}

int CString::Delete(int index, int count)
{
    m_text.erase(static_cast<std::size_t>(std::clamp(index, 0, GetLength())),
                 static_cast<std::size_t>(std::max(count, 0)));
    return GetLength();
}

CString& CString::MakeUpper()
{
    ::CharUpperBuffW(m_text.data(), static_cast<DWORD>(m_text.size()));
    return *this;
}

CString& CString::MakeLower()
{
    ::CharLowerBuffW(m_text.data(), static_cast<DWORD>(m_text.size()));
    return *this;
}

CString& CString::MakeReverse()
{
    std::reverse(m_text.begin(), m_text.end());
    return *this;
}

LPWSTR CString::GetBuffer()
{
    return m_text.data();
}

LPWSTR CString::GetBuffer(int minimum)
{
    return minimum > GetLength() ? GetBufferSetLength(minimum) : GetBuffer();
}

LPWSTR CString::GetBufferSetLength(int length)
{
    if (length < 0)
        AfxThrowInvalidArgException();
    m_text.resize(static_cast<std::size_t>(length));
    return m_text.data();
}

void CString::ReleaseBuffer(int length)
{
    const std::size_t wanted = length == -1 ? std::wcslen(m_text.c_str()) : static_cast<std::size_t>(length);
    if (wanted > m_text.size())
        AfxThrowInvalidArgException();
    m_text.resize(wanted);
}
