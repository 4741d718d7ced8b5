// SPDX-License-Identifier: MIT
// The cost of reading and writing a database, compared with another property-list library and a bare write of
// the same bytes.
#include "bench/Stopwatch.h"
#include "bench/WindowRecords.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListWriter.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

void line(const char* what, const Measure& measure, qint64 bytes) {
    std::printf("    %-34s %9.2f %9.2f ms  %7.1f MB/s\n", what, measure.minimum, measure.median,
                double(bytes) / 1e3 / measure.minimum);
}

// A wrong result makes every figure worthless.
void check(bool right, const char* what) {
    if (right)
        return;
    std::fprintf(stderr, "wrong result: %s\n", what);
    std::exit(1);
}

void writeBare(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    check(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(bytes) == bytes.size(),
          "bare write");
}

void writeStreaming(const QString& path, const PropertyListValue& value) {
    QFile file(path);
    check(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered), "open");
    PropertyListXmlWriter writer(
        [&](const char* chunk, std::size_t count) { file.write(chunk, qint64(count)); });
    writer.value(value);
    writer.finish();
}

// The other library makes five runs of its own and prints their minimum and median.
void peer(const QString& path, const char* form) {
    const QString script = QStringLiteral(R"(
import plistlib, sys, time
data = open(sys.argv[1], "rb").read()
def measure(name, work):
    work()
    runs = []
    for _ in range(5):
        start = time.process_time(); work(); runs.append((time.process_time() - start) * 1000)
    runs.sort()
    print("    %-34s %9.2f %9.2f ms" % (name, runs[0], runs[2]))
value = plistlib.loads(data)
measure("plistlib writes %1", lambda: plistlib.dumps(value, fmt=plistlib.FMT_%1, sort_keys=False))
measure("plistlib reads %1", lambda: plistlib.loads(data))
)")
                               .arg(QLatin1String(form));
    QProcess process;
    process.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral("-c"), script, path});
    check(process.waitForFinished(600'000) && process.exitCode() == 0, "plistlib");
    std::printf("%s", process.readAllStandardOutput().constData());
}

void run(int windows, bool withPeer) {
    const QTemporaryDir folder;
    const PropertyListValue value = WindowRecords::database(windows);
    const QByteArray xml = PropertyList::xml(value);
    const QByteArray binary = PropertyList::binary(value);
    check(*PropertyList::read(xml) == value && *PropertyList::read(binary) == value, "round trip");
    std::printf("%d windows: %.1f MB as XML, %.1f MB binary (CPU: minimum, median of five)\n", windows,
                double(xml.size()) / 1e6, double(binary.size()) / 1e6);
    const QString path = folder.filePath(QStringLiteral("a"));
    line("bare write of the bytes", measured(processCpuMs, [&] { writeBare(path, xml); }), xml.size());
    line("write XML to a file", measured(processCpuMs, [&] { writeStreaming(path, value); }), xml.size());
    check(PropertyList::readFile(path) && *PropertyList::readFile(path) == value, "written file");
    line("write XML to nowhere",
         measured(processCpuMs,
                  [&] {
                      PropertyListXmlWriter writer([](const char*, std::size_t) {});
                      writer.value(value);
                      writer.finish();
                  }),
         xml.size());
    line("read XML", measured(processCpuMs, [&] { check(bool(PropertyList::read(xml)), "read"); }),
         xml.size());
    line("write binary", measured(processCpuMs, [&] { PropertyList::binary(value); }), binary.size());
    line("read binary", measured(processCpuMs, [&] { check(bool(PropertyList::read(binary)), "read"); }),
         binary.size());
    if (!withPeer)
        return;
    peer(path, "XML");
    check(bool(PropertyList::writeBinaryFile(value, path)), "binary file");
    peer(path, "BINARY");
}

} // namespace

// Sizes may be given as arguments.
int main(int argc, char** argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    std::vector<int> sizes;
    for (int i = 1; i < argc; ++i)
        sizes.push_back(std::atoi(argv[i]));
    if (sizes.empty())
        sizes = {1'000, 20'000, 100'000, 400'000};
    for (const int windows : sizes)
        run(windows, windows <= 100'000);
}
