#pragma once

#include <clocale>
#include <string>

/// Gives the process a numeric locale whose decimal point is the comma until the end of a scope, then the former one.
class ScopedCommaLocale
{
public:
    ScopedCommaLocale();
    ~ScopedCommaLocale() { std::setlocale(LC_NUMERIC, m_former.c_str()); }

    ScopedCommaLocale(const ScopedCommaLocale&) = delete;
    ScopedCommaLocale& operator=(const ScopedCommaLocale&) = delete;

    /// False when this system has no such locale.
    bool IsActive() const { return m_isActive; }

private:
    std::string m_former;
    bool m_isActive = false;
};
