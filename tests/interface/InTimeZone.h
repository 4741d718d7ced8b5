// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <ctime>

// Local time is that of another place, such as "Europe/Berlin", for as long as this lives.
class InTimeZone {
public:
    explicit InTimeZone(const char* zone)
        : m_before(qgetenv("TZ")) {
        qputenv("TZ", zone);
        ::tzset();
    }

    InTimeZone(const InTimeZone&) = delete;
    InTimeZone& operator=(const InTimeZone&) = delete;

    ~InTimeZone() {
        qputenv("TZ", m_before);
        ::tzset();
    }

private:
    QByteArray m_before;
};
