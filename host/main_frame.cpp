#include "host/main_frame.h"

#include <algorithm>
#include <iterator>

#include "host/dimension_choice.h"
#include "host/dimension_text.h"
#include "host/drawing_file_dialog.h"
#include "host/owned_windows.h"
#include "host/prompts.h"
#include "host/resource.h"
#include "interface/notifications.h"
#include "platform/text/text_encoding.h"

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    // window
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_INITMENUPOPUP()
    ON_MESSAGE(WM_GETMINMAXINFO, &CMainFrame::OnGetMinMaxInfo)
    ON_MESSAGE(WM_CHAR, &CMainFrame::OnNotification)
    ON_MESSAGE(ChainProtocol::kLookAtChild, &CMainFrame::OnLookAtChild)
    ON_MESSAGE(ChainProtocol::kEndDialog, &CMainFrame::OnEndDialog)
    // commands
    ON_COMMAND(ID_FILE_OPEN_DRAWING, &CMainFrame::OnOpenDrawing)
    ON_COMMAND(ID_FILE_EXIT, &CMainFrame::OnExit)
    ON_COMMAND(ID_CHAIN_OPEN_DIALOG, &CMainFrame::OnOpenDialog)
    ON_COMMAND(ID_CHAIN_GO_TO_DIALOG, &CMainFrame::OnGoToDialog)
    ON_COMMAND(ID_DIMENSION_NEXT, &CMainFrame::OnNextDimension)
    ON_COMMAND(ID_DIMENSION_PREVIOUS, &CMainFrame::OnPreviousDimension)
    ON_COMMAND(ID_DIMENSION_PICK, &CMainFrame::OnPickDimension)
    ON_COMMAND(ID_HELP_ABOUT, &CMainFrame::OnAbout)
END_MESSAGE_MAP()

