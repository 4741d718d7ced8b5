// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

#include <QDBusUnixFileDescriptor>

// Makes logind wait for this process, a few seconds at most, before the machine sleeps or powers off. While
// it is wanted, it is requested again whenever logind comes back. `logind` must outlive it.
class DelayInhibitor {
public:
    // `what` is logind's word for what to delay; `why` is a text for people who list the inhibitors.
    DelayInhibitor(BusService& logind, QString what, QString why, SystemLog& log);

    void take();
    // Releases it at once; an answer that is still under way is dropped.
    void release();

    bool isHeld() const { return m_lock.isValid(); }

private:
    void follow();
    void request();

    BusService& m_logind;
    QString m_what;
    QString m_why;
    SystemLog& m_log;
    bool m_isWanted = false;
    int m_lastRequest = 0;
    // logind keeps the inhibitor for as long as this descriptor is open.
    QDBusUnixFileDescriptor m_lock;
    Subscription m_service;
};
