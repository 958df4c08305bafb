#include "base/object.h"

#include <cstdarg>
#include <cwchar>
#include <iterator>

CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), nullptr, nullptr, nullptr};

static const AFX_CLASSINIT registrationOfCObject(RUNTIME_CLASS(CObject));

CObject::~CObject() = default;

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return RUNTIME_CLASS(CObject);
}

BOOL CObject::IsKindOf(const CRuntimeClass* runtimeClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(runtimeClass);
}

void AfxTrace(LPCWSTR format, ...)
{
    wchar_t line[512] = {};
    va_list arguments;
    va_start(arguments, format);
    _vsnwprintf(line, std::size(line) - 1, format, arguments);
    va_end(arguments);
    ::OutputDebugStringW(line);
}
