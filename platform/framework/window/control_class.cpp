#include "window/control_class.h"

#include <cwchar>
#include <utility>
#include <vector>

namespace
{
auto& ControlClasses()
{
    static auto& classes = *new std::vector<std::pair<LPCWSTR, CRuntimeClass*>>;
    return classes;
}
}  // namespace

ControlClass::ControlClass(LPCWSTR windowClass, CRuntimeClass* objectClass)
{
    ControlClasses().emplace_back(windowClass, objectClass);
}

CWnd* ControlClass::NewObjectFor(HWND window)
{
    wchar_t name[256];
    if (::GetClassNameW(window, name, 256) > 0)
    {
        for (const auto& [windowClass, objectClass] : ControlClasses())
        {
            if (::_wcsicmp(windowClass, name) == 0)
                return static_cast<CWnd*>(objectClass->CreateObject());
        }
    }
    return new CWnd;
}
