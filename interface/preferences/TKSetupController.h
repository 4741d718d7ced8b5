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

// Keeps the preferences window: its controls and the settings are equal at all times, and the rules are edited in a sheet.
// Made when the window is wanted for the first time.
class TKSetupController {
public:
    // No control for the login without a `loginItem`, and nothing to forget without a `history`. The rest must outlive this.
    TKSetupController(TKController& tkController, Platform& platform, Alerts& alerts,
                      const std::optional<LoginItem>& loginItem = {}, History* history = nullptr);
    TKSetupController(const TKSetupController&) = delete;
    TKSetupController& operator=(const TKSetupController&) = delete;

    // Brings the window to the front, at the general settings.
    void showPrefWindow();
    // The same, at the rules.
    void editRules();
    // Before the window is shown: the weekdays, the login item and the rules as they are now.
    void prefWindowReload();

    // Open the sheet. The boxes keep what they last showed for a new rule.
    void addRule();
    // Nothing without a selected row.
    void editRule();
    // std::out_of_range without a selected row.
    void duplicateRule();
    // Reloads the table; removes nothing.
    void removeRule();
    // Removes the selected rule, after a question.
    void deleteRule();

    void saveRule();
    void cancelEditingRule();
    // Opens the window in which is chosen what the history is to forget. Nothing where there is none.
    void forgetHistory();

    // Shows a record in the sheet. Whether the rule blocks decides whether the box for it is enabled, not whether it is
    // checked.
    void loadRuleWithDict(const PropertyListDictionary& record);
    // Keep in step what depends on the boxes.
    void blockBox(const QCheckBox& box);
    void renameBox(const QCheckBox& box);
    void loadAppPropertiesSheet();
    // 1 to save.
    void didEndRuleSheet(int returnCode);

    PrefWindow& prefWindow() { return m_prefWindow; }

    AppPropertiesWindow& ruleWindow() { return m_ruleWindow; }

    RulesTab& rulesTab() { return *m_rulesTab; }

    TitlesTab& titlesTab() { return *m_titlesTab; }

    ArchiveTab& archiveTab() { return *m_archiveTab; }

    // Null until it has been opened.
    ForgetWindow* forgetWindow() { return m_forgetWindow.get(); }

private:
    void placeOverMainWindow();
    void addTabs(const std::optional<LoginItem>& loginItem);
    void connectRules();
    ArchiveTab::Actions archiveActions();
    TitlesTab::Services titleServices();
    void holdOverPast(const PastTitles& past, const PropertyListArray& rules);
    HistoryTab::Actions historyActions();
    bool mayKeepFor(std::int64_t days);
    void forget(const HistoryChange::Forgotten& what);
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
    // The rule that is being edited; absent for a new one.
    std::optional<QString> m_originalEditName;
    // As they were last shown.
    std::int64_t m_shownWeekdays = -1;
    bool m_isStoringWeekdays = false;
    Subscription m_locations;
};
