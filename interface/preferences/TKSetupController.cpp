// SPDX-License-Identifier: MIT
#include "interface/preferences/TKSetupController.h"

#include "Classes/common/Settings.h"
#include "interface/mainwindow/TKController.h"
#include "interface/preferences/ListsTab.h"
#include "interface/preferences/TokenField.h"
#include "interface/preferences/WeekdaySelector.h"
#include "interface/shell/Alerts.h"
#include "interface/shell/ProgramIcons.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTreeView>

namespace {

// In pixels: what the window has below its pages.
constexpr int kBelowTabs = 36;
constexpr int kIconSize = 16;

} // namespace

TKSetupController::TKSetupController(TKController& tkController, Platform& platform, Alerts& alerts,
                                     const std::optional<LoginItem>& loginItem, History* history)
    : m_tkController(tkController)
    , m_platform(platform)
    , m_defaults(platform.defaults)
    , m_history(history)
    , m_alerts(alerts)
    , m_ruleset(platform.defaults)
    , m_rules(platform.defaults)
    , m_settings(platform.defaults, platform.notifications)
    , m_prefWindow(platform.defaults)
    , m_ruleWindow(*this, &m_prefWindow) {
    addTabs(loginItem);
    connectRules();
    showIcons();
    m_prefWindow.awakeFromNib(m_archiveTab->bottomView(), platform.notifications);
    placeOverMainWindow();
    m_settings.observe([this] { settingsChanged(); });
    m_locations = tkController.database().observe(kPathDirectoryKey,
                                                  [this](const ObservedChange&) { showDatabaseLocation(); });
    showDatabaseLocation();
}

void TKSetupController::showIcons() {
    ProgramIcons* icons = m_tkController.programIcons();
    const ListOptions& options = m_tkController.listOptions();
    if (!icons)
        return;
    m_rules.setIcons([this, icons, &options](const QString& rule) {
        return options.hasIcons() ? icons->icon(rule, kIconSize, m_prefWindow.devicePixelRatioF())
                                  : QPixmap();
    });
    QObject::connect(icons, &ProgramIcons::found, &m_rules, &RulesTable::iconsChanged);
    QObject::connect(&options, &ListOptions::changed, &m_rules, &RulesTable::iconsChanged);
}

void TKSetupController::placeOverMainWindow() {
    const QRect main = m_tkController.window().geometry();
    const QPoint place = main.center() - QPoint(m_prefWindow.width(), m_prefWindow.bigHeight()) / 2;
    const QRect screen = m_tkController.window().screen()->availableGeometry();
    m_prefWindow.move(std::max(place.x(), screen.left()), std::max(place.y(), screen.top()));
}

void TKSetupController::addTabs(const std::optional<LoginItem>& loginItem) {
    QTabWidget& tabs = m_prefWindow.prefTabView();
    m_generalTab = new GeneralTab(m_settings, loginItem);
    m_rulesTab = new RulesTab(m_rules);
    m_settings.bind(m_rulesTab->rowForEachTitle(), kRowForEachTitle);
    m_titlesTab = new TitlesTab(titleServices());
    m_historyTab = new HistoryTab(m_settings, historyActions());
    m_archiveTab = new ArchiveTab(m_settings, archiveActions());
    tabs.addTab(m_generalTab, localized("General"));
    tabs.addTab(new ListsTab(m_settings), localized("Lists"));
    tabs.addTab(m_rulesTab, localized("Rules"));
    tabs.addTab(m_titlesTab, localized("Titles"));
    tabs.addTab(m_historyTab, localized("History"));
    tabs.addTab(m_archiveTab, localized("Archive"));
    // All other pages must fit into the folded window.
    const auto makeRoom = [this] {
        m_archiveTab->makeRoom(m_prefWindow.heightOfPagesWithout(*m_archiveTab) + kBelowTabs);
    };
    makeRoom();
    QObject::connect(&m_prefWindow, &PrefWindow::controlsChanged, m_archiveTab, makeRoom);
}

ArchiveTab::Actions TKSetupController::archiveActions() {
    return {.chooseDatabaseLocation = [this] { m_tkController.documents().chooseDatabaseDirectory(); },
            .restoreDefaultDatabaseLocation =
                [this] { m_tkController.database().restoreDefaultDatabaseLocation(); },
            .revealDatabase = [this] { m_tkController.documents().revealDatabase(); },
            .setPeriodicSaveDirectory = [this] { m_tkController.exporting().setPeriodicSaveDirectory(); },
            .setPeriodicDaysOfWeek =
                [this](const PeriodicSave::Segments& segments) {
                    // The setting has the buttons' bits in reverse order: showing it at once would turn them
                    // round while the user clicks.
                    const QScopedValueRollback storing(m_isStoringWeekdays, true);
                    m_tkController.exporting().setPeriodicDaysOfWeek(segments);
                }};
}

void TKSetupController::connectRules() {
    const auto connect = [this](void (RulesTab::*request)(), void (TKSetupController::*react)()) {
        QObject::connect(m_rulesTab, request, m_rulesTab, [this, react] { (this->*react)(); });
    };
    connect(&RulesTab::addRequested, &TKSetupController::addRule);
    connect(&RulesTab::editRequested, &TKSetupController::editRule);
    connect(&RulesTab::duplicateRequested, &TKSetupController::duplicateRule);
    connect(&RulesTab::deleteRequested, &TKSetupController::deleteRule);
}

void TKSetupController::settingsChanged() {
    if (m_rules.isOutdated())
        reloadTable();
    const std::int64_t weekdays = m_defaults.integerForKey(kPeriodicDaysOfWeek);
    if (std::exchange(m_shownWeekdays, weekdays) != weekdays && !m_isStoringWeekdays)
        showWeekdays();
}

