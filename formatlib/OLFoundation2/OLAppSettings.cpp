#include "OLAppSettings.h"

#include "IOLLogConfig.h"
#include "OLText.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <map>
#include <set>
#include <system_error>
#include <utility>

namespace Orlimo {

namespace {

constexpr std::chrono::seconds longestWaitForLock { 5 };
constexpr int mostValuesAside = 9;

QString NonEmpty(const QString &name, const char *otherwise)
{
    return name.isEmpty() ? QString::fromLatin1(otherwise) : name;
}

// The one spelling of a key that QSettings knows: without empty parts between its slashes.
std::string NormalKey(const std::string &key)
{
    std::string normal;
    for (const char c : key) {
        const bool emptyPart = c == '/' && (normal.empty() || normal.back() == '/');
        if (!emptyPart)
            normal += c;
    }
    if (normal.ends_with('/'))
        normal.pop_back();
    return normal;
}

// QSettings would write the replacement character for each byte that is no UTF-8.
bool IsUtf8(const QString &path)
{
    QFile file(path);
    return !file.exists()
            || (file.open(QIODevice::ReadOnly) && QUtf8StringView(file.readAll()).isValidUtf8());
}

// QSettings tells so of a file that it has not seen before, and once it has parsed all of it.
bool IsDamaged(const QSettings &settings)
{
    settings.allKeys();
    return settings.status() == QSettings::FormatError || !IsUtf8(settings.fileName());
}

bool HaveSameContent(const QString &path, const QString &other)
{
    QFile file(path);
    QFile otherFile(other);
    return file.open(QIODevice::ReadOnly) && otherFile.open(QIODevice::ReadOnly)
            && file.size() == otherFile.size() && file.readAll() == otherFile.readAll();
}

// Beside the file, under a name that is free or belongs to a file of the same content.
QString NameForDamagedFile(const QString &path)
{
    QString name = path + QStringLiteral(".unreadable");
    for (int i = 2; QFileInfo::exists(name) && !HaveSameContent(name, path); ++i)
        name = path + QStringLiteral(".unreadable-%1").arg(i);
    return name;
}

bool IsText(const QVariant &value)
{
    if (value.typeId() != QMetaType::QByteArray)
        return value.typeId() == QMetaType::QString;
    const QByteArray bytes = value.toByteArray();
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

// A key that is free, or that holds the value already. Where no key is free any more, the last
// takes the newest value.
QString KeyAside(const QSettings &settings, const QString &key, const QVariant &value)
{
    const auto isTaken = [&](const QString &aside) {
        return settings.contains(aside) && settings.value(aside) != value;
    };
    const QString first = QStringLiteral("unreadable/") + key;
    QString aside = first;
    for (int i = 2; i <= mostValuesAside && isTaken(aside); ++i)
        aside = first + u'_' + QString::number(i);
    return aside;
}

// What is stored under the key and is no text, which no version of ours writes, is kept under
// another before a text takes its place.
void KeepOtherThanText(QSettings &settings, const QString &key)
{
    const QVariant stored = settings.value(key);
    if (stored.isValid() && !IsText(stored))
        settings.setValue(KeyAside(settings, key, stored), stored);
}

QString StagingPrefix(const QString &path)
{
    const QFileInfo info(path);
    return info.path() + QStringLiteral("/.") + info.fileName() + QStringLiteral("-saving-");
}

// Whoever holds the lock is the only one who saves the file; what others have begun was killed.
void RemoveAbandonedStaging(const QString &path)
{
    const QFileInfo prefix(StagingPrefix(path));
    const auto folders = prefix.dir().entryInfoList(QDir::Dirs | QDir::Hidden
                                                    | QDir::NoDotAndDotDot);
    for (const QFileInfo &folder : folders) {
        if (folder.fileName().startsWith(prefix.fileName()))
            QDir(folder.filePath()).removeRecursively();
    }
}

bool CopyIfThere(const QString &path, const QString &copy)
{
    const QFileInfo info(path);
    return !info.exists() || (QFile::copy(path, copy) && QFileInfo(copy).size() == info.size());
}

// How many lines QSettings writes: one for each key and each section, and an empty one between two
// sections. Keys without a section share one, and a slash before them is lost.
qsizetype LineCount(const QSettings &settings)
{
    std::map<QString, std::set<QString>> sections;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        const qsizetype slash = key.indexOf(u'/');
        sections[key.first(std::max<qsizetype>(slash, 0))].insert(key.sliced(slash + 1));
    }
    std::size_t lines = 2 * sections.size() - 1;
    for (const auto &[section, names] : sections)
        lines += names.size();
    return static_cast<qsizetype>(lines);
}

// QSettings takes a file for written that a full disk has cut: at its end, or within if there was
// room again. It writes line by line, so the break of a line that was cut is missing.
bool IsComplete(const QString &path, qsizetype lines)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll().count('\n') >= lines;
}

// QSettings keeps what it parsed of a file, and takes a file of the same size and time for the
// same: two saves within one tick of the clock must not look alike.
void MakeNewer(const QString &path, const QString &than)
{
    const QDateTime before = QFileInfo(than).lastModified();
    QFile file(path);
    if (QFileInfo(path).lastModified() <= before && file.open(QIODevice::ReadWrite))
        file.setFileTime(before.addMSecs(1), QFileDevice::FileModificationTime);
}

// The system's messages come in the encoding of the system, which on Windows is no UTF-8, and may
// end with a line break there.
std::string MessageOf(const std::error_code &error)
{
    return QString::fromLocal8Bit(error.message()).trimmed().toStdString();
}

std::string ReplaceFile(const QString &target, const QString &replacement)
{
    MakeNewer(replacement, target);
    std::error_code error;
    std::filesystem::rename(QFileInfo(replacement).filesystemFilePath(),
                            QFileInfo(target).filesystemFilePath(), error);
    return error ? MessageOf(error) : std::string();
}

} // namespace

