// Loads the picker's library and a plugin that uses it, plays the scenario, unloads both, and
// prints a line for each step: whether the library is mapped and whether its resources are
// registered.
//
// unloadinghost PLUGIN DESCRIPTION load|unjoined|twice|end|popup|catalogue

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

void SayErrorOf(const LoadedLibrary &library)
{
    if (!library.Error().isEmpty())
        Say(library.Error().constData());
}

void Load(const LoadedLibrary &plugin, const char *description)
{
    Resolve<void(const char *)>(plugin, "StartLoading")(description);
    Resolve<void()>(plugin, "WaitForLoading")();
    std::printf("categories: %d\n", Resolve<int()>(plugin, "CategoryCount")());
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

// With a catalogue that is read where it lies, in the library.
void Translate()
{
    QTranslator translator;
    if (!translator.load(u":/OLMediaFormatPopup/OLLanguage/Deutsch_format.qm"_s))
        Say("no catalogue");
    QCoreApplication::installTranslator(&translator);
    Say(qUtf8Printable(QCoreApplication::translate("RPObject", "Web Video")));
}

int Play(const QString &pluginFile, const char *description, const QString &scenario)
{
    SayState("before");
    LoadedLibrary library(QString::fromUtf8(ORLIMO_LIBRARY_FILE));
    SayErrorOf(library);
    SayState("loaded");
    LoadedLibrary plugin(pluginFile);
    SayErrorOf(plugin);
    if (scenario == "unjoined"_L1 || scenario == "twice"_L1 || scenario == "end"_L1)
        Resolve<void(const char *)>(plugin, "StartLoading")(description);
    else
        Load(plugin, description);
    if (scenario == "twice"_L1)
        Resolve<void(const char *)>(plugin, "StartLoading")(description);
    if (scenario == "end"_L1)
        return 0;
    if (scenario == "popup"_L1)
        ShowPopup(plugin);
    if (scenario == "catalogue"_L1)
        Translate();
    plugin.Unload();
    SayErrorOf(plugin);
    library.Unload();
    SayErrorOf(library);
    SayState("unloaded");
    if (scenario == "catalogue"_L1)
        Say(qUtf8Printable(QCoreApplication::translate("RPObject", "Web Video")));
    QCoreApplication::processEvents();
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4)
        return 2;
    TellHowItEnds();
    const QString scenario = QString::fromLocal8Bit(argv[3]);
    // Only the popup needs more than the application object of QtCore.
    const std::unique_ptr<QCoreApplication> application(scenario == "popup"_L1
                                                                ? new QApplication(argc, argv)
                                                                : new QCoreApplication(argc, argv));
    return Play(QString::fromLocal8Bit(argv[1]), argv[2], scenario);
}
