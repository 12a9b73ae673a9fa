// What shows the parameter record to a person and follows its changes.
#pragma once

#include "platform/endable.h"

namespace zq::LM {

class ParamsView : public Endable {
public:
    // Shows itself; nothing happens when it is open already.
    virtual void Open() = 0;

    // The record that it was given has changed.
    virtual void Refresh() = 0;
};

} // namespace zq::LM
