#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "host/player/grid_view.h"
#include "host/player/picture.h"
#include "host/player/png_file.h"
#include "host/player/step_failure.h"
#include "host/player/step_handler.h"
#include "host/player/window_roles.h"
#include "host/player/window_text.h"

namespace
{

constexpr int kNone = -1;

std::string ColourWord(std::uint32_t colour)
{
    char text[8] = {};
    std::snprintf(text, sizeof(text), "%06X", colour);
    return text;
}

bool IsNear(std::uint32_t left, std::uint32_t right, int tolerance)
{
    for (const int shift : {16, 8, 0})
    {
        const int difference = static_cast<int>(left >> shift & 0xFF) - static_cast<int>(right >> shift & 0xFF);
        if (std::abs(difference) > tolerance)
            return false;
    }
    return true;
}

void ExpectPixel(const StepContext& context)
{
    const Step& step = context.step;
    const HWND control = RequireControl(context.window, step.control);
    if (!IsWindowVisible(control))
        throw StepFailure("control " + step.control.name + " is hidden");
    const Picture picture = ClientPicture(control);
    const RECT area = step.cell ? GridView(control).CellArea(*step.cell) : RECT{0, 0, picture.width, picture.height};
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const int x = area.left + step.measures[0].Of(width, height);
    const int y = area.top + step.measures[1].Of(width, height);
    const std::string place = " at " + std::to_string(x) + ", " + std::to_string(y);
    if (!picture.Contains(x, y))
        throw StepFailure(ColourWord(*step.colour) + place,
                          "a picture of " + std::to_string(picture.width) + " x " + std::to_string(picture.height));
    const std::uint32_t found = picture.At(x, y);
    if (!IsNear(found, *step.colour, static_cast<int>(step.number.value_or(0))))
        throw StepFailure(ColourWord(*step.colour) + place, ColourWord(found));
}

bool StartsWith(const Picture& shown, const Picture& bitmap, POINT origin)
{
    const int width = std::min(bitmap.width, shown.width - static_cast<int>(origin.x));
    const int height = std::min(bitmap.height, shown.height - static_cast<int>(origin.y));
    if (width <= 0 || height <= 0)
        return false;
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
        {
            if (shown.At(origin.x + x, origin.y + y) != bitmap.At(x, y))
                return false;
        }
    }
    return true;
}

BOOL CALLBACK CollectBitmap(HMODULE, LPCWSTR, LPWSTR name, LONG_PTR ids)
{
    if (IS_INTRESOURCE(name))
        reinterpret_cast<std::vector<int>*>(ids)->push_back(static_cast<int>(reinterpret_cast<ULONG_PTR>(name)));
    return TRUE;
}

// The bitmap of the resource library that a frame shows from its left top corner: that of its inside, or with a border
// the corner of the border.
int BitmapInFrame(HWND frame)
{
    if (!IsWindowVisible(frame))
        return kNone;
    const Picture shown = ClientPicture(frame);
    RECT place = {};
    GetWindowRect(frame, &place);
    POINT inside = {};
    ClientToScreen(frame, &inside);
    const POINT corner{place.left - inside.x, place.top - inside.y};

    std::vector<int> ids;
    EnumResourceNamesW(ResourceLibrary(), RT_BITMAP, CollectBitmap, reinterpret_cast<LONG_PTR>(&ids));
    for (const int id : ids)
    {
        const Picture bitmap = ResourcePicture(ResourceLibrary(), id);
        if (StartsWith(shown, bitmap, {0, 0}))
            return id;
        // What of the picture lies under the border can't be seen.
        const Picture cut = bitmap.Part({-corner.x, -corner.y, bitmap.width, bitmap.height});
        if ((corner.x != 0 || corner.y != 0) && StartsWith(shown, cut, {0, 0}))
            return id;
    }
    return kNone;
}

// The row's own image: the last of those before its text. The first two of a tree's list are the expand images, so one
// of them alone is no image of the row's own, unless the grid is no tree: it has one row then.
int ImageInRow(HWND control, int row)
{
    constexpr int kExpandImages = 2;
    const GridView grid(control);
    const std::vector<GridView::FoundImage> images = grid.ImagesIn(grid.CellArea({row, 0}));
    if (images.empty() || (images.size() == 1 && images.front().image < kExpandImages && grid.Rows() > 1))
        return kNone;
    return images.back().image;
}

std::string ImageWord(int image)
{
    return image == kNone ? "none" : std::to_string(image);
}

void ExpectImage(const StepContext& context)
{
    const Step& step = context.step;
    const HWND control = RequireControl(context.window, step.control);
    const int expected = step.Chose("none") ? kNone : static_cast<int>(*step.number);
    const int found = step.cell ? ImageInRow(control, step.cell->row) : BitmapInFrame(control);
    if (expected != found)
        throw StepFailure("image " + ImageWord(expected), ImageWord(found));
}

void Screenshot(const StepContext& context)
{
    WritePng(WholePicture(context.window), std::filesystem::path(ToWide(context.step.words.front())));
}

constexpr StepHandler kPictureSteps[] = {
    {.name = "expect-pixel", .atOnce = ExpectPixel},
    {.name = "expect-image", .atOnce = ExpectImage},
    {.name = "screenshot", .atOnce = Screenshot},
};

}  // namespace

std::span<const StepHandler> PictureSteps()
{
    return kPictureSteps;
}
