// Loads the picker's library and a plugin that uses it, and takes the steps in their order. Prints
// what they see, and before the first, behind the loading and behind the unloading whether the
// library is mapped and whether its resources are registered.
//
// unloadinghost PLUGIN DESCRIPTION start|wait|count|popup|translate|text|unload...

#include "LoadedLibrary.h"

#include <QApplication>
#include <QFile>
#include <QTranslator>
#include <QWidget>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

void Say(const char *line)
{
    std::puts(line);
    std::fflush(stdout);
}

const char *Resources()
{
    const bool icons = QFile::exists(u":/OLMediaFormatPopup/search.png"_s);
    const bool catalogues = QFile::exists(u":/OLMediaFormatPopup/OLLanguage/日本語_format.qm"_s);
    if (icons != catalogues)
        return "with some resources";
    return icons ? "with resources" : "without resources";
}

void SayState(const char *step)
{
    const bool isMapped = LoadedLibrary::IsMapped(ORLIMO_LIBRARY_NAME);
    std::printf("%s: %s, %s\n", step, isMapped ? "mapped" : "not mapped", Resources());
    std::fflush(stdout);
}

// The end of the process is told on the output instead of in a core file.
void TellHowItEnds()
{
    std::set_terminate([] {
        Say("terminate");
        std::abort();
    });
    std::signal(SIGABRT, [](int) {
        Say("abort");
        std::_Exit(3);
    });
}

template<class Function>
Function *Resolve(const LoadedLibrary &plugin, const char *name)
{
    void *const function = plugin.Resolve(name);
    if (!function) {
        Say(name);
        std::_Exit(4);
    }
    return reinterpret_cast<Function *>(function);
}

void EndWithErrorOf(const LoadedLibrary &library)
{
    if (library.Error().isEmpty())
        return;
    Say(library.Error().constData());
    std::_Exit(5);
}

void ShowPopup(const LoadedLibrary &plugin)
{
    Resolve<void()>(plugin, "ShowPopup")();
    QCoreApplication::processEvents();
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            Say("popup visible");
    }
}

void SayTranslation()
{
    Say(qUtf8Printable(QCoreApplication::translate("RPObject", "Web Video")));
}

// With a catalogue that is read where it lies, in the library.
void Translate()
{
    QTranslator translator;
    if (!translator.load(u":/OLMediaFormatPopup/OLLanguage/Deutsch_format.qm"_s))
        Say("no catalogue");
    QCoreApplication::installTranslator(&translator);
    SayTranslation();
}

void Unload(LoadedLibrary &library)
{
    library.Unload();
    EndWithErrorOf(library);
}

void UnloadBoth(LoadedLibrary &plugin, LoadedLibrary &library)
{
    Unload(plugin);
    Unload(library);
    SayState("unloaded");
    QCoreApplication::processEvents();
}

void Take(const QString &step, LoadedLibrary &library, LoadedLibrary &plugin,
          const QString &description)
{
    if (step == "start"_L1)
        Resolve<void(const char *)>(plugin, "StartLoading")(qUtf8Printable(description));
    else if (step == "wait"_L1)
        Resolve<void()>(plugin, "WaitForLoading")();
    else if (step == "count"_L1)
        std::printf("categories: %d\n", Resolve<int()>(plugin, "CategoryCount")());
    else if (step == "popup"_L1)
        ShowPopup(plugin);
    else if (step == "translate"_L1)
        Translate();
    else if (step == "text"_L1)
        SayTranslation();
    else if (step == "unload"_L1)
        UnloadBoth(plugin, library);
}

int Play(const QString &pluginFile, const QString &description, const QStringList &steps)
{
    SayState("before");
    LoadedLibrary library(QString::fromUtf8(ORLIMO_LIBRARY_FILE));
    EndWithErrorOf(library);
    SayState("loaded");
    LoadedLibrary plugin(pluginFile);
    EndWithErrorOf(plugin);
    for (const QString &step : steps)
        Take(step, library, plugin, description);
    return 0;
}

// Only the popup needs more than the application object of QtCore.
std::unique_ptr<QCoreApplication> MakeApplication(int &argc, char **argv)
{
    for (int i = 0; i < argc; ++i) {
        if (qstrcmp(argv[i], "popup") == 0)
            return std::make_unique<QApplication>(argc, argv);
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    TellHowItEnds();
    const std::unique_ptr<QCoreApplication> application = MakeApplication(argc, argv);
    // Not those of main, which on Windows are in the code page of the user.
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3)
        return 2;
    return Play(arguments[1], arguments[2], arguments.mid(3));
}
