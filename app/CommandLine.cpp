// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

CommandLine CommandLine::parse(int argc, char** argv) {
    // The parser asks an application for its name. The real one needs a display, which help does not.
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
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    parser.process(arguments);
    const QStringList files = parser.positionalArguments();
    return {files.isEmpty() ? std::nullopt : std::optional(QFileInfo(files.first()).absoluteFilePath())};
}
