// SPDX-License-Identifier: MIT
#include "interface/shell/StatusMenu.h"

#include "Classes/store/TimeStoreCategory.h"
#include "interface/outline/ProgramCell.h"
#include "interface/shell/ProgramIcons.h"
#include "interface/shell/TwoLineMenuStyle.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QApplication>

namespace {

bool hasSubmenu(const TimeStoreItem& item) {
    const auto children = item.children();
    return children && !children->empty();
}

} // namespace

StatusMenu::StatusMenu(Program program, RunLoop& runLoop)
    : m_program(std::move(program))
    , m_runLoop(runLoop)
    , m_mainMenu(QStringLiteral("Ticklog"))
    , m_applicationTimesMenu(localized("Application Times"))
    , m_startPauseMenuItem(localized("Start"))
    , m_obstacleItem(localized("Why Are Windows Not Counted?")) {
    m_mainMenu.setObjectName(QStringLiteral("statusMenu"));
    m_mainMenu.setAccessibleName(m_mainMenu.title());
    m_applicationTimesMenu.setObjectName(QStringLiteral("applicationTimesMenu"));
    m_applicationTimesMenu.menuAction()->setText(localized("All Timers"));
    m_applicationTimesMenu.setAccessibleName(localized("All Timers"));
    m_startPauseMenuItem.setObjectName(QStringLiteral("startPauseMenuItem"));
    m_obstacleItem.setObjectName(QStringLiteral("obstacleItem"));
    m_mainTitleItem.setObjectName(QStringLiteral("mainTitleItem"));
    QObject::connect(
        &m_startPauseMenuItem, &QAction::triggered, &m_mainMenu, [this] { m_program.toggleStartStop(); },
        Qt::QueuedConnection);
    // The main window shows the reason.
    QObject::connect(
        &m_obstacleItem, &QAction::triggered, &m_mainMenu, [this] { m_program.showTimeWindow(); },
        Qt::QueuedConnection);
    m_todayItem.setObjectName(QStringLiteral("todayItem"));
    // The main window shows more.
    QObject::connect(
        &m_todayItem, &QAction::triggered, &m_mainMenu, [this] { m_program.showTimeWindow(); },
        Qt::QueuedConnection);
    follow(m_mainMenu);
    follow(m_applicationTimesMenu);
}

StatusMenu::~StatusMenu() = default;

void StatusMenu::follow(QMenu& menu) {
    QObject::connect(&menu, &QMenu::aboutToShow, &m_mainMenu, [this, &menu] {
        menuNeedsUpdate(menu);
        menuWillOpen(menu);
    });
    QObject::connect(&menu, &QMenu::aboutToHide, &m_mainMenu, [this, &menu] { menuDidClose(menu); });
}

void StatusMenu::setForm(MenuForm form) {
    if (std::exchange(m_form, form) == form)
        return;
    // Their texts were made for the other form, so they are made anew.
    m_shownProjects.clear();
    empty(m_applicationTimesMenu);
    empty(m_mainMenu);
}

void StatusMenu::showToday(const QString& text) {
    m_todayItem.setText(text);
}

void StatusMenu::offerPauses(QMenu& pauses) {
    m_pauses = &pauses;
    pauses.menuAction()->setEnabled(m_isRunning);
    empty(m_mainMenu);
}

void StatusMenu::showRunning(bool isRunning) {
    m_startPauseMenuItem.setText(isRunning ? localized("Pause") : localized("Start"));
    m_isRunning = isRunning;
    if (m_pauses)
        m_pauses->menuAction()->setEnabled(isRunning);
}

void StatusMenu::menuNeedsUpdate(QMenu& menu) {
    if (m_form == MenuForm::Drawn && !m_style)
        m_style = std::make_unique<TwoLineMenuStyle>();
    if (m_form == MenuForm::Drawn && menu.style() != m_style.get())
        menu.setStyle(m_style.get());
    if (&menu == &m_mainMenu) {
        updateMainMenu();
    } else if (&menu == &m_applicationTimesMenu) {
        fillApplicationTimesMenu();
    } else if (const auto project = m_projectMenus.find(&menu); project != m_projectMenus.end()) {
        const auto node = m_program.nodeOfProject(*project->second);
        fill(menu, sorted(node->children().value_or(TimeStoreItem::Children())));
    } else if (const auto* timer = dynamic_cast<const TimerMenuItem*>(menu.menuAction())) {
        // Only now: there may be thousands of windows, and a desktop that draws the menu is told of each.
        fill(menu, sorted(timer->item()->children().value_or(TimeStoreItem::Children())));
    }
}

