// A run of a host: hands over the samples of a measurement at its pace, and pumps messages meanwhile.
#pragma once

#include "latency/exchange.h"
#include "latency/ink_sink.h"

namespace lumora::latency {

// Until there is something to do, or so long.
void PumpFor(DWORD milliseconds);

void Run(Exchange& exchange, InkSink& sink);

} // namespace lumora::latency
