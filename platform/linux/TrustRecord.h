// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <QByteArrayList>
#include <QStringList>

// The programs that an administrator trusts to see other programs' windows: a file with one full path on each
// line, which everybody can read and only root can write. While it names any program, new sessions make their
// programs offer their windows, and a program that is named turns on the services for it.
class TrustRecord {
public:
    // Nobody could keep an eye on a longer list.
    static constexpr qsizetype kMostPrograms = 64;

    static QString usualFolder() { return QStringLiteral("/etc/ticklog"); }

    // `folder` need not exist.
    explicit TrustRecord(const QString& folder);

    // In the order in which they were added. Empty when the file cannot be read.
    QStringList programs() const;
    bool names(const QString& program) const { return programs().contains(program); }

    // Each writes the whole file or nothing, and never replaces a file that cannot be read. Lines that name
    // no program, or are no valid text, are kept. Adding a program that is there, or removing one that is
    // not, succeeds.
    Outcome add(const QString& program);
    // Removing the last program removes the file.
    Outcome remove(const QString& program);

private:
    // The lines of the file; empty when there is none.
    Result<QByteArrayList> read() const;
    static QStringList programsIn(const QByteArrayList& lines);
    Outcome write(const QByteArrayList& lines);

    QString m_path;
};
