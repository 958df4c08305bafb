#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fake_gauge_base.h"
#include "interface/notifications.h"
#include "platform/moduleskin/resource.h"
#include "tests/support/modal_dialog_test.h"
#include "tolerance/edit_close_tol_dlg.h"
#include "tolerance/edit_tol_dlg.h"

/// The two dialogs under test: their controls by role.
struct LinkDialog
{
    using Dialog = CEditTolDlg;
    static constexpr HostNotification kAccepted = kLinkAccepted;
    static constexpr int kNominal = IDC_LINK_NOMINAL;
    static constexpr int kCaption = IDC_LINK_CAPTION;
    static constexpr int kField = IDC_LINK_FIELD;
    static constexpr int kFilter = IDC_LINK_FILTER;
    static constexpr int kUpper = IDC_LINK_UPPER_DEV;
    static constexpr int kLower = IDC_LINK_LOWER_DEV;
    static constexpr int kPicture = IDC_LINK_PICTURE;
    static constexpr int kOk = IDC_LINK_OK;
    static constexpr int kCancel = IDC_LINK_CANCEL;
};

struct ClosingDialog
{
    using Dialog = CEditCloseTolDlg;
    static constexpr HostNotification kAccepted = kClosingAccepted;
    static constexpr int kNominal = IDC_CLOSING_NOMINAL;
    static constexpr int kCaption = IDC_CLOSING_CAPTION;
    static constexpr int kField = IDC_CLOSING_FIELD;
    static constexpr int kFilter = IDC_CLOSING_FILTER;
    static constexpr int kUpper = IDC_CLOSING_UPPER_DEV;
    static constexpr int kLower = IDC_CLOSING_LOWER_DEV;
    static constexpr int kPicture = IDC_CLOSING_PICTURE;
    static constexpr int kOk = IDC_CLOSING_OK;
    static constexpr int kCancel = IDC_CLOSING_CANCEL;
};

/// A dimension with a field that the library doesn't know, so that the loaded deviations stay.
inline CDimParams FreeDimension()
{
    return {.tolField = L"zz",
            .nominal = L"25",
            .name = L"A1",
            .upperDev = L"0.2",
            .lowerDev = L"-0.1",
            .caption = L"Size:",
            .weightFixed = 1,
            .increasing = 0,
            .dimKind = 1};
}

/// A dimension with a field that the library knows.
inline CDimParams FittedDimension()
{
    CDimParams params = FreeDimension();
    params.tolField = L"H7";
    return params;
}

inline bool operator==(const CDimParams& left, const CDimParams& right)
{
    return left.tolField == right.tolField && left.nominal == right.nominal && left.name == right.name &&
           left.upperDev == right.upperDev && left.lowerDev == right.lowerDev && left.caption == right.caption &&
           left.weightFixed == right.weightFixed && left.increasing == right.increasing &&
           left.dimKind == right.dimKind;
}

inline void PrintTo(const CDimParams& params, std::ostream* out)
{
    for (const CString& text :
         {params.tolField, params.nominal, params.name, params.upperDev, params.lowerDev, params.caption})
    {
        PrintTo(text, out);
        *out << ' ';
    }
    *out << params.weightFixed << ' ' << params.increasing << ' ' << params.dimKind;
}

inline CDimParams EmptyRecord()
{
    CDimParams params;
    params.increasing = 1;
    return params;
}

/// A dialog with a host, a main window, and a small library: fields H6, H7, k6, k7, of which H7 and k6 are listed; for
/// every size H7 is +21/0 and k6 +15/+2 micrometres.
template <class Controls>
class ToleranceDialogTest : public ModalDialogTest<typename Controls::Dialog>
{
protected:
    using Base = ModalDialogTest<typename Controls::Dialog>;
    using Base::dialog;
    using Base::host;
    using Base::Run;
    using Base::Window;
    using typename Base::Dialog;

    ToleranceDialogTest()
    {
        dialog = std::make_unique<OnReleasedPages<Dialog>>(&host);
        FakeGaugeBase& library = TheGaugeBase();
        library = FakeGaugeBase{};
        library.first = {L"H", L"k"};
        library.second = {L"6", L"7"};
        library.shortList = {L"H7", L"k6"};
        library.fields = {{"H7", {.lower = 0, .upper = 21}}, {"k6", {.lower = 2, .upper = 15}}};
        dialog->SetHostWindow(&host);
    }

    /// Runs the dialog with a dimension loaded from outside, as a host does.
    INT_PTR RunLoaded(const CDimParams& params, std::vector<ModalScript::Step> steps)
    {
        steps.insert(steps.begin(), [this, params] { Load(params); });
        return Run(std::move(steps));
    }

    void Load(CDimParams params)
    {
        dialog->SetDlgParams(params.name, params.nominal, params.caption, params.weightFixed, params.tolField,
                             params.upperDev, params.lowerDev, params.dimKind, params.increasing);
    }

    /// Which of the controls take input now.
    std::vector<int> Enabled(std::vector<int> controls) const
    {
        std::erase_if(controls, [this](int control) { return !this->IsEnabled(control); });
        return controls;
    }

    HWND FieldEdit() const
    {
        return reinterpret_cast<HWND>(::SendMessageW(Window(Controls::kField), CBEM_GETEDITCONTROL, 0, 0));
    }

    /// The combo box inside the box, which has the arrow and the list.
    HWND FieldCombo() const
    {
        return reinterpret_cast<HWND>(::SendMessageW(Window(Controls::kField), CBEM_GETCOMBOCONTROL, 0, 0));
    }

    /// Types into the box instead of what stands there: one change per character.
    void TypeField(const wchar_t* text) const
    {
        ::SendMessageW(FieldEdit(), EM_SETSEL, 0, -1);
        for (const wchar_t* c = text; *c != L'\0'; ++c)
            ::SendMessageW(FieldEdit(), WM_CHAR, static_cast<WPARAM>(*c), 1);
    }

    int EntryCount() const { return static_cast<int>(::SendMessageW(Window(Controls::kField), CB_GETCOUNT, 0, 0)); }
    int Selected() const { return static_cast<int>(::SendMessageW(Window(Controls::kField), CB_GETCURSEL, 0, 0)); }

    void DropDown() const { ::SendMessageW(Window(Controls::kField), CB_SHOWDROPDOWN, TRUE, 0); }

    /// Posts the click on an entry of the list that is dropped down.
    void PostPick(int index) const
    {
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        ::GetComboBoxInfo(FieldCombo(), &info);
        RECT item{};
        ::SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
        const LPARAM point = MAKELPARAM(item.left + 3, item.top + 3);
        ::PostMessageW(info.hwndList, WM_LBUTTONDOWN, MK_LBUTTON, point);
        ::PostMessageW(info.hwndList, WM_LBUTTONUP, 0, point);
    }

    const CDimParams& Record() const { return dialog->Params(); }
    std::vector<DimTolCall>& Calls() const { return TheGaugeBase().calls; }
};
