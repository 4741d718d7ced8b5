// SPDX-License-Identifier: MIT
// Prints where the time went, from what Ticklog has recorded.
#include "Classes/history/HistorySchema.h"
#include "Classes/report/RecordedNames.h"
#include "Classes/report/ReportFormats.h"
#include "Classes/report/ReportReading.h"
#include "platform/foundation/time/Clock.h"
#include "platform/foundation/time/LocalTime.h"

#include <QFileInfo>

#include <cstdio>

namespace {

constexpr int kUnreadable = 1;
constexpr int kNotUnderstood = 2;
// How long to wait for a program that is writing.
constexpr int kPatienceMs = 5000;

int fail(int status, const QString& text) {
    std::fprintf(stderr, "ticklog-report: %s\n", text.toUtf8().constData());
    return status;
}

int print(const QByteArray& text) {
    const bool isPrinted =
        std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout) == std::size_t(text.size()) &&
        std::fflush(stdout) == 0;
    return isPrinted ? 0 : fail(kUnreadable, QStringLiteral("what was found could not be written"));
}

int reportFrom(const QString& path, const Folders& folders, const QStringList& arguments,
               const QDateTime& now) {
    if (!QFileInfo(path).isFile())
        return fail(kUnreadable, QStringLiteral("there is no history at %1").arg(path));
    const SqliteDatabase::Mode mode = howToRead(path);
    SqliteDatabase history(path, mode, kPatienceMs);
    const HistorySchema::Form form = HistorySchema::formOf(history);
    if (form != HistorySchema::Form::Ours)
        return fail(kUnreadable, form == HistorySchema::Form::Newer
                                     ? QStringLiteral("%1 is of a newer Ticklog").arg(path)
                                     : QStringLiteral("%1 is no history of Ticklog").arg(path));
    const int dayBegins = int(history.number("SELECT value FROM settings WHERE name = 'day begins at'"));
    const auto request = ReportRequest::parse(arguments, now, dayBegins);
    if (!request)
        return fail(kNotUnderstood, request.failure().text);
    // A transaction, so that all answers come from the same state of the file.
    const SqliteTransaction reading(history);
    const RecordedNames names(history, folders);
    if (request->project && *request->project != kNoProject && !names.hasProject(*request->project))
        return fail(kNotUnderstood, QStringLiteral("there is no project “%1”").arg(*request->project));
    Report report(*request, names, dayBegins);
    readInto(report, history, *request, dayBegins);
    // Another program has begun to write meanwhile.
    if (mode == SqliteDatabase::Mode::AtRest && howToRead(path) != mode)
        return reportFrom(path, folders, arguments, now);
    return print(ReportFormats::text(report, request->format, now));
}

QString reasonFor(const SqliteError& error, const QString& path) {
    if (howToRead(path) == SqliteDatabase::Mode::AtRest ||
        QFileInfo(QFileInfo(path).canonicalPath()).isWritable())
        return error.text();
    return QStringLiteral("it has a journal beside it (-wal); copy both to a folder that you may write");
}

} // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromUtf8(argv[i]);
    if (arguments.contains(QStringLiteral("--help")) || arguments.contains(QStringLiteral("-h")))
        return print(ReportRequest::help().toUtf8());
    if (arguments.contains(QStringLiteral("--version")) || arguments.contains(QStringLiteral("-v")))
        return print("ticklog-report " TICKLOG_VERSION "\n");
    const QDateTime now = localTime(SystemClock().now());
    // Parsed once before the history is opened, so that a wrong command line is reported even without one.
    const auto request = ReportRequest::parse(arguments, now, 0);
    if (!request)
        return fail(kNotUnderstood, request.failure().text);
    const Folders folders = Folders::forUser();
    const QString path =
        request->file.value_or(folders.applicationSupport + QStringLiteral("/History.sqlite"));
    try {
        return reportFrom(path, folders, arguments, now);
    } catch (const SqliteError& error) {
        return fail(kUnreadable, QStringLiteral("%1 cannot be read: %2").arg(path, reasonFor(error, path)));
    }
}
