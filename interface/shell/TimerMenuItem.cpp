// SPDX-License-Identifier: MIT
#include "interface/shell/TimerMenuItem.h"

#include "Classes/common/ShownNames.h"
#include "interface/outline/TKAppDisplayFormatter.h"
#include "interface/shell/PlainText.h"

#include <cmath>

namespace {

// Characters. A longer name would make the menu as wide as the screen; desktops would cut it anywhere.
constexpr qsizetype kLongestExportedName = 60;

QString exportedName(QString name) {
    name = PlainText::cut(name, kLongestExportedName);
    // Desktops take a single underscore for a shortcut mark, so it is doubled. Qt turns the first ampersand
    // into such a mark and leaves the others: an extra one at the front keeps those of the name.
    name.replace(u'_', QLatin1String("__"));
    return name.contains(u'&') ? u'&' + name : name;
}

} // namespace

QString menuName(MenuForm form, const QString& name) {
    return form == MenuForm::Exported
               ? exportedName(name)
               : PlainText::cut(name, PlainText::kLongestEntry).replace(u'&', QLatin1String("&&"));
}

QString menuText(MenuForm form, const QString& name, const QString& time) {
    // Desktops that draw the text on one line turn the line break into a space.
    return menuName(form, name) +
           (form == MenuForm::Exported ? QStringLiteral("\u2003\n") : QStringLiteral("\n")) + time;
}

TimerMenuItem::TimerMenuItem(std::shared_ptr<TimeStoreItem> item, QObject* parent)
    : QAction(parent)
    , m_item(std::move(item)) {}

void TimerMenuItem::resetDisplayName(MenuForm form) {
    Shown shown{std::floor(m_item->activeTime()), m_item->name(), m_item->renamedName()};
    if (m_shown == shown)
        return;
    m_shown = std::move(shown);
    const QString whole = TKAppDisplayFormatter::stringForObjectValue(m_item->renamedNameFormatted());
    const QString name = m_item->isApp() && dimmedLength() == 0 ? ShownNames::of(whole) : whole;
    setText(menuText(form, name, m_item->activeTimeString()));
}

qsizetype TimerMenuItem::dimmedLength() const {
    return TKAppDisplayFormatter::dimmedLength(m_item->renamedNameFormatted());
}
