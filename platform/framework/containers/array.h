#pragma once

#include <algorithm>
#include <iterator>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/exceptions.h"
#include "base/object.h"

/// Elements in a row, addressed from 0, that grows on demand. ARG_TYPE is how elements are handed in.
///
/// An index, count or size outside of what an operation allows raises CInvalidArgException and changes nothing. Growing
/// moves the elements: a pointer or reference to one is valid until the next change of size. Elements that come up by
/// growing are value-initialised.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject
{
    static_assert(!std::is_same_v<TYPE, bool>, "an element must have an address: use BOOL");

public:
    // size
    INT_PTR GetSize() const { return static_cast<INT_PTR>(m_elements.size()); }
    INT_PTR GetCount() const { return GetSize(); }
    BOOL IsEmpty() const { return m_elements.empty(); }
    /// The largest index; -1 when empty.
    INT_PTR GetUpperBound() const { return GetSize() - 1; }
    /// @param growBy  least number of elements to make room for when the array grows; negative leaves it as it was.
    ///                The room grows in proportion to the size in any case, so appending stays cheap.
    void SetSize(INT_PTR newSize, INT_PTR growBy = -1)
    {
        Require(newSize >= 0);
        if (growBy >= 0)
            m_growBy = growBy;
        MakeRoom(newSize - GetSize());
        m_elements.resize(Position(newSize));
    }
    /// Gives back the room that no element uses.
    void FreeExtra() { m_elements.shrink_to_fit(); }
    void RemoveAll() { std::vector<TYPE>().swap(m_elements); }

    // elements
    const TYPE& GetAt(INT_PTR index) const { return m_elements[Checked(index)]; }
    TYPE& GetAt(INT_PTR index) { return m_elements[Checked(index)]; }
    TYPE& ElementAt(INT_PTR index) { return m_elements[Checked(index)]; }
    const TYPE& operator[](INT_PTR index) const { return m_elements[Checked(index)]; }
    TYPE& operator[](INT_PTR index) { return m_elements[Checked(index)]; }
    void SetAt(INT_PTR index, ARG_TYPE element) { m_elements[Checked(index)] = element; }
    /// All elements in a row; null when there has never been room for one.
    const TYPE* GetData() const { return m_elements.data(); }
    TYPE* GetData() { return m_elements.data(); }

    // growing
    /// @return  index of the new element
    INT_PTR Add(ARG_TYPE element)
    {
        InsertCopies(GetSize(), element, 1);
        return GetUpperBound();
    }
    /// As SetAt, but the array first grows as far as needed.
    void SetAtGrow(INT_PTR index, ARG_TYPE element)
    {
        Require(index >= 0);
        if (index < GetSize())
            SetAt(index, element);
        else
            InsertCopies(index, element, 1);
    }
    /// Puts `count` copies before `index`, behind which the former elements move up. An index behind the end first lets
    /// the array grow up to it.
    void InsertAt(INT_PTR index, ARG_TYPE element, INT_PTR count = 1)
    {
        Require(index >= 0 && count > 0);
        InsertCopies(index, element, count);
    }
    /// Puts all elements of another array before `index`.
    void InsertAt(INT_PTR index, const CArray* other)
    {
        Require(index >= 0 && other != nullptr);
        InsertElements(index, std::vector<TYPE>(other->m_elements));
    }
    /// @return  index of the first element appended
    INT_PTR Append(const CArray& other)
    {
        const INT_PTR first = GetSize();
        InsertElements(first, std::vector<TYPE>(other.m_elements));
        return first;
    }
    /// Becomes equal to the other array.
    void Copy(const CArray& other) { m_elements = other.m_elements; }

    // shrinking
    void RemoveAt(INT_PTR index, INT_PTR count = 1)
    {
        Require(index >= 0 && count >= 0 && count <= GetSize() && index <= GetSize() - count);
        const auto first = m_elements.begin() + index;
        m_elements.erase(first, first + count);
    }

private:
    static void Require(bool allowed)
    {
        if (!allowed)
            AfxThrowInvalidArgException();
    }

    static std::size_t Position(INT_PTR index) { return static_cast<std::size_t>(index); }

    std::size_t Checked(INT_PTR index) const
    {
        Require(index >= 0 && index < GetSize());
        return Position(index);
    }

    void MakeRoom(INT_PTR added)
    {
        const auto capacity = static_cast<INT_PTR>(m_elements.capacity());
        if (added > capacity - GetSize())
            m_elements.reserve(Position(GetSize() + std::max({added, m_growBy, GetSize()})));
    }

    // The element is copied before anything moves: it may lie in this array.
    void InsertCopies(INT_PTR index, ARG_TYPE element, INT_PTR count)
    {
        const TYPE copied(element);
        OpenGap(index, count);
        m_elements.insert(m_elements.begin() + index, Position(count), copied);
    }

    void InsertElements(INT_PTR index, std::vector<TYPE>&& added)
    {
        OpenGap(index, static_cast<INT_PTR>(added.size()));
        m_elements.insert(m_elements.begin() + index, std::make_move_iterator(added.begin()),
                          std::make_move_iterator(added.end()));
    }

    // Room for all that comes, and elements up to `index` when that lies behind the end.
    void OpenGap(INT_PTR index, INT_PTR added)
    {
        const INT_PTR gap = std::max<INT_PTR>(index - GetSize(), 0);
        MakeRoom(gap + added);
        m_elements.resize(m_elements.size() + Position(gap));
    }

    std::vector<TYPE> m_elements;
    INT_PTR m_growBy = 0;
};
