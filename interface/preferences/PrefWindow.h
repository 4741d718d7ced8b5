// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/files/UserDefaults.h"

#include <QTabWidget>

#include <functional>

// The preferences window. While nothing is archived by schedule, it is folded: the lower part, with those
// settings, is hidden.
class PrefWindow : public QWidget {
    Q_OBJECT
public:
    // The settings must outlive the window.
    explicit PrefWindow(UserDefaults& defaults);

    QTabWidget& prefTabView() const { return *m_prefTabView; }

    // Selects the tab with that name, if there is one.
    void selectTab(const QString& identifier);
    // Call it once, when all tabs are there. Makes the window high enough for everything, then folds it as
    // the setting says. `bottomViewToResizeTo` is the part that is hidden when folded; its upper edge is then
    // the lower edge of the window.
    void awakeFromNib(QWidget& bottomViewToResizeTo, NotificationCenter& notifications);
    // Folds or unfolds the window as the setting says; its upper edge stays. Call it only when the setting
    // has changed: a second call changes the height again.
    void autoresizeWindow();
    // Calls `reload` first.
    void makeKeyAndOrderFront(const std::function<void()>& reload);

    int bigHeight() const { return m_bigHeight; }
    // What the highest page needs, when one is not counted.
    int heightOfPagesWithout(const QWidget& one) const;

Q_SIGNALS:
    // A font or a style has given the controls other sizes; the window is about to fit them.
    void controlsChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    void fit();
    void measureAnew();
    // The height of the part that folding hides.
    int heightToFold() const;

    UserDefaults& m_defaults;
    QTabWidget* m_prefTabView;
    QWidget* m_bottomViewToResizeTo = nullptr;
    int m_bigHeight = 0;
    bool m_isUnfolded = false;
    Subscription m_defaultsChanges;
};
