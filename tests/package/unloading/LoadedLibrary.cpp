#include "LoadedLibrary.h"

#include <QFile>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#ifdef Q_OS_WIN

LoadedLibrary::LoadedLibrary(const QString &path)
    : m_handle(LoadLibraryW(reinterpret_cast<const wchar_t *>(path.utf16())))
{
    if (!m_handle)
        m_error = "LoadLibrary: " + QByteArray::number(static_cast<uint>(GetLastError()));
}

void *LoadedLibrary::Resolve(const char *name) const
{
    return reinterpret_cast<void *>(GetProcAddress(static_cast<HMODULE>(m_handle), name));
}

void LoadedLibrary::Unload()
{
    if (!FreeLibrary(static_cast<HMODULE>(m_handle)))
        m_error = "FreeLibrary: " + QByteArray::number(static_cast<uint>(GetLastError()));
}

bool LoadedLibrary::IsMapped(const char *fileName)
{
    return GetModuleHandleA(fileName) != nullptr;
}

#else

LoadedLibrary::LoadedLibrary(const QString &path)
    : m_handle(dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_LOCAL))
{
    if (!m_handle)
        m_error = dlerror();
}

void *LoadedLibrary::Resolve(const char *name) const
{
    return dlsym(m_handle, name);
}

void LoadedLibrary::Unload()
{
    if (dlclose(m_handle) != 0)
        m_error = dlerror();
}

bool LoadedLibrary::IsMapped(const char *fileName)
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(QByteArray("/") + fileName);
}

#endif
