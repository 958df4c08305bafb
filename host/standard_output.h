#pragma once

#include <string>

/// The program's standard streams. A program with windows has none of its own when it is started from the desktop or
/// from a console without redirection: in a console it then writes there.
class StandardOutput
{
public:
    StandardOutput();

    /// Writes to the standard output; where there is none the text is shown in a message box.
    void Tell(const std::string& text) const;
    /// The same for the error output.
    void Complain(const std::string& text) const;

private:
    bool m_isThere;
};
