// SPDX-License-Identifier: MIT
// What a save costs that no crash can undo, beside a plain synced write of the same bytes.
#include "Classes/StoreFile.h"
#include "bench/Stopwatch.h"
#include "bench/WindowRecords.h"
#include "platform/foundation/PropertyList.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

class Silence : public SystemLog {
public:
    void log(const QString& line) override { std::fprintf(stderr, "%s\n", qPrintable(line)); }
    void print(const QString&) override {}
};

// A wrong result makes every figure worthless.
void check(bool right, const char* what) {
    if (right)
        return;
    std::fprintf(stderr, "wrong result: %s\n", what);
    std::exit(1);
}

template<class Work>
double line(const char* what, Work&& work) {
    const Measure wall = measured(wallMs, work);
    const Measure cpu = measured(processCpuMs, work);
    std::printf("    %-28s %9.1f %9.1f   %9.1f %9.1f ms\n", what, wall.minimum, wall.median, cpu.minimum,
                cpu.median);
    return wall.median;
}

void run(int windows) {
    const QTemporaryDir folder(QStringLiteral("store-bench-XXXXXX"));
    Silence log;
    StoreFile store(log);
    const PropertyListValue value = WindowRecords::database(windows);
    const QByteArray bytes = PropertyList::xml(value);
    const QString plain = folder.filePath(QStringLiteral("plain"));
    const QString path = folder.filePath(QStringLiteral("store"));
    std::printf("%d windows, %.1f MB     wall: minimum, median; CPU: minimum, median of five\n", windows,
                double(bytes.size()) / 1e6);
    const double bare = line("plain write, synced", [&] {
        QFile file(plain);
        check(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(bytes) == bytes.size() &&
                  ::fsync(file.handle()) == 0,
              "plain write");
    });
    const double safe = line("save of the store", [&] {
        check(bool(store.write(path, [&](PropertyListSink& sink) { sink.value(value); })), "save");
    });
    line("read of the store", [&] { check(bool(store.read(path)), "read"); });
    check(*store.read(path) == value, "what was saved");
    std::printf("    a save takes %.2f times the plain write\n", safe / bare);
}

} // namespace

// Sizes may be given as arguments. The files lie in the working folder, which ought to be on a real disk.
int main(int argc, char** argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    std::vector<int> sizes;
    for (int i = 1; i < argc; ++i)
        sizes.push_back(std::atoi(argv[i]));
    if (sizes.empty())
        sizes = {1'000, 20'000, 100'000};
    for (const int windows : sizes)
        run(windows);
}
