// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

#include <QAction>

// How a menu reaches the eye.
enum class MenuForm {
    // Drawn by us, with two lines an entry.
    Drawn,
    // Handed as text to the desktop, which draws it as it pleases.
    Exported,
};

// A name as the text of an entry: `&` and `_` in it are seen as they are.
QString menuName(MenuForm form, const QString& name);
// The same with a time.
QString menuText(MenuForm form, const QString& name, const QString& time);

// An entry of a menu that shows a timer. Keeps the timer.
class TimerMenuItem : public QAction {
public:
    TimerMenuItem(std::shared_ptr<TimeStoreItem> item, QObject* parent);

    const std::shared_ptr<TimeStoreItem>& item() const { return m_item; }

    // Shows the timer's name and time. Nothing happens if it shows both already.
    void resetDisplayName(MenuForm form);

    // How many characters at the end of the name are the replaced one's.
    qsizetype dimmedLength() const;

private:
    // What the text is made of.
    struct Shown {
        double second;
        QString name;
        QString renamedName;

        bool operator==(const Shown&) const = default;
    };

    std::shared_ptr<TimeStoreItem> m_item;
    // Absent before there is a text.
    std::optional<Shown> m_shown;
};
