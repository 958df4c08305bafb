#include "platform/moduleskin/module_skin.h"

#include <afxwin.h>

namespace
{

// The library that holds the given module's resources: one library serves all modules, itself.
HINSTANCE LibraryOf(etModule /*module*/)
{
    HINSTANCE library = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&LibraryOf), &library);
    return library;
}

}  // namespace

CModuleSkin::CModuleSkin(etModule module) : m_former(AfxGetResourceHandle())
{
    AfxSetResourceHandle(LibraryOf(module));
}

CModuleSkin::~CModuleSkin()
{
    AfxSetResourceHandle(m_former);
}
