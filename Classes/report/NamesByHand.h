// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QStringList>

class SqliteDatabase;

// What was booked by hand in the year before this day, by name, the latest first. Throws SqliteError.
QStringList namesByHand(SqliteDatabase& history, QDate today);
