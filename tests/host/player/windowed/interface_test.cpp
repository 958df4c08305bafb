#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "interface/calc_tol_dlg_base.h"
#include "interface/notifications.h"
#include "test_play.h"
#include "test_windows.h"

namespace
{

std::string Narrow(const CString& text)
{
    return {text.GetString(), text.GetString() + text.GetLength()};
}

/// A calculation dialog that notes every call and hands out the records that it was given.
class NotingDialog : public CCalcTolDlgBase
{
public:
    NotingDialog() : CCalcTolDlgBase(103, nullptr) {}
    ~NotingDialog() override { Detach(); }

    BOOL Create(CWnd* parent) override
    {
        calls.push_back(parent == nullptr ? "create without parent" : "create");
        if (host != nullptr)
            host->observer->OnNotified(1);
        return createResult;
    }
    void SetFileName(CString name) override { calls.push_back("name " + Narrow(name)); }
    void SetDlgParams(CString& name, CString& nominal, CString& caption, int& weightFixed, CString& tolField,
                      CString& upperDev, CString& lowerDev, int dimKind, int& increasing) override
    {
        calls.push_back("load " + Narrow(name) + " " + Narrow(nominal) + " " + Narrow(caption) + " " +
                        std::to_string(weightFixed) + " " + Narrow(tolField) + " " + Narrow(upperDev) + " " +
                        Narrow(lowerDev) + " " + std::to_string(dimKind) + " " + std::to_string(increasing));
    }
    void SetCloseDimDlgParams(CString& name, CString&, CString&, int&, CString&, CString&, CString&, int, int&) override
    {
        calls.push_back("load closing " + Narrow(name));
    }
    void GetDimDlgParams(CDimParams& params) override { params = link; }
    void GetCloseDimDlgParams(CDimParams& params) override { params = closing; }
    void GetVariableDlgParams(CVariableParams& params) override { params = distribution; }
    void GetArrayObject(CArray<void*, void*>& objects) override
    {
        for (void* const object : chain)
            objects.Add(object);
    }
    void* GetCloseObject() override { return closingObject; }
    void GetCurrentObject(void* object) override { calls.push_back(object == nullptr ? "current null" : "current"); }
    void AddToList(void* object) override { chain.push_back(object); }
    void AddCloseDimToList(void* object) override { closingObject = object; }
    void SetCurrentFRowData(CDimParams& params) override { calls.push_back("row " + RowText(params)); }
    void SetCloseFRowData(CDimParams& params) override { calls.push_back("closing row " + RowText(params)); }
    void SetVariableFRowData(CVariableParams& params) override
    {
        calls.push_back("law " + std::to_string(params.law) + " of " + Narrow(params.name));
    }
    void SetVariableCloseFRowData(CVariableParams& params) override
    {
        calls.push_back("closing law " + std::to_string(params.law) + " mean " + std::to_string(params.mean));
    }

    std::vector<std::string> calls;
    std::vector<void*> chain;
    void* closingObject = nullptr;
    CDimParams link;
    CDimParams closing;
    CVariableParams distribution;
    BOOL createResult = TRUE;
    TestHost* host = nullptr;  // told 1 inside Create

private:
    static std::string RowText(const CDimParams& params)
    {
        return Narrow(params.name) + " " + Narrow(params.upperDev) + " " + std::to_string(params.weightFixed);
    }
};

class PlayedInterface : public testing::Test
{
protected:
    PlayedInterface()
    {
        calc.Add(WC_LISTVIEWW, 1000, L"", LVS_REPORT, {0, 0, 50, 50});
        calc.Add(WC_LISTVIEWW, 1002, L"", LVS_REPORT, {60, 0, 110, 50});
        calc.Add(WC_STATICW, 1035, L"", 0, {120, 0, 160, 50});
        calc.Show();
        dialog.Attach(calc.Window());
        host.dialog = &dialog;
        dialog.link.name = L"A1";
        dialog.link.upperDev = L"0.1";
        dialog.link.weightFixed = 1;
        dialog.closing.upperDev = L"0.3";
        dialog.distribution.name = L"A2";
        dialog.distribution.law = 2;
        dialog.distribution.mean = 40.0125;
        s_told = &host;
        calc.OnMessage([](TestDialog&, UINT message, WPARAM wParam, LPARAM) {
            if (message == WM_COMMAND && LOWORD(wParam) < 300)
                s_told->observer->OnNotified(LOWORD(wParam));
            if (message == WM_COMMAND && LOWORD(wParam) == 32796)
                s_told->observer->OnNotified(kLinkBegins);
            return false;
        });
    }

    static inline TestHost* s_told = nullptr;

    TestHost host;
    TestDialog calc{host.MainWindow(), L"Calc"};
    TestDialog link{host.MainWindow(), L"Link"};  // shown where a test wants it
    NotingDialog dialog;

    void ShowLinkDialog()
    {
        link.Add(WC_STATICW, 1017, L"", 0, {0, 0, 10, 10});
        link.Show();
    }
};

}  // namespace

