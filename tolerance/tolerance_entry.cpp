#include "tolerance/tolerance_entry.h"

#include "drawing/kind_bitmap.h"
#include "interface/notify_host.h"
#include "platform/text/text_encoding.h"
#include "tolerance/deviation_text.h"
#include "tolerance/tolerance_database.h"

namespace
{

constexpr std::int32_t kWithoutTolerance = 2;  // kind of dimension

class ScopedFlag
{
public:
    explicit ScopedFlag(bool& flag) : m_flag(flag), m_former(flag) { m_flag = true; }
    ~ScopedFlag() { m_flag = m_former; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

private:
    bool& m_flag;
    bool m_former;
};

}  // namespace

ToleranceEntry::ToleranceEntry(CDialog& dialog, CTolBox& fieldBox, CButton& filter, CDimParams& record,
                               const ToleranceControls& controls)
    : m_dialog(dialog), m_fieldBox(fieldBox), m_filter(filter), m_record(record), m_controls(controls)
{
}

bool ToleranceEntry::Open()
{
    m_endedByHost = false;
    m_picture.SubclassDlgItem(static_cast<UINT>(m_controls.picture), &m_dialog);
    m_picture.ShowWindow(SW_HIDE);
    m_fieldBox.SetFieldStyles();
    if (!EnableMainWindow())
        return false;
    {
        const ScopedFlag writing(m_writing);
        FillTolBox(m_fieldBox, m_filter.GetCheck() == BST_CHECKED);
    }
    ShowFieldDeviations();
    return true;
}

// The host hears of it at once. It may load a dimension, and it may end, destroy or delete the dialog.
bool ToleranceEntry::EnableMainWindow()
{
    const LifetimeWatch watch(m_lifetime);
    const HWND window = m_dialog.m_hWnd;
    if (CWnd* const mainWindow = AfxGetMainWnd())
        mainWindow->EnableWindow(TRUE);
    return !watch.IsOver() && m_dialog.m_hWnd == window;
}

void ToleranceEntry::ShowTexts(const CDimParams& shown)
{
    const ScopedFlag writing(m_writing);
    m_answeredField.reset();
    m_answeredSelection = false;
    m_dialog.SetDlgItemText(m_controls.nominal, shown.nominal);
    m_dialog.SetDlgItemText(m_controls.caption, shown.caption);
    m_dialog.SetDlgItemText(m_controls.upperDev, shown.upperDev);
    m_dialog.SetDlgItemText(m_controls.lowerDev, shown.lowerDev);
    // The box falls back to its selection when its list is left.
    if (const int selected = m_fieldBox.GetCurSel(); selected != CB_ERR && m_fieldBox.Code(selected) != shown.tolField)
        m_fieldBox.SetCurSel(CB_ERR);
    m_fieldBox.SetEditText(shown.tolField);
}

// A box that is disabled with its list open closes the list, and the system may put the entry that was reached there
// into the box: none of that is the user's.
void ToleranceEntry::EnableInputs(bool enable)
{
    const ScopedFlag writing(m_writing);
    const CString field = m_fieldBox.EditText();
    for (const int control : {m_controls.field, m_controls.filter, m_controls.upperDev, m_controls.lowerDev})
        Enable(control, enable);
    m_fieldBox.SetEditText(field);
}

void ToleranceEntry::Enable(int control, bool enable)
{
    ::EnableWindow(::GetDlgItem(m_dialog.m_hWnd, control), enable ? TRUE : FALSE);
}

bool ToleranceEntry::ShowKind(std::int32_t dimKind)
{
    if (dimKind == 0)
        return true;
    m_picture.ShowWindow(SW_SHOWNA);
    return m_picture.ShowBitmap(KindBitmap(dimKind));
}

void ToleranceEntry::Store(const CDimParams& loaded)
{
    m_record = loaded;
    if (loaded.dimKind != kWithoutTolerance)
    {
        ShowFieldDeviations();
        return;
    }
    EnableInputs(false);
    m_record.tolField.Empty();
    m_record.upperDev.Empty();
    m_record.lowerDev.Empty();
    m_record.increasing = 1;
}

// Picking an entry comes as a selection change alone or together with edit changes before or after it, as the system
// likes. So a text that stays as it was is no edit, and a selection whose edit change was answered has its answer. A
// text that was typed is no selection.
void ToleranceEntry::OnFieldEdited()
{
    const CString text = m_fieldBox.EditText();
    if (m_writing || m_answeredField == text)
        return;
    m_record.tolField = text;
    const int selected = m_fieldBox.GetCurSel();
    m_answeredSelection = selected != CB_ERR && m_fieldBox.Code(selected) == text;
    ShowFieldDeviations();
}

void ToleranceEntry::OnFieldSelected()
{
    const int selected = m_fieldBox.GetCurSel();
    if (m_writing || selected == CB_ERR)
        return;
    const CString code = m_fieldBox.Code(selected);
    const bool answered = m_answeredSelection && m_answeredField == code;
    m_record.tolField = code;
    m_answeredSelection = false;
    if (!answered)
        ShowFieldDeviations();
}

// What was picked before has had its answer; what is picked now is a selection of its own.
void ToleranceEntry::OnListOpened()
{
    m_answeredSelection = false;
}

// Left by Esc, the list has had its selection changes, and the system may put the former text back without a word. No
// answered field: the texts are not the record's, and nobody has typed since they were written.
void ToleranceEntry::OnListClosed()
{
    if (m_answeredField)
        OnFieldEdited();
}

void ToleranceEntry::OnFilterClicked()
{
    {
        const ScopedFlag writing(m_writing);
        FillTolBox(m_fieldBox, m_filter.GetCheck() == BST_CHECKED);
    }
    const int selected = m_fieldBox.GetCurSel();
    if (selected == CB_ERR)
        return;
    m_record.tolField = m_fieldBox.Code(selected);
    m_answeredSelection = false;
    ShowFieldDeviations();
}

// Deviations that the standard gives can't be typed over; for anything else the user types his own.
void ToleranceEntry::ShowFieldDeviations()
{
    m_answeredField = m_record.tolField;
    const auto known = FieldDeviations(m_record.nominal, m_record.tolField);
    if (known)
    {
        m_dialog.SetDlgItemText(m_controls.upperDev, FromUtf8(known->upper));
        m_dialog.SetDlgItemText(m_controls.lowerDev, FromUtf8(known->lower));
    }
    Enable(m_controls.upperDev, !known);
    Enable(m_controls.lowerDev, !known);
}

void ToleranceEntry::ReadInputs()
{
    m_dialog.GetDlgItemText(m_controls.upperDev, m_record.upperDev);
    m_dialog.GetDlgItemText(m_controls.lowerDev, m_record.lowerDev);
    m_record.tolField = m_fieldBox.EditText();
}

bool ToleranceEntry::AcceptDeviations()
{
    // Texts as typed: blanks or zeros alone are not empty here, the pair's own rules deal with them.
    if (m_record.dimKind != kWithoutTolerance && m_record.upperDev.IsEmpty() && m_record.lowerDev.IsEmpty())
    {
        AfxMessageBox(static_cast<UINT>(IDS_DEVIATIONS_MISSING), MB_OK);
        return false;
    }
    DeviationPair texts{.upper = ToUtf8(m_record.upperDev), .lower = ToUtf8(m_record.lowerDev)};
    if (const std::int32_t message = CheckDeviations(texts); message != 0)
    {
        AfxMessageBox(static_cast<UINT>(message), MB_OK);
        return false;
    }
    m_record.upperDev = FromUtf8(texts.upper);
    m_record.lowerDev = FromUtf8(texts.lower);
    return true;
}

void ToleranceEntry::Reset()
{
    m_record = CDimParams{};
    m_record.increasing = 1;
    if (!::IsWindow(m_dialog.m_hWnd))
        return;
    ShowTexts(m_record);
    EnableInputs(false);
    m_picture.ShowWindow(SW_HIDE);
}

bool ToleranceEntry::Report(CWnd* hostWindow, HostNotification code)
{
    const LifetimeWatch watch(m_lifetime);
    const bool running = m_dialog.ContinueModal() != FALSE;
    NotifyHost(hostWindow, code);
    if (watch.IsOver())
        return false;
    m_endedByHost = running && !m_dialog.ContinueModal();
    return true;
}

void ToleranceEntry::End(int result)
{
    if (!m_endedByHost && ::IsWindow(m_dialog.m_hWnd))
        m_dialog.EndDialog(result);
}
