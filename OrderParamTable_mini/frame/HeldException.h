#pragma once

#include <exception>

namespace TC {

/// Stands on the stack of an operation that has steps left after an event or a hook of the host: what the host throws
/// there reaches the caller when the operation is through. A table that stopped half-way would show one mode and be in
/// another, and lose what was entered next.
///
/// The innermost operation holds; of several exceptions it keeps the first. GUI thread only.
class HeldException
{
public:
    HeldException();
    HeldException(const HeldException&) = delete;
    HeldException& operator=(const HeldException&) = delete;

    /// Throws what was held, unless the operation itself is being left by an exception.
    ~HeldException() noexcept(false);

    /// Runs a step that may throw; without an operation on the stack the exception passes.
    template <class Step>
    static void run(Step step)
    {
        try {
            step();
        } catch (...) {
            if (!s_innermost)
                throw;
            s_innermost->hold();
        }
    }

private:
    void hold();

    static HeldException* s_innermost;

    HeldException* m_outer;
    int m_uncaught;
    std::exception_ptr m_held;
};

} // namespace TC
