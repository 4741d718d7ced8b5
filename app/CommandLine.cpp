// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace {

// Options of the toolkit, which takes them with one dash or two. Session managers restart programs with "-session".
const QStringList kWithValue{QStringLiteral("session"),       QStringLiteral("platform"),
                             QStringLiteral("style"),         QStringLiteral("display"),
                             QStringLiteral("name"),          QStringLiteral("platformpluginpath"),
                             QStringLiteral("platformtheme"), QStringLiteral("plugin"),
                             QStringLiteral("stylesheet"),    QStringLiteral("qwindowgeometry"),
                             QStringLiteral("geometry"),      QStringLiteral("qwindowicon"),
                             QStringLiteral("icon"),          QStringLiteral("qwindowtitle"),
                             QStringLiteral("title"),         QStringLiteral("qmljsdebugger"),
                             QStringLiteral("visual"),        QStringLiteral("fontengine")};
const QStringList kWithoutValue{QStringLiteral("reverse"), QStringLiteral("widgetcount"),
                                QStringLiteral("sync"), QStringLiteral("nograb"), QStringLiteral("dograb")};

// How many arguments an option of the toolkit takes, itself included; 0 for what is none of them.
int argumentsOf(const QString& argument) {
    if (!argument.startsWith(u'-'))
        return 0;
    const QString option = argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
    if (kWithoutValue.contains(option))
        return 1;
    // "--style=fusion" has its value with it.
    return kWithValue.contains(option) ? 2 : int(kWithValue.contains(option.section(u'=', 0, 0)));
}

} // namespace

CommandLine CommandLine::parse(int argc, char** argv) {
    // The parser needs an application for its name. The real one needs a display, which --help must not need.
    int count = 1;
    const QCoreApplication forThisCall(count, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Ticklog keeps an account of the time spent in each application and window."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("A database file (.tkd) to import."),
                                 QStringLiteral("[file]"));
    QStringList arguments;
    for (int i = 0; i < argc;) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        const int taken = argumentsOf(argument);
        if (taken == 0)
            arguments << argument;
        i += std::max(1, taken);
    }
    parser.process(arguments);
    const QStringList files = parser.positionalArguments();
    return {files.isEmpty() ? std::nullopt : std::optional(QFileInfo(files.first()).absoluteFilePath())};
}
