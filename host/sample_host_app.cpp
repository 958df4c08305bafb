// The sample host: a small program with a drawing that drives the calculation dialog through its exported interface.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <afxwin.h>
#include <shellapi.h>

#include "host/command_line.h"
#include "host/drawing_reader.h"
#include "host/main_frame.h"
#include "host/played_frame.h"
#include "host/player/script_parser.h"
#include "host/player/script_player.h"
#include "host/resource.h"
#include "host/standard_output.h"
#include "platform/text/text_encoding.h"

namespace
{

constexpr int kFailed = 1;
constexpr int kBadScript = 2;

std::vector<std::string> Arguments()
{
    int count = 0;
    LPWSTR* const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(ToUtf8(CString(words[i])));
    ::LocalFree(words);
    return arguments;
}

/// Whether a play was asked for, also in a command line with mistakes: nobody is there then to close a message box.
bool AsksForPlay(const std::vector<std::string>& arguments)
{
    return std::any_of(arguments.begin(), arguments.end(),
                       [](const std::string& argument) { return argument.starts_with("--play"); });
}

std::filesystem::path ToPath(const std::string& utf8)
{
    return std::filesystem::path(FromUtf8(utf8).GetString());
}

/// The drawing that comes with the program.
Drawing DefaultDrawing()
{
    const HRSRC resource = ::FindResourceW(nullptr, MAKEINTRESOURCEW(IDR_DEFAULT_DRAWING), RT_RCDATA);
    const auto* const text = static_cast<const char*>(::LockResource(::LoadResource(nullptr, resource)));
    return ParseDrawing({text, ::SizeofResource(nullptr, resource)}, "the default drawing");
}

// Dialogs and menus may be open, and the module's code may be running around this call.
[[noreturn]] void EndProcess(int exitCode)
{
    std::fflush(nullptr);
    ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(exitCode));
    std::abort();
}

}  // namespace

class CSampleHostApp : public CWinApp
{
public:
    CSampleHostApp() : CWinApp(L"Sample host") {}

    BOOL InitInstance() override
    {
        const std::vector<std::string> arguments = Arguments();
        const StandardOutput output(!AsksForPlay(arguments));
        try
        {
            return Start(ParseCommandLine(arguments));
        }
        catch (const CommandLineExit& exit)
        {
            m_exitCode = exit.ExitCode();
            exit.ExitCode() == 0 ? output.Tell(exit.what()) : output.Complain(exit.what());
        }
        catch (const ScriptError& error)
        {
            m_exitCode = kBadScript;
            output.Complain(error.what() + std::string("\n"));
        }
        catch (const std::runtime_error& error)
        {
            m_exitCode = kFailed;
            output.Complain(error.what() + std::string("\n"));
        }
        return FALSE;
    }

    BOOL PreTranslateMessage(MSG* message) override
    {
        auto* const frame = static_cast<CMainFrame*>(m_pMainWnd);
        return (frame != nullptr && frame->TakesKey(*message)) || CWinApp::PreTranslateMessage(message);
    }

    int ExitInstance() override
    {
        if (m_player == nullptr)
            return m_exitCode;
        StandardOutput(false).Complain("the main window was closed before the play had ended\n");
        EndProcess(kFailed);  // the player and what it plays in refer to the window
    }

private:
    BOOL Start(const CommandLine& commandLine)
    {
        std::optional<Script> script;
        if (commandLine.play)
            script = ParseScriptFile(ToPath(*commandLine.play));
        const Drawing drawing = commandLine.drawing ? ReadDrawingFile(ToPath(*commandLine.drawing)) : DefaultDrawing();

        auto* const frame = new CMainFrame(&CCalcTolDlgBase::CreateCalcTolDlg);  // deletes itself with its window
        if (!frame->LoadFrame(IDR_MAIN_FRAME))
            throw std::runtime_error("SampleHost: the main window can't be created; is there a display?");
        m_pMainWnd = frame;
        frame->ShowDrawing(drawing);
        frame->ShowWindow(m_nCmdShow);
        frame->UpdateWindow();
        if (script)
        {
            m_played = std::make_unique<PlayedFrame>(*frame, &EndProcess);
            m_player = std::make_unique<ScriptPlayer>(std::move(*script), *m_played, commandLine.timeout);
            m_player->Start();
        }
        return TRUE;
    }

    int m_exitCode = 0;
    std::unique_ptr<PlayedFrame> m_played;
    std::unique_ptr<ScriptPlayer> m_player;
};

namespace
{
CSampleHostApp application;
}
