#pragma once

#include "base/text.h"
#include "containers/array.h"
#include "containers/list.h"
#include "containers/map.h"

/// Pointers in a row. What they point to is not owned.
class FRAMEWORK_API CPtrArray : public CArray<void*, void*>
{
    DECLARE_DYNAMIC(CPtrArray)

public:
    CPtrArray();
    ~CPtrArray() override;
};

/// Texts in a row.
class FRAMEWORK_API CStringArray : public CArray<CString, const CString&>
{
    DECLARE_DYNAMIC(CStringArray)

public:
    CStringArray();
    ~CStringArray() override;
};

/// Pointers in a chain. What they point to is not owned.
class FRAMEWORK_API CPtrList : public CList<void*, void*>
{
    DECLARE_DYNAMIC(CPtrList)

public:
    CPtrList();
    ~CPtrList() override;
};

/// Pointers found by pointers. What either points to is not owned.
class FRAMEWORK_API CMapPtrToPtr : public CMap<void*, void*, void*, void*>
{
    DECLARE_DYNAMIC(CMapPtrToPtr)

public:
    CMapPtrToPtr();
    ~CMapPtrToPtr() override;
};
