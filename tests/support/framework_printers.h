#pragma once

#include <ostream>
#include <string>

#include <afx.h>

// How GoogleTest shows the framework's values in the message of a failed check.

inline void PrintTo(const CString& text, std::ostream* out)
{
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string shown(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, -1, shown.data(), length, nullptr, nullptr);
    shown.pop_back();  // the terminator
    *out << '"' << shown << '"';
}

inline void PrintTo(const CPoint& point, std::ostream* out)
{
    *out << '(' << point.x << ", " << point.y << ')';
}

inline void PrintTo(const CSize& size, std::ostream* out)
{
    *out << size.cx << " x " << size.cy;
}

inline void PrintTo(const CRect& rect, std::ostream* out)
{
    *out << '(' << rect.left << ", " << rect.top << ")-(" << rect.right << ", " << rect.bottom << ')';
}
