// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

// What Qt complains of while this lives. One at a time.
class Complaints {
public:
    Complaints() {
        texts().clear();
        m_before = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            // The platform that these tests run on does without the window system's hints.
            if (type != QtDebugMsg && type != QtInfoMsg &&
                !text.contains(QLatin1String("This plugin does not")))
                texts() << text;
        });
    }
    Complaints(const Complaints&) = delete;
    Complaints& operator=(const Complaints&) = delete;
    ~Complaints() { qInstallMessageHandler(m_before); }

    // One on a line.
    std::string all() const { return texts().join(u'\n').toStdString(); }

private:
    // The handler knows no object.
    static QStringList& texts() {
        static QStringList texts;
        return texts;
    }

    QtMessageHandler m_before;
};
