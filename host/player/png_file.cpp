#include "host/player/png_file.h"

#include <algorithm>
#include <string>

#include <objidl.h>

namespace Gdiplus
{
// The header of the library below expects these two in its own namespace.
using std::max;
using std::min;
}  // namespace Gdiplus

#include <gdiplus.h>

#include "host/player/step_failure.h"

namespace
{

/// The picture library for a scope, so that a play leaves nothing of it behind.
class PictureLibrary
{
public:
    PictureLibrary()
    {
        const Gdiplus::GdiplusStartupInput input;
        if (Gdiplus::GdiplusStartup(&m_token, &input, nullptr) != Gdiplus::Ok)
            throw StepFailure("the system's picture library does not start");
    }
    ~PictureLibrary() { Gdiplus::GdiplusShutdown(m_token); }
    PictureLibrary(const PictureLibrary&) = delete;
    PictureLibrary& operator=(const PictureLibrary&) = delete;

private:
    ULONG_PTR m_token = 0;
};

constexpr CLSID kPngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

}  // namespace

void WritePng(const Picture& picture, const std::filesystem::path& file)
{
    if (picture.pixels.empty())
        throw StepFailure("there is nothing to make a picture of");
    const PictureLibrary library;
    Picture copy = picture;
    Gdiplus::Bitmap bitmap(copy.width, copy.height, copy.width * 4, PixelFormat32bppRGB,
                           reinterpret_cast<BYTE*>(copy.pixels.data()));
    const std::wstring name = file.wstring();
    if (bitmap.Save(name.c_str(), &kPngEncoder, nullptr) != Gdiplus::Ok)
    {
        const std::u8string shown = file.u8string();
        throw StepFailure("the picture " + std::string(shown.begin(), shown.end()) + " can't be written");
    }
}
