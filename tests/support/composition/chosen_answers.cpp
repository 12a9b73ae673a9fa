// The results that a test has chosen for calls yet to come.
#include "support/composition/chosen_answers.h"

#include <algorithm>

namespace zq::LM::test {

void ChosenAnswers::Choose(const std::string& step, HRESULT result, unsigned nth, unsigned times)
{
    choices.push_back({step, result, NthCall(nth, times)});
}

std::optional<HRESULT> ChosenAnswers::Next(const std::string& step)
{
    for (Choice& choice : choices) {
        if (choice.step == step && !choice.calls.IsOver()) {
            return choice.calls.Next() ? std::optional(choice.result) : std::nullopt;
        }
    }
    return std::nullopt;
}

bool ChosenAnswers::AllUsed() const
{
    return std::all_of(choices.begin(), choices.end(),
                       [](const Choice& choice) { return choice.calls.WasUsed(); });
}

} // namespace zq::LM::test
