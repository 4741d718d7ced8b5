// SPDX-License-Identifier: MIT
#pragma once

#include "interface/shell/PlainText.h"

#include <QSystemTrayIcon>

#include <functional>

// The icon in the tray. The secondary button opens its menu.
class StatusItem {
public:
    // `menu` outlives the icon. `clicked` is called when the main button is clicked.
    StatusItem(QMenu& menu, std::function<void()> clicked);
    StatusItem(const StatusItem&) = delete;
    StatusItem& operator=(const StatusItem&) = delete;

    // Names of pictures. The alternate one is shown while the icon is pressed, on desktops that do so.
    void setImages(const QString& image, const QString& alternateImage);
    const QString& image() const { return m_image; }
    const QString& alternateImage() const { return m_alternateImage; }
    // Without tags, because some trays draw it as markup.
    void setTip(const QString& text) { m_icon.setToolTip(PlainText::withoutTags(text)); }
    QString tip() const { return m_icon.toolTip(); }

    const QSystemTrayIcon& icon() const { return m_icon; }

private:
    QString m_image;
    QString m_alternateImage;
    QSystemTrayIcon m_icon;
};
