// What a chain's length costs in the calculation dialog.
//
// Repaint: computing and drawing chains of 10 to 10 000 links, against the same GDI calls without anything of ours
// around them, and the cost of one more link. Adding: 1 000 links onto a chain of 10 against as many onto one of 1 000,
// the chain row being collapsed, so that the list control has no part in it.
// Exits with 1 when a link costs more than 1.5 times as much in the longer chain, with 2 without a display.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>

#include <afxwin.h>

#include "interface/calc_tol_dlg_base.h"
#include "interface/notifications.h"
#include "platform/moduleskin/resource.h"

namespace
{

constexpr double kAllowedRatio = 1.5;
constexpr int kRepaints = 20;
constexpr int kRuns = 7;  // the best one counts: the others were disturbed
constexpr UINT kLoadAndAccept = WM_APP;

double Milliseconds(std::chrono::steady_clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

template <typename Action>
double Best(int runs, Action action)
{
    double best = 0;
    for (int run = 0; run < runs; ++run)
    {
        const auto start = std::chrono::steady_clock::now();
        action();
        const double time = Milliseconds(std::chrono::steady_clock::now() - start);
        best = run == 0 ? time : std::min(best, time);
    }
    return best;
}

// A host that adds many links from one accepted dialog.
class CBenchHost : public CWnd
{
public:
    explicit CBenchHost(CString label) : m_dialog(CCalcTolDlgBase::CreateCalcTolDlg()) { m_dialog->SetFileName(label); }

    bool Open()
    {
        return CreateEx(0, AfxRegisterWndClass(0), L"benchmark", WS_POPUP | WS_VISIBLE, CRect(0, 0, 300, 200), nullptr,
                        0) &&
               m_dialog->Create(this);
    }

    ~CBenchHost() override
    {
        m_dialog->CancelDialog();
        m_dialog->DestroyWindow();
        DestroyWindow();
    }

    void Command(UINT id) { m_dialog->SendMessage(WM_COMMAND, id); }

    // All in one acceptance. Milliseconds for the last `timed` of them, the dialog left out.
    double AddLinks(int first, int timed)
    {
        m_first = first;
        m_timed = timed;
        Command(ID_LINK_ADD);
        return m_addTime;
    }

    HWND Diagram() const { return ::GetDlgItem(m_dialog->m_hWnd, IDC_CHAIN_DIAGRAM); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == kLoadAndAccept)
            LoadAndAccept(static_cast<UINT>(wParam));
        else if (message == WM_CHAR && lParam == kNotificationMark)
            Answer(static_cast<UINT>(wParam));
        else
            return CWnd::WindowProc(message, wParam, lParam);
        return 0;
    }

private:
    void Answer(UINT code)
    {
        if (code == kLinkBegins || code == kClosingBegins)
            PostMessage(kLoadAndAccept, code);
        else if (code == kClosingAccepted)
            m_dialog->AddCloseDimToList(this);
        else if (code == kLinkAccepted)
        {
            Add(m_first);
            const auto start = std::chrono::steady_clock::now();
            Add(m_timed);
            m_addTime = Milliseconds(std::chrono::steady_clock::now() - start);
        }
    }

    void Add(int links)
    {
        for (int link = 0; link < links; ++link)
            m_dialog->AddToList(this);
    }

    void LoadAndAccept(UINT code)
    {
        CString name = L"A1";
        CString nominal = code == kLinkBegins ? L"0" : L"0.0";
        CString caption;
        CString field;
        CString upper = L"0.2";
        CString lower = L"-0.1";
        int weightFixed = 0;
        int increasing = 1;
        if (code == kLinkBegins)
            m_dialog->SetDlgParams(name, nominal, caption, weightFixed, field, upper, lower, 1, increasing);
        else
            m_dialog->SetCloseDimDlgParams(name, nominal, caption, weightFixed, field, upper, lower, 1, increasing);
        const HWND child = ::GetLastActivePopup(m_dialog->m_hWnd);
        ::PostMessageW(child, WM_COMMAND, code == kLinkBegins ? IDC_LINK_OK : IDC_CLOSING_OK, 0);
    }

    std::unique_ptr<CCalcTolDlgBase> m_dialog;
    int m_first = 0;
    int m_timed = 0;
    double m_addTime = 0;
};

double RepaintTime(CBenchHost& host)
{
    return Best(kRuns,
                [&] {
                    for (int repaint = 0; repaint < kRepaints; ++repaint)
                        host.Command(ID_METHOD_ANALYTIC);
                }) /
           kRepaints;
}

// The picture's GDI calls alone: memory, white ground, eight lines, ten texts, a bar, the copy.
double BareDrawingTime(HWND control)
{
    RECT area;
    ::GetClientRect(control, &area);
    const HDC dc = ::GetDC(control);
    const double time = Best(kRuns, [&] {
        for (int repaint = 0; repaint < kRepaints; ++repaint)
        {
            const HDC memory = ::CreateCompatibleDC(dc);
            const HBITMAP bitmap = ::CreateCompatibleBitmap(dc, area.right, area.bottom);
            const HGDIOBJ former = ::SelectObject(memory, bitmap);
            ::FillRect(memory, &area, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
            for (int line = 0; line < 8; ++line)
            {
                ::MoveToEx(memory, 40 * line, 20, nullptr);
                ::LineTo(memory, 40 * line, area.bottom - 20);
            }
            for (int text = 0; text < 10; ++text)
                ::TextOutW(memory, 30 * text, 20 * text, L"40.125", 6);
            const RECT bar{60, 140, 300, 180};
            const HBRUSH green = ::CreateSolidBrush(RGB(97, 220, 5));
            ::FillRect(memory, &bar, green);
            ::DeleteObject(green);
            ::BitBlt(dc, 0, 0, area.right, area.bottom, memory, 0, 0, SRCCOPY);
            ::SelectObject(memory, former);
            ::DeleteObject(bitmap);
            ::DeleteDC(memory);
        }
    });
    ::ReleaseDC(control, dc);
    return time / kRepaints;
}

// Milliseconds for a repaint of a chain of so many links.
double MeasureRepaint(int links, double& bare)
{
    CBenchHost host(L"chain");
    if (!host.Open())
        return 0;
    host.Command(ID_METHOD_ANALYTIC);
    host.AddLinks(links, 0);
    host.Command(ID_CLOSING_ADD);
    bare = BareDrawingTime(host.Diagram());
    return RepaintTime(host);
}

// Milliseconds for adding 1 000 links onto so many.
double MeasureAdding(int links)
{
    constexpr int kAdded = 1000;
    double best = 0;
    for (int run = 0; run < kRuns; ++run)
    {
        CBenchHost host(L"chain");
        host.Open();
        host.Command(ID_METHOD_ANALYTIC);
        const double time = host.AddLinks(links, kAdded);
        best = run == 0 ? time : std::min(best, time);
    }
    return best;
}

}  // namespace

int main()
{
    AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL);
    double bare = 0;
    const double ten = MeasureRepaint(10, bare);
    if (ten == 0)
    {
        std::fprintf(stderr, "no window: is there a display?\n");
        return 2;
    }
    const double thousand = MeasureRepaint(1000, bare);
    const double tenThousand = MeasureRepaint(10000, bare);
    const double shortChain = 1000 * (thousand - ten) / 990;
    const double longChain = 1000 * (tenThousand - thousand) / 9000;
    std::printf("repaint ms      10 links %.3f, 1000 links %.3f, 10000 links %.3f; bare GDI calls %.3f\n", ten,
                thousand, tenThousand, bare);
    std::printf("10 links against the bare GDI calls: %.2f\n", ten / bare);
    std::printf("one more link us  up to 1000 %.3f, up to 10000 %.3f, ratio %.2f\n", shortChain, longChain,
                longChain / shortChain);

    const double onTen = MeasureAdding(10);
    const double onThousand = MeasureAdding(1000);
    std::printf("adding 1000 links ms  onto 10 %.3f, onto 1000 %.3f, ratio %.2f\n", onTen, onThousand,
                onThousand / onTen);
    return longChain <= kAllowedRatio * shortChain && onThousand <= kAllowedRatio * onTen ? 0 : 1;
}
