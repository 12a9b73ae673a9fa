// Watches what the brush-data server's worker asks of Winsock, with the server linked into the test program.
#pragma once

#include "support/import_patch.h"

#include <winsock2.h>

#include <vector>

namespace zq::LM::test {

// Counts each of the worker's calls as it begins: those that are not made on the thread that this was made
// on. A receive that begins tells that the bytes of the one before lie in the server's buffer; an accept,
// that the client before is closed. One at a time.
class WorkerCalls {
public:
    WorkerCalls();

    unsigned Accepts() const;
    unsigned Receives() const;
    unsigned Closes() const;

    // Fail the test when it does not come to so many.
    void WaitForAccepts(unsigned count) const;
    void WaitForReceives(unsigned count) const;

    SOCKET Listener() const;            // what the last accept was called on
    std::vector<SOCKET> Closed() const; // by hand, on any thread

private:
    ImportPatch accept;
    ImportPatch receive;
    ImportPatch close;
};

} // namespace zq::LM::test
