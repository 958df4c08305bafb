#include <cstring>
#include <new>
#include <string>

#include "base/object.h"

namespace
{
// Set before any constructor runs, so the order in which files and modules register their classes doesn't matter.
constinit CRuntimeClass* firstClass = nullptr;
}  // namespace

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* runtimeClass) : m_class(runtimeClass)
{
    m_class->m_pNextClass = firstClass;
    firstClass = m_class;
}

AFX_CLASSINIT::~AFX_CLASSINIT()
{
    CRuntimeClass** link = &firstClass;
    while (*link != m_class)
        link = &(*link)->m_pNextClass;
    *link = m_class->m_pNextClass;
}

CObject* CRuntimeClass::CreateObject()
{
    if (m_pfnCreateObject == nullptr)
        return nullptr;
    try
    {
        return m_pfnCreateObject();
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    const CRuntimeClass* candidate = this;
    while (candidate != base && candidate->m_pfnGetBaseClass != nullptr)
        candidate = candidate->m_pfnGetBaseClass();
    return candidate == base;
}

CRuntimeClass* CRuntimeClass::FromName(LPCSTR name)
{
    CRuntimeClass* candidate = firstClass;
    while (candidate != nullptr && std::strcmp(candidate->m_lpszClassName, name) != 0)
        candidate = candidate->m_pNextClass;
    return candidate;
}

CRuntimeClass* CRuntimeClass::FromName(LPCWSTR name)
{
    // Class names are identifiers; what is not ASCII matches none.
    std::string narrow;
    for (LPCWSTR next = name; *next != L'\0'; ++next)
        narrow += *next < 0x80 ? static_cast<char>(*next) : '?';
    return FromName(narrow.c_str());
}
