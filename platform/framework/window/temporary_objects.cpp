#include "window/temporary_objects.h"

#include <vector>

namespace
{
int modalDepth = 0;

// Never destroyed: objects with handles may be destroyed after all static objects of this library.
std::vector<TemporaryObjects*>& AllMaps()
{
    static auto& maps = *new std::vector<TemporaryObjects*>;
    return maps;
}
}  // namespace

TemporaryObjects::TemporaryObjects()
{
    AllMaps().push_back(this);
}

void TemporaryObjects::DeleteUnused()
{
    for (TemporaryObjects* map : AllMaps())
        map->DeleteFromDepth(modalDepth);
}

int TemporaryObjects::Depth()
{
    return modalDepth;
}

TemporaryObjects::ModalScope::ModalScope()
{
    ++modalDepth;
}

TemporaryObjects::ModalScope::~ModalScope()
{
    --modalDepth;
}
