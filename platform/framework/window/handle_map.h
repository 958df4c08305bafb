#pragma once

#include <algorithm>
#include <memory>
#include <unordered_map>

#include "window/temporary_objects.h"

/// The objects that stand for handles of one kind: at most one permanent and one temporary object for each.
/// `member` is where the object keeps its handle.
template <typename Handle, typename Object, Handle Object::*member>
class HandleMap : private TemporaryObjects
{
public:
    Object* FindPermanent(Handle handle) const
    {
        const auto found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }

    void AddPermanent(Handle handle, Object* object) { m_permanent[handle] = object; }

    /// Forgets the permanent object of the handle if that is `object`.
    void RemovePermanent(Handle handle, const Object* object)
    {
        const auto found = m_permanent.find(handle);
        if (found != m_permanent.end() && found->second == object)
            m_permanent.erase(found);
    }

    /// The permanent object, else the temporary one, which `make` makes when it is needed; null for a null handle.
    template <typename Maker>
    Object* Find(Handle handle, Maker make)
    {
        if (handle == nullptr)
            return nullptr;
        if (Object* permanent = FindPermanent(handle))
            return permanent;
        auto found = m_temporary.find(handle);
        if (found == m_temporary.end())
        {
            found = m_temporary.emplace(handle, Temporary{std::unique_ptr<Object>(make(handle)), Depth()}).first;
            (*found->second.object).*member = handle;
        }
        found->second.depth = std::min(found->second.depth, Depth());
        return found->second.object.get();
    }

    /// Drops the temporary object of the handle, when the handle now means something else.
    void RemoveTemporary(Handle handle)
    {
        const auto found = m_temporary.find(handle);
        if (found == m_temporary.end())
            return;
        (*found->second.object).*member = nullptr;
        m_temporary.erase(found);
    }

private:
    struct Temporary
    {
        std::unique_ptr<Object> object;
        int depth;  // the outermost modal loop that was given the object
    };

    void DeleteFromDepth(int depth) override
    {
        for (auto entry = m_temporary.begin(); entry != m_temporary.end();)
        {
            if (entry->second.depth < depth)
            {
                ++entry;
                continue;
            }
            (*entry->second.object).*member = nullptr;  // it never owned the handle
            entry = m_temporary.erase(entry);
        }
    }

    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, Temporary> m_temporary;
};
