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

#include <chrono>
#include <filesystem>
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
bool IsDamaged(const QString &path)
{
    const QSettings settings(path, QSettings::IniFormat);
    settings.allKeys();
    return settings.status() == QSettings::FormatError || !IsUtf8(path);
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
    const QByteArray bytes = value.toByteArray();
    return value.typeId() == QMetaType::QString
            || (value.typeId() == QMetaType::QByteArray
                && QString::fromUtf8(bytes).toUtf8() == bytes);
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

// Whether a file of this size can be written to the folder.
bool HasRoom(const QTemporaryDir &folder, qint64 size)
{
    QFile file(folder.filePath(QStringLiteral("room")));
    const QByteArray filling(static_cast<qsizetype>(size), '\0');
    const bool fits = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
            && file.write(filling) == filling.size();
    file.remove();
    return fits;
}

// QSettings ends every file with a line.
bool IsComplete(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll().endsWith('\n');
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

std::string ReplaceFile(const QString &target, const QString &replacement)
{
    MakeNewer(replacement, target);
    std::error_code error;
    std::filesystem::rename(QFileInfo(replacement).filesystemFilePath(),
                            QFileInfo(target).filesystemFilePath(), error);
    return error ? error.message() : std::string();
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
    if (const std::string failure = KeepDamagedFile(target, copy); !failure.empty())
        return failure;
    // QSettings takes a file for written that a full disk has cut short, so there must be room for
    // it beforehand: a text takes up to four times its length in the file.
    if (!HasRoom(staging, 4 * (QFileInfo(target).size() + UnsavedSize()) + 4096))
        return "there is no room for it";
    if (!WriteValues(copy, written))
        return "it cannot be written whole";
    return ReplaceFile(target, written);
}

// QSettings drops what it does not understand of a file, so the whole of it is kept aside.
std::string OLAppSettings::KeepDamagedFile(const QString &path, const QString &copy)
{
    if (!IsDamaged(copy))
        return {};
    const QString name = NameForDamagedFile(path);
    if (QFileInfo::exists(name))
        return {};
    if (!QFile::copy(path, name))
        return "the present file is damaged, and cannot be kept aside";
    IOLLogConfig::Printf("Settings %s are damaged, kept in %s", qUtf8Printable(path),
                         qUtf8Printable(name));
    return {};
}

qint64 OLAppSettings::UnsavedSize() const
{
    std::size_t size = 0;
    for (const auto &[key, value] : m_unsaved)
        size += key.size() + value.size();
    return static_cast<qint64>(size);
}

// Sets the unsaved values in the file copy, which becomes written if all of it could be written. A
// format error is about the text that was there before, and is no failure.
bool OLAppSettings::WriteValues(const QString &copy, const QString &written) const
{
    QSettings settings(copy, QSettings::IniFormat);
    for (const auto &[key, value] : m_unsaved) {
        KeepOtherThanText(settings, ToQString(key));
        settings.setValue(ToQString(key), ToQString(value));
    }
    settings.sync();
    return settings.status() != QSettings::AccessError && QFile::rename(copy, written)
            && IsComplete(written);
}

} // namespace Orlimo
