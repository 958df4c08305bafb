#pragma once

// Columns of the chain list; the closing list has the first five.
inline constexpr int kColumnName = 0;
inline constexpr int kColumnNominal = 1;
inline constexpr int kColumnField = 2;
inline constexpr int kColumnUpperDev = 3;
inline constexpr int kColumnLowerDev = 4;
inline constexpr int kColumnWeightFixed = 5;
