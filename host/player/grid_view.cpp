#include "host/player/grid_view.h"

#include <algorithm>
#include <array>
#include <limits>

#include "host/player/step_failure.h"
#include "host/player/window_text.h"

namespace
{

constexpr std::uint32_t kFocusColour = 0xF0DC28;  // background of the focus cell
constexpr int kCollapsedImage = 1;
constexpr int kExpandedImage = 0;
constexpr int kBorder = 1;        // pixels at a cell's edge that grid lines and the focus rectangle use
constexpr int kGroundShare = 30;  // percent of a cell that its ground keeps at least, beside text and images
constexpr int kShortestText = 256;
constexpr int kLongestText = 1 << 20;

// One image of a list: its pixels, and which of them it draws.
struct ListImage
{
    Picture picture;
    std::vector<bool> drawn;
    bool isPlain = true;  // nothing drawn, or all in one colour: can't be told from an empty place
};

ListImage ImageOf(HIMAGELIST images, int index, int width, int height)
{
    // Drawn on two grounds: what differs is not the image's.
    std::array<Picture, 2> pictures;
    const std::array<std::uint32_t, 2> grounds{0x000000, 0xFFFFFF};
    for (std::size_t i = 0; i < grounds.size(); ++i)
    {
        DrawnPicture picture(width, height, grounds[i]);
        ImageList_Draw(images, index, picture.Dc(), 0, 0, ILD_TRANSPARENT);
        pictures[i] = picture.Take();
    }
    ListImage image{pictures[0], {}, true};
    std::optional<std::uint32_t> first;
    for (std::size_t i = 0; i < pictures[0].pixels.size(); ++i)
    {
        const bool drawn = pictures[0].pixels[i] == pictures[1].pixels[i];
        image.drawn.push_back(drawn);
        if (!drawn)
            continue;
        if (!first)
            first = pictures[0].pixels[i];
        else if (*first != pictures[0].pixels[i])
            image.isPlain = false;
    }
    // One colour is enough when the outline shows.
    const auto drawnCount = std::count(image.drawn.begin(), image.drawn.end(), true);
    if (drawnCount > 0 && static_cast<std::size_t>(drawnCount) < image.drawn.size())
        image.isPlain = false;
    return image;
}

// Whether the picture shows the image with its left top at (left, top): drawn pixels alike, the others in the ground's
// colour. What the outermost pixels of the picture show is not looked at.
bool Shows(const Picture& picture, const ListImage& image, int left, int top, std::uint32_t ground)
{
    int seen = 0;
    for (int y = 0; y < image.picture.height; ++y)
    {
        for (int x = 0; x < image.picture.width; ++x)
        {
            const int px = left + x;
            const int py = top + y;
            if (px < kBorder || py < kBorder || px >= picture.width - kBorder || py >= picture.height - kBorder)
                continue;
            const std::size_t index = static_cast<std::size_t>(y) * static_cast<std::size_t>(image.picture.width) +
                                      static_cast<std::size_t>(x);
            const std::uint32_t wanted = image.drawn[index] ? image.picture.pixels[index] : ground;
            if (picture.At(px, py) != wanted)
                return false;
            ++seen;
        }
    }
    return seen * 2 > image.picture.width * image.picture.height;
}

// Share of the area's inner pixels that have the colour, in percent.
int ShareOf(const Picture& picture, const RECT& area, std::uint32_t colour)
{
    int count = 0;
    int all = 0;
    for (int y = std::max<int>(area.top + kBorder, 0); y < std::min<int>(area.bottom - kBorder, picture.height); ++y)
    {
        for (int x = std::max<int>(area.left + kBorder, 0); x < std::min<int>(area.right - kBorder, picture.width); ++x)
        {
            ++all;
            count += picture.At(x, y) == colour ? 1 : 0;
        }
    }
    return all == 0 ? 0 : count * 100 / all;
}

}  // namespace

GridView::GridView(HWND grid) : m_grid(grid)
{
    if (WindowClass(grid) != WC_LISTVIEWW)
        throw StepFailure("the control is no grid but a " + ToUtf8(WindowClass(grid)));
}

int GridView::Rows() const
{
    return ListView_GetItemCount(m_grid);
}

int GridView::Columns() const
{
    return Header_GetItemCount(ListView_GetHeader(m_grid));
}

std::string GridView::CellText(GridCell cell) const
{
    CellArea(cell);  // refuses a cell that there isn't
    std::vector<wchar_t> text(kShortestText);
    while (true)
    {
        LVITEMW item = {};
        item.iSubItem = cell.column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        const LRESULT length =
            SendMessageW(m_grid, LVM_GETITEMTEXTW, static_cast<WPARAM>(cell.row), reinterpret_cast<LPARAM>(&item));
        if (static_cast<std::size_t>(length) + 1 < text.size() || text.size() >= kLongestText)
            return ToUtf8({item.pszText, static_cast<std::size_t>(length)});
        text.resize(text.size() * 2);
    }
}

