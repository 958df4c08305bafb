#include "containers/plain_collections.h"

IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_DYNAMIC(CStringArray, CObject)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToPtr, CObject)

CPtrArray::CPtrArray() = default;
CPtrArray::~CPtrArray() = default;

CStringArray::CStringArray() = default;
CStringArray::~CStringArray() = default;

CPtrList::CPtrList() = default;
CPtrList::~CPtrList() = default;

CMapPtrToPtr::CMapPtrToPtr() = default;
CMapPtrToPtr::~CMapPtrToPtr() = default;
