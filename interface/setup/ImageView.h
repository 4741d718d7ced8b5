// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

// Shows one of the program's pictures at its own size. Leaves clicks to its parent.
class ImageView : public QWidget {
    Q_OBJECT
public:
    explicit ImageView(QWidget* parent);

    // The picture's name, as for Images. The view gets the picture's intended size.
    void setImage(const QString& name);
    const QString& image() const { return m_image; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_image;
};
