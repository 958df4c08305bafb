#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

class CCalcTolDlgBase;
struct CDimParams;

/// Wants to know of every notification that reaches the host's window.
class NotificationObserver
{
public:
    virtual ~NotificationObserver() = default;

    /// The host calls this inside the notification, before its own answer, also for a code that it does not answer. The
    /// observer may call the module's interface and may destroy or delete the dialog: read Dialog() again afterwards.
    virtual void OnNotified(UINT code) = 0;
};

/// What the script player asks of the host that it plays in. Texts are UTF-8.
///
/// An operation that can't be done throws std::runtime_error with a message for the person who wrote the script. All
/// calls come on the user-interface thread, from whichever message loop is current, so a modal dialog, a message box or
/// a menu may be open.
class PlayedHost
{
public:
    virtual ~PlayedHost() = default;

    virtual HWND MainWindow() const = 0;
    /// The calculation dialog's object, with or without a window; null before OpenDialog and after DeleteDialog.
    virtual CCalcTolDlgBase* Dialog() const = 0;

    /// Replaces the drawing. A file that can't be read throws and leaves the former drawing.
    virtual void LoadDrawing(const std::filesystem::path& file) = 0;
    /// Makes the calculation dialog and shows it; without a label SetFileName is not called.
    virtual void OpenDialog(const std::optional<std::string>& label) = 0;
    /// Destroys the dialog's window and keeps the object.
    virtual void DestroyDialog() = 0;
    /// Deletes the dialog's object, and with it the window if there is one.
    virtual void DeleteDialog() = 0;
    /// Calls the interface's CancelDialog.
    virtual void CancelDialog() = 0;
    /// Calls the interface's EndModal.
    virtual void EndModal() = 0;
    /// What a click on the dimension in the drawing does. An unknown dimension throws.
    virtual void Pick(const std::string& dimension) = 0;

    /// Whether the host answers the notification `code` from now on. At the start it answers all that have an answer.
    virtual void SetAnswering(UINT code, bool answering) = 0;
    /// Every notification is told to the observer from now on; null ends it. The observer is not owned.
    virtual void SetObserver(NotificationObserver* observer) = 0;

    /// The pointer that the host gives the module for a dimension of the drawing. An unknown dimension throws.
    virtual void* ObjectOf(const std::string& dimension) const = 0;
    /// The dimension that a pointer from the module stands for; nothing for a pointer that the host never gave.
    virtual std::optional<std::string> DimensionOf(const void* object) const = 0;
    /// The values that a pick of the dimension loads. An unknown dimension throws.
    virtual CDimParams RecordOf(const std::string& dimension) const = 0;

    /// The chain and the computed closing link as the step `print` shows them, one line each, without line ends.
    virtual std::vector<std::string> ChainLines() const = 0;

    /// The play is over, with the exit code that the process is to end with. Called once, from a timer: dialogs,
    /// message boxes or menus may still be open, so ending the process there and then is the safe answer.
    virtual void OnPlayEnded(int exitCode) = 0;
};
