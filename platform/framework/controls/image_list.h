#pragma once

#include <windows.h>

#include <commctrl.h>

#include "graphics/gdi_object.h"

class CDC;

/// An image list, destroyed with this object. FromHandle makes temporary objects, which destroy nothing, until the
/// thread is idle.
class FRAMEWORK_API CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList();
    ~CImageList() override;

    HIMAGELIST m_hImageList = nullptr;

    HIMAGELIST GetSafeHandle() const { return m_hImageList; }
    operator HIMAGELIST() const { return m_hImageList; }
    static CImageList* FromHandle(HIMAGELIST images);
    /// The permanent object of the image list; null when there is none.
    static CImageList* FromHandlePermanent(HIMAGELIST images);
    BOOL Attach(HIMAGELIST images);
    HIMAGELIST Detach();

    /// @param width, height  of one image, pixels
    /// @param flags          ILC_ constants
    BOOL Create(int width, int height, UINT flags, int initial, int grow)
    {
        return Attach(::ImageList_Create(width, height, flags, initial, grow));
    }
    /// From a bitmap of the current resource module, cut into images of that width.
    BOOL Create(UINT bitmapId, int width, int grow, COLORREF mask);
    BOOL DeleteImageList();

    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    /// @return  the index of the first new image; -1 on failure. The bitmap stays the caller's; its masked pixels
    ///          become black.
    int Add(CBitmap* bitmap, COLORREF mask);
    int Add(CBitmap* bitmap, CBitmap* mask);
    int Add(HICON icon) { return ::ImageList_ReplaceIcon(m_hImageList, -1, icon); }
    /// @param style  ILD_ constants
    BOOL Draw(CDC* dc, int index, POINT point, UINT style);
};

/// The image list of an object; null for a null pointer.
inline HIMAGELIST HandleOf(const CImageList* images)
{
    return images == nullptr ? nullptr : images->m_hImageList;
}
