#pragma once

#include <stdexcept>

namespace Fuzz {

// An input for which the library did not do what it promises.
class Violation : public std::logic_error
{
public:
    using std::logic_error::logic_error;
};

// libFuzzer takes the exception, which nothing catches, for a crash; a test reports it.
inline void Require(bool holds, const char *promise)
{
    if (!holds)
        throw Violation(promise);
}

} // namespace Fuzz
