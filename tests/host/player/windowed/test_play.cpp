#include "test_play.h"

#include <stdexcept>

#include "host/player/script_parser.h"
#include "host/player/window_roles.h"
#include "interface/dim_params.h"

namespace
{

constexpr const char* kDimensions[] = {"A1", "A2", "X"};
constexpr std::chrono::seconds kLimit(60);

BOOL CALLBACK CloseDialogBox(HWND window, LPARAM)
{
    if (GetDlgItem(window, 0xFFFF) != nullptr)
        PostMessageW(window, WM_COMMAND, IDOK, 0);
    return TRUE;
}

bool IsForDialog(MSG& message)
{
    for (const HWND window : TopLevelWindows())
    {
        wchar_t name[16] = {};
        GetClassNameW(window, name, 16);
        if (std::wstring(name) == L"#32770" && IsDialogMessageW(window, &message))
            return true;
    }
    return false;
}

}  // namespace

TestHost::TestHost()
{
    WNDCLASSW description = {};
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = L"TestHost";
    description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    RegisterClassW(&description);
    m_window = CreateWindowW(L"TestHost", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300, nullptr, nullptr,
                             description.hInstance, nullptr);
}

TestHost::~TestHost()
{
    DestroyWindow(m_window);
}

void TestHost::LoadDrawing(const std::filesystem::path& file)
{
    asked.push_back("drawing " + file.generic_string());
}

void TestHost::OpenDialog(const std::optional<std::string>& label)
{
    asked.push_back("open " + label.value_or("without label"));
    if (opensMessage)
    {
        MessageBoxW(m_window, L"Really?", L"Host", MB_OK);
        asked.push_back("message closed");
    }
}

void TestHost::Pick(const std::string& dimension)
{
    ObjectOf(dimension);
    asked.push_back("pick " + dimension);
}

void TestHost::SetAnswering(UINT code, bool answering)
{
    asked.push_back((answering ? "answer " : "ignore ") + std::to_string(code));
}

void* TestHost::ObjectOf(const std::string& dimension) const
{
    for (const char* const& known : kDimensions)
    {
        if (dimension == known)
            return const_cast<void*>(static_cast<const void*>(&known));
    }
    throw std::runtime_error("the drawing has no dimension " + dimension);
}

std::optional<std::string> TestHost::DimensionOf(const void* object) const
{
    for (const char* const& known : kDimensions)
    {
        if (object == &known)
            return known;
    }
    return std::nullopt;
}

CDimParams TestHost::RecordOf(const std::string& dimension) const
{
    ObjectOf(dimension);
    CDimParams params;
    params.name = CString(std::wstring(dimension.begin(), dimension.end()).c_str());
    params.nominal = L"40";
    params.upperDev = L"0.1";
    params.dimKind = 1;
    return params;
}

void TestHost::OnPlayEnded(int code)
{
    exitCode = code;
    EndMenu();
    EnumThreadWindows(GetCurrentThreadId(), CloseDialogBox, 0);
    PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);  // wakes the loop of Play
}

PlayResult Play(TestHost& host, const std::string& script)
{
    host.exitCode.reset();
    testing::internal::CaptureStdout();
    PlayResult result;
    {
        ScriptPlayer player(ParseScript(script, "plays/test.txt"), host, kLimit);
        player.Start();
        MSG message;
        while (!host.exitCode && GetMessageW(&message, nullptr, 0, 0) > 0)
        {
            if (IsForDialog(message))
                continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        result.exitCode = host.exitCode.value_or(-1);
    }
    result.output = testing::internal::GetCapturedStdout();
    std::erase(result.output, '\r');
    return result;
}

void ExpectHolds(TestHost& host, const std::string& script)
{
    const PlayResult result = Play(host, script);
    EXPECT_EQ(result.exitCode, 0) << result.output;
}

void ExpectFails(TestHost& host, const std::string& script, int line, const std::string& reason)
{
    const PlayResult result = Play(host, script);
    EXPECT_EQ(result.exitCode, 1) << result.output;
    EXPECT_NE(result.output.find("FAIL plays/test.txt:" + std::to_string(line) + ":"), std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find(reason), std::string::npos) << result.output << "wanted: " << reason;
}

TestResources::TestResources()
{
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::filesystem::path folder = std::filesystem::path(program).parent_path();
    m_library = LoadLibraryW((folder / "host_player_tests" / "ModuleSkin.dll").c_str());
    if (m_library == nullptr)
        throw std::runtime_error("the test's resource library is missing");
}

TestResources::~TestResources()
{
    FreeLibrary(m_library);
}
