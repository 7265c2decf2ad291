#pragma once

#include <QMultiHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

namespace Test {

// The virtual operations of a live object in the order of its dispatch table, read from memory and
// named from the symbol table of the library that holds the table, which the build has listed.
//
// This knows the C++ ABI of GCC and Clang (Itanium), which lays out the operations in the order of
// their declarations. Other ABIs group overloads and reverse them.
class DispatchTable
{
public:
    // The object's table is the one its first word points to. IsValid() is false where the library
    // has no name for the table.
    explicit DispatchTable(const void *object);

    bool IsValid() const { return m_fault.isEmpty(); }
    QString Fault() const { return m_fault; }

    // The name of the object's class, without namespace.
    QString ClassName() const { return m_className; }

    qsizetype Count() const { return qsizetype(m_operations.size()); }

    // The place of the first entry from `from` on that is the operation of the object's class, such
    // as "SetFaceID(int)"; -1 where there is none. The arguments stand without namespaces and
    // default template arguments. The compiler may have given one address to operations that do the
    // same; the entry then is each of them.
    qsizetype IndexOf(const QString &operation, qsizetype from = 0) const;

    // Every entry with all its names, for a person.
    QStringList Lines() const;

private:
    void Read(const void *object);
    void ReadOperations(const QMultiHash<quintptr, QString> &symbols, const void *const *operations,
                        quintptr distance);

    QString m_fault;
    QString m_className;
    std::vector<QSet<QString>> m_operations;
};

} // namespace Test
