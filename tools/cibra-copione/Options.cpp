#include "Options.h"

#include "platform/text/Dates.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

void describe(QCommandLineParser &parser)
{
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions(
        {{QStringLiteral("folder"), QStringLiteral("program folder of this run"), QStringLiteral("DIR")},
         {QStringLiteral("screen"), QStringLiteral("offscreen or current"), QStringLiteral("SCREEN")},
         {QStringLiteral("today"), QStringLiteral("the day that the program sees"), QStringLiteral("dd/mm/yyyy")},
         {QStringLiteral("timeout"), QStringLiteral("seconds for a handler at work"), QStringLiteral("S")}});
}

bool isOffscreen(const QString &screen, bool hasDisplay)
{
    if (screen.isEmpty())
        return !hasDisplay;
    if (screen != QStringLiteral("offscreen") && screen != QStringLiteral("current"))
        throw UsageError{QStringLiteral("--screen is offscreen or current")};
    return screen == QStringLiteral("offscreen");
}

} // namespace

Options readOptions(const QStringList &arguments, bool hasDisplay)
{
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments))
        throw UsageError{parser.errorText()};

    Options options;
    options.folder = parser.value(QStringLiteral("folder"));
    if (!QFileInfo(options.folder).isDir())
        throw UsageError{QStringLiteral("--folder needs a folder that is there")};
    options.offscreen = isOffscreen(parser.value(QStringLiteral("screen")), hasDisplay);
    if (parser.isSet(QStringLiteral("today"))) {
        options.today = dayFromText(parser.value(QStringLiteral("today")));
        if (!options.today.isValid())
            throw UsageError{QStringLiteral("--today needs a day: dd/mm/yyyy")};
    }
    if (parser.isSet(QStringLiteral("timeout"))) {
        bool isNumber = false;
        options.timeout = parser.value(QStringLiteral("timeout")).toInt(&isNumber);
        if (!isNumber || options.timeout < 1)
            throw UsageError{QStringLiteral("--timeout needs a number of seconds")};
    }
    if (parser.positionalArguments().size() > 1)
        throw UsageError{QStringLiteral("one script at most")};
    options.script = parser.positionalArguments().value(0);
    return options;
}

QString usage()
{
    return QStringLiteral("cibra-copione --folder DIR [--screen offscreen|current] [--today dd/mm/yyyy] "
                          "[--timeout S] [SCRIPT]");
}
