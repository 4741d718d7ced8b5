// SPDX-License-Identifier: MIT
#include "interface/setup/ImageView.h"

#include "interface/shell/Images.h"

#include <QPainter>

ImageView::ImageView(QWidget* parent)
    : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ImageView::setImage(const QString& name) {
    m_image = name;
    resize(Images::size(name));
    update();
}

void ImageView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, Images::stretched(m_image, size(), devicePixelRatioF()));
}
