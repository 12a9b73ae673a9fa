// The results that a test has chosen for calls yet to come.
#pragma once

#include "support/hook/nth_call.h"

#include <windows.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace zq::LM::test {

class ChosenAnswers {
public:
    // From the nth call of the step on, counted from now, so many calls are not made and give this result.
    void Choose(const std::string& step, HRESULT result, unsigned nth, unsigned times)
    {
        choices.push_back({step, result, NthCall(nth, times)});
    }

    // Counts the call.
    std::optional<HRESULT> Next(const std::string& step)
    {
        for (Choice& choice : choices) {
            if (choice.step == step && !choice.calls.IsOver()) {
                return choice.calls.Next() ? std::optional(choice.result) : std::nullopt;
            }
        }
        return std::nullopt;
    }

    // Whether each choice was used at least once.
    bool AllUsed() const
    {
        return std::ranges::all_of(choices, [](const Choice& choice) { return choice.calls.WasUsed(); });
    }

    bool AnyUsed() const
    {
        return std::ranges::any_of(choices, [](const Choice& choice) { return choice.calls.WasUsed(); });
    }
    void Clear() { choices.clear(); }

private:
    struct Choice {
        std::string step;
        HRESULT result;
        NthCall calls;
    };
    std::vector<Choice> choices;
};

} // namespace zq::LM::test
