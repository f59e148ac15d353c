#include <OrderParamTable_mini/frame/HeldException.h>

namespace TC {

HeldException* HeldException::s_innermost = nullptr;

HeldException::HeldException()
    : m_outer(s_innermost)
    , m_uncaught(std::uncaught_exceptions())
{
    s_innermost = this;
}

HeldException::~HeldException() noexcept(false)
{
    s_innermost = m_outer;
    if (m_held && std::uncaught_exceptions() == m_uncaught)
        std::rethrow_exception(m_held);
}

void HeldException::hold()
{
    if (!m_held)
        m_held = std::current_exception();
}

} // namespace TC
