// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Notices.h"
#include "platform/bus/BusService.h"

// The desktop's service for notices (org.freedesktop.Notifications). Shows nothing where that has no buttons: a
// question that cannot be answered only disturbs. All arguments must outlive it.
class FreedesktopNotices : public Notices {
public:
    FreedesktopNotices(Bus& sessionBus, SystemLog& log);
    ~FreedesktopNotices() override;

    void show(const Notice& notice, Answered answered) override;
    void withdraw() override;

private:
    struct Service;

    void sendIfAnswerable(const Notice& notice, const QDBusMessage& abilities);
    void send(const Notice& notice, bool isMarkupRead);
    void sent(const QDBusMessage& reply, int turn);
    void close(quint32 number);
    void answer(const QDBusMessage& signal);
    void settle();

    Bus& m_bus;
    SystemLog& m_log;
    // Null unless a notice is shown or on its way.
    std::unique_ptr<Service> m_service;
    // Empty when nobody waits for an answer.
    Answered m_answered;
    QString m_usualKey;
    // The service's number of the notice; 0 for none.
    quint32 m_number = 0;
    QByteArray m_token;
    // How many notices were shown or withdrawn: answers to earlier ones are out of date.
    int m_turn = 0;
    int m_onTheirWay = 0;
};
