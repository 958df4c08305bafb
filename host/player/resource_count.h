#pragma once

#include <string>

/// What the process holds of the things that a leak piles up.
struct ResourceCount
{
    int windows = 0;
    int menus = 0;
    int gdiObjects = 0;

    bool operator==(const ResourceCount&) const = default;

    static ResourceCount Now();
    std::string InWords() const;
};
