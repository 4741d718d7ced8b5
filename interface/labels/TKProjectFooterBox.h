// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

// The box below an outline. It always has the outline's background.
class TKProjectFooterBox : public QFrame {
    Q_OBJECT
public:
    // `ovView` is the outline; it must outlive the box or belong to the same window.
    explicit TKProjectFooterBox(QWidget& ovView);

    QColor fillColor() const;

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void windowRefreshColor();

    QWidget& m_ovView;
};
