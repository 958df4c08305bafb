#include "host_test.h"

#include "host/exchanged_records.h"
#include "host/resource.h"

namespace
{
DrawingDimension Dimension(const char* name, const char* nominal, const char* field, const char* upper,
                           const char* lower, std::int32_t increasing, double y)
{
    return {.id = name,
            .name = name,
            .kind = 1,
            .nominal = nominal,
            .field = field,
            .upper = upper,
            .lower = lower,
            .caption = "Size:",
            .increasing = increasing,
            .weightFixed = 1,
            .from = {0, y},
            .to = {60, y},
            .offset = 0};
}

Drawing TestDrawing()
{
    Drawing drawing;
    drawing.title = "Plate";
    drawing.dimensions = {Dimension("A1", "40", "h8", "0", "-0.039", 1, 30),
                          Dimension("A2", "25", "", "0.2", "-0.1", 0, 20),
                          Dimension("X", "15", "", "0.3", "-0.3", 0, 10), Dimension("N", "", "", "", "", 0, 0)};
    return drawing;
}
}  // namespace

HostTest::HostTest() = default;

HostTest::~HostTest()
{
    FakeCalcTolDlg::MakesNone() = false;
    FakeCalcTolDlg::CreatesNone() = false;
    AfxGetThread()->m_pMainWnd = nullptr;
    if (m_frame != nullptr)
        m_frame->DestroyWindow();
}

void HostTest::SetUp()
{
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);  // not over the drawing
    auto* const frame = new CMainFrame(&FakeCalcTolDlg::Make);
    ASSERT_TRUE(frame->LoadFrame(IDR_MAIN_FRAME));
    m_frame = frame;
    AfxGetThread()->m_pMainWnd = frame;
    frame->ShowDrawing(TestDrawing());
    frame->SetWindowPos(nullptr, 0, 0, 800, 600, SWP_NOZORDER);
    frame->ShowWindow(SW_SHOW);
    frame->UpdateWindow();
    PumpUntilIdle();
}

const DrawingObject& HostTest::Object(const std::string& name) const
{
    return *m_frame->Objects().Find(name);
}

FakeCalcTolDlg& HostTest::Open()
{
    EXPECT_TRUE(m_frame->OpenCalculation(L"Plate"));
    Dialog().TakeCalls();
    return Dialog();
}

void HostTest::Begin(HostNotification code) const
{
    Notify(code);
    PumpUntilIdle();
}

void HostTest::AddLink(const std::string& name)
{
    Begin(kLinkBegins);
    m_frame->ClickDimension(Object(name));
    Notify(kLinkAccepted);
    Dialog().linkRecord = {};
    Dialog().TakeCalls();
}

void HostTest::AddClosing(const std::string& name)
{
    Begin(kClosingBegins);
    m_frame->ClickDimension(Object(name));
    Notify(kClosingAccepted);
    Dialog().closingRecord = {};
    Dialog().TakeCalls();
}

void HostTest::BeginEdit(CDimParams& record, const CDimParams& values) const
{
    Notify(kEditBegins);
    record = values;
    PumpUntilIdle();
}

void HostTest::BeginDistribution(HostNotification code, const CVariableParams& values) const
{
    Dialog().variableRecord = values;
    Notify(code);
    m_frame->EnableWindow(FALSE);
    PumpUntilIdle();
}
