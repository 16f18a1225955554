#pragma once

#include "host/abc/GarbageContainer.h"

namespace abc {

// The root of the chart wrappers.  The chart classes fill it in; the host
// block already deletes it through this type.
class BaseChart : public GarbageContainer {};

}  // namespace abc
