// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace {

// Options of the toolkit, each with a value. Session managers restart programs with "-session".
const QStringList kToolkitOptions{QStringLiteral("-session"), QStringLiteral("-platform"),
                                  QStringLiteral("-style"), QStringLiteral("-display"),
                                  QStringLiteral("-name")};

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
    for (int i = 0; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        if (kToolkitOptions.contains(argument))
            ++i;
        else
            arguments << argument;
    }
    parser.process(arguments);
    const QStringList files = parser.positionalArguments();
    return {files.isEmpty() ? std::nullopt : std::optional(QFileInfo(files.first()).absoluteFilePath())};
}
