// One call that the recorder has noted, as a text.
#include "support/composition/recorded_call.h"

#include <sstream>

namespace zq::LM::test {

namespace {

std::string Joined(const std::string& object, const std::string& method)
{
    return object.empty() ? method : object + "." + method;
}

} // namespace

std::string RecordedCall::Kind() const { return object.substr(0, object.find('#')); }
std::string RecordedCall::Step() const { return Joined(Kind(), method); }
std::string RecordedCall::Name() const { return Joined(object, method); }

std::string RecordedCall::Text() const
{
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

} // namespace zq::LM::test
