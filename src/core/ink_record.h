// The parameter record of an instance, the ink engine that draws by a copy of it, and the view in which a
// person changes it. Everything that writes the record passes through here.
#pragma once

#include "ink/drawing.h"
#include "platform/endable.h"
#include "settings/params_view.h"

#include <cstdint>
#include <memory>
#include <span>

namespace zq::LM {

// For the window's thread. A change goes to the engine, then to the view, which can run host code: what needs
// this object afterwards asks first whether its owner still lives.
class InkRecord {
public:
    // Engine and record with the defaults; either is missing when memory runs out, and what needs it does
    // nothing.
    InkRecord();
    ~InkRecord() = default;
    InkRecord(const InkRecord&) = delete;
    InkRecord& operator=(const InkRecord&) = delete;

    Drawing* Engine() const { return engine.get(); } // null when missing
    Params* Get() const { return record.get(); }     // null when missing; the view writes it in place

    void Replace(const Params& source);

    // One brush-data message of whatever kind, from the host, and wiped; null is no message.
    void Apply(std::uint8_t* message);

    // The same for what has come over the network, which is not trusted.
    void ApplyReceived(std::span<const std::uint8_t> bytes);

    // The colour below the cursor becomes the ink's; it is the result too. `isChosen` ends the picking.
    unsigned Pick(bool isChosen);

    // Around each pen input: what the view has written reaches the engine, and a colour picked since the
    // input before reaches the view.
    void PassToEngine();
    void ShowPickedColour();

    void SetView(Owned<ParamsView> newView) { view = std::move(newView); }
    void OpenView();

    // At the end of the owner's life, in this order; each may be called again. The view's end can run host
    // code.
    void EndEngine();
    void EndView() { view.reset(); }

private:
    void ShowInView_();

    std::unique_ptr<Drawing> engine;
    std::unique_ptr<Params> record;
    Owned<ParamsView> view; // null until the window exists
};

} // namespace zq::LM