namespace
{

constexpr int kPromptPart = 0;
constexpr int kDimensionPart = 1;
constexpr int kSmallestWidth = 640;  // of the window, units of 1/96 inch: in a smaller one texts hide the drawing
constexpr int kSmallestHeight = 480;
constexpr int kDialogWidth = 570;         // room for the calculation dialog, units
constexpr int kStartHeightPercent = 80;   // of the screen
constexpr int kDimensionPartWidth = 190;  // of the status line's right part, units

/// A size given in units of 1/96 inch, in pixels.
CSize SizeOf(int width, int height)
{
    const int pixelsPerInch = CClientDC(nullptr).GetDeviceCaps(LOGPIXELSY);
    return {::MulDiv(width, pixelsPerInch, USER_DEFAULT_SCREEN_DPI),
            ::MulDiv(height, pixelsPerInch, USER_DEFAULT_SCREEN_DPI)};
}

void Enable(CMenu& menu, UINT command, bool enabled)
{
    menu.EnableMenuItem(command, MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
}

}  // namespace

CMainFrame::CMainFrame(ChainProtocol::DialogFactory factory)
    : m_sheet(*this), m_protocol(*this, m_objects, factory, *this)
{
}

CMainFrame::~CMainFrame() = default;

int CMainFrame::OnCreate(LPCREATESTRUCT creation)
{
    constexpr DWORD kStatusStyle = WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP;
    const bool created = CFrameWnd::OnCreate(creation) != -1 && m_sheet.Create(this, IDC_SHEET_VIEW) &&
                         m_statusBar.Create(kStatusStyle, CRect(0, 0, 0, 0), this, IDC_STATUS_BAR);
    if (!created)
        return -1;
    ShowNextPrompt();
    PlaceAtStart();
    return 0;
}

// At the left of the screen, so that the calculation dialog has room beside the drawing.
void CMainFrame::PlaceAtStart()
{
    RECT work = {};
    if (!::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0))
        return;
    const CRect screen(work);
    const CSize smallest = SizeOf(kSmallestWidth, kSmallestHeight);
    const int width = std::max<int>(smallest.cx, screen.Width() - SizeOf(kDialogWidth, 0).cx);
    const int height = std::max<int>(smallest.cy, ::MulDiv(screen.Height(), kStartHeightPercent, 100));
    SetWindowPos(nullptr, screen.left, screen.top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT CMainFrame::OnGetMinMaxInfo(WPARAM, LPARAM info)
{
    const CSize smallest = SizeOf(kSmallestWidth, kSmallestHeight);
    reinterpret_cast<MINMAXINFO*>(info)->ptMinTrackSize = {smallest.cx, smallest.cy};
    return 0;
}

void CMainFrame::ShowDrawing(const Drawing& drawing)
{
    m_objects.Show(drawing);
    m_sheet.Show(drawing);
    m_title = FromUtf8(drawing.title);
    CString title;
    title.Format(IDS_TITLE, m_title.GetString());
    SetWindowText(m_title.IsEmpty() ? CString(AfxGetAppName()) : title);
}

CString CMainFrame::Prompt() const
{
    return m_statusBar.GetText(kPromptPart);
}

CString CMainFrame::DimensionStatus() const
{
    return m_statusBar.GetText(kDimensionPart);
}

// A dialog of the module's that is open ends first: its message loop is still running around this handler.
void CMainFrame::OnClose()
{
    if (!IsWindowEnabled())
        return;
    const ChainRound round = m_protocol.Round();
    if (round != ChainRound::kClosed && round != ChainRound::kIdle)
    {
        m_protocol.EndModal();
        PostMessage(WM_CLOSE);
        return;
    }
    m_protocol.CancelDialog();
    m_protocol.DeleteDialog();
    DestroyWindow();
}

void CMainFrame::OnSize(UINT type, int width, int height)
{
    CFrameWnd::OnSize(type, width, height);
    PlaceChildren();
}

void CMainFrame::PlaceChildren()
{
    if (m_statusBar.GetSafeHwnd() == nullptr)
        return;
    m_statusBar.SendMessage(WM_SIZE);  // goes to its place by itself
    CRect area;
    GetClientRect(&area);
    CRect bar;
    m_statusBar.GetWindowRect(&bar);
    int edges[] = {area.Width() - static_cast<int>(SizeOf(kDimensionPartWidth, 0).cx), -1};
    m_statusBar.SetParts(static_cast<int>(std::size(edges)), edges);
    m_sheet.MoveWindow(0, 0, area.Width(), std::max(0, area.Height() - bar.Height()));
}

LRESULT CMainFrame::OnNotification(WPARAM code, LPARAM mark)
{
    if (mark != kNotificationMark)
        return Default();  // a typed character
    m_protocol.OnNotified(static_cast<UINT>(code));
    return 0;
}

LRESULT CMainFrame::OnLookAtChild(WPARAM number, LPARAM)
{
    m_protocol.OnPosted(ChainProtocol::kLookAtChild, number);
    return 0;
}

LRESULT CMainFrame::OnEndDialog(WPARAM number, LPARAM)
{
    m_protocol.OnPosted(ChainProtocol::kEndDialog, number);
    return 0;
}

void CMainFrame::OnKeyDown(UINT key, UINT repeatCount, UINT flags)
{
    switch (key)
    {
    case VK_TAB:
        ::GetKeyState(VK_SHIFT) < 0 ? OnPreviousDimension() : OnNextDimension();
        break;
    case VK_RIGHT:
    case VK_DOWN:
        OnNextDimension();
        break;
    case VK_LEFT:
    case VK_UP:
        OnPreviousDimension();
        break;
    case VK_HOME:
        m_sheet.Highlight(NextDimension(m_objects.Count(), std::nullopt));
        break;
    case VK_END:
        m_sheet.Highlight(PreviousDimension(m_objects.Count(), std::nullopt));
        break;
    case VK_ESCAPE:
        m_sheet.Highlight(std::nullopt);
        break;
    case VK_RETURN:
    case VK_SPACE:
        OnPickDimension();
        break;
    default:
        CFrameWnd::OnKeyDown(key, repeatCount, flags);
    }
}

// Not before the key is up: held down it would go on in the dialog and confirm it unread.
void CMainFrame::OnKeyUp(UINT key, UINT repeatCount, UINT flags)
{
    CFrameWnd::OnKeyUp(key, repeatCount, flags);
    if ((key == VK_RETURN || key == VK_SPACE) && m_goesToDialogOnKeyUp)
        GoToDialog();
    m_goesToDialogOnKeyUp = false;
}

void CMainFrame::OnInitMenuPopup(CMenu* popup, UINT index, BOOL systemMenu)
{
    CFrameWnd::OnInitMenuPopup(popup, index, systemMenu);
    if (systemMenu)
        return;
    // A chain belongs to its drawing.
    Enable(*popup, ID_FILE_OPEN_DRAWING, !m_protocol.HasWindow());
    Enable(*popup, ID_CHAIN_GO_TO_DIALOG, m_protocol.HasWindow());
    Enable(*popup, ID_DIMENSION_NEXT, m_objects.Count() > 0);
    Enable(*popup, ID_DIMENSION_PREVIOUS, m_objects.Count() > 0);
    Enable(*popup, ID_DIMENSION_PICK, m_sheet.Highlighted().has_value());
}

void CMainFrame::OnOpenDrawing()
{
    try
    {
        if (const std::optional<Drawing> drawing = AskForDrawing(*this))
            ShowDrawing(*drawing);
    }
    catch (const DrawingError& error)
    {
        AfxMessageBox(FromUtf8(error.what()), MB_OK | MB_ICONEXCLAMATION);
    }
}

void CMainFrame::OnExit()
{
    PostMessage(WM_CLOSE);
}

void CMainFrame::OnOpenDialog()
{
    if (m_protocol.HasWindow())
        GoToDialog();
    else if (!OpenCalculation(m_title))
        AfxMessageBox(IDS_DIALOG_FAILED, MB_OK | MB_ICONSTOP);
}

bool CMainFrame::OpenCalculation(const std::optional<CString>& label)
{
    if (!m_protocol.Open(label))
        return false;
    PlaceBeside(m_protocol.Dialog()->GetSafeHwnd(), m_hWnd);
    return true;
}

void CMainFrame::OnGoToDialog()
{
    GoToDialog();
}

void CMainFrame::GoToDialog()
{
    if (const HWND window = ForemostOwnedWindow(m_hWnd))
        ::SetActiveWindow(window);
}

bool CMainFrame::TakesKey(const MSG& message)
{
    const bool isF6 = message.message == WM_KEYDOWN && message.wParam == VK_F6;
    const HWND window = ::GetAncestor(message.hwnd, GA_ROOT);
    if (!isF6 || !IsOwnedBy(window, m_hWnd) || !IsWindowEnabled())
        return false;
    SetActiveWindow();
    SetFocus();
    return true;
}

void CMainFrame::OnNextDimension()
{
    m_sheet.Highlight(NextDimension(m_objects.Count(), m_sheet.Highlighted()));
}

void CMainFrame::OnPreviousDimension()
{
    m_sheet.Highlight(PreviousDimension(m_objects.Count(), m_sheet.Highlighted()));
}

void CMainFrame::OnPickDimension()
{
    if (const std::optional<std::size_t> dimension = m_sheet.Highlighted())
        m_goesToDialogOnKeyUp = Pick(m_objects.At(*dimension));
}

void CMainFrame::OnPicked(std::size_t dimension)
{
    ClickDimension(m_objects.At(dimension));
}

void CMainFrame::ClickDimension(const DrawingObject& object)
{
    if (Pick(object))
        GoToDialog();
}

bool CMainFrame::Pick(const DrawingObject& object)
{
    if (m_protocol.Pick(object))
        return true;
    if (object.dimension.nominal.empty())
        m_statusBar.SetText(NoNominalPrompt(object), kPromptPart, 0);
    return false;
}

void CMainFrame::OnAbout()
{
    AfxMessageBox(IDS_ABOUT, MB_OK | MB_ICONINFORMATION);
}

void CMainFrame::OnHighlighted()
{
    const std::optional<std::size_t> dimension = m_sheet.Highlighted();
    const CString text = dimension ? FromUtf8(OneLineText(m_objects.At(*dimension).dimension)) : CString();
    m_statusBar.SetText(text, kDimensionPart, 0);
}

void CMainFrame::OnProtocolChanged()
{
    if (m_statusBar.GetSafeHwnd() == nullptr)
        return;  // on the way out
    m_sheet.MarkLoaded(m_objects.IndexOf(m_protocol.Loaded()));
    ShowNextPrompt();
}

void CMainFrame::ShowNextPrompt()
{
    m_statusBar.SetText(PromptFor(m_protocol.Round(), m_protocol.Loaded()), kPromptPart, 0);
}
