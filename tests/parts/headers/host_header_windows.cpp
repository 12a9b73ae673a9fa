// The same in C++, where the handles have to be one type.
#include "host_header_windows.c"

#include <type_traits>

static_assert(std::is_same_v<HWND, LM_WindowHandle>);