void StatusMenu::menuWillOpen(QMenu& menu) {
    // A menu that Ticklog draws opens after the status menu and reports its closing. Desktops do neither
    // reliably.
    if (&menu == &m_mainMenu || (m_form == MenuForm::Exported && !m_displayingAppMenu)) {
        m_displayingAppMenu = true;
        m_menuItemUpdateSet.clear();
    }
    if (m_form == MenuForm::Exported)
        m_longestOpening = m_runLoop.scheduleOnce(kLongestOpening, [this] { menuDidClose(m_mainMenu); });
    addMenuItemsToSet(menu);
    updateMenus();
}

void StatusMenu::menuDidClose(QMenu& menu) {
    if (&menu != &m_mainMenu)
        return;
    m_displayingAppMenu = false;
    m_longestOpening.reset();
}

void StatusMenu::updateMenus() {
    if (!m_displayingAppMenu)
        return;
    for (TimerMenuItem* item : m_menuItemUpdateSet) {
        item->resetDisplayName(m_form);
        showIcon(*item);
    }
    showTitle(kAllObjects);
}

bool StatusMenu::isUpToDate() const {
    const ProjectList::Projects projects = m_program.projects.projects();
    return !m_mainMenu.isEmpty() && m_shownTrouble == m_trouble &&
           m_mainMenu.actions().contains(&m_obstacleItem) == m_hasObstacle &&
           m_mainMenu.actions().contains(&m_todayItem) == !m_todayItem.text().isEmpty() &&
           std::ranges::equal(m_shownProjects, projects, [](const ProjectEntry& shown, const auto& project) {
               return shown.project == project && shown.label == project->label();
           });
}

void StatusMenu::updateMainMenu() {
    // A desktop that draws the menu is told of every entry that is added or removed.
    if (isUpToDate())
        return;
    empty(m_mainMenu);
    addTrouble();
    if (!m_todayItem.text().isEmpty())
        m_mainMenu.addActions({&m_todayItem, m_mainMenu.addSeparator()});
    if (m_hasObstacle)
        m_mainMenu.addActions({&m_obstacleItem, m_mainMenu.addSeparator()});
    m_mainMenu.addAction(&m_startPauseMenuItem);
    if (m_pauses)
        m_mainMenu.addAction(m_pauses->menuAction());
    addCommand(localized("Show Time Window"), m_program.showTimeWindow);
    m_mainMenu.addSeparator();
    m_mainMenu.addAction(m_applicationTimesMenu.menuAction());
    addProjects();
    m_mainMenu.addSeparator();
    addCommand(localized("Preferences..."), m_program.showPrefWindow);
    addCommand(localized("About..."), m_program.showAboutBox);
    addCommand(localized("Quit"), m_program.terminate);
}

QAction* StatusMenu::addCommand(const QString& title, const std::function<void()>& command) {
    auto* item = new QAction(title, &m_mainMenu);
    // Queued: the desktop waits for this call to return, and the command may ask a question.
    QObject::connect(item, &QAction::triggered, &m_mainMenu, command, Qt::QueuedConnection);
    m_mainMenu.addAction(item);
    return item;
}

// The main window shows the same.
void StatusMenu::addTrouble() {
    m_shownTrouble = m_trouble;
    for (const QString& line : m_trouble.split(u'\n', Qt::SkipEmptyParts))
        addCommand(menuName(m_form, line), m_program.showTimeWindow)
            ->setObjectName(QStringLiteral("troubleItem"));
    if (!m_trouble.isEmpty())
        m_mainMenu.addSeparator();
}

void StatusMenu::addProjects() {
    for (const ProjectList::Project& project : m_program.projects.projects()) {
        m_shownProjects.push_back({project, project->label()});
        auto* menu = new QMenu(QStringLiteral("  ") + menuName(m_form, project->label()), &m_mainMenu);
        m_projectMenus.emplace(menu, project);
        follow(*menu);
        m_mainMenu.addMenu(menu);
    }
}

