#pragma once

#include <deque>
#include <memory>
#include <vector>

#include "diagram/weight_dlg.h"
#include "platform/moduleskin/resource.h"
#include "tests/support/modal_dialog_test.h"

/// A chain that holds what a test puts into it.
class TestChain : public WeightChain
{
public:
    CString ChainText() const override { return text; }
    std::vector<WeightLink> Links() const override { return links; }

    /// A link of kind 1 to 3 with the columns "N1", "F1" and so on.
    CDimLink& Add(std::int32_t kind, const CString& fixed, std::int32_t weight)
    {
        const auto number = static_cast<int>(links.size() + 1);
        CDimLink& record = records.emplace_back(CDimLink{&hostObjects[links.size()], weight, 1, 25.0, 1});
        links.push_back({.name = Numbered(L"A%d", number),
                         .image = 8 + kind,
                         .nominal = Numbered(L"N%d", number),
                         .tolField = Numbered(L"F%d", number),
                         .weightFixed = fixed,
                         .record = &record});
        return record;
    }

    CString text = L"Gear box";
    std::vector<WeightLink> links;
    std::deque<CDimLink> records;  // never move
    char hostObjects[300] = {};

private:
    static CString Numbered(const wchar_t* format, int number)
    {
        CString text;
        text.Format(format, number);
        return text;
    }
};

/// The dialog with a chain of three links: A1 of kind 1, free, weight 4; A2 of kind 2, fixed, weight 7; A3 of kind 3,
/// free, weight 10.
class WeightDialogTest : public ModalDialogTest<CWeightDlg>
{
protected:
    WeightDialogTest()
    {
        chain.Add(1, ResourceText(IDS_WEIGHT_FIXED_NO), 4);
        chain.Add(2, ResourceText(IDS_WEIGHT_FIXED_YES), 7);
        chain.Add(3, ResourceText(IDS_WEIGHT_FIXED_NO), 10);
        MakeDialog();
    }

    void MakeDialog() { dialog = std::make_unique<OnReleasedPages<CWeightDlg>>(&host, &chain); }

    /// Opens with a link preselected, from 1.
    void Preselect(std::size_t link) { dialog->SetHostObject(&chain.hostObjects[link - 1]); }

    CFListCtrl& List() const { return *dynamic_cast<CFListCtrl*>(CWnd::FromHandlePermanent(Window(IDC_WEIGHT_LIST))); }
    CFListCtrl::CFListRow& ChainRow() const { return *List().FirstTopRow(); }
    CFListCtrl::CFListRow& LinkRow(int link) const
    {
        CFListCtrl::CFListRow* row = ChainRow().FirstChild();
        for (; link > 1; --link)
            row = row->NextSibling();
        return *row;
    }

    /// 1 for the first link, 0 for the chain row, -1 for no row.
    int Selected() const
    {
        const CFListCtrl::CFListRow* const row = List().FocusRow();
        return row == nullptr ? -1 : row->ListIndex();
    }

    /// @param x  by default in another column than the first
    void PostRowClick(int listIndex, int x = 200) const
    {
        RECT row{};
        row.left = LVIR_BOUNDS;
        ::SendMessageW(List().m_hWnd, LVM_GETITEMRECT, static_cast<WPARAM>(listIndex), reinterpret_cast<LPARAM>(&row));
        PostClick(List().m_hWnd, {row.left + x, (row.top + row.bottom) / 2});
    }

    int SliderPosition() const { return static_cast<int>(::SendMessageW(Window(IDC_WEIGHT_SLIDER), TBM_GETPOS, 0, 0)); }

    /// As if the user had moved the slider.
    void Slide(int position) const
    {
        ::SendMessageW(Window(IDC_WEIGHT_SLIDER), TBM_SETPOS, TRUE, position);
        ::SendMessageW(dialog->m_hWnd, WM_HSCROLL, MAKEWPARAM(TB_THUMBTRACK, position),
                       reinterpret_cast<LPARAM>(Window(IDC_WEIGHT_SLIDER)));
    }

    std::vector<std::int32_t> Weights() const
    {
        std::vector<std::int32_t> weights;
        for (const CDimLink& record : chain.records)
            weights.push_back(record.weight);
        return weights;
    }

    /// How many pixels of the frame differ from a kind's picture.
    int DifferenceFrom(UINT bitmapId) const
    {
        return DifferentPixels(ShownPixels(Window(IDC_WEIGHT_PICTURE)), ResourcePicture(bitmapId));
    }

    TestChain chain;
};
