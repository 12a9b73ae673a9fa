// Which calls a chosen answer is for.
#pragma once

namespace zq::LM::test {

// From the nth call on, counted from its making, so many.
class NthCall {
public:
    static constexpr unsigned Always = ~0U;

    explicit NthCall(unsigned nth = 1, unsigned times = Always) : before(nth - 1), times(times) {}

    // Counts a call; true when it is one of them.
    bool Next()
    {
        if (times == 0) {
            return false;
        }
        if (before > 0) {
            --before;
            return false;
        }
        times -= times != Always ? 1 : 0;
        used = true;
        return true;
    }

    bool IsOver() const { return times == 0; }
    bool WasUsed() const { return used; }

private:
    unsigned before;
    unsigned times;
    bool used = false;
};

} // namespace zq::LM::test
