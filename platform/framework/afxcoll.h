#pragma once

/// The containers of the framework that are no templates.

#include "afx.h"
#include "containers/plain_collections.h"