void StatusMenu::fillApplicationTimesMenu() {
    if (!fill(m_applicationTimesMenu, m_program.applicationObjects()))
        return;
    m_applicationTimesMenu.addSeparator();
    m_applicationTimesMenu.addAction(&m_mainTitleItem);
    showTitle(kAllObjects);
}

// Answers whether the menu was rebuilt. A menu that already has these timers is kept: its entries update
// their names and times themselves.
bool StatusMenu::fill(QMenu& menu, const TimeStoreItem::Children& items) {
    std::vector<const TimerMenuItem*> shown;
    for (const QAction* action : menu.actions())
        if (const auto* timer = dynamic_cast<const TimerMenuItem*>(action))
            shown.push_back(timer);
    const auto isSame = [](const TimerMenuItem* entry, const auto& wanted) {
        return entry->item() == wanted && bool(entry->menu()) == hasSubmenu(*wanted);
    };
    if (!menu.isEmpty() && std::ranges::equal(shown, items, isSame))
        return false;
    empty(menu);
    addItemsFromArray(items, menu);
    return true;
}

TimeStoreItem::Children StatusMenu::sorted(const TimeStoreItem::Children& items) const {
    std::vector<const TimeStoreItem*> unsorted;
    for (const auto& item : items)
        unsorted.push_back(item.get());
    TimeStoreItem::Children sorted;
    for (const int place : m_order.sortedPlaces(unsorted))
        sorted.push_back(items[std::size_t(place)]);
    return sorted;
}

void StatusMenu::addItemsFromArray(const TimeStoreItem::Children& items, QMenu& menu) {
    for (const auto& item : items) {
        auto* entry = new TimerMenuItem(item, &menu);
        entry->resetDisplayName(m_form);
        if (hasSubmenu(*item)) {
            auto* submenu = new QMenu(&menu);
            entry->setMenu(submenu);
            follow(*submenu);
        }
        menu.addAction(entry);
    }
}

void StatusMenu::addMenuItemsToSet(const QMenu& menu) {
    for (QAction* action : menu.actions()) {
        if (auto* timer = dynamic_cast<TimerMenuItem*>(action))
            m_menuItemUpdateSet.insert(timer);
        if (const QMenu* submenu = action->menu())
            addMenuItemsToSet(*submenu);
    }
}

void StatusMenu::empty(QMenu& menu) {
    for (QAction* action : menu.actions()) {
        if (auto* timer = dynamic_cast<TimerMenuItem*>(action))
            m_menuItemUpdateSet.erase(timer);
        menu.removeAction(action);
        if (action == &m_startPauseMenuItem || action == &m_obstacleItem || action == &m_mainTitleItem ||
            action == &m_todayItem || action == m_applicationTimesMenu.menuAction() ||
            (m_pauses && action == m_pauses->menuAction()))
            continue;
        if (auto* submenu = action->menu()) {
            empty(*submenu);
            m_projectMenus.erase(submenu);
            // The action of a project's submenu is deleted with the submenu.
            if (action == submenu->menuAction() && !dynamic_cast<TimerMenuItem*>(action))
                action = nullptr;
            delete submenu;
        }
        delete action;
    }
    if (&menu == &m_mainMenu)
        m_shownProjects.clear();
}

// An icon that is still being looked for is shown at a later tick.
void StatusMenu::showIcon(TimerMenuItem& entry) {
    const bool hasIcon = !entry.icon().isNull();
    if (!m_icons && hasIcon)
        entry.setIcon({});
    if (!m_icons || hasIcon || !entry.item()->isApp())
        return;
    const QPixmap icon =
        m_icons->icon(programOf(*entry.item()), TKTableLabelCell::kIconSize, qApp->devicePixelRatio());
    if (!icon.isNull())
        entry.setIcon(QIcon(icon));
}

void StatusMenu::showTitle(int kind) {
    const QString title = m_program.totalTime(kind);
    m_mainTitleItem.setText(menuText(m_form, title.section(u'\n', 0, 0), title.section(u'\n', 1)));
}
