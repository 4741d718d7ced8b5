// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

// Where the first Ticklog of a user and display listens to those that are started after it.
class InstanceAddress {
public:
    // `folder` is the user's run-time folder; empty when there is none, then the name is one of the kernel's own.
    // `display` tells the user's displays apart.
    InstanceAddress(const QString& folder, const QString& display);
    // For this user and display, by the environment.
    static InstanceAddress ofThisSession();
    // Empty when there is none.
    static QString nameOfDisplay();

    // The socket's name; one of the kernel's own begins with a null character.
    const QByteArray& name() const { return m_name; }

    // What whoever listens holds locked; empty for a name of the kernel's own.
    const QByteArray& lockPath() const { return m_lockPath; }

    // Whether somebody listens. Looks without calling there, so that nobody notices.
    bool isServed() const;

private:
    QByteArray m_name;
    QByteArray m_lockPath;
};