void TKSetupController::showWeekdays() {
    m_archiveTab->periodicDaysOfWeek().setSegments(
        m_tkController.exporting().selectProperPeriodicDaysOfWeek());
}

void TKSetupController::showDatabaseLocation() {
    const TimeDatabase& database = m_tkController.database();
    m_archiveTab->showDatabaseLocation(database.pathDirectory(),
                                       database.pathDirectory() == database.defaultMainStoreURL());
}

void TKSetupController::showPrefWindow() {
    m_prefWindow.selectTab(QStringLiteral("General"));
    m_prefWindow.makeKeyAndOrderFront([this] { prefWindowReload(); });
}

void TKSetupController::editRules() {
    m_prefWindow.selectTab(QStringLiteral("Match"));
    m_prefWindow.makeKeyAndOrderFront([this] { prefWindowReload(); });
}

void TKSetupController::showTitles() {
    m_prefWindow.selectTab(QStringLiteral("Titles"));
    m_prefWindow.makeKeyAndOrderFront([this] { prefWindowReload(); });
}

void TKSetupController::prefWindowReload() {
    showWeekdays();
    m_generalTab->reload();
    m_historyTab->reload();
    reloadTable();
}

void TKSetupController::reloadTable() {
    const int row = m_rulesTab->selectedRow();
    const QString selected = row < 0 ? QString() : m_rules.name(row);
    m_rules.reload();
    if (row >= 0)
        m_rulesTab->select(m_rules.row(selected));
}

void TKSetupController::addRule() {
    m_ruleWindow.ruleAppName().clear();
    m_ruleWindow.ruleRenameName().clear();
    m_ruleWindow.ruleCategories().setText(QString());
    m_ruleWindow.ruleRowForEachTitle().setChecked(false);
    m_originalEditName.reset();
    openSheet();
}

void TKSetupController::editRule() {
    const int row = m_rulesTab->selectedRow();
    if (row < 0)
        return;
    m_originalEditName = m_rules.name(row);
    m_ruleWindow.ruleAppName().setText(*m_originalEditName);
    loadRuleWithDict(m_ruleset.record(*m_originalEditName));
    openSheet();
}

void TKSetupController::duplicateRule() {
    const QString source = m_rules.name(m_rulesTab->selectedRow());
    m_originalEditName.reset();
    m_ruleWindow.ruleAppName().clear();
    loadRuleWithDict(m_ruleset.record(source));
    openSheet();
}

void TKSetupController::removeRule() {
    reloadTable();
}

void TKSetupController::deleteRule() {
    const int row = m_rulesTab->selectedRow();
    if (row < 0)
        return;
    const QString name = m_rules.name(row);
    const int answer = m_alerts.ask({.message = localized("Delete the rule?"),
                                     .informativeText = Ruleset::description(name, m_ruleset.record(name)),
                                     .defaultButton = localized("Keep"),
                                     .alternateButton = localized("Delete"),
                                     .otherButton = {}});
    if (answer != Alerts::Alternate)
        return;
    m_ruleset.remove(name);
    // Selects the next row, for a user who deletes several.
    m_rulesTab->select(std::min(row, m_rules.rowCount() - 1));
}

void TKSetupController::openSheet() {
    m_ruleWindow.ruleAppName().setFocus();
    m_ruleWindow.open();
}

void TKSetupController::saveRule() {
    m_ruleWindow.done(1);
}

void TKSetupController::cancelEditingRule() {
    m_ruleWindow.done(0);
}

void TKSetupController::loadRuleWithDict(const PropertyListDictionary& record) {
    const Rule rule = Rule::fromRecord(record);
    m_ruleWindow.ruleBlockFromList().setEnabled(rule.block);
    m_ruleWindow.ruleRenameCheckbox().setChecked(rule.enableRename);
    m_ruleWindow.ruleRenameName().setEnabled(rule.enableRename);
    m_ruleWindow.ruleRenameName().setText(rule.rename);
    m_ruleWindow.ruleCategories().setText(rule.categories);
    m_ruleWindow.ruleRowForEachTitle().setChecked(rule.rowForEachTitle);
}

void TKSetupController::renameBox(const QCheckBox& box) {
    m_ruleWindow.ruleRenameName().setEnabled(box.isChecked());
}

void TKSetupController::blockBox(const QCheckBox& box) {
    renameBox(m_ruleWindow.ruleRenameCheckbox());
    const bool isBlocked = box.isChecked();
    m_ruleWindow.ruleCategories().setEnabled(!isBlocked);
    m_ruleWindow.ruleRenameLabel().setEnabled(!isBlocked);
    QLabel& label = m_ruleWindow.ruleCategoriesLabel();
    QPalette palette = m_ruleWindow.palette();
    if (isBlocked)
        palette.setColor(QPalette::WindowText, palette.color(QPalette::Disabled, QPalette::WindowText));
    label.setPalette(palette);
}

void TKSetupController::loadAppPropertiesSheet() {
    blockBox(m_ruleWindow.ruleBlockFromList());
}

void TKSetupController::didEndRuleSheet(int returnCode) {
    if (returnCode == 1) {
        const Rule rule{.block = m_ruleWindow.ruleBlockFromList().isChecked(),
                        .enableRename = m_ruleWindow.ruleRenameCheckbox().isChecked(),
                        .rename = m_ruleWindow.ruleRenameName().text(),
                        .categories = m_ruleWindow.ruleCategories().text(),
                        .rowForEachTitle = m_ruleWindow.ruleRowForEachTitle().isChecked()};
        const QString name = m_ruleWindow.ruleAppName().text();
        m_ruleset.save(m_originalEditName, name, rule, [this] { m_tkController.reload(); });
        reloadTable();
        m_rulesTab->select(m_rules.row(name));
        return;
    }
    reloadTable();
}
