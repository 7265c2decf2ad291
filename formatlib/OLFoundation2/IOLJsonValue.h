#pragma once

#include "olfoundation2_export.h"

#include <QJsonValue>

#include <memory>

namespace Orlimo {

/// A parsed JSON value (RFC 8259): an object, an array, a text, a number, a truth value or null.
///
/// Immutable; may be read on any thread. Lives as long as the last shared pointer to it.
class OLFOUNDATION2_EXPORT IOLJsonValue
{
public:
    IOLJsonValue();
    IOLJsonValue(const IOLJsonValue &other);
    IOLJsonValue(IOLJsonValue &&other);
    IOLJsonValue &operator=(const IOLJsonValue &other);
    IOLJsonValue &operator=(IOLJsonValue &&other);

    /// Makes a value that shares @p value's data.
    static std::shared_ptr<IOLJsonValue> MallocJsonValue(QJsonValue value);

    /// Returns the value as Qt's type, which shares its data.
    virtual QJsonValue ToQJsonValue() const = 0;

protected:
    ~IOLJsonValue();
};

} // namespace Orlimo
