// SPDX-License-Identifier: MIT
#include "interface/history/PictureTexts.h"

#include "platform/foundation/text/DurationText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 kSecond = 1000;
constexpr qint64 kMinute = 60 * kSecond;
// Of a shorter one the minutes alone say too little.
constexpr qint64 kShort = 2 * kMinute;

QString number(qint64 value) {
    return QLocale().toString(qlonglong(value));
}

QString filled(QString text, const QString& first, const QString& second = {}) {
    return text.replace(QLatin1String("%1"), first).replace(QLatin1String("%2"), second);
}

// How the locale orders the parts of a date.
struct DayFormats {
    QString number;
    // With the month.
    QString day;
    // With the month and the year.
    QString full;
    // With the year but without the month, where the month comes first.
    QString numberAndYear{};
    bool isMonthFirst = false;
    bool isYearFirst = false;
};

DayFormats formats() {
    static const QRegularExpression words(QStringLiteral("'[^']*'"));
    const QString format = QLocale().dateFormat(QLocale::LongFormat).remove(words);
    if (format.contains(u'日'))
        return {.number = QStringLiteral("d日"),
                .day = QStringLiteral("M月d日"),
                .full = QStringLiteral("yyyy年M月d日"),
                .isMonthFirst = true,
                .isYearFirst = true};
    if (format.lastIndexOf(u'd') < format.indexOf(u'M')) {
        // "16. Nov", where days are written as ordinals.
        const QString number =
            format.contains(QStringLiteral("d.")) ? QStringLiteral("d.") : QStringLiteral("d");
        return {.number = number,
                .day = number + QStringLiteral(" MMM"),
                .full = number + QStringLiteral(" MMM yyyy")};
    }
    return {.number = QStringLiteral("d"),
            .day = QStringLiteral("MMM d"),
            .full = QStringLiteral("MMM d, yyyy"),
            .numberAndYear = QStringLiteral("d, yyyy"),
            .isMonthFirst = true};
}

} // namespace

namespace PictureTexts {

QString length(qint64 length) {
    const qint64 seconds = (length + kSecond / 2) / kSecond;
    if (seconds < 60)
        return filled(localized("%1 s"), number(seconds));
    const qint64 minutes = (length + kMinute / 2) / kMinute;
    if (minutes < 60)
        return filled(localized("%1 min"), number(minutes));
    return minutes % 60 == 0 ? filled(localized("%1 h"), number(minutes / 60))
                             : filled(localized("%1 h %2 min"), number(minutes / 60), number(minutes % 60));
}

QString lengthInWords(qint64 length) {
    return durationInWords(double(length) / double(kSecond), false);
}

QString moment(qint64 moment, bool hasSeconds) {
    const QTime time = QDateTime::fromMSecsSinceEpoch(moment).time();
    const QLocale locale;
    if (!hasSeconds)
        return locale.toString(time, QLocale::ShortFormat);
    QString format = locale.timeFormat(QLocale::ShortFormat);
    const qsizetype minutes = format.lastIndexOf(QLatin1String("mm"));
    if (minutes >= 0 && !format.contains(u's'))
        format.insert(minutes + 2, QStringLiteral(":ss"));
    return locale.toString(time, format);
}

QString fromTo(qint64 from, qint64 to) {
    const bool isShort = to - from < kShort;
    return filled(localized("%1 to %2"), moment(from, isShort), moment(to, isShort));
}

QString share(qint64 part, qint64 whole) {
    const double percent = whole > 0 ? 100.0 * double(part) / double(whole) : 0;
    const QString figure = QLocale().toString(percent, 'f', percent > 0 && percent < 0.95 ? 1 : 0);
    return filled(localized("%1%"), figure);
}

QString shortDay(QDate day) {
    return QLocale().toString(day, formats().day);
}

QString days(QDate first, QDate last) {
    const QLocale locale;
    const DayFormats used = formats();
    const bool isSameYear = first.year() == last.year();
    const bool isSameMonth = isSameYear && first.month() == last.month();
    // What both have in common is written once: where the larger unit comes first, with the first day.
    QString from = used.full;
    QString to = used.full;
    if (isSameYear)
        (used.isYearFirst ? to : from) = used.day;
    if (isSameMonth)
        (used.isMonthFirst ? to : from) = used.number;
    if (isSameMonth && used.isMonthFirst && !used.isYearFirst)
        to = used.numberAndYear;
    return locale.toString(first, from) + QStringLiteral(" – ") + locale.toString(last, to);
}

} // namespace PictureTexts
