#pragma once

#include <cstdint>

#include "platform/moduleskin/resource.h"

constexpr unsigned kNoBitmap = 0;

/// The bitmap that shows a kind of dimension (CDimParams::dimKind); kNoBitmap for anything but 1, 2 and 3.
constexpr unsigned KindBitmap(std::int32_t dimKind)
{
    switch (dimKind)
    {
    case 1:
        return IDB_KIND_1;
    case 2:
        return IDB_KIND_2;
    case 3:
        return IDB_KIND_3;
    default:
        return kNoBitmap;
    }
}
