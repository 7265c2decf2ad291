#include "IOLJsonValue.h"

#include <utility>

namespace Orlimo {

namespace {

class OLJsonValue final : public IOLJsonValue
{
public:
    explicit OLJsonValue(QJsonValue value)
        : m_value(std::move(value))
    {
    }

    QJsonValue ToQJsonValue() const override { return m_value; }

private:
    QJsonValue m_value;
};

} // namespace

IOLJsonValue::IOLJsonValue() = default;
IOLJsonValue::IOLJsonValue(const IOLJsonValue &) = default;
IOLJsonValue::IOLJsonValue(IOLJsonValue &&) = default;
IOLJsonValue &IOLJsonValue::operator=(const IOLJsonValue &) = default;
IOLJsonValue &IOLJsonValue::operator=(IOLJsonValue &&) = default;
IOLJsonValue::~IOLJsonValue() = default;

std::shared_ptr<IOLJsonValue> IOLJsonValue::MallocJsonValue(QJsonValue value)
{
    return std::make_shared<OLJsonValue>(std::move(value));
}

} // namespace Orlimo
