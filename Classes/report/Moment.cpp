// SPDX-License-Identifier: MIT
#include "Classes/report/Moment.h"

#include "platform/foundation/time/LocalTime.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

const QStringList kWeekdays{QStringLiteral("monday"),    QStringLiteral("tuesday"),
                            QStringLiteral("wednesday"), QStringLiteral("thursday"),
                            QStringLiteral("friday"),    QStringLiteral("saturday"),
                            QStringLiteral("sunday")};

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
        return shownAs(now.date().addDays(-count), now.time());
    default:
        return shownAs(now.date().addDays(-7 * count), now.time());
    }
}

} // namespace

QDateTime shownAs(QDate day, QTime time) {
    const QDateTime moment = localTime(localInstant(day, time));
    if (moment.date() == day && moment.time() == time)
        return moment;
    QDateTime set = localTime(localInstant(day, QTime(time.hour(), time.minute())));
    while (set.addSecs(-60).offsetFromUtc() == set.offsetFromUtc())
        set = set.addSecs(-60);
    return set;
}

QDateTime beginningOf(QDate day, int dayBegins) {
    return shownAs(day, QTime(dayBegins, 0));
}

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
    // Apart from each other: together they need not exist.
    const QDate date = QDate::fromString(text.section(u'T', 0, 0), QStringLiteral("yyyy-MM-dd"));
    for (const char* form : {"HH:mm", "HH:mm:ss"})
        if (const QTime time = QTime::fromString(text.section(u'T', 1), QString::fromLatin1(form));
            date.isValid() && time.isValid())
            return shownAs(date, time);
    return std::nullopt;
}
