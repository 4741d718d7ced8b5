// SPDX-License-Identifier: MIT
#include "interface/mainwindow/AppTypeControl.h"

#include "interface/shell/Images.h"
#include "platform/foundation/text/LocalizedStrings.h"

namespace {

// Stores the picture's name as the item's data.
void describe(QAction& item, const QString& image, const QString& title, bool isEnabled) {
    item.setIcon(Images::named(image));
    item.setData(image);
    item.setText(title);
    item.setEnabled(isEnabled);
}

} // namespace

AppTypeControl::AppTypeControl() {
    m_pullDown.setObjectName(QStringLiteral("appTypeMenu"));
    m_dockIconMenuItem.setObjectName(QStringLiteral("dockIconMenuItem"));
    m_menuItemMenuItem.setObjectName(QStringLiteral("menuItemMenuItem"));
    m_pullDown.addActions({&m_dockIconMenuItem, &m_menuItemMenuItem});
    setMenu(&m_pullDown);
    setPopupMode(QToolButton::InstantPopup);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setToolTip(localized("Where Ticklog is found"));
    setAccessibleName(toolTip());
    m_pullDown.setAccessibleName(toolTip());
}

void AppTypeControl::reload(const State& state) {
    if (state.showsDockIcon)
        describe(m_dockIconMenuItem, QStringLiteral("Display-Dock-Hide"), localized("Hide Dock Icon"),
                 state.showsMenuBarItem && state.hasTray);
    else
        describe(m_dockIconMenuItem, QStringLiteral("Display-Dock-Show"), localized("Show Dock Icon"),
                 state.showsMenuBarItem);
    if (state.showsMenuBarItem)
        describe(m_menuItemMenuItem, QStringLiteral("Display-Menubar-Hide"), localized("Hide Menubar Item"),
                 state.showsDockIcon);
    else
        describe(m_menuItemMenuItem, QStringLiteral("Display-Menubar-Show"), localized("Show Menubar Item"),
                 state.showsDockIcon);
    m_image = state.showsDockIcon == state.showsMenuBarItem ? QStringLiteral("Display-Both")
              : state.showsDockIcon                         ? QStringLiteral("Display-Dock")
                                                            : QStringLiteral("Display-Menubar");
    setIcon(Images::named(m_image));
}

void AppTypeControl::showDisplayStateMenu(QWidget* sender, QAction& command) {
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("displayStateMenu"));
    menu->setAccessibleName(toolTip());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(&command);
    menu->popup((sender ? sender : window())->mapToGlobal(QPoint(0, 0)));
}
