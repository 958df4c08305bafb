#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace iso286
{

/// One printed row of a table: nominal sizes over `over`, up to and including `upTo`, millimetres.
template <typename Value, std::size_t Columns>
struct SizeStep
{
    int over;
    int upTo;
    Value values[Columns];
};

template <typename Value, std::size_t Columns, std::size_t Rows>
using SizeTable = std::array<SizeStep<Value, Columns>, Rows>;

/// The row that holds a size; null outside the table and for NaN.
template <typename Value, std::size_t Columns, std::size_t Rows>
constexpr const SizeStep<Value, Columns>* FindStep(const SizeTable<Value, Columns, Rows>& table, float size)
{
    const auto row = std::ranges::find_if(table, [size](const auto& step) {
        return size > static_cast<float>(step.over) && size <= static_cast<float>(step.upTo);
    });
    return row == table.end() ? nullptr : &*row;
}

/// Whether every row starts where the row above it ends, the first at 0.
template <typename Value, std::size_t Columns, std::size_t Rows>
constexpr bool IsContiguous(const SizeTable<Value, Columns, Rows>& table)
{
    int end = 0;
    return std::ranges::all_of(table, [&end](const auto& step) {
        const bool follows = step.over == end && step.upTo > step.over;
        end = step.upTo;
        return follows;
    });
}

}  // namespace iso286
