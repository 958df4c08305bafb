#pragma once

#include <string>

/// The program's standard streams. A program with windows has none of its own when it is started from the desktop or
/// from a console without redirection: in a console it then writes there, on a desktop it shows a message box.
class StandardOutput
{
public:
    /// @param mayAsk  whether somebody is there to close a message box
    explicit StandardOutput(bool mayAsk);

    /// Writes to the standard output.
    void Tell(const std::string& text) const;
    /// Writes to the error output.
    void Complain(const std::string& text) const;

private:
    bool m_mayAsk;
    bool m_hasOutput;
    bool m_hasErrors;
};
