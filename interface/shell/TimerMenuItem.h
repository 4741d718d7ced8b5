// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

#include <QAction>

// How a menu is shown.
enum class MenuForm {
    // Ticklog draws it, with two lines for an entry.
    Drawn,
    // The desktop gets its texts and draws it in its own way.
    Exported,
};

// A name as the text of an entry: `&` and `_` in it are shown as they are.
QString menuName(MenuForm form, const QString& name);
// The same with a time.
QString menuText(MenuForm form, const QString& name, const QString& time);

// A menu entry that shows a timer. Keeps the timer alive.
class TimerMenuItem : public QAction {
public:
    TimerMenuItem(std::shared_ptr<TimeStoreItem> item, QObject* parent);

    const std::shared_ptr<TimeStoreItem>& item() const { return m_item; }

    // Shows the timer's name and time, if they have changed.
    void resetDisplayName(MenuForm form);

    // How many characters at the end of the text belong to the original name.
    qsizetype dimmedLength() const;

private:
    // What the text was made of.
    struct Shown {
        double second;
        QString name;
        QString renamedName;

        bool operator==(const Shown&) const = default;
    };

    std::shared_ptr<TimeStoreItem> m_item;
    // Absent until there is a text.
    std::optional<Shown> m_shown;
};
