// The calling order that a host follows, from the factory to the end, with everything that passes between both sides.

#include <functional>
#include <string>
#include <utility>

#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

/// A host as the contract describes it. It uses nothing but the exported interface, and writes down each notification
/// and each call.
class Protocol : public testing::Test
{
protected:
    Protocol()
    {
        AfxGetThread()->m_pMainWnd = &host;
        AfxSetResourceHandle(hostResources);
        for (const WPARAM code : {1, 2, 3, 30, 32, 35, 93, 107, 246})
            host.On(code, [this, code] {
                EXPECT_EQ(AfxGetResourceHandle(), code == kDialogClosed ? hostResources : libraryResources)
                    << "notification " << code;
                log.push_back(std::to_string(code));
                Answer(code);
            });
    }
    ~Protocol() override
    {
        EXPECT_EQ(AfxGetResourceHandle(), hostResources);
        AfxSetResourceHandle(formerResources);
        AfxGetThread()->m_pMainWnd = nullptr;
    }

    /// What the user is about to do, for the notifications that don't tell.
    enum class Task
    {
        Add,
        Edit
    };

    void Answer(WPARAM code)
    {
        CDimParams dimension;
        CVariableParams distribution;
        switch (code)
        {
        case kLinkAccepted:
        case kLinkApplied:
            dialog->GetDimDlgParams(dimension);
            log.push_back("GetDimDlgParams " + Text(dimension));
            if (dimension.nominal.IsEmpty())
                break;
            if (task == Task::Add)
                dialog->AddToList(next);
            else
                dialog->SetCurrentFRowData(dimension);
            log.push_back(task == Task::Add ? "AddToList" : "SetCurrentFRowData");
            break;
        case kClosingAccepted:
            dialog->GetCloseDimDlgParams(dimension);
            log.push_back("GetCloseDimDlgParams " + Text(dimension));
            if (task == Task::Add)
                dialog->AddCloseDimToList(next);
            else
                dialog->SetCloseFRowData(dimension);
            log.push_back(task == Task::Add ? "AddCloseDimToList" : "SetCloseFRowData");
            break;
        case kDistributionAccepted:
            dialog->GetVariableDlgParams(distribution);
            log.push_back("GetVariableDlgParams " + Narrow(distribution.name) + " " + std::to_string(distribution.law));
            if (distribution.name == L"X")
                dialog->SetVariableCloseFRowData(distribution);
            else
                dialog->SetVariableFRowData(distribution);
            break;
        default:
            break;
        }
    }

    static std::string Narrow(const CString& text)
    {
        std::string narrow;
        for (int i = 0; i < text.GetLength(); ++i)
            narrow += static_cast<char>(text[i]);
        return narrow;
    }
    static std::string Text(const CDimParams& params)
    {
        return Narrow(params.name) + " " + Narrow(params.nominal) + " " + Narrow(params.upperDev) + " " +
               Narrow(params.lowerDev);
    }

    HWND Child() const { return ::GetLastActivePopup(dialog->m_hWnd); }
    void Click(int button) const { ::SendMessageW(::GetDlgItem(Child(), button), BM_CLICK, 0, 0); }
    void Write(int control, const wchar_t* text) const { ::SetDlgItemTextW(Child(), control, text); }

    void Load(CDimParams params)
    {
        log.push_back("SetDlgParams");
        dialog->SetDlgParams(params.name, params.nominal, params.caption, params.weightFixed, params.tolField,
                             params.upperDev, params.lowerDev, params.dimKind, params.increasing);
    }
    void LoadClosing(CDimParams params)
    {
        log.push_back("SetCloseDimDlgParams");
        dialog->SetCloseDimDlgParams(params.name, params.nominal, params.caption, params.weightFixed, params.tolField,
                                     params.upperDev, params.lowerDev, params.dimKind, params.increasing);
    }

    /// The user chooses a command; the steps are what host and user do while its dialog is open.
    void Choose(UINT command, Task what, void* object, std::vector<LoopScript::Step> steps)
    {
        task = what;
        next = object;
        const LoopScript script(std::move(steps), [this] { dialog->EndModal(); });
        ::SendMessageW(dialog->m_hWnd, WM_COMMAND, command, 0);
        EXPECT_EQ(AfxGetResourceHandle(), hostResources) << "command " << command;
    }

    std::vector<void*> Objects() const
    {
        CArray<void*, void*> array;
        dialog->GetArrayObject(array);
        std::vector<void*> found;
        for (int i = 0; i < array.GetSize(); ++i)
            found.push_back(array[i]);
        return found;
    }

    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

