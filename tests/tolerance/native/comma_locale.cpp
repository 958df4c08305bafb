#include "tests/tolerance/native/comma_locale.h"

#include <string_view>

ScopedCommaLocale::ScopedCommaLocale() : m_former(std::setlocale(LC_NUMERIC, nullptr))
{
    // The names of one such locale on the systems that this is built for.
    for (const char* const name : {"de_DE.UTF-8", "de_DE.utf8", "German_Germany.1252", "de-DE"})
    {
        if (!std::setlocale(LC_NUMERIC, name))
            continue;
        if (std::string_view(std::localeconv()->decimal_point) == ",")
        {
            m_isActive = true;
            return;
        }
        std::setlocale(LC_NUMERIC, m_former.c_str());
    }
}
