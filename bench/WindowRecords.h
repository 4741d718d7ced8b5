// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QStringList>

#include <random>

// A database as after long use: windows under applications, of which the first few have most. Titles have 20
// to 80 characters, 50 on average; one in eight has letters beyond ASCII. The same at every run.
namespace WindowRecords {

inline QString title(std::mt19937& engine, int number) {
    static const QStringList kWords = {
        QStringLiteral("Report"),   QStringLiteral("Inbox"),    QStringLiteral("invoice"),
        QStringLiteral("main.cpp"), QStringLiteral("Budget"),   QStringLiteral("draft"),
        QStringLiteral("Entwürfe"), QStringLiteral("meeting"),  QStringLiteral("R&D"),
        QStringLiteral("Q3/2026"),  QStringLiteral("- Editor"), QStringLiteral("notes"),
        QStringLiteral("README"),   QStringLiteral("(2)"),      QStringLiteral("travel"),
        QStringLiteral("photos")};
    QString text = QString::number(number);
    const auto length = qsizetype(20 + engine() % 61);
    while (text.size() < length)
        text += QChar(u' ') + kWords.at(qsizetype(engine() % unsigned(kWords.size())));
    return text.left(length);
}

inline PropertyListValue record(std::mt19937& engine, int number) {
    QByteArray identity(8, '\0');
    for (char& byte : identity)
        byte = char(engine());
    return PropertyListDictionary{
        {QStringLiteral("Name"), title(engine, number)},
        {QStringLiteral("ActiveTime"), double(engine() % 10'000'000) / 1000},
        {QStringLiteral("UUID"), identity},
        {QStringLiteral("Branched"), engine() % 50 == 0},
    };
}

// A whole database with `windows` window records.
inline PropertyListValue database(int windows) {
    std::mt19937 engine(20261120);
    PropertyListArray applications;
    int number = 0;
    while (number < windows) {
        PropertyListArray records;
        for (int i = std::max(1, (windows - number) / 8); i > 0 && number < windows; --i)
            records.push_back(record(engine, number++));
        applications.push_back(PropertyListDictionary{{QStringLiteral("App"), record(engine, number)},
                                                      {QStringLiteral("Windows"), std::move(records)}});
    }
    return PropertyListDictionary{
        {QStringLiteral("Version"), QStringLiteral("1.5")},
        {QStringLiteral("Apps"), std::move(applications)},
        {QStringLiteral("LastResetDate"), Date(std::chrono::seconds(1'795'129'200))}};
}

} // namespace WindowRecords
