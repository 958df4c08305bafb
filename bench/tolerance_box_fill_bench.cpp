// How long it takes to fill the field box with every code of the library, against boxes that get as many plain entries.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "tolerance/tolerance_database.h"

namespace
{

constexpr int kRuns = 21;

double MedianMilliseconds(const std::function<void()>& run)
{
    std::vector<double> times;
    for (int i = 0; i < kRuns; ++i)
    {
        const auto start = std::chrono::steady_clock::now();
        run();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::nth_element(times.begin(), times.begin() + kRuns / 2, times.end());
    return times[kRuns / 2];
}

HWND MakeControl(HWND parent, const wchar_t* windowClass, int top)
{
    return ::CreateWindowExW(0, windowClass, L"", WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN, 10, top, 150, 200,
                             parent, nullptr, nullptr, nullptr);
}

}  // namespace

int main()
{
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_USEREX_CLASSES};
    ::InitCommonControlsEx(&classes);
    const HWND window = ::CreateWindowExW(0, L"#32770", L"", WS_POPUP | WS_VISIBLE, 60, 60, 200, 150, nullptr, nullptr,
                                          nullptr, nullptr);
    if (window == nullptr)
    {
        std::fputs("No window could be made: is there a display?\n", stderr);
        return 1;
    }
    CTolBox fieldBox;
    fieldBox.SubclassWindow(MakeControl(window, WC_COMBOBOXEXW, 10));
    fieldBox.SetFieldStyles();
    FillTolBox(fieldBox, false);
    std::vector<CString> codes;
    for (int index = 0; index < fieldBox.GetCount(); ++index)
        codes.push_back(fieldBox.Code(index));

    CTolBox entriesAlone;
    entriesAlone.SubclassWindow(MakeControl(window, WC_COMBOBOXEXW, 40));
    CComboBox plainBox;
    plainBox.SubclassWindow(MakeControl(window, L"COMBOBOX", 70));

    const double fill = MedianMilliseconds([&] { FillTolBox(fieldBox, false); });
    const double refill = MedianMilliseconds([&] {
        fieldBox.SetEditText(codes.back());
        FillTolBox(fieldBox, false);
    });
    const double entries = MedianMilliseconds([&] {
        entriesAlone.ResetContent();
        for (std::size_t i = 0; i < codes.size(); ++i)
            entriesAlone.Insert(static_cast<int>(i), codes[i], false);
    });
    const double plain = MedianMilliseconds([&] {
        plainBox.ResetContent();
        for (const CString& code : codes)
            plainBox.AddString(code);
    });

    std::printf("%zu codes, median of %d runs, milliseconds\n", codes.size(), kRuns);
    std::printf("  field box, filled from the library     %8.2f\n", fill);
    std::printf("  the same, with its last code selected  %8.2f\n", refill);
    std::printf("  extended combo box, entries alone      %8.2f\n", entries);
    std::printf("  plain combo box, entries alone         %8.2f\n", plain);
    ::DestroyWindow(window);
    return 0;
}
