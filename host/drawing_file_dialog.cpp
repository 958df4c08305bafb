#include "host/drawing_file_dialog.h"

#include <filesystem>
#include <vector>

#include <commdlg.h>

#include "host/resource.h"

namespace
{

constexpr std::size_t kLongestPath = 32768;

/// The common dialog wants a zero behind each part of its filter and two at the end; a resource text can't hold them.
CString FileFilter()
{
    CString filter;
    filter.LoadString(IDS_DRAWING_FILES);
    filter.Replace(L'|', L'\0');
    return filter;
}

}  // namespace

std::optional<Drawing> AskForDrawing(CWnd& owner)
{
    const CString filter = FileFilter();
    CString title;
    title.LoadString(IDS_OPEN_DRAWING);
    std::vector<wchar_t> path(kLongestPath);
    OPENFILENAMEW request = {};
    request.lStructSize = sizeof(request);
    request.hwndOwner = owner.GetSafeHwnd();
    request.lpstrFilter = filter;
    request.lpstrFile = path.data();
    request.nMaxFile = static_cast<DWORD>(path.size());
    request.lpstrTitle = title;
    request.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!::GetOpenFileNameW(&request))
        return std::nullopt;
    return ReadDrawingFile(std::filesystem::path(path.data()));
}
