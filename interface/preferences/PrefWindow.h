// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/files/UserDefaults.h"

#include <QTabWidget>

#include <functional>

// The preferences window. While nothing is archived by schedule it is folded: the part about that is left out below.
class PrefWindow : public QWidget {
    Q_OBJECT
public:
    // The settings must outlive the window.
    explicit PrefWindow(UserDefaults& defaults);

    QTabWidget& prefTabView() const { return *m_prefTabView; }

    // Selects the tab of that name, if there is one.
    void selectTab(const QString& identifier);
    // Once, when all tabs are there: takes the height that shows everything, and from then on the state of the setting.
    // `bottomViewToResizeTo` is what the folded window leaves out; its upper edge is then the window's lower one.
    void awakeFromNib(QWidget& bottomViewToResizeTo, NotificationCenter& notifications);
    // Folds or unfolds, as the setting says; the upper edge stays. To be called when the setting has changed: called
    // twice, it moves the window.
    void autoresizeWindow();
    // Calls `reload` first.
    void makeKeyAndOrderFront(const std::function<void()>& reload);

    int bigHeight() const { return m_bigHeight; }

private:
    // From the window's lower edge to the upper edge of what is left out.
    int heightToFold() const;

    UserDefaults& m_defaults;
    QTabWidget* m_prefTabView;
    QWidget* m_bottomViewToResizeTo = nullptr;
    int m_bigHeight = 0;
    bool m_isUnfolded = false;
    Subscription m_defaultsChanges;
};
