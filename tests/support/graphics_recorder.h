// Records what the test program itself asks of GDI and GDI+, for tests that link the back-ends.
#pragma once

#include "support/import_patch.h"

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

namespace zq::LM::test {

// Calls go on to the system. Each is kept as a text such as "SelectObject(dc, brush) = previous": whole
// numbers are decimal, unsigned ones (colours, raster operations) hexadecimal; handles have the names that a
// test gave them or that of what they are, "other" for the rest. One at a time.
class GraphicsRecorder {
public:
    GraphicsRecorder();
    ~GraphicsRecorder();
    GraphicsRecorder(const GraphicsRecorder&) = delete;
    GraphicsRecorder& operator=(const GraphicsRecorder&) = delete;

    // How a handle is called from now on.
    void Name(const void* handle, const std::string& name);

    // From now on this function is not called and gives 0 or null.
    void Fail(const std::string& function);

    // The calls since the last time, in order.
    std::vector<std::string> Take();

private:
    std::vector<std::unique_ptr<ImportPatch>> patches;
};

} // namespace zq::LM::test
