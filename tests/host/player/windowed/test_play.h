#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/player/played_host.h"
#include "host/player/script_player.h"

/// A host with a bare window and three dimensions, A1, A2 and X, that notes what the player asks of it.
class TestHost : public PlayedHost
{
public:
    TestHost();
    ~TestHost() override;

    HWND MainWindow() const override { return m_window; }
    CCalcTolDlgBase* Dialog() const override { return dialog; }
    void LoadDrawing(const std::filesystem::path& file) override;
    void OpenDialog(const std::optional<std::string>& label) override;
    void DestroyDialog() override { asked.push_back("destroy"); }
    void DeleteDialog() override { asked.push_back("delete"); }
    void CancelDialog() override { asked.push_back("cancel"); }
    void EndModal() override { asked.push_back("end modal"); }
    void Pick(const std::string& dimension) override;
    void SetAnswering(UINT code, bool answering) override;
    void SetObserver(NotificationObserver* newObserver) override { observer = newObserver; }
    void* ObjectOf(const std::string& dimension) const override;
    std::optional<std::string> DimensionOf(const void* object) const override;
    CDimParams RecordOf(const std::string& dimension) const override;
    std::vector<std::string> ChainLines() const override { return {"link A1 40", "closing 0"}; }
    void OnPlayEnded(int code) override;

    std::vector<std::string> asked;
    CCalcTolDlgBase* dialog = nullptr;  ///< not owned
    NotificationObserver* observer = nullptr;
    std::optional<int> exitCode;
    bool opensMessage = false;  ///< OpenDialog shows a message box and returns when it is closed

private:
    HWND m_window = nullptr;
};

struct PlayResult
{
    int exitCode = -1;
    std::string output;
};

/// Plays the script in a message loop of its own until it has ended.
PlayResult Play(TestHost& host, const std::string& script);

/// Plays the script and expects every step to hold.
void ExpectHolds(TestHost& host, const std::string& script);

/// Plays the script and expects it to fail at that line with that reason in the output.
void ExpectFails(TestHost& host, const std::string& script, int line, const std::string& reason);

/// Loads the test's resource library under the name that the player looks for.
class TestResources
{
public:
    TestResources();
    ~TestResources();
    TestResources(const TestResources&) = delete;
    TestResources& operator=(const TestResources&) = delete;

    HMODULE Library() const { return m_library; }

private:
    HMODULE m_library;
};
