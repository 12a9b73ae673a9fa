// The pen sample inside the library.
#pragma once

#include "lumora/records.h"

#include <cstddef>

namespace zq::LM {

using PenData = ::LM_PenData;

static_assert(offsetof(PenData, time) == 0);
static_assert(offsetof(PenData, aux1) == 4);
static_assert(offsetof(PenData, x) == 8);
static_assert(offsetof(PenData, y) == 12);
static_assert(offsetof(PenData, aux4) == 16);
static_assert(offsetof(PenData, pressure) == 20);
static_assert(offsetof(PenData, aux6) == 24);
static_assert(offsetof(PenData, aux7) == 28);
static_assert(offsetof(PenData, aux8) == 32);

// Hosts say that the pen has left the surface by a pressure of 0. No pen reports a negative one.
inline bool Touches(const PenData& sample) { return sample.pressure >= 1; }

} // namespace zq::LM
