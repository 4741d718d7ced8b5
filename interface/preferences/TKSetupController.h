// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/rules/Ruleset.h"
#include "interface/preferences/AppPropertiesWindow.h"
#include "interface/preferences/ArchiveTab.h"
#include "interface/preferences/ForgetWindow.h"
#include "interface/preferences/GeneralTab.h"
#include "interface/preferences/HistoryTab.h"
#include "interface/preferences/PrefWindow.h"
#include "interface/preferences/RulesTab.h"
#include "interface/preferences/RulesTable.h"
#include "interface/preferences/SettingsBinding.h"
#include "interface/preferences/TitlesTab.h"

class Alerts;
class History;
class TKController;
struct Platform;

// The controller of the preferences window: keeps its controls and the settings equal, and edits the rules in
// a sheet. Made when the window is first opened.
class TKSetupController {
public:
    // Without a `loginItem` there is no control for the login; without a `history` nothing can be forgotten.
    // The other arguments must outlive this object.
    TKSetupController(TKController& tkController, Platform& platform, Alerts& alerts,
                      const std::optional<LoginItem>& loginItem = {}, History* history = nullptr);
    TKSetupController(const TKSetupController&) = delete;
    TKSetupController& operator=(const TKSetupController&) = delete;

    // Brings the window to the front and shows the general settings.
    void showPrefWindow();
    // The same, but shows the rules.
    void editRules();
    void showTitles();
    // Call it before the window is shown: updates the weekdays, the login item and the rules.
    void prefWindowReload();

    // Opens the sheet. The boxes for a new rule keep what they showed last.
    void addRule();
    // Does nothing if no row is selected.
    void editRule();
    // Throws std::out_of_range if no row is selected.
    void duplicateRule();
    // Reloads the table, and leaves every rule where it is: deleteRule() removes one.
    void removeRule();
    // Removes the selected rule after asking the user.
    void deleteRule();

    void saveRule();
    void cancelEditingRule();
    // Opens the window in which the user chooses what the history is to forget. Does nothing without a
    // history.
    void forgetHistory();

    // Shows a rule in the sheet. "Block" in the record enables the box but does not check it.
    void loadRuleWithDict(const PropertyListDictionary& record);
    // Update what depends on the boxes.
    void blockBox(const QCheckBox& box);
    void renameBox(const QCheckBox& box);
    void loadAppPropertiesSheet();
    // `returnCode` is 1 to save.
    void didEndRuleSheet(int returnCode);

    PrefWindow& prefWindow() { return m_prefWindow; }

    AppPropertiesWindow& ruleWindow() { return m_ruleWindow; }

    RulesTab& rulesTab() { return *m_rulesTab; }

    TitlesTab& titlesTab() { return *m_titlesTab; }

    ArchiveTab& archiveTab() { return *m_archiveTab; }

    // Null until it is first opened.
    ForgetWindow* forgetWindow() { return m_forgetWindow.get(); }

private:
    void placeOverMainWindow();
    void addTabs(const std::optional<LoginItem>& loginItem);
    void connectRules();
    void showIcons();
    ArchiveTab::Actions archiveActions();
    TitlesTab::Services titleServices();
    void holdOverPast(const PastTitles& past, const PropertyListArray& rules);
    HistoryTab::Actions historyActions();
    bool mayKeepFor(std::int64_t days);
    void forget(const HistoryChange::Forgotten& what, std::function<void(bool)> told);
    void openSheet();
    void reloadTable();
    void showWeekdays();
    void showDatabaseLocation();
    void settingsChanged();

    TKController& m_tkController;
    Platform& m_platform;
    UserDefaults& m_defaults;
    History* m_history;
    Alerts& m_alerts;
    Ruleset m_ruleset;
    RulesTable m_rules;
    SettingsBinding m_settings;
    PrefWindow m_prefWindow;
    AppPropertiesWindow m_ruleWindow;
    GeneralTab* m_generalTab = nullptr;
    RulesTab* m_rulesTab = nullptr;
    TitlesTab* m_titlesTab = nullptr;
    HistoryTab* m_historyTab = nullptr;
    ArchiveTab* m_archiveTab = nullptr;
    std::unique_ptr<ForgetWindow> m_forgetWindow;
    // The name of the rule that is being edited; absent for a new one.
    std::optional<QString> m_originalEditName;
    // The values as last shown.
    std::int64_t m_shownWeekdays = -1;
    bool m_isStoringWeekdays = false;
    Subscription m_locations;
};
