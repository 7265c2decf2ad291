#include "IOLError.h"

#include <utility>

namespace Orlimo {

namespace {

class OLError final : public IOLError
{
public:
    OLError(std::string source, std::string place, std::string reason)
        : m_source(std::move(source))
        , m_place(std::move(place))
        , m_reason(std::move(reason))
    {
    }

    std::string Source() const override { return m_source; }
    std::string Place() const override { return m_place; }
    std::string Reason() const override { return m_reason; }

private:
    std::string m_source;
    std::string m_place;
    std::string m_reason;
};

} // namespace

IOLError::IOLError() = default;
IOLError::IOLError(const IOLError &) = default;
IOLError::IOLError(IOLError &&) = default;
IOLError &IOLError::operator=(const IOLError &) = default;
IOLError &IOLError::operator=(IOLError &&) = default;
IOLError::~IOLError() = default;

std::shared_ptr<const IOLError> IOLError::MallocError(std::string source, std::string place,
                                                      std::string reason)
{
    return std::make_shared<OLError>(std::move(source), std::move(place), std::move(reason));
}

std::string IOLError::Message() const
{
    std::string message;
    for (const std::string &part : { Source(), Place(), Reason() }) {
        if (part.empty())
            continue;
        if (!message.empty())
            message += ": ";
        message += part;
    }
    return message;
}

} // namespace Orlimo
