// What pointers and handles are called in recorded calls.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace zq::LM::test {

// From now on. The system gives handles again, so a name holds until the next one of the same handle.
void GiveName(const void* handle, const std::string& name);

std::string NameOf(const void* handle); // "null", or "*" for one without a name
std::string NameOf(HWND window);        // "window 1" and so on, in the order of their first mention
void ForgetNames();

// Of what a function gives: "dc of window 1", "brush 0xFF00FF", "memory dc" and so on.
void NameResult(const std::string& function, const void* result, const std::vector<std::string>& arguments);

} // namespace zq::LM::test
