#include "HostOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace Host {

using namespace Qt::StringLiterals;

HostOptions ReadHostOptions(const QCoreApplication &application)
{
    const QCommandLineOption
            description(u"description"_s,
                        u"Read the formats from FILE and their icons from beside it."_s, u"FILE"_s,
                        QCoreApplication::applicationDirPath() + u"/formats/formats.json"_s);
    const QCommandLineOption settings(u"settings"_s,
                                      u"Keep recent choices and custom presets in FOLDER."_s,
                                      u"FOLDER"_s);
    const QCommandLineOption
            locator(u"locator"_s,
                    u"Tell on standard output where the widgets are whose names come in on "
                    "standard input."_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"A converter's window that has its output format chosen by the format picker."_s);
    parser.addHelpOption();
    parser.addOptions({ description, settings, locator });
    parser.process(application);
    return { parser.value(description), parser.value(settings), parser.isSet(locator) };
}

} // namespace Host
