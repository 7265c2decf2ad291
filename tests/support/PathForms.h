#pragma once

#include <QDir>
#include <QTest>

namespace Test {

// A file name below a folder, which of all code pages only those of the whole of Unicode can spell.
inline const QString pathBeyondAscii = QStringLiteral("Größe 動画 (ü)/Форматы é.json");

// One way to write the path of a file for a process whose working folder is the given one.
using PathForm = QString (*)(const QString &folder, const QString &file);

// Adds the column "form" and a row for every way that the platform knows.
inline void AddPathForms()
{
    QTest::addColumn<PathForm>("form");
    const auto row = [](const char *name, PathForm form) { QTest::newRow(name) << form; };
    row("whole", [](const QString &folder, const QString &file) { return folder + u'/' + file; });
    row("relative", [](const QString &, const QString &file) { return file; });
    row("relative, from a dot",
        [](const QString &, const QString &file) { return QStringLiteral("./") + file; });
    row("relative, from the folder above", [](const QString &folder, const QString &file) {
        return QStringLiteral("../%1/%2").arg(QDir(folder).dirName(), file);
    });
#ifdef Q_OS_WIN
    row("backslashes", [](const QString &folder, const QString &file) {
        return QDir::toNativeSeparators(folder + u'/' + file);
    });
    row("backslashes, relative",
        [](const QString &, const QString &file) { return QDir::toNativeSeparators(file); });
    row("both separators",
        [](const QString &folder, const QString &file) { return folder + u'\\' + file; });
    row("drive letter in lower case", [](const QString &folder, const QString &file) {
        return folder.first(1).toLower() + folder.sliced(1) + u'/' + file;
    });
    row("from the root of the drive",
        [](const QString &folder, const QString &file) { return folder.sliced(2) + u'/' + file; });
    row("from the working folder of the drive",
        [](const QString &folder, const QString &file) { return folder.first(2) + file; });
#endif
}

// The working folder of the process for as long as the object lives; then it is the earlier one.
class WorkingFolder
{
public:
    explicit WorkingFolder(const QString &folder)
    {
        if (!QDir::setCurrent(folder))
            qFatal("cannot go to %s", qUtf8Printable(folder));
    }
    WorkingFolder(const WorkingFolder &) = delete;
    WorkingFolder &operator=(const WorkingFolder &) = delete;
    ~WorkingFolder() { QDir::setCurrent(m_previous); }

private:
    QString m_previous = QDir::currentPath();
};

} // namespace Test