TEST_F(PlayedInterface, EveryOperationIsCalledWithItsArguments)
{
    ExpectHolds(host,
                "call SetFileName \"Shaft\"\ncall Create\ncall GetCurrentObject A1\ncall GetCurrentObject null\n"
                "call GetArrayObject\ncall GetCloseObject\ncall SetDlgParams A1 upper=\"0.2\" kind=3 increasing=1\n"
                "call SetCloseDimDlgParams X\n");
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{"name Shaft", "create", "current", "current null",
                                                      "load A1 40  0  0.2  3 1", "load closing X"}));
    dialog.createResult = FALSE;
    ExpectFails(host, "call Create\n", 1, "Create returns 0");
}

TEST_F(PlayedInterface, WhatTheHostKeepsTrackOfIsAskedOfTheHost)
{
    ExpectHolds(host, "call CancelDialog\ncall EndModal\ncall Destroy\ncall Delete\ncancel-dialog\nend-modal\n");
    EXPECT_EQ(host.asked,
              (std::vector<std::string>{"cancel", "end modal", "destroy", "delete", "cancel", "end modal"}));
}

TEST_F(PlayedInterface, ObjectsAreGivenAndReadBackByDimension)
{
    ExpectHolds(host, "expect-objects\nexpect-closing-object none\ncall AddToList A2\ncall AddToList A1\n"
                      "call AddToList null\ncall AddCloseDimToList X\nexpect-objects A2 A1 null\n"
                      "expect-closing-object X\n");
    ExpectFails(host, "expect-objects A1 A2\n", 1, "expected objects: A1 A2, found objects: A2 A1 null");
    ExpectFails(host, "expect-closing-object none\n", 1, "expected none, found X");
    ExpectFails(host, "call AddToList B1\n", 1, "the drawing has no dimension B1");
    int stranger = 0;
    dialog.closingObject = &stranger;
    ExpectFails(host, "expect-closing-object X\n", 1, "found an object that the host never gave");
}

TEST_F(PlayedInterface, FieldsAreSetOverTheRecordThatWasReadLast)
{
    ExpectHolds(host, "call GetDimDlgParams\ncall SetCurrentFRowData upper=\"0.2\"\n"
                      "call GetCloseDimDlgParams\ncall SetCloseFRowData name=\"Z\"\n"
                      "call GetVariableDlgParams\ncall SetVariableFRowData law=3\n"
                      "call SetVariableCloseFRowData mean=\"1.5\"\n");
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{"row A1 0.2 1", "closing row Z 0.3 0", "law 3 of A2",
                                                      "closing law 2 mean 1.500000"}));
}

TEST_F(PlayedInterface, CallsOnACodeAreMadeInsideItOnceAndInTheirOrder)
{
    ShowLinkDialog();
    ExpectHolds(host, "on 1 SetCurrentFRowData upper=\"0.5\"\non 1 AddToList A1\ncommand 3\nexpect-objects\n"
                      "command 1\nexpect-objects A1\ncommand 1\nexpect-objects A1\nexpect-notified 3 1 1\n");
    EXPECT_EQ(dialog.calls, (std::vector<std::string>{"row A1 0.5 1"}));
}

TEST_F(PlayedInterface, ACallOnACodeThatCanNotBeMadeFailsThePlayAtItsOwnLine)
{
    const std::string reason = "on 1 AddToList B1\n     the drawing has no dimension B1";
    ExpectFails(host, "on 1 AddToList B1\ncommand 1\nexpect-notified 1\nprint\n", 1, reason);
    // Also where the play is over with the step that brings the notification.
    ExpectFails(host, "on 1 AddToList B1\ncommand 1\n", 1, reason);
}

TEST_F(PlayedInterface, OfSeveralThingsThatGoWrongTheFirstIsTold)
{
    ExpectFails(host, "on 1 AddToList B1\non 1 AddToList B2\ncommand 1\n", 1, "no dimension B1");
    dialog.host = &host;
    dialog.createResult = FALSE;
    ExpectFails(host, "on 1 AddToList B1\ncall Create\n", 1, "no dimension B1");
}

TEST_F(PlayedInterface, RecordsAreKeptAsTheyWereInsideTheCode)
{
    ShowLinkDialog();
    s_told = &host;
    ExpectHolds(host, "command 1\nexpect-record 1 dim name \"A1\"\nexpect-record 1 dim weightFixed \"1\"\n"
                      "expect-record now dim upper \"0.1\"\n");
    dialog.link.name = L"changed";
    ExpectHolds(host, "expect-record now dim name \"changed\"\n");
    ExpectFails(host, "expect-record 1 dim name \"A1\"\n", 1, "there was no notification 1");
    ExpectFails(host, "command 1\nexpect-record 1 dim name \"A1\"\n", 2, "expected \"A1\", found \"changed\"");
}

TEST_F(PlayedInterface, ADialogThatWasNeverThereIsNotRead)
{
    ExpectFails(host, "command 1\nexpect-record 1 dim name \"\"\n", 2, "there was no dialog with that record");
    ExpectFails(host, "expect-record now variable law \"0\"\n", 1, "there was no dialog with that record");
}

TEST_F(PlayedInterface, ADistributionIsReadAlreadyWhenItsBeginningIsTold)
{
    ExpectHolds(host, "command 32796\nexpect-notified 32\nexpect-record 32 variable name \"A2\"\n"
                      "expect-record 32 variable law \"2\"\nexpect-record 32 variable mean \"40.0125\"\n");
    ExpectFails(host, "command 32\nexpect-record 32 variable name \"A2\"\n", 2, "there was no dialog with that record");
}
