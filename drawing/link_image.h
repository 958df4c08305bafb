#pragma once

#include <cstdint>

// Numbers of the images in the strip of the chain list (IDB_CHAIN_IMAGES) that rows carry.

constexpr int kChainImage = 2;      // the chain row
constexpr int kFirstKindImage = 9;  // links of kind 1; kinds 2 and 3 follow

constexpr std::int32_t kFirstKind = 1;
constexpr std::int32_t kLastKind = 3;

/// The image of a link's kind (CDimParams::dimKind); -1, no image, for anything but 1, 2 and 3.
constexpr int LinkImage(std::int32_t dimKind)
{
    return dimKind >= kFirstKind && dimKind <= kLastKind ? kFirstKindImage + (dimKind - kFirstKind) : -1;
}

/// The kind that an image stands for; 0, no kind, for any other image.
constexpr std::int32_t KindOfLinkImage(int image)
{
    for (std::int32_t kind = kFirstKind; kind <= kLastKind; ++kind)
        if (LinkImage(kind) == image)
            return kind;
    return 0;
}
