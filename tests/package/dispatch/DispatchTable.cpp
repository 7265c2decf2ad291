#include "DispatchTable.h"

#include <QMultiHash>
#include <QProcess>
#include <QRegularExpression>

#include <optional>

#include <dlfcn.h>
#include <link.h>

namespace Test {

namespace {

using namespace Qt::StringLiterals;

// The offset to the whole object and the type information stand before the operations.
constexpr quintptr headerSize = 2 * sizeof(void *);

struct Symbol
{
    quintptr size = 0;
    QString name;
};

using SymbolTable = QMultiHash<quintptr, Symbol>; // by address in the file

// The file of the library that holds an address, and where it is loaded.
struct LoadedLibrary
{
    QString file;
    quintptr base = 0;
};

std::optional<LoadedLibrary> LibraryOf(const void *address)
{
    Dl_info info;
    void *map = nullptr;
    if (dladdr1(address, &info, &map, RTLD_DL_LINKMAP) == 0)
        return std::nullopt;
    return LoadedLibrary { QString::fromLocal8Bit(info.dli_fname),
                           quintptr(static_cast<const link_map *>(map)->l_addr) };
}

// Drops what says nothing in our names. Demanglers differ in the blank between two ">".
QString Shortened(QString name)
{
    static const QRegularExpression betweenBrackets(u"(?<=>) (?=>)"_s);
    static const QRegularExpression allocator(
            u", std::allocator<(?:[^<>]|<(?:[^<>]|<[^<>]*>)*>)*>"_s);
    name.remove(u"[abi:cxx11]"_s).remove(betweenBrackets);
    name.replace(
            u"std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char>>"_s,
            u"string"_s);
    name.remove(allocator);
    return name.remove(u"std::"_s).remove(u"Orlimo::"_s);
}

SymbolTable ReadSymbols(const QString &library)
{
    QProcess nm;
    nm.start(QStringLiteral(ORLIMO_NM),
             { u"--demangle"_s, u"--print-size"_s, u"--defined-only"_s, library });
    if (!nm.waitForFinished() || nm.exitCode() != 0)
        return {};
    static const QRegularExpression pattern(u"^([0-9a-f]+) ([0-9a-f]+) \\w (.+)$"_s);
    SymbolTable symbols;
    const QStringList lines = QString::fromUtf8(nm.readAllStandardOutput()).split(u'\n');
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = pattern.match(line);
        if (match.hasMatch())
            symbols.insert(match.captured(1).toULongLong(nullptr, 16),
                           { match.captured(2).toULongLong(nullptr, 16), match.captured(3) });
    }
    return symbols;
}

std::optional<Symbol> TableAt(const SymbolTable &symbols, quintptr address)
{
    for (const Symbol &symbol : symbols.values(address)) {
        if (symbol.name.startsWith("vtable for Orlimo::"_L1))
            return symbol;
    }
    return std::nullopt;
}

} // namespace

DispatchTable::DispatchTable(const void *object)
{
    Read(object);
}

void DispatchTable::Read(const void *object)
{
    const auto *operations = *static_cast<const void *const *const *>(object);
    const auto library = LibraryOf(operations);
    if (!library) {
        m_fault = u"the table is in no library"_s;
        return;
    }
    const SymbolTable symbols = ReadSymbols(library->file);
    const auto table = TableAt(symbols, quintptr(operations) - library->base - headerSize);
    if (!table) {
        m_fault = library->file + u" has no name for the table; is it stripped?"_s;
        return;
    }
    m_className = Shortened(table->name).mid(qsizetype(qstrlen("vtable for ")));

    const quintptr count = (table->size - headerSize) / sizeof(void *);
    for (quintptr i = 0; i < count; ++i) {
        QSet<QString> names;
        for (const Symbol &symbol : symbols.values(quintptr(operations[i]) - library->base))
            names.insert(Shortened(symbol.name));
        if (names.isEmpty())
            m_fault = u"entry %1 is no function of %2"_s.arg(i).arg(library->file);
        m_operations.push_back(names);
    }
}

qsizetype DispatchTable::IndexOf(const QString &operation, qsizetype from) const
{
    const QString name = m_className + u"::"_s + operation;
    for (qsizetype i = from; i < Count(); ++i) {
        if (m_operations[size_t(i)].contains(name))
            return i;
    }
    return -1;
}

QStringList DispatchTable::Lines() const
{
    QStringList lines;
    for (const QSet<QString> &names : m_operations)
        lines.append(QStringList(names.values()).join(u" = "_s));
    return lines;
}

} // namespace Test
