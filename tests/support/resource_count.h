#pragma once

#include <cstddef>

/// GDI objects that the process holds.
int GdiObjectCount();

/// Blocks allocated in all heaps of the process.
std::size_t HeapBlockCount();
