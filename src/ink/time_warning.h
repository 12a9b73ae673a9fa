// The log line about a time difference that runs backwards.
#pragma once

namespace zq::LM {

// `operation` is the member of Drawing that met it.
void LogTimeWarning(const char* operation, long long timeSub);

} // namespace zq::LM
