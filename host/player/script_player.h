#pragma once

#include <chrono>
#include <memory>

#include "host/player/played_host.h"
#include "host/player/script.h"

/// Plays one script against the windows of the own process, a step at a time, from the message loop that is current.
///
///     ScriptPlayer player(ParseScriptFile(path), host, std::chrono::seconds(120));  // throws ScriptError: exit code 2
///     player.Start();
///     ... the host's message loop ...  // host.OnPlayEnded(exit code)
///
/// Each step prints a line to the standard output. Exit codes: 0 all steps held, 1 a step failed, 3 the time is up (the
/// process is ended from a helper thread then, since its user interface may hang, and OnPlayEnded is not called).
class ScriptPlayer
{
public:
    /// The host must outlive the player.
    ScriptPlayer(Script script, PlayedHost& host, std::chrono::milliseconds timeout);
    ~ScriptPlayer();
    ScriptPlayer(const ScriptPlayer&) = delete;
    ScriptPlayer& operator=(const ScriptPlayer&) = delete;

    /// Returns at once; the first step comes when the message loop is idle.
    void Start();

private:
    class Run;
    std::unique_ptr<Run> m_run;
};
