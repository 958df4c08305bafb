#include "base/resource_lookup.h"

#include "base/string_resource.h"

namespace
{
HINSTANCE currentResourceModule = nullptr;  // null: the program

bool HasResource(HINSTANCE resourceModule, LPCWSTR name, LPCWSTR type)
{
    return ::FindResourceW(resourceModule, name, type) != nullptr;
}
}  // namespace

HINSTANCE AfxGetInstanceHandle()
{
    return ::GetModuleHandleW(nullptr);
}

HINSTANCE AfxGetResourceHandle()
{
    return currentResourceModule != nullptr ? currentResourceModule : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE resourceModule)
{
    currentResourceModule = resourceModule;
}

HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type)
{
    const HINSTANCE current = AfxGetResourceHandle();
    const HINSTANCE program = AfxGetInstanceHandle();
    return !HasResource(current, name, type) && HasResource(program, name, type) ? program : current;
}

std::wstring_view StringResourceOf(HINSTANCE resourceModule, UINT id)
{
    // With no room given Windows hands out the address of the text instead of a copy.
    LPCWSTR text = nullptr;
    const int length = ::LoadStringW(resourceModule, id, reinterpret_cast<LPWSTR>(&text), 0);
    return length > 0 ? std::wstring_view(text, static_cast<std::size_t>(length)) : std::wstring_view();
}

std::wstring_view StringResource(UINT id)
{
    const std::wstring_view text = StringResourceOf(AfxGetResourceHandle(), id);
    return text.empty() ? StringResourceOf(AfxGetInstanceHandle(), id) : text;
}

int AfxLoadString(UINT id, LPWSTR buffer, UINT capacity)
{
    if (capacity == 0)
        return 0;
    const std::wstring_view text = StringResource(id);
    const std::size_t length = text.copy(buffer, capacity - 1);
    buffer[length] = L'\0';
    return static_cast<int>(length);
}
