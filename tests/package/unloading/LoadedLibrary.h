#pragma once

#include <QByteArray>
#include <QString>

// A library that is loaded at run time, and what the process knows of libraries.
class LoadedLibrary
{
public:
    explicit LoadedLibrary(const QString &path);

    // Of the last call that failed; empty where none did.
    const QByteArray &Error() const { return m_error; }

    // Gives nullptr where the library has no such function.
    void *Resolve(const char *name) const;

    void Unload();

    // Whether the process has a library in a file of this name.
    static bool IsMapped(const char *fileName);

private:
    void *m_handle = nullptr;
    QByteArray m_error;
};
