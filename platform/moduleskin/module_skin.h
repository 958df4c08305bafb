#pragma once

#include <windows.h>

#ifdef MODULESKIN_EXPORTS
#define MODULESKIN_API __declspec(dllexport)
#else
#define MODULESKIN_API __declspec(dllimport)
#endif

/// The modules whose resources the library holds.
enum etModule
{
    kModuleCalcTol = 1  ///< the dimension-chain calculator
};

/// While one of these lives, resources are looked up in the resource library; its end brings the former look-up back.
/// Guards nest: the last one made must be the first one to end. User-interface thread only.
class MODULESKIN_API CModuleSkin
{
public:
    explicit CModuleSkin(etModule module);
    ~CModuleSkin();
    CModuleSkin(const CModuleSkin&) = delete;
    CModuleSkin& operator=(const CModuleSkin&) = delete;

private:
    HINSTANCE m_former;
};
