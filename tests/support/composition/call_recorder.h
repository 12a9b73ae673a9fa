// What is recorded while a composition stand-in lives.
#pragma once

#include "support/composition/chosen_answers.h"
#include "support/composition/object_table.h"
#include "support/composition/pixel_reader.h"
#include "support/hook/call_log.h"

#include <map>
#include <string>

namespace zq::LM::test {

struct CallRecorder {
    CallLog log;
    ObjectTable objects;
    ChosenAnswers answers;
    std::map<std::string, int> standIns; // objects of the stand-in's own that live, by kind
    Frame lastFrame;
    bool show = true;
    bool keepCalls = true;
};

// Null while there is no stand-in: its functions and objects then work on unrecorded.
inline CallRecorder* g_recorder = nullptr;

} // namespace zq::LM::test
