// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

// How the pictures of the history write times, in the user's language and locale. Moments are milliseconds
// since 1970, lengths milliseconds.
namespace PictureTexts {

// "45 s", "53 min", "1 h 12 min", rounded.
QString length(qint64 length);
// "53 minutes"
QString lengthInWords(qint64 length);
// "9:12 AM", "09:12"; with seconds on request.
QString moment(qint64 moment, bool hasSeconds = false);
// "09:12 to 10:05", for the eye and for the ear. With seconds if it would not say much without.
QString fromTo(qint64 from, qint64 to);
// "43%"; below one percent with a digit more.
QString share(qint64 part, qint64 whole);
// "16 Nov", in the locale's order.
QString shortDay(QDate day);
// "16 Nov – 22 Nov 2026", in the locale's order.
QString days(QDate first, QDate last);

} // namespace PictureTexts
