// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QList>

#include <QDir>

// The kernel's figures for a process. Zero for a process that has ended.
struct ProcessFigures {
    double cpuMilliseconds = 0;
    // How often it went to sleep by itself, which is how often it was woken up.
    double wakeUps = 0;
    double proportionalMegabytes = 0;

    static ProcessFigures of(qint64 processIdentifier) {
        const QString folder = QStringLiteral("/proc/%1/").arg(processIdentifier);
        ProcessFigures figures;
        for (const QByteArray& thread : threads(folder)) {
            // "nanoseconds on the processor, nanoseconds waited, time slices": finer than the clock ticks of
            // stat.
            figures.cpuMilliseconds += contents(folder + QStringLiteral("task/") +
                                                QString::fromLatin1(thread) + QStringLiteral("/schedstat"))
                                           .split(' ')
                                           .first()
                                           .toDouble() /
                                       1e6;
            figures.wakeUps += field(contents(folder + QStringLiteral("task/") + QString::fromLatin1(thread) +
                                              QStringLiteral("/status")),
                                     "voluntary_ctxt_switches:");
        }
        figures.proportionalMegabytes =
            field(contents(folder + QStringLiteral("smaps_rollup")), "Pss:") / 1024;
        return figures;
    }

private:
    static QList<QByteArray> threads(const QString& folder) {
        QList<QByteArray> names;
        for (const QString& name :
             QDir(folder + QStringLiteral("task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            names << name.toLatin1();
        return names;
    }

    static QByteArray contents(const QString& path) {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    static double field(const QByteArray& text, const QByteArray& name) {
        for (const QByteArray& line : text.split('\n'))
            if (line.startsWith(name))
                return line.mid(name.size()).simplified().split(' ').first().toDouble();
        return 0;
    }
};
