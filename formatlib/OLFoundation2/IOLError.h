#pragma once

#include "olfoundation2_export.h"

#include <memory>
#include <string>

namespace Orlimo {

/// What went wrong while a file or a text was read, and where. All texts are UTF-8 on every
/// platform.
///
/// Immutable; may be read on any thread. Lives as long as the last shared pointer to it.
class OLFOUNDATION2_EXPORT IOLError
{
public:
    IOLError();
    IOLError(const IOLError &other);
    IOLError(IOLError &&other);
    IOLError &operator=(const IOLError &other);
    IOLError &operator=(IOLError &&other);

    /// Makes an error record of texts in UTF-8. @p source is the path of the file as it was given
    /// to the reader, empty for a text in memory; @p place is a position inside it (a line and
    /// column, a JSON pointer, a byte offset), empty when the source as a whole is at fault;
    /// @p reason is a sentence without a full stop, in English or, where it is the system's, in the
    /// system's language.
    static std::shared_ptr<const IOLError> MallocError(std::string source, std::string place,
                                                       std::string reason);

    /// Returns the path of the file at fault as it was given to the reader, with its separators and
    /// relative where it was; empty for a text in memory.
    virtual std::string Source() const = 0;

    /// Returns the position inside the source, empty when there is none to name.
    virtual std::string Place() const = 0;

    /// Returns the reason.
    virtual std::string Reason() const = 0;

    /// Returns one line for a person: source, place and reason, joined by ": ", empty ones left
    /// out.
    std::string Message() const;

protected:
    ~IOLError();
};

} // namespace Orlimo
