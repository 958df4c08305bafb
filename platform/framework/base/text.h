#pragma once

#include <compare>
#include <cstdarg>
#include <string>

#include "base/framework_api.h"

/// A text of UTF-16 units that can be changed. Copies are values of their own.
///
/// Positions and lengths count units, from 0. A null pointer given as text counts as the empty text. Narrow text is
/// read in the ANSI code page. What Format takes for %s is a pointer: give `static_cast<LPCWSTR>(text)` or
/// `text.GetString()`.
class FRAMEWORK_API CString
{
public:
    CString() = default;
    CString(const CString&) = default;
    CString(CString&&) noexcept = default;
    CString(LPCWSTR text);
    CString(LPCSTR text);
    CString(LPCWSTR text, int length);
    CString(LPCSTR text, int length);
    explicit CString(wchar_t unit, int repeat = 1);
    ~CString();

    CString& operator=(const CString&) = default;
    CString& operator=(CString&&) noexcept = default;
    CString& operator=(LPCWSTR text);
    CString& operator=(LPCSTR text);
    CString& operator=(wchar_t unit);
    void SetString(LPCWSTR text);
    void SetString(LPCWSTR text, int length);

    // reading
    int GetLength() const;
    BOOL IsEmpty() const;
    operator LPCWSTR() const { return m_text.c_str(); }
    LPCWSTR GetString() const;
    /// Raises CInvalidArgException unless 0 <= index < GetLength().
    wchar_t GetAt(int index) const;
    wchar_t operator[](int index) const;

    // comparing: by unit value, below 0, 0 or above 0
    int Compare(LPCWSTR other) const;
    int CompareNoCase(LPCWSTR other) const;
    friend bool operator==(const CString& left, const CString& right) { return left.Compare(right) == 0; }
    friend bool operator==(const CString& left, LPCWSTR right) { return left.Compare(right) == 0; }
    friend std::strong_ordering operator<=>(const CString& left, const CString& right)
    {
        return left.Compare(right) <=> 0;
    }
    friend std::strong_ordering operator<=>(const CString& left, LPCWSTR right) { return left.Compare(right) <=> 0; }

    // parts: a range is cut to what exists, a negative start or count counts as 0
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;
    /// The longest beginning that has only units of `set`.
    CString SpanIncluding(LPCWSTR set) const;
    /// The longest beginning that has no unit of `set`.
    CString SpanExcluding(LPCWSTR set) const;

    // searching: -1 for not found, also when `start` is negative or not before the end
    int Find(wchar_t unit, int start = 0) const;
    int Find(LPCWSTR text, int start = 0) const;
    int ReverseFind(wchar_t unit) const;
    int FindOneOf(LPCWSTR set) const;

    // changing
    void Empty();
    /// Raises CInvalidArgException unless 0 <= index < GetLength().
    void SetAt(int index, wchar_t unit);
    CString& operator+=(const CString& text);
    CString& operator+=(LPCWSTR text);
    CString& operator+=(LPCSTR text);
    CString& operator+=(wchar_t unit);
    void Append(LPCWSTR text);
    void Append(LPCWSTR text, int length);
    void AppendChar(wchar_t unit);
    /// Without argument white space is trimmed.
    CString& Trim();
    CString& Trim(wchar_t unit);
    CString& Trim(LPCWSTR set);
    CString& TrimLeft();
    CString& TrimLeft(wchar_t unit);
    CString& TrimLeft(LPCWSTR set);
    CString& TrimRight();
    CString& TrimRight(wchar_t unit);
    CString& TrimRight(LPCWSTR set);
    /// Both give the number of occurrences that were taken out or exchanged. An empty `former` occurs nowhere.
    int Remove(wchar_t unit);
    int Replace(wchar_t former, wchar_t replacement);
    int Replace(LPCWSTR former, LPCWSTR replacement);
    /// Inserts before `index`: at the start when that is negative, at the end when it is too large.
    /// @return  the new length
    int Insert(int index, wchar_t unit);
    int Insert(int index, LPCWSTR text);
    /// Deletes what exists of the range. A negative index or count counts as 0.
    /// @return  the new length
    int Delete(int index, int count = 1);
    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();

    // formatting: printf-style with %s for wide text; not for floating numbers, whose digits the run-time gets wrong
    void Format(LPCWSTR format, ...);
    /// The format is a string resource. Raises CResourceException when it does not exist.
    void Format(UINT formatId, ...);
    void FormatV(LPCWSTR format, va_list arguments);
    void AppendFormat(LPCWSTR format, ...);
    void AppendFormat(UINT formatId, ...);

    // resources: zero, and the text unchanged, when the string does not exist
    /// From the current resource module, else from the program.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE resourceModule, UINT id);

    // writing through a pointer: it is valid until the next change, and ReleaseBuffer ends the writing
    LPWSTR GetBuffer();
    /// Room for `minimum` units and a terminator; the present text is kept.
    LPWSTR GetBuffer(int minimum);
    /// Exactly `length` units and a terminator. ReleaseBuffer is needed only when the length changes again.
    LPWSTR GetBufferSetLength(int length);
    /// @param length  the new length; -1 for up to the terminator that was written
    void ReleaseBuffer(int length = -1);

private:
    explicit CString(std::wstring text);

    std::wstring m_text;
};

FRAMEWORK_API CString operator+(const CString& left, const CString& right);
FRAMEWORK_API CString operator+(const CString& left, LPCWSTR right);
FRAMEWORK_API CString operator+(LPCWSTR left, const CString& right);
FRAMEWORK_API CString operator+(const CString& left, LPCSTR right);
FRAMEWORK_API CString operator+(LPCSTR left, const CString& right);
FRAMEWORK_API CString operator+(const CString& left, wchar_t right);
FRAMEWORK_API CString operator+(wchar_t left, const CString& right);
