#pragma once

#include "containers/plain_collections.h"

/// A CPtrArray, or another array of pointers, whose elements are read and set as TYPE, a pointer type.
template <class BASE_CLASS, class TYPE>
class CTypedPtrArray : public BASE_CLASS
{
public:
    TYPE GetAt(INT_PTR index) const { return static_cast<TYPE>(BASE_CLASS::GetAt(index)); }
    TYPE operator[](INT_PTR index) const { return GetAt(index); }
    void SetAt(INT_PTR index, TYPE element) { BASE_CLASS::SetAt(index, element); }
    void SetAtGrow(INT_PTR index, TYPE element) { BASE_CLASS::SetAtGrow(index, element); }
    INT_PTR Add(TYPE element) { return BASE_CLASS::Add(element); }
    void InsertAt(INT_PTR index, TYPE element, INT_PTR count = 1) { BASE_CLASS::InsertAt(index, element, count); }
    INT_PTR Append(const CTypedPtrArray& other) { return BASE_CLASS::Append(other); }
    void Copy(const CTypedPtrArray& other) { BASE_CLASS::Copy(other); }
};

/// A CPtrList, or another list of pointers, whose elements are read and set as TYPE, a pointer type.
template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS
{
public:
    TYPE GetHead() const { return static_cast<TYPE>(BASE_CLASS::GetHead()); }
    TYPE GetTail() const { return static_cast<TYPE>(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return static_cast<TYPE>(BASE_CLASS::RemoveTail()); }
    POSITION AddHead(TYPE element) { return BASE_CLASS::AddHead(element); }
    POSITION AddTail(TYPE element) { return BASE_CLASS::AddTail(element); }
    TYPE GetNext(POSITION& position) const { return static_cast<TYPE>(BASE_CLASS::GetNext(position)); }
    TYPE GetPrev(POSITION& position) const { return static_cast<TYPE>(BASE_CLASS::GetPrev(position)); }
    TYPE GetAt(POSITION position) const { return static_cast<TYPE>(BASE_CLASS::GetAt(position)); }
    void SetAt(POSITION position, TYPE element) { BASE_CLASS::SetAt(position, element); }
    POSITION InsertBefore(POSITION position, TYPE element) { return BASE_CLASS::InsertBefore(position, element); }
    POSITION InsertAfter(POSITION position, TYPE element) { return BASE_CLASS::InsertAfter(position, element); }
};
