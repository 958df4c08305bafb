#include "host/drawing_objects.h"

#include <algorithm>
#include <iterator>

void DrawingObjects::Show(const Drawing& drawing)
{
    std::move(m_shown.begin(), m_shown.end(), std::back_inserter(m_former));
    m_shown.clear();
    for (const DrawingDimension& dimension : drawing.dimensions)
        m_shown.push_back(std::make_unique<DrawingObject>(DrawingObject{dimension}));
}

const DrawingObject* DrawingObjects::Find(const std::string& name) const
{
    const auto found = std::find_if(m_shown.begin(), m_shown.end(),
                                    [&](const auto& object) { return object->Name() == name && !name.empty(); });
    return found == m_shown.end() ? nullptr : found->get();
}

const DrawingObject* DrawingObjects::Known(const void* address) const
{
    for (const auto* const objects : {&m_shown, &m_former})
    {
        const auto found =
            std::find_if(objects->begin(), objects->end(), [&](const auto& object) { return object.get() == address; });
        if (found != objects->end())
            return found->get();
    }
    return nullptr;
}

std::optional<std::size_t> DrawingObjects::IndexOf(const DrawingObject* object) const
{
    const auto found =
        std::find_if(m_shown.begin(), m_shown.end(), [&](const auto& shown) { return shown.get() == object; });
    if (found == m_shown.end())
        return std::nullopt;
    return static_cast<std::size_t>(std::distance(m_shown.begin(), found));
}
