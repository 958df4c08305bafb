#pragma once

/// The window-less ground of the framework: run-time class information, exceptions, strings, geometry, resource
/// look-up.

#include "base/exceptions.h"
#include "base/framework_api.h"
#include "base/geometry.h"
#include "base/object.h"
#include "base/resource_lookup.h"
#include "base/text.h"
