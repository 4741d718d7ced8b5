// SPDX-License-Identifier: MIT
#include "platform/foundation/time/DateStyles.h"

#include "platform/foundation/time/LocalTime.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

// Qt has no medium style: locales mean by it the long one with a short month and without the weekday.
QString mediumFormat(const QLocale& locale) {
    static const QRegularExpression weekday(QStringLiteral("[^dMy'0-9]*d{3,4}[^dMy'0-9]*"));
    QString format = locale.dateFormat(QLocale::LongFormat);
    format.remove(weekday);
    return format.replace(QLatin1String("MMMM"), QLatin1String("MMM"));
}

} // namespace

QString shortDate(Date date) {
    return QLocale().toString(localTime(date).date(), QLocale::ShortFormat);
}

QString mediumDateShortTime(Date date) {
    const QLocale locale;
    const QDateTime time = localTime(date);
    return locale.toString(time.date(), mediumFormat(locale)) + u' ' +
           locale.toString(time.time(), QLocale::ShortFormat);
}
