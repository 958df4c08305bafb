#include "tests/dialog/windowed/calc_dialog_test.h"

#include <utility>

namespace
{

struct ChildSearch
{
    HWND owner;
    HWND found;
};

BOOL CALLBACK LookAtWindow(HWND window, LPARAM search)
{
    auto& child = *reinterpret_cast<ChildSearch*>(search);
    if (::GetWindow(window, GW_OWNER) != child.owner || !::IsWindowVisible(window) || !::IsWindowEnabled(window))
        return TRUE;
    // One that is being replaced may stand before the next one.
    const auto* const dialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(window));
    const bool goesOn = dialog != nullptr && dialog->ContinueModal();
    if (goesOn || child.found == nullptr)
        child.found = window;
    return goesOn ? FALSE : TRUE;
}

/// The child dialog of a calculation dialog that takes input; null for none.
HWND OpenChildOf(HWND window)
{
    ChildSearch search{window, nullptr};
    ::EnumThreadWindows(::GetCurrentThreadId(), &LookAtWindow, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace

ScriptedHost::ScriptedHost()
{
    OnReceived([this](const ReceivedMessage& received) -> std::optional<LRESULT> {
        if (received.message != WM_CHAR || received.lParam != kNotificationMark)
            return std::nullopt;
        // Copies: an answer may say what comes next.
        if (const auto toAll = m_answerToAll)
            toAll();
        if (const auto found = m_answers.find(received.wParam); found != m_answers.end())
        {
            const auto answer = found->second;
            answer();
        }
        return 0;
    });
}

void ScriptedHost::AnswerNothing()
{
    m_answers.clear();
    m_answerToAll = nullptr;
    m_whenEnabled = nullptr;
    m_whenDisabled = nullptr;
    m_whenFocused = nullptr;
}

LRESULT ScriptedHost::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = RecordingWindow::WindowProc(message, wParam, lParam);
    std::function<void()> action;
    if (message == WM_ENABLE)
        action = std::exchange(wParam != FALSE ? m_whenEnabled : m_whenDisabled, nullptr);
    if (message == WM_SETFOCUS)
        action = std::exchange(m_whenFocused, nullptr);
    if (action)
        action();
    return result;
}

CDimParams Dimension(const wchar_t* name, const wchar_t* nominal, const wchar_t* upper, const wchar_t* lower,
                     int increasing, int dimKind)
{
    return {.tolField = CString(),
            .nominal = nominal,
            .name = name,
            .upperDev = upper,
            .lowerDev = lower,
            .caption = L"Picked size:",
            .weightFixed = 0,
            .increasing = increasing,
            .dimKind = dimKind};
}

CalcDialogTest::CalcDialogTest() : dialog(std::make_unique<WatchedDialog>())
{
    AfxGetThread()->m_pMainWnd = &host;
}

CalcDialogTest::~CalcDialogTest()
{
    host.AnswerNothing();
    if (dialog != nullptr && ::IsWindow(Window()))
        Close();
    AfxGetThread()->m_pMainWnd = nullptr;
}

void CalcDialogTest::Open(const wchar_t* label)
{
    dialog->SetFileName(label);
    ASSERT_TRUE(dialog->Create(&host));
    PumpUntilIdle();
}

void CalcDialogTest::OpenWith(int method)
{
    Open();
    ChooseMethod(method);
}

void CalcDialogTest::OpenAnew()
{
    dialog->DestroyWindow();
    dialog->Create(&host);
}

void CalcDialogTest::Close()
{
    dialog->CancelDialog();
    dialog->DestroyWindow();
    dialog.reset();
}

void CalcDialogTest::Command(UINT id, std::vector<Step> whileOpen) const
{
    const HWND window = Window();
    const LoopScript script(std::move(whileOpen), [window] {
        const HWND child = OpenChildOf(window);
        if (child != nullptr)
            ::DestroyWindow(child);
    });
    ::SendMessageW(window, WM_COMMAND, id, 0);
}

void CalcDialogTest::ChooseMethod(int method) const
{
    Command(method == kAnalytic ? ID_METHOD_ANALYTIC : ID_METHOD_PROBABILISTIC);
}

void CalcDialogTest::ClickCell(const ListView& list, int row, int column) const
{
    PostClick(list.Window(), column == 0 ? list.NamePoint(row) : list.CellCentre(row, column));
    PumpUntilIdle();
}

void CalcDialogTest::FocusOnLink(int link) const
{
    ClickCell(Links(), link + 1, 0);
    ASSERT_EQ(Links().FocusRow(), link + 1);
}

void CalcDialogTest::FocusOnChain() const
{
    ClickCell(Links(), 0, 0);
    ASSERT_EQ(Links().FocusRow(), 0);
}

void CalcDialogTest::AddLinks(const std::vector<std::pair<CDimParams, void*>>& links)
{
    Command(ID_LINK_ADD, {[&] {
                for (const auto& [params, object] : links)
                {
                    Load(params);
                    dialog->AddToList(object);
                }
                ClickChild(IDC_LINK_CANCEL);
            }});
    host.Forget();
}

void CalcDialogTest::AddClosing(const CDimParams& params, void* object)
{
    Command(ID_CLOSING_ADD, {[&] {
                LoadClosing(params);
                dialog->AddCloseDimToList(object);
                ClickChild(IDC_CLOSING_CANCEL);
            }});
    host.Forget();
}

void CalcDialogTest::FillChain()
{
    AddLinks({{Dimension(L"A1", L"10", L"0.1", L"-0.1"), &objects[0]},
              {Dimension(L"A2", L"4", L"0.05", L"0", 0), &objects[1]}});
    AddClosing(Dimension(L"", L"6", L"0.15", L"-0.15"), &closingObject);
}

void CalcDialogTest::Load(CDimParams params) const
{
    dialog->SetDlgParams(params.name, params.nominal, params.caption, params.weightFixed, params.tolField,
                         params.upperDev, params.lowerDev, params.dimKind, params.increasing);
}

void CalcDialogTest::LoadClosing(CDimParams params) const
{
    dialog->SetCloseDimDlgParams(params.name, params.nominal, params.caption, params.weightFixed, params.tolField,
                                 params.upperDev, params.lowerDev, params.dimKind, params.increasing);
}

std::vector<void*> CalcDialogTest::Objects() const
{
    CArray<void*, void*> array;
    dialog->GetArrayObject(array);
    std::vector<void*> found;
    for (int i = 0; i < array.GetSize(); ++i)
        found.push_back(array[i]);
    return found;
}

HWND CalcDialogTest::Child() const
{
    return OpenChildOf(Window());
}

CString CalcDialogTest::ChildText(int id) const
{
    wchar_t text[300] = L"";
    ::GetWindowTextW(ChildControl(id), text, 300);
    return text;
}

void CalcDialogTest::EndChildWith(int result) const
{
    static_cast<CDialog*>(CWnd::FromHandlePermanent(Child()))->EndDialog(result);
}

void CalcDialogTest::ExpectNoChild() const
{
    EXPECT_EQ(Child(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(Window()));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

int CalcDialogTest::RepaintsOf(const std::function<void()>& action) const
{
    PumpUntilIdle();
    const int before = dialog->Repaints();
    action();
    return dialog->Repaints() - before;
}

void CalcDialogTest::ExpectNoRepaintBy(const std::function<void()>& action) const
{
    EXPECT_EQ(RepaintsOf(action), 0);
    EXPECT_FALSE(::GetUpdateRect(Window(), nullptr, FALSE)) << "nor does it wait for a later one";
}

EachChild::EachChild()
{
    OpenWith(kProbabilistic);
    FillChain();
    FocusOnLink(0);
    host.Forget();
}
