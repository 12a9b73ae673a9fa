// The one list of recorded calls, whoever records them.
#include "support/hook/call_log.h"

#include <sstream>
#include <utility>

namespace zq::LM::test {

namespace {

std::string Joined(const std::string& object, const std::string& method)
{
    return object.empty() ? method : object + "." + method;
}

std::vector<std::string> TextsOf(const std::vector<RecordedCall>& calls, const std::string* step)
{
    std::vector<std::string> texts;
    for (const RecordedCall& call : calls) {
        if (step == nullptr || call.Step() == *step) {
            texts.push_back(call.Text());
        }
    }
    return texts;
}

} // namespace

std::string RecordedCall::Kind() const { return object.substr(0, object.find('#')); }
std::string RecordedCall::Step() const { return Joined(Kind(), method); }
std::string RecordedCall::Name() const { return Joined(object, method); }

std::string RecordedCall::Text() const
{
    if (isLine) {
        return method;
    }
    std::ostringstream text;
    text << Name() << '(' << arguments << ')';
    if (result) {
        text << " = " << std::hex << std::showbase << *result;
    }
    if (!made.empty()) {
        text << " -> " << made;
    }
    return text.str();
}

void CallLog::Add(RecordedCall call)
{
    const std::lock_guard lock(mutex);
    calls.push_back(std::move(call));
}

void CallLog::AddLine(std::string line)
{
    RecordedCall call;
    call.method = std::move(line);
    call.isLine = true;
    Add(std::move(call));
}

std::vector<RecordedCall> CallLog::Calls() const
{
    const std::lock_guard lock(mutex);
    return calls;
}

std::vector<std::string> CallLog::Take()
{
    const std::lock_guard lock(mutex);
    return TextsOf(std::exchange(calls, {}), nullptr);
}

std::vector<std::string> CallLog::TakeOf(const std::string& step)
{
    const std::lock_guard lock(mutex);
    return TextsOf(std::exchange(calls, {}), &step);
}

std::vector<std::string> CallLog::Of(const std::string& step) const
{
    const std::lock_guard lock(mutex);
    return TextsOf(calls, &step);
}

std::size_t CallLog::Count(const std::string& step) const { return Of(step).size(); }

} // namespace zq::LM::test
