#include "OLFormatCheck.h"
#include "OLFormatPack.h"
#include "OLOutput.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int fine = 0;
constexpr int warned = 1;
constexpr int failed = 2;

const QString strict = u"strict"_s;
const QString help = u"help"_s;

int Check(const QCommandLineParser &parser)
{
    int status = fine;
    const auto findings = Orlimo::CheckFormat(parser.positionalArguments().at(1));
    for (const Orlimo::OLFinding &finding : findings) {
        Orlimo::Print(stdout, finding.ToLine() + u'\n');
        if (finding.isFault)
            status = failed;
        else if (status == fine && parser.isSet(strict))
            status = warned;
    }
    return status;
}

int Pack(const QCommandLineParser &parser)
{
    const QStringList arguments = parser.positionalArguments();
    const QString fault = Orlimo::PackArtwork(arguments.at(1), arguments.at(2));
    if (fault.isEmpty())
        return fine;
    Orlimo::Print(stderr, u"olformat: %1\n"_s.arg(fault));
    return failed;
}

struct Command
{
    QString name;
    QString arguments;
    int argumentCount;
    QString summary;
    QString description;
    QList<QCommandLineOption> options;
    int (*run)(const QCommandLineParser &parser);
};

QList<Command> Commands()
{
    return {
        { u"check"_s,
          u"FILE"_s,
          1,
          u"checks a format description and the artwork file beside it"_s,
          u"Reads the format description FILE and the artwork file beside it, which has\n"
          "the same name with the extension icfg, as the picker reads them. Prints every\n"
          "fault on a line of its own:\n\n"
          "  FILE:LINE:COLUMN: error: /pointer: what is wrong or was expected\n\n"
          "The pointer is that of RFC 6901; a column is one character. What concerns the\n"
          "artwork file is printed with its name and without a line.\n\n"
          "A description without faults is searched for what its maker will hardly have\n"
          "meant, which is printed as a warning: empty names, a name that two categories,\n"
          "two formats of a category or two presets of a format share, tables that no\n"
          "preset uses, face ids without an image, and sizes that the picker draws and\n"
          "the artwork file lacks. A missing artwork file is a warning too.\n\n"
          "The exit status is 0 where there are no faults, 1 where there are warnings\n"
          "only and --strict is given, and 2 where there are faults, where FILE cannot be\n"
          "read or where the command line is wrong."_s,
          { { strict, u"Exits with 1 where there are warnings."_s } },
          Check },
        { u"pack"_s,
          u"FOLDER FILE"_s,
          2,
          u"makes an artwork file of PNG files"_s,
          u"Packs the PNG files in FOLDER and in the folders below it into the artwork\n"
          "file FILE, whose extension is icfg by custom.\n\n"
          "The name of a PNG file begins with its face id, before a minus sign or a\n"
          "point: 1001-mp4.png, 1001.png. A face id may have up to 32 images, each of\n"
          "another size, with sides of up to 1,024 pixels and 2,097,152 pixels together.\n"
          "All images may have 33,554,432 pixels, and FILE 256 MiB.\n\n"
          "The exit status is 0 where FILE was written. Otherwise it is 2, the reason is\n"
          "printed, and a FILE that was there before is left as it was."_s,
          {},
          Pack },
    };
}

QString Overview()
{
    QString text = u"\nChecks and makes the files that the format picker reads.\n\nCommands:\n"_s;
    for (const Command &command : Commands()) {
        const QString usage = command.name + u' ' + command.arguments;
        text += u"  %1  %2\n"_s.arg(usage.leftJustified(16), command.summary);
    }
    return text + u"\n`olformat COMMAND --help` describes a command."_s;
}

QCommandLineOption HelpOption()
{
    return { { u"h"_s, help }, u"Displays this help."_s };
}

int Refuse(const QString &reason, const QCommandLineParser &parser)
{
    Orlimo::Print(stderr, u"olformat: %1\n\n%2"_s.arg(reason, parser.helpText()));
    return failed;
}

int ShowHelp(const QCommandLineParser &parser)
{
    Orlimo::Print(stdout, parser.helpText());
    return fine;
}

int Run(const Command &command, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.addOption(HelpOption());
    parser.addOptions(command.options);
    parser.setApplicationDescription(u'\n' + command.description);
    parser.addPositionalArgument(command.name, command.summary,
                                 command.name + u' ' + command.arguments);
    if (!parser.parse(arguments))
        return Refuse(parser.errorText(), parser);
    if (parser.isSet(help))
        return ShowHelp(parser);
    if (parser.positionalArguments().size() != command.argumentCount + 1)
        return Refuse(u"%1 takes %2"_s.arg(command.name, command.arguments), parser);
    return command.run(parser);
}

// Options of a command follow it, so the first parser sees only those before it.
int Run(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.addOption(HelpOption());
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.setApplicationDescription(Overview());
    parser.addPositionalArgument(u"COMMAND"_s, u"one of the above"_s);
    parser.addPositionalArgument(u"..."_s, u"its options and arguments"_s);
    if (!parser.parse(arguments))
        return Refuse(parser.errorText(), parser);
    if (parser.isSet(help))
        return ShowHelp(parser);
    const QString name = parser.positionalArguments().value(0);
    for (const Command &command : Commands()) {
        if (command.name == name)
            return Run(command, arguments);
    }
    return Refuse(name.isEmpty() ? u"a command is missing"_s
                                 : u"there is no command \"%1\""_s.arg(name),
                  parser);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"olformat"_s);
    return Run(QCoreApplication::arguments());
}
