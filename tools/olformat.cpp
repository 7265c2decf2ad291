#include "OLFormatPack.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"olformat"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Makes the files that the format picker reads.\n\n"
            "olformat pack FOLDER FILE.icfg\n"
            "    packs the PNG files below FOLDER, named <face id>-<anything>.png, into FILE.icfg"_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"command"_s, u"pack"_s);
    parser.addPositionalArgument(u"arguments"_s, u"see above"_s, u"..."_s);
    parser.process(application);

    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 3 || arguments.first() != "pack"_L1) {
        std::fputs(qPrintable(parser.helpText()), stderr);
        return 2;
    }
    const QString fault = Orlimo::PackArtwork(arguments.at(1), arguments.at(2));
    if (fault.isEmpty())
        return 0;
    std::fprintf(stderr, "olformat: %s\n", qPrintable(fault));
    return 2;
}
