#pragma once

#include "base/framework_api.h"

class CObject;

/// What is known about a class at run time. There is exactly one for each class, made by the IMPLEMENT_ macros.
struct FRAMEWORK_API CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;                      ///< bytes
    CObject* (*m_pfnCreateObject)();        ///< null when the class can't be created dynamically
    CRuntimeClass* (*m_pfnGetBaseClass)();  ///< null for CObject only
    CRuntimeClass* m_pNextClass;            ///< chain of all classes of the loaded modules, kept by AFX_CLASSINIT

    /// A new object owned by the caller; null when the class can't be created dynamically or memory runs out.
    CObject* CreateObject();
    /// Non-zero for the class itself and for every class that it derives from.
    BOOL IsDerivedFrom(const CRuntimeClass* base) const;

    /// The class of that name among the modules loaded now; null when there is none.
    static CRuntimeClass* FromName(LPCSTR name);
    static CRuntimeClass* FromName(LPCWSTR name);
};

/// Keeps a class findable by name as long as the module that defines the class is loaded.
class FRAMEWORK_API AFX_CLASSINIT
{
public:
    explicit AFX_CLASSINIT(CRuntimeClass* runtimeClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    CRuntimeClass* m_class;
};

/// Root of the framework's classes: knows its class at run time, is destroyed through its base and never copied.
class FRAMEWORK_API CObject
{
public:
    static CRuntimeClass classCObject;

    virtual ~CObject();
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    virtual CRuntimeClass* GetRuntimeClass() const;
    /// Non-zero when the object is of that class or of one derived from it. Classes without a DECLARE_ macro count as
    /// their nearest base that has one.
    BOOL IsKindOf(const CRuntimeClass* runtimeClass) const;

protected:
    CObject() = default;
};

/// The CRuntimeClass of a class that has a DECLARE_ macro.
#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

/// Inside a class: run-time class information. The .cpp needs IMPLEMENT_DYNAMIC.
#define DECLARE_DYNAMIC(class_name)                                                                                    \
public:                                                                                                                \
    static CRuntimeClass class##class_name;                                                                            \
    CRuntimeClass* GetRuntimeClass() const override;                                                                   \
                                                                                                                       \
private:                                                                                                               \
    static CRuntimeClass* GetBaseRuntimeClass();                                                                       \
                                                                                                                       \
public:

/// Inside a class: as DECLARE_DYNAMIC, and objects can be made by CRuntimeClass::CreateObject. Needs a default
/// constructor, and IMPLEMENT_DYNCREATE in the .cpp.
#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* CreateObject();

#define FRAMEWORK_IMPLEMENT_RUNTIME_CLASS(class_name, base_class_name, create_object)                                  \
    CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)), create_object,   \
                                                   &class_name::GetBaseRuntimeClass, nullptr};                         \
    static const AFX_CLASSINIT registrationOf##class_name(RUNTIME_CLASS(class_name));                                  \
    CRuntimeClass* class_name::GetBaseRuntimeClass()                                                                   \
    {                                                                                                                  \
        return RUNTIME_CLASS(base_class_name);                                                                         \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                                 \
    {                                                                                                                  \
        return RUNTIME_CLASS(class_name);                                                                              \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    FRAMEWORK_IMPLEMENT_RUNTIME_CLASS(class_name, base_class_name, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* class_name::CreateObject()                                                                                \
    {                                                                                                                  \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    FRAMEWORK_IMPLEMENT_RUNTIME_CLASS(class_name, base_class_name, &class_name::CreateObject)
