#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "interface/calc_tol_dlg_base.h"
#include "interface/dim_link.h"
#include "interface/notifications.h"
#include "platform/moduleskin/resource.h"
#include "tests/dialog/windowed/list_view.h"
#include "tests/dialog/windowed/loop_script.h"
#include "tests/dialog/windowed/watched_dialog.h"
#include "tests/support/framework_printers.h"
#include "tests/support/input.h"
#include "tests/support/message_pump.h"
#include "tests/support/recording_window.h"
#include "tests/support/resource_text.h"

/// A host that answers notifications as a test says.
class ScriptedHost : public RecordingWindow
{
public:
    ScriptedHost();

    /// Done inside each notification of that code, instead of what was said before.
    void On(WPARAM code, std::function<void()> answer) { m_answers[code] = std::move(answer); }
    /// Done inside every notification, before the answer to its code.
    void OnEvery(std::function<void()> answer) { m_answerToAll = std::move(answer); }
    /// Done the next time that the window is enabled.
    void OnEnabled(std::function<void()> action) { m_whenEnabled = std::move(action); }
    /// Done the next time that the window is disabled.
    void OnDisabled(std::function<void()> action) { m_whenDisabled = std::move(action); }
    /// Done the next time that the window gets the keyboard.
    void OnFocused(std::function<void()> action) { m_whenFocused = std::move(action); }
    void AnswerNothing();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::map<WPARAM, std::function<void()>> m_answers;
    std::function<void()> m_answerToAll;
    std::function<void()> m_whenEnabled;
    std::function<void()> m_whenDisabled;
    std::function<void()> m_whenFocused;
};

/// A dimension without a tolerance field, so that its deviations stay as they are given.
CDimParams Dimension(const wchar_t* name, const wchar_t* nominal, const wchar_t* upper, const wchar_t* lower,
                     int increasing = 1, int dimKind = 1);

/// The calculation dialog with a host, which is the application's main window, too.
class CalcDialogTest : public testing::Test
{
protected:
    using Step = LoopScript::Step;

    static constexpr int kEndedByHost = 5;
    static constexpr int kAnalytic = 1;
    static constexpr int kProbabilistic = 2;

    CalcDialogTest();
    ~CalcDialogTest() override;

    /// Makes the dialog and creates its window.
    void Open(const wchar_t* label = L"Shaft");
    /// With the method chosen.
    void OpenWith(int method);
    /// Destroys the window and creates it anew.
    void OpenAnew();
    /// As a host does it when it has no more use for the dialog.
    void Close();

    HWND Window() const { return dialog->m_hWnd; }
    HWND Control(int id) const { return ::GetDlgItem(Window(), id); }
    ListView Links() const { return ListView(Control(IDC_CHAIN_LIST)); }
    ListView Closing() const { return ListView(Control(IDC_CLOSING_LIST)); }
    std::vector<WeightLink> Model() const { return dialog->Links(); }

    // what the user does
    void Command(UINT id) const { ::SendMessageW(Window(), WM_COMMAND, id, 0); }
    /// A command that opens a child dialog, and what is done while that is open. The last step ends it.
    void Command(UINT id, std::vector<Step> whileOpen) const;
    void ChooseMethod(int method) const;
    void ClickCell(const ListView& list, int row, int column) const;
    /// Makes a link the focus row; the chain row is expanded.
    void FocusOnLink(int link) const;
    void FocusOnChain() const;

    // the chain, as a host fills it
    /// Adds links while one link tolerance dialog is open, which is cancelled then.
    void AddLinks(const std::vector<std::pair<CDimParams, void*>>& links);
    void AddLink(const CDimParams& params, void* object = nullptr) { AddLinks({{params, object}}); }
    void AddClosing(const CDimParams& params, void* object);
    /// 10 +0.1/-0.1 increasing, 4 +0.05/0 decreasing, closing link 6 +0.15/-0.15: analytic all inside.
    void FillChain();
    void Load(CDimParams params) const;
    void LoadClosing(CDimParams params) const;
    std::vector<void*> Objects() const;

    // the child dialog that is open
    HWND Child() const;
    HWND ChildControl(int id) const { return ::GetDlgItem(Child(), id); }
    CString ChildText(int id) const;
    void WriteChild(int id, const wchar_t* text) const { ::SetWindowTextW(ChildControl(id), text); }
    void ClickChild(int id) const { ::SendMessageW(ChildControl(id), BM_CLICK, 0, 0); }
    /// As the host or the dialog's own code ends it.
    void EndChildWith(int result) const;
    bool IsChildChecked(int id) const { return ::SendMessageW(ChildControl(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }

    /// None is open, and none has left a window disabled.
    void ExpectNoChild() const;

    std::vector<WPARAM> Codes() const { return host.Notifications(); }
    /// How often the action makes the dialog repaint itself at once.
    int RepaintsOf(const std::function<void()>& action) const;
    /// The action makes the dialog repaint itself neither at once nor later.
    void ExpectNoRepaintBy(const std::function<void()>& action) const;

    ScriptedHost host;
    std::unique_ptr<WatchedDialog> dialog;
    int objects[5] = {};  // the host's dimensions, by their addresses
    int closingObject = 0;
};

/// The kinds of child dialogs: what opens one, which of its buttons end it, and what it needs to be offered.
struct ChildKind
{
    const char* name;
    UINT command;
    int ok;
    int cancel;
    int ownControl;  // only this kind has it
};

inline constexpr ChildKind kLinkChild{"Link", ID_LINK_EDIT, IDC_LINK_OK, IDC_LINK_CANCEL, IDC_LINK_FIELD};
inline constexpr ChildKind kClosingChild{"Closing", ID_CLOSING_EDIT, IDC_CLOSING_OK, IDC_CLOSING_CANCEL,
                                         IDC_CLOSING_FIELD};
inline constexpr ChildKind kDistributionChild{"Distribution", ID_LINK_DISTRIBUTION, IDC_VARIABLE_OK,
                                              IDC_VARIABLE_CANCEL, IDC_VARIABLE_LAW};
inline constexpr ChildKind kWeightChild{"Weight", ID_CHAIN_WEIGHTS, IDOK, IDCANCEL, IDC_WEIGHT_SLIDER};
// The first two, opened for a row that is not there yet.
inline constexpr ChildKind kNewLinkChild{"NewLink", ID_LINK_ADD, IDC_LINK_OK, IDC_LINK_CANCEL, IDC_LINK_FIELD};
inline constexpr ChildKind kNewClosingChild{"NewClosing", ID_CLOSING_ADD, IDC_CLOSING_OK, IDC_CLOSING_CANCEL,
                                            IDC_CLOSING_FIELD};

inline void PrintTo(const ChildKind& kind, std::ostream* out)
{
    *out << kind.name;
}

/// For each of the kinds, with a filled chain whose first link has the focus, under the probabilistic method.
class EachChild : public CalcDialogTest, public testing::WithParamInterface<ChildKind>
{
protected:
    EachChild();
};
