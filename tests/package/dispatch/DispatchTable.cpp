#include "DispatchTable.h"

#include <QFile>
#include <QFileInfo>
#include <QMultiHash>
#include <QRegularExpression>

#include <array>
#include <optional>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#include <link.h>
#endif

namespace Test {

namespace {

using namespace Qt::StringLiterals;

// The offset to the whole object and the type information stand before the operations.
constexpr quintptr headerSize = 2 * sizeof(void *);

using SymbolTable = QMultiHash<quintptr, QString>; // names by address in the file

// The file of the library that holds an address, and how far from the addresses in that file it is
// loaded.
struct LoadedLibrary
{
    QString file;
    quintptr distance = 0;
};

#ifdef Q_OS_WIN

// In memory, the loader has replaced it with the address of its own choice.
quintptr AddressInFile(const QString &library)
{
    QFile file(library);
    IMAGE_DOS_HEADER header = {};
    IMAGE_NT_HEADERS headers = {};
    if (!file.open(QIODevice::ReadOnly)
        || file.read(reinterpret_cast<char *>(&header), sizeof header) != sizeof header
        || !file.seek(header.e_lfanew)
        || file.read(reinterpret_cast<char *>(&headers), sizeof headers) != sizeof headers)
        return 0;
    return quintptr(headers.OptionalHeader.ImageBase);
}

std::optional<LoadedLibrary> LibraryOf(const void *address)
{
    HMODULE module = nullptr;
    std::array<wchar_t, MAX_PATH> path = {};
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS
                                    | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            static_cast<LPCWSTR>(address), &module)
        || GetModuleFileNameW(module, path.data(), DWORD(path.size())) == 0)
        return std::nullopt;
    const QString file = QString::fromWCharArray(path.data());
    return LoadedLibrary { file, reinterpret_cast<quintptr>(module) - AddressInFile(file) };
}

#else

std::optional<LoadedLibrary> LibraryOf(const void *address)
{
    Dl_info info;
    void *map = nullptr;
    if (dladdr1(address, &info, &map, RTLD_DL_LINKMAP) == 0)
        return std::nullopt;
    return LoadedLibrary { QString::fromLocal8Bit(info.dli_fname),
                           quintptr(static_cast<const link_map *>(map)->l_addr) };
}

#endif

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

// The build has written them into a file with the name of the library's target.
SymbolTable ReadSymbols(const QString &library)
{
    QString target = QFileInfo(library).baseName();
    if (target.startsWith("lib"_L1))
        target.remove(0, 3);
    QFile file(QStringLiteral(ORLIMO_SYMBOLS_FOLDER "/%1.symbols").arg(target));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    static const QRegularExpression functionOrTable(u"^([0-9a-f]+) [TtWwVvDdRr] (.+)$"_s);
    SymbolTable symbols;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = functionOrTable.match(line);
        if (match.hasMatch())
            symbols.insert(match.captured(1).toULongLong(nullptr, 16), match.captured(2));
    }
    return symbols;
}

std::optional<QString> TableAt(const SymbolTable &symbols, quintptr address)
{
    for (const QString &name : symbols.values(address)) {
        if (name.startsWith("vtable for Orlimo::"_L1))
            return name;
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
    const auto name = TableAt(symbols, quintptr(operations) - library->distance - headerSize);
    if (!name) {
        m_fault = library->file + u" has no name for the table; is it stripped?"_s;
        return;
    }
    m_className = Shortened(*name).mid(qsizetype(qstrlen("vtable for ")));
    ReadOperations(symbols, operations, library->distance);
}

// No file format says the same of where a table ends; what follows it is never a function.
void DispatchTable::ReadOperations(const QMultiHash<quintptr, QString> &symbols,
                                   const void *const *operations, quintptr distance)
{
    for (const void *const *operation = operations;; ++operation) {
        QSet<QString> names;
        for (const QString &name : symbols.values(quintptr(*operation) - distance))
            names.insert(Shortened(name));
        if (names.isEmpty())
            return;
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
