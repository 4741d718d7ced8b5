// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

// The address at which the first Ticklog of a user and display listens for later starts.
class InstanceAddress {
public:
    // `folder` is the user's run-time folder; if it is empty, the socket is an abstract one. `display` tells
    // the user's displays apart.
    InstanceAddress(const QString& folder, const QString& display);
    // For this user and display, from the environment.
    static InstanceAddress ofThisSession();
    // Empty without a display.
    static QString nameOfDisplay();

    // The socket's name; an abstract one begins with a null character.
    const QByteArray& name() const { return m_name; }

    // The file that the listener keeps locked; empty for an abstract socket.
    const QByteArray& lockPath() const { return m_lockPath; }

    // Whether somebody listens. Does not connect, so the listener does not notice.
    bool isServed() const;

private:
    QByteArray m_name;
    QByteArray m_lockPath;
};
