#pragma once

#include <functional>

#include "host/main_frame.h"
#include "host/player/played_host.h"

/// The main window as a play sees it.
class PlayedFrame : public PlayedHost
{
public:
    /// @param onEnded  gets the exit code when the play is over
    PlayedFrame(CMainFrame& frame, std::function<void(int)> onEnded) : m_frame(frame), m_onEnded(std::move(onEnded)) {}

    HWND MainWindow() const override { return m_frame.GetSafeHwnd(); }
    CCalcTolDlgBase* Dialog() const override { return m_frame.Protocol().Dialog(); }
    void LoadDrawing(const std::filesystem::path& file) override;
    void OpenDialog(const std::optional<std::string>& label) override;
    void DestroyDialog() override { m_frame.Protocol().DestroyWindow(); }
    void DeleteDialog() override { m_frame.Protocol().DeleteDialog(); }
    void CancelDialog() override { m_frame.Protocol().CancelDialog(); }
    void EndModal() override { m_frame.Protocol().EndModal(); }
    void Pick(const std::string& dimension) override;
    void SetAnswering(UINT code, bool answering) override { m_frame.Protocol().SetAnswering(code, answering); }
    void SetObserver(NotificationObserver* observer) override { m_frame.Protocol().SetObserver(observer); }
    void* ObjectOf(const std::string& dimension) const override;
    std::optional<std::string> DimensionOf(const void* object) const override;
    CDimParams RecordOf(const std::string& dimension) const override;
    std::vector<std::string> ChainLines() const override { return m_frame.Protocol().ChainLines(); }
    void OnPlayEnded(int exitCode) override { m_onEnded(exitCode); }

private:
    const DrawingObject& Object(const std::string& dimension) const;

    CMainFrame& m_frame;
    std::function<void(int)> m_onEnded;
};
