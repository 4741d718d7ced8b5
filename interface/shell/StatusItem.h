// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/PlainText.h"

#include <QSystemTrayIcon>

#include <functional>

// The icon in the tray. Its menu opens on the secondary button.
class StatusItem {
public:
    // `menu` outlives it. `clicked` is called at a click with the main button.
    StatusItem(QMenu& menu, std::function<void()> clicked);
    StatusItem(const StatusItem&) = delete;
    StatusItem& operator=(const StatusItem&) = delete;

    // By name; the alternate one is shown while the icon is pressed, where the desktop does so.
    void setImages(const QString& image, const QString& alternateImage);
    const QString& image() const { return m_image; }
    const QString& alternateImage() const { return m_alternateImage; }
    // Trays draw it as they like, some of them as markup.
    void setTip(const QString& text) { m_icon.setToolTip(PlainText::withoutTags(text)); }
    QString tip() const { return m_icon.toolTip(); }

    const QSystemTrayIcon& icon() const { return m_icon; }

private:
    QString m_image;
    QString m_alternateImage;
    QSystemTrayIcon m_icon;
};
