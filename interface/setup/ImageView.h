// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

// Shows one of the program's pictures, as large as itself. Takes no clicks: they are its parent's.
class ImageView : public QWidget {
    Q_OBJECT
public:
    explicit ImageView(QWidget* parent);

    // The picture's name, as in Images; it gets the size at which it is meant to be seen.
    void setImage(const QString& name);
    const QString& image() const { return m_image; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_image;
};