    const HINSTANCE formerResources = AfxGetResourceHandle();
    const HINSTANCE hostResources = ::GetModuleHandleW(L"framework.dll");  // any module but the library
    const HINSTANCE libraryResources = ::GetModuleHandleW(L"ModuleSkin.dll");
    ScriptedHost host;
    std::unique_ptr<CCalcTolDlgBase> dialog;
    std::vector<std::string> log;
    Task task = Task::Add;
    void* next = nullptr;
    int first = 0;
    int second = 0;
    int closing = 0;
};

using Log = std::vector<std::string>;

TEST_F(Protocol, RunsFromTheFactoryToTheEnd)
{
    dialog.reset(CCalcTolDlgBase::CreateCalcTolDlg());
    dialog->SetFileName(L"Gear box");
    ASSERT_TRUE(dialog->Create(&host));
    PumpUntilIdle();
    ::SendMessageW(dialog->m_hWnd, WM_COMMAND, ID_METHOD_PROBABILISTIC, 0);
    EXPECT_EQ(TakeLog(), Log{});

    Choose(ID_LINK_ADD, Task::Add, &first, {[this] {
               Load(Dimension(L"A1", L"10", L"0.1", L"-0.1"));
               Click(IDC_LINK_APPLY);
               next = &second;
               Load(Dimension(L"A2", L"4", L"0.05", L"0", 0));
               Click(IDC_LINK_OK);
           }});
    EXPECT_EQ(TakeLog(), (Log{"32", "SetDlgParams", "107", "GetDimDlgParams A1 10 0.1 -0.1", "AddToList",
                              "SetDlgParams", "1", "GetDimDlgParams A2 4 0.05 0", "AddToList"}));

    Choose(ID_CLOSING_ADD, Task::Add, &closing, {[this] {
               LoadClosing(Dimension(L"B", L"6", L"0.15", L"-0.15"));
               Click(IDC_CLOSING_OK);
           }});
    EXPECT_EQ(TakeLog(),
              (Log{"246", "SetCloseDimDlgParams", "93", "GetCloseDimDlgParams B 6 0.15 -0.15", "AddCloseDimToList"}));
    EXPECT_EQ(Objects(), (std::vector<void*>{&first, &second}));
    EXPECT_EQ(dialog->GetCloseObject(), &closing);

    const ListView links(::GetDlgItem(dialog->m_hWnd, IDC_CHAIN_LIST));
    PostClick(links.Window(), links.NamePoint(1));
    PumpUntilIdle();
    Choose(ID_LINK_EDIT, Task::Edit, nullptr, {[this] {
               Write(IDC_LINK_UPPER_DEV, L"0.2");
               Click(IDC_LINK_OK);
           }});
    EXPECT_EQ(TakeLog(), (Log{"30", "1", "GetDimDlgParams A1 10 0.2 -0.1", "SetCurrentFRowData"}));
    Choose(ID_CLOSING_EDIT, Task::Edit, nullptr, {[this] {
               Write(IDC_CLOSING_LOWER_DEV, L"-0.2");
               Click(IDC_CLOSING_OK);
           }});
    EXPECT_EQ(TakeLog(), (Log{"30", "93", "GetCloseDimDlgParams  6 0.15 -0.2", "SetCloseFRowData"}));
    Choose(ID_LINK_DISTRIBUTION, Task::Edit, nullptr, {[this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_EQ(TakeLog(), (Log{"32", "35", "GetVariableDlgParams A1 1"}));
    Choose(ID_CLOSING_DISTRIBUTION, Task::Edit, nullptr, {[this] { Click(IDC_VARIABLE_OK); }});
    EXPECT_EQ(TakeLog(), (Log{"246", "35", "GetVariableDlgParams X 1"}));
    Choose(ID_CHAIN_WEIGHTS, Task::Edit, nullptr, {[this] { Click(IDOK); }});
    EXPECT_EQ(TakeLog(), Log{});
    Choose(ID_LINK_EDIT, Task::Edit, nullptr, {[this] { Click(IDC_LINK_CANCEL); }});
    EXPECT_EQ(TakeLog(), (Log{"30", "3"}));

    Choose(ID_LINK_ADD, Task::Add, nullptr, {[this] { dialog->EndModal(); }});
    EXPECT_EQ(TakeLog(), (Log{"32"}));
    EXPECT_EQ(Objects(), (std::vector<void*>{&first, &second}));

    ::SendMessageW(dialog->m_hWnd, WM_COMMAND, ID_LINK_DELETE, 0);
    EXPECT_EQ(TakeLog(), Log{});
    EXPECT_EQ(Objects(), (std::vector<void*>{&second}));

    ::SendMessageW(dialog->m_hWnd, WM_COMMAND, IDCANCEL, 0);
    EXPECT_EQ(TakeLog(), (Log{"2"}));
    EXPECT_TRUE(Objects().empty());
    dialog->DestroyWindow();
    dialog.reset();
    EXPECT_EQ(TakeLog(), Log{});
}

TEST_F(Protocol, LeavesTheHostItsResourcesAfterEveryCall)
{
    dialog.reset(CCalcTolDlgBase::CreateCalcTolDlg());
    ASSERT_TRUE(dialog->Create(&host));
    EXPECT_EQ(AfxGetResourceHandle(), hostResources);
    ::SendMessageW(dialog->m_hWnd, WM_COMMAND, ID_METHOD_ANALYTIC, 0);
    Choose(ID_LINK_ADD, Task::Add, &first, {[this] {
               Load(Dimension(L"A1", L"10", L"0.1", L"-0.1"));
               Click(IDC_LINK_OK);
           }});
    Choose(ID_CLOSING_ADD, Task::Add, &closing, {[this] {
               LoadClosing(Dimension(L"B", L"6", L"0.15", L"-0.15"));
               Click(IDC_CLOSING_OK);
           }});
    CDimParams dimension = Dimension(L"A1", L"10", L"0.2", L"-0.2");
    CVariableParams distribution;
    const std::pair<const char*, std::function<void()>> calls[] = {
        {"AddToList", [&] { dialog->AddToList(&second); }},
        {"AddCloseDimToList", [&] { dialog->AddCloseDimToList(&closing); }},
        {"SetDlgParams", [&] { Load(dimension); }},
        {"SetCloseDimDlgParams", [&] { LoadClosing(dimension); }},
        {"GetDimDlgParams", [&] { dialog->GetDimDlgParams(dimension); }},
        {"GetCloseDimDlgParams", [&] { dialog->GetCloseDimDlgParams(dimension); }},
        {"SetCurrentFRowData", [&] { dialog->SetCurrentFRowData(dimension); }},
        {"SetCloseFRowData", [&] { dialog->SetCloseFRowData(dimension); }},
        {"SetVariableFRowData", [&] { dialog->SetVariableFRowData(distribution); }},
        {"SetVariableCloseFRowData", [&] { dialog->SetVariableCloseFRowData(distribution); }},
        {"EndModal", [&] { dialog->EndModal(); }},
        {"CancelDialog", [&] { dialog->CancelDialog(); }},
        {"DestroyWindow", [&] { dialog->DestroyWindow(); }},
    };
    for (const auto& [name, call] : calls)
    {
        call();
        EXPECT_EQ(AfxGetResourceHandle(), hostResources) << name;
    }
}

// Two dialogs, as of two drawings: each keeps its own chain, method and host.
TEST_F(Protocol, KeepsTwoDialogsApart)
{
    ScriptedHost otherHost;
    const std::unique_ptr<CCalcTolDlgBase> other(CCalcTolDlgBase::CreateCalcTolDlg());
    dialog.reset(CCalcTolDlgBase::CreateCalcTolDlg());
    ASSERT_TRUE(dialog->Create(&host));
    ASSERT_TRUE(other->Create(&otherHost));
    PumpUntilIdle();
    ::SendMessageW(dialog->m_hWnd, WM_COMMAND, ID_METHOD_ANALYTIC, 0);
    Choose(ID_LINK_ADD, Task::Add, &first, {[this] {
               Load(Dimension(L"A1", L"10", L"0.1", L"-0.1"));
               Click(IDC_LINK_OK);
           }});
    EXPECT_EQ(Objects(), (std::vector<void*>{&first}));
    CArray<void*, void*> othersObjects;
    other->GetArrayObject(othersObjects);
    EXPECT_EQ(othersObjects.GetSize(), 0);
    ::SendMessageW(other->m_hWnd, WM_COMMAND, IDCANCEL, 0);
    EXPECT_EQ(otherHost.Notifications(), (std::vector<WPARAM>{kDialogClosed}));
    EXPECT_EQ(Objects(), (std::vector<void*>{&first}));
    other->DestroyWindow();
    dialog->CancelDialog();
    dialog->DestroyWindow();
}

}  // namespace
