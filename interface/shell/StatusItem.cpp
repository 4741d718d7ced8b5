// SPDX-License-Identifier: MIT
#include "interface/shell/StatusItem.h"

#include "interface/shell/Images.h"

namespace {

// The usual sizes in panels. A tray on the bus gets only pictures that were drawn in advance.
constexpr int kSizes[] = {16, 22, 24, 32, 44, 48, 64};

void addPixmaps(QIcon& icon, const QString& name, QIcon::Mode mode) {
    const QIcon image = Images::named(name);
    for (const int size : kSizes)
        icon.addPixmap(image.pixmap(QSize(size, size), 1.0), mode);
}

} // namespace

StatusItem::StatusItem(QMenu& menu, std::function<void()> clicked) {
    m_icon.setObjectName(QStringLiteral("statusBarItem"));
    m_icon.setContextMenu(&menu);
    QObject::connect(&m_icon, &QSystemTrayIcon::activated, &m_icon,
                     [clicked = std::move(clicked)](QSystemTrayIcon::ActivationReason reason) {
                         if (reason == QSystemTrayIcon::Trigger)
                             clicked();
                     });
}

void StatusItem::setImages(const QString& image, const QString& alternateImage) {
    if (m_image == image && m_alternateImage == alternateImage)
        return;
    m_image = image;
    m_alternateImage = alternateImage;
    QIcon icon;
    addPixmaps(icon, image, QIcon::Normal);
    addPixmaps(icon, alternateImage, QIcon::Selected);
    m_icon.setIcon(icon);
    // Shown only now: before it had no picture.
    m_icon.show();
}