OLAppSettings::OLAppSettings()
    : m_organization(NonEmpty(QCoreApplication::organizationName(), "Orlimo"))
    , m_application(NonEmpty(QCoreApplication::applicationName(), "OLMediaFormatPopup"))
{
}

void OLAppSettings::SetValue(std::string value, std::string key)
{
    key = NormalKey(key);
    if (!key.empty())
        m_unsaved.insert_or_assign(std::move(key), std::move(value));
}

std::string OLAppSettings::Value(std::string key) const
{
    key = NormalKey(key);
    if (const auto unsaved = m_unsaved.find(key); unsaved != m_unsaved.end())
        return unsaved->second;
    if (key.empty())
        return {};
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, m_organization, m_application);
    settings.setFallbacksEnabled(false);
    const QVariant stored = settings.value(ToQString(key));
    return IsText(stored) ? stored.toString().toStdString() : std::string();
}

void OLAppSettings::Save()
{
    if (m_unsaved.empty())
        return;
    const QSettings settings(QSettings::IniFormat, QSettings::UserScope, m_organization,
                             m_application);
    const std::string failure = Write(settings.fileName());
    if (failure.empty())
        m_unsaved.clear();
    else
        IOLLogConfig::Printf("Failed save settings %s: %s", qUtf8Printable(settings.fileName()),
                             failure.c_str());
}

// Writes a copy beside the file, under the lock that every QSettings object takes to write the
// file. The copy has paths of its own because QSettings objects share what they know of one path:
// one that failed to write would pass its values on to the next.
std::string OLAppSettings::Write(const QString &path) const
{
    const QString folder = QFileInfo(path).path();
    if (!QDir().mkpath(folder))
        return "the folder cannot be made";
    QLockFile lock(path + QStringLiteral(".lock"));
    if (!lock.tryLock(longestWaitForLock)) {
        return lock.error() == QLockFile::LockFailedError ? "another program is writing it"
                                                          : "the folder cannot be written to";
    }
    const QFileInfo info(path);
    if (info.exists() && !info.isWritable())
        return "the file is read-only";
    const QString existing = info.canonicalFilePath(); // empty where there is none
    const QString target = existing.isEmpty() ? path : existing;
    RemoveAbandonedStaging(target);
    const QTemporaryDir staging(StagingPrefix(target) + QStringLiteral("XXXXXX"));
    if (!staging.isValid())
        return staging.errorString().toStdString();
    const QString copy = staging.filePath(QStringLiteral("copy.ini"));
    const QString written = staging.filePath(QStringLiteral("written.ini"));
    if (!CopyIfThere(target, copy))
        return "the present file cannot be copied";
    // While it lives, the object that writes does not parse the file again, and its status tells of
    // the writing alone.
    const QSettings present(copy, QSettings::IniFormat);
    if (IsDamaged(present)) {
        if (const std::string failure = KeepDamagedFile(target); !failure.empty())
            return failure;
    }
    if (!WriteValues(copy, written))
        return "it cannot be written whole";
    return ReplaceFile(target, written);
}

// QSettings drops what it does not understand of a file, so the whole of it is kept aside.
std::string OLAppSettings::KeepDamagedFile(const QString &path)
{
    const QString name = NameForDamagedFile(path);
    if (QFileInfo::exists(name))
        return {};
    if (!QFile::copy(path, name))
        return "the present file is damaged, and cannot be kept aside";
    IOLLogConfig::Printf("Settings %s are damaged, kept in %s", qUtf8Printable(path),
                         qUtf8Printable(name));
    return {};
}

// Sets the unsaved values in the file copy, which becomes written if all of it could be written.
bool OLAppSettings::WriteValues(const QString &copy, const QString &written) const
{
    QSettings settings(copy, QSettings::IniFormat);
    for (const auto &[key, value] : m_unsaved) {
        KeepOtherThanText(settings, ToQString(key));
        settings.setValue(ToQString(key), ToQString(value));
    }
    settings.sync();
    return settings.status() == QSettings::NoError && QFile::rename(copy, written)
            && IsComplete(written, LineCount(settings));
}

} // namespace Orlimo
