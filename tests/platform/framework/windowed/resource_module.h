#pragma once

#include <afxwin.h>

/// Takes resources from framework_window_resources.dll until the end of a scope.
class ResourceModule
{
public:
    ResourceModule() : m_former(AfxGetResourceHandle()), m_module(::LoadLibraryW(L"framework_window_resources.dll"))
    {
        AfxSetResourceHandle(m_module);
    }
    ~ResourceModule()
    {
        AfxSetResourceHandle(m_former);
        ::FreeLibrary(m_module);
    }
    ResourceModule(const ResourceModule&) = delete;
    ResourceModule& operator=(const ResourceModule&) = delete;

    bool IsLoaded() const { return m_module != nullptr; }

private:
    HINSTANCE m_former;
    HMODULE m_module;
};
