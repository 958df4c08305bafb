#include "controls/image_list.h"

#include "graphics/dc.h"
#include "window/handle_map.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)

namespace
{
auto& ImageLists()
{
    static auto& map = *new HandleMap<HIMAGELIST, CImageList, &CImageList::m_hImageList>;
    return map;
}
}  // namespace

CImageList::CImageList() = default;

CImageList::~CImageList()
{
    DeleteImageList();
}

CImageList* CImageList::FromHandle(HIMAGELIST images)
{
    return ImageLists().Find(images, [](HIMAGELIST) { return new CImageList; });
}

CImageList* CImageList::FromHandlePermanent(HIMAGELIST images)
{
    return ImageLists().FindPermanent(images);
}

BOOL CImageList::Attach(HIMAGELIST images)
{
    ASSERT(m_hImageList == nullptr);
    if (images == nullptr)
        return FALSE;
    ImageLists().AddPermanent(images, this);
    m_hImageList = images;
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    const HIMAGELIST images = m_hImageList;
    if (images != nullptr)
        ImageLists().RemovePermanent(images, this);
    m_hImageList = nullptr;
    return images;
}

BOOL CImageList::Create(UINT bitmapId, int width, int grow, COLORREF mask)
{
    const LPCWSTR name = MAKEINTRESOURCEW(bitmapId);
    return Attach(
        ::ImageList_LoadImageW(AfxFindResourceHandle(name, RT_BITMAP), name, width, grow, mask, IMAGE_BITMAP, 0));
}

BOOL CImageList::DeleteImageList()
{
    const HIMAGELIST images = Detach();
    return images != nullptr && ::ImageList_Destroy(images);
}

int CImageList::Add(CBitmap* bitmap, COLORREF mask)
{
    return ::ImageList_AddMasked(m_hImageList, static_cast<HBITMAP>(HandleOf(bitmap)), mask);
}

int CImageList::Add(CBitmap* bitmap, CBitmap* mask)
{
    return ::ImageList_Add(m_hImageList, static_cast<HBITMAP>(HandleOf(bitmap)), static_cast<HBITMAP>(HandleOf(mask)));
}

BOOL CImageList::Draw(CDC* dc, int index, POINT point, UINT style)
{
    return ::ImageList_Draw(m_hImageList, index, dc->m_hDC, point.x, point.y, style);
}
