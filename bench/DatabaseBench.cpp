// SPDX-License-Identifier: MIT
// Reading and writing the database, synced, compared with a plain synced write of the same bytes and with
// Python's plistlib.
#include "Classes/engine/Engine.h"
#include "Classes/record/TimeDatabase.h"
#include "bench/SampleAccount.h"
#include "bench/Stopwatch.h"
#include "tests/fakes/FakePlatform.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void writePlainly(const QString& path, const QByteArray& bytes) {
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    for (qsizetype written = 0; written < bytes.size();)
        written += ::write(file, bytes.constData() + written, std::size_t(bytes.size() - written));
    ::fsync(file);
    ::close(file);
}

// Median milliseconds for reading and writing with plistlib, as it measures itself.
QPair<double, double> plistlib(const QString& path) {
    static const QString kScript = QStringLiteral(R"(
import os, plistlib, sys, time
path = sys.argv[1]
reads, writes = [], []
for _ in range(3):
    start = time.perf_counter()
    with open(path, 'rb') as file: value = plistlib.load(file)
    middle = time.perf_counter()
    with open(path + '.py', 'wb') as file:
        plistlib.dump(value, file, sort_keys=False); file.flush(); os.fsync(file.fileno())
    reads.append(middle - start); writes.append(time.perf_counter() - middle)
print(sorted(reads)[1] * 1000, sorted(writes)[1] * 1000)
)");
    QProcess python;
    python.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral("-c"), kScript, path});
    python.waitForFinished(-1);
    const QList<QByteArray> times = python.readAllStandardOutput().trimmed().split(' ');
    return times.size() == 2 ? qMakePair(times[0].toDouble(), times[1].toDouble()) : qMakePair(0.0, 0.0);
}

// An engine and a database, just started.
struct Start {
    explicit Start(FakePlatform& fakes)
        : engine(fakes.platform, {})
        , database(engine.tracker(), engine.services().store, fakes.defaults, fakes.folders, {}) {}

    Engine engine;
    TimeDatabase database;
};

// Measures reading as at a start, into an empty tree.
Measure measuredReading(FakePlatform& fakes) {
    std::vector<std::unique_ptr<Start>> starts;
    for (int i = 0; i < kMeasuredCalls; ++i)
        starts.push_back(std::make_unique<Start>(fakes));
    auto next = starts.begin();
    return measured(wallMs, [&] { (*next++)->database.loadMainStore(); });
}

bool measureSize(int applications, int windows) {
    FakePlatform fakes;
    Engine engine(fakes.platform, {});
    TimeDatabase database(engine.tracker(), engine.services().store, fakes.defaults, fakes.folders, {});
    SampleAccount account(applications, windows);
    engine.tracker().setArrayRepresentation(account.entries());
    const QString path = database.mainStoreURL();
    bool isRight = true;

    const Measure write =
        measured(wallMs, [&] { isRight = bool(database.saveSettingsToDiskAtURL()) && isRight; });
    const QByteArray bytes = bytesOf(path);
    const QString plainPath = fakes.home.filePath(QStringLiteral("plain"));
    const Measure plain = measured(wallMs, [&] { writePlainly(plainPath, bytes); });
    const Measure read = measuredReading(fakes);
    database.loadMainStore();
    isRight = isRight && bool(database.saveSettingsToDiskAtURL()) && bytesOf(path).size() == bytes.size();
    const auto [pythonRead, pythonWrite] = plistlib(path);

    std::printf("%7d windows %6.1f MB | write %7.1f (min %7.1f)  plain %7.1f  ratio %4.1f  plistlib %7.1f | "
                "read %7.1f (min %7.1f)  plistlib %7.1f | %s\n",
                windows, double(bytes.size()) / 1e6, write.median, write.minimum, plain.median,
                write.median / plain.median, pythonWrite, read.median, read.minimum, pythonRead,
                isRight ? "right" : "WRONG");
    std::fflush(stdout);
    return isRight;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    std::puts("milliseconds of wall time, median of five, every write synced");
    bool isRight = true;
    for (const int windows : {1'000, 20'000, 100'000, 400'000})
        isRight = measureSize(windows < 20'000 ? 100 : 500, windows) && isRight;
    return isRight ? 0 : 1;
}
