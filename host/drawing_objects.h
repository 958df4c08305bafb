#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/drawing_model.h"

/// A dimension of the drawing as the host's own object: its address is what the module gets for it and gives back.
struct DrawingObject
{
    DrawingDimension dimension;

    /// What people and scripts call it: the id, or the name where it has none.
    const std::string& Name() const { return dimension.id.empty() ? dimension.name : dimension.id; }
};

/// The objects of the drawing that is shown and of those that were shown before: a chain may still hold them.
class DrawingObjects
{
public:
    /// Makes the objects of another drawing. The former ones stay known by their addresses.
    void Show(const Drawing& drawing);

    std::size_t Count() const { return m_shown.size(); }
    const DrawingObject& At(std::size_t index) const { return *m_shown.at(index); }

    /// The object of that name in the drawing that is shown; null when there is none.
    const DrawingObject* Find(const std::string& name) const;
    /// The object at that address, of this drawing or a former one; null when the host never had it.
    const DrawingObject* Known(const void* address) const;
    /// Its place in the drawing that is shown.
    std::optional<std::size_t> IndexOf(const DrawingObject* object) const;

private:
    std::vector<std::unique_ptr<DrawingObject>> m_shown;
    std::vector<std::unique_ptr<DrawingObject>> m_former;
};
