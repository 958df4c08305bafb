#pragma once

#include <cstddef>
#include <new>

#include <windows.h>

/// A class whose deleted objects leave no memory behind: whoever touches one afterwards crashes instead of reading what
/// happens to be there.
template <class Base>
class OnReleasedPages : public Base
{
public:
    using Base::Base;

    static void* operator new(std::size_t size)
    {
        void* pages = ::VirtualAlloc(nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
        if (pages == nullptr)
            throw std::bad_alloc();
        return pages;
    }
    static void operator delete(void* pages) { ::VirtualFree(pages, 0, MEM_RELEASE); }
};
