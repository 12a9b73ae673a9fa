// Objects that may be ended while a call of theirs is still running.
#pragma once

#include <atomic>
#include <memory>

namespace zq::LM {

// Many calls of the system run code of the host, and that code may end the very object that made the call.
// Ending takes the object out of use at once; its memory goes with the last call that holds it. After a call
// that can run host code, ask Lives() before going on.
class Endable {
public:
    Endable(const Endable&) = delete;
    Endable& operator=(const Endable&) = delete;

    // False once the owner has let go.
    bool Lives() const { return lives.load(std::memory_order_relaxed); }

protected:
    Endable() = default;
    virtual ~Endable() = default;

    // Runs once, when the owner lets go. The destructor follows at once, or when the last call has returned.
    virtual void OnEnd() {}

private:
    friend class Hold;
    friend struct Ender;

    void Release_()
    {
        if (holders.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            delete this;
        }
    }

    std::atomic<unsigned> holders{1}; // the owner, and each call that runs
    std::atomic<bool> lives{true};
};

// Keeps an object's memory for the time of a call.
class Hold {
public:
    explicit Hold(Endable& held) : held(held) { held.holders.fetch_add(1, std::memory_order_relaxed); }
    ~Hold() { held.Release_(); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

private:
    Endable& held;
};

struct Ender {
    void operator()(Endable* object) const
    {
        object->lives.store(false, std::memory_order_relaxed);
        object->OnEnd();
        object->Release_();
    }
};

// Owns an object: letting go ends it.
template <typename Type> using Owned = std::unique_ptr<Type, Ender>;

} // namespace zq::LM
