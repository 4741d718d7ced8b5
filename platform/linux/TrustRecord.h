// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <QByteArrayList>
#include <QStringList>

// The programs that an administrator trusts to look at other programs' windows: a file of full paths, a line each, that
// everybody reads and root alone writes. While it names any, the sessions that begin have their programs offer
// their windows, and a program that is named switches the services for it on by itself.
class TrustRecord {
public:
    // More are no list that anybody keeps an eye on.
    static constexpr qsizetype kMostPrograms = 64;

    static QString usualFolder() { return QStringLiteral("/etc/ticklog"); }

    // `folder` need not be there.
    explicit TrustRecord(const QString& folder);

    // In the order in which they came. Empty when the file cannot be read.
    QStringList programs() const;
    bool names(const QString& program) const { return programs().contains(program); }

    // Each writes the file as a whole or not at all, and never over one that cannot be read. Lines that name no program, or
    // one in bytes that are no text, stay as they are. To add what is named, and to remove what is not, succeeds.
    Outcome add(const QString& program);
    // With the last program the file goes.
    Outcome remove(const QString& program);

private:
    // The lines of the file; empty when there is none.
    Result<QByteArrayList> read() const;
    static QStringList programsIn(const QByteArrayList& lines);
    Outcome write(const QByteArrayList& lines);

    QString m_path;
};
