#pragma once

/// The container templates of the framework.

#include "afx.h"
#include "containers/array.h"
#include "containers/list.h"
#include "containers/map.h"
#include "containers/typed_pointers.h"