RECT GridView::CellArea(GridCell cell) const
{
    const int rows = Rows();
    const int columns = Columns();
    if (cell.row < 0 || cell.row >= rows)
        throw StepFailure("row " + std::to_string(cell.row), std::to_string(rows) + " rows");
    if (cell.column < 0 || cell.column >= columns)
        throw StepFailure("column " + std::to_string(cell.column), std::to_string(columns) + " columns");
    RECT row = {};
    ListView_GetItemRect(m_grid, cell.row, &row, LVIR_BOUNDS);
    // From the header, since the list view's answer for column 0 is the whole row.
    RECT column = {};
    SendMessageW(ListView_GetHeader(m_grid), HDM_GETITEMRECT, static_cast<WPARAM>(cell.column),
                 reinterpret_cast<LPARAM>(&column));
    return {row.left + column.left, row.top, row.left + column.right, row.bottom};
}

RECT GridView::RowsArea() const
{
    RECT area = {};
    GetClientRect(m_grid, &area);
    const HWND header = ListView_GetHeader(m_grid);
    if (header != nullptr && IsWindowVisible(header))
    {
        RECT place = {};
        GetWindowRect(header, &place);
        area.top += place.bottom - place.top;
    }
    return area;
}

void GridView::MakeVisible(GridCell cell) const
{
    CellArea(cell);
    ListView_EnsureVisible(m_grid, cell.row, FALSE);
    const RECT area = CellArea(cell);
    const RECT view = RowsArea();
    if (area.left < view.left)
        ListView_Scroll(m_grid, area.left - view.left, 0);
    else if (area.right > view.right)
        ListView_Scroll(m_grid, std::min(area.right - view.right, area.left - view.left), 0);
}

HIMAGELIST GridView::SmallImages() const
{
    return ListView_GetImageList(m_grid, LVSIL_SMALL);
}

std::vector<GridView::FoundImage> GridView::ImagesIn(const RECT& area) const
{
    std::vector<FoundImage> found;
    const HIMAGELIST images = SmallImages();
    int width = 0;
    int height = 0;
    if (images == nullptr || !ImageList_GetIconSize(images, &width, &height))
        return found;
    const Picture picture = ClientPicture(m_grid).Part(area);
    const std::uint32_t ground = picture.CommonColour();
    const int leftCut = std::max<int>(area.left, 0);
    for (int index = 0; index < ImageList_GetImageCount(images); ++index)
    {
        const ListImage image = ImageOf(images, index, width, height);
        if (image.isPlain)
            continue;
        for (int x = 0; x + width <= picture.width; ++x)
        {
            for (int y = -2; y <= std::max(picture.height - height, 0) + 2; ++y)
            {
                if (!Shows(picture, image, x, y, ground))
                    continue;
                found.push_back({index, leftCut + x});
                x += width - 1;
                break;
            }
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const FoundImage& left, const FoundImage& right) { return left.x < right.x; });
    return found;
}

// A list whose images are not both of these has no tree: its first image is then a row's own.
std::optional<GridView::FoundImage> GridView::ExpandImage(int row) const
{
    if (ImageList_GetImageCount(SmallImages()) <= std::max(kCollapsedImage, kExpandedImage))
        return std::nullopt;
    for (int column = 0; column < Columns(); ++column)
    {
        const std::vector<FoundImage> images = ImagesIn(CellArea({row, column}));
        if (!images.empty() && (images.front().image == kCollapsedImage || images.front().image == kExpandedImage))
            return images.front();
    }
    return std::nullopt;
}

bool GridView::IsUnderEditor(const RECT& area) const
{
    const HWND header = ListView_GetHeader(m_grid);
    for (HWND child = GetWindow(m_grid, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        if (child == header || !IsWindowVisible(child))
            continue;
        RECT place = {};
        GetWindowRect(child, &place);
        MapWindowPoints(nullptr, m_grid, reinterpret_cast<POINT*>(&place), 2);
        const POINT middle{(place.left + place.right) / 2, place.top + 2};
        if (PtInRect(&area, middle))
            return true;
    }
    return false;
}

GridCell GridView::FocusOnScreen() const
{
    const Picture picture = ClientPicture(m_grid);
    const std::uint32_t highlight = ToRgb(GetSysColor(COLOR_HIGHLIGHT));
    const RECT view = RowsArea();
    for (int row = std::max(ListView_GetTopIndex(m_grid), 0); row < Rows(); ++row)
    {
        int most = 0;
        int share = 0;
        GridCell focus{row, -1};
        for (int column = 0; column < Columns(); ++column)
        {
            RECT area = CellArea({row, column});
            if (area.top >= view.bottom)
                return {};
            area.right = std::min(area.right, view.right);
            area.left = std::max(area.left, view.left);
            if (area.right - area.left <= 2 * kBorder)
                continue;
            share = std::max(share, ShareOf(picture, area, highlight));
            const int here = IsUnderEditor(area) ? 100 : ShareOf(picture, area, kFocusColour);
            if (here >= kGroundShare && here > most)
            {
                most = here;
                focus.column = column;
            }
        }
        if (focus.column >= 0 || share >= kGroundShare)
            return focus;
    }
    return {};
}
