#pragma once

#include <concepts>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <unordered_map>

#include "base/exceptions.h"
#include "base/object.h"

/// Number by which CMap distributes keys: equal keys must give the same. Numbers, pointers and texts have one; for
/// other keys a specialisation has to be written.
template <class ARG_KEY>
UINT HashKey(ARG_KEY key)
{
    using Key = std::remove_cvref_t<ARG_KEY>;
    if constexpr (std::convertible_to<Key, LPCWSTR>)
    {
        return static_cast<UINT>(std::hash<std::wstring_view>()(static_cast<LPCWSTR>(key)));
    }
    else
    {
        static_assert(std::is_scalar_v<Key>, "specialise HashKey for this type of key");
        return static_cast<UINT>(std::hash<Key>()(key));
    }
}

/// Non-zero when CMap is to take two keys for the same one. A specialisation has to agree with HashKey.
template <class TYPE, class ARG_TYPE>
BOOL CompareElements(const TYPE* first, const ARG_TYPE* second)
{
    return *first == *second;
}

/// Values found by their keys. ARG_KEY and ARG_VALUE are how both are handed in. The order of a walk is arbitrary.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject
{
public:
    INT_PTR GetCount() const { return static_cast<INT_PTR>(m_pairs.size()); }
    INT_PTR GetSize() const { return GetCount(); }
    BOOL IsEmpty() const { return m_pairs.empty(); }

    /// Non-zero, and `value` set, when the key is there; else `value` stays as it is.
    BOOL Lookup(ARG_KEY key, VALUE& value) const
    {
        const auto found = m_pairs.find(key);
        if (found == m_pairs.end())
            return FALSE;
        value = found->second;
        return TRUE;
    }
    /// The value of the key; a missing key enters with a value-initialised value.
    VALUE& operator[](ARG_KEY key) { return m_pairs[key]; }
    void SetAt(ARG_KEY key, ARG_VALUE value) { m_pairs.insert_or_assign(key, value); }
    /// Zero when the key is not there.
    BOOL RemoveKey(ARG_KEY key) { return m_pairs.erase(key) != 0; }
    void RemoveAll() { m_pairs.clear(); }

    /// Null when the map is empty.
    POSITION GetStartPosition() const { return PositionOf(m_pairs.begin()); }
    /// Gives the pair there and moves the POSITION on, to null behind the last pair. The pair may be removed
    /// afterwards; keys that enter during a walk end it. A null POSITION raises CInvalidArgException.
    void GetNextAssoc(POSITION& position, KEY& key, VALUE& value) const
    {
        if (position == nullptr)
            AfxThrowInvalidArgException();
        const auto& pair = *reinterpret_cast<const typename Pairs::value_type*>(position);
        key = pair.first;
        value = pair.second;
        position = PositionOf(++m_pairs.find(pair.first));
    }

private:
    struct Hash
    {
        std::size_t operator()(const KEY& key) const { return HashKey<ARG_KEY>(const_cast<KEY&>(key)); }
    };

    struct Equal
    {
        bool operator()(const KEY& first, const KEY& second) const
        {
            return CompareElements<KEY, KEY>(&first, &second) != FALSE;
        }
    };

    using Pairs = std::unordered_map<KEY, VALUE, Hash, Equal>;

    // The address of a pair stays the same as long as the pair is in the map.
    POSITION PositionOf(typename Pairs::const_iterator pair) const
    {
        if (pair == m_pairs.end())
            return nullptr;
        return reinterpret_cast<POSITION>(const_cast<typename Pairs::value_type*>(&*pair));
    }

    Pairs m_pairs;
};
