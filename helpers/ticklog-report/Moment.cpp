// SPDX-License-Identifier: MIT
#include "helpers/ticklog-report/Moment.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

const QStringList kWeekdays{QStringLiteral("monday"),    QStringLiteral("tuesday"),
                            QStringLiteral("wednesday"), QStringLiteral("thursday"),
                            QStringLiteral("friday"),    QStringLiteral("saturday"),
                            QStringLiteral("sunday")};

QDateTime beginningOf(QDate day, int dayBegins) {
    const QDateTime begin(day, QTime(dayBegins, 0));
    // If the clock is set over this hour, the day begins with the next hour that exists.
    return begin.isValid() ? begin : day.startOfDay();
}

std::optional<QDateTime> beforeNow(const QString& text, const QDateTime& now) {
    static const QRegularExpression form(QStringLiteral("^-(\\d{1,6})([mhdw])$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const qint64 count = match.captured(1).toLongLong();
    switch (match.captured(2).at(0).unicode()) {
    case u'm':
        return now.addSecs(-count * 60);
    case u'h':
        return now.addSecs(-count * 3600);
    case u'd':
        return now.addDays(-count);
    default:
        return now.addDays(-7 * count);
    }
}

} // namespace

QDate dayOf(const QDateTime& moment, int dayBegins) {
    return moment.time().hour() < dayBegins ? moment.date().addDays(-1) : moment.date();
}

std::optional<QDateTime> momentOf(const QString& text, const QDateTime& now, int dayBegins) {
    const QDate today = dayOf(now, dayBegins);
    const QString word = text.toLower();
    if (word == QLatin1String("now"))
        return now;
    if (word == QLatin1String("today"))
        return beginningOf(today, dayBegins);
    if (word == QLatin1String("yesterday"))
        return beginningOf(today.addDays(-1), dayBegins);
    if (const qsizetype weekday = kWeekdays.indexOf(word); weekday >= 0)
        return beginningOf(today.addDays(-((today.dayOfWeek() - 1 - weekday + 7) % 7)), dayBegins);
    if (const auto moment = beforeNow(word, now))
        return moment;
    if (const QDate day = QDate::fromString(text, QStringLiteral("yyyy-MM-dd")); day.isValid())
        return beginningOf(day, dayBegins);
    for (const char* form : {"yyyy-MM-ddTHH:mm", "yyyy-MM-ddTHH:mm:ss"})
        if (const auto moment = QDateTime::fromString(text, QString::fromLatin1(form)); moment.isValid())
            return moment;
    return std::nullopt;
}
