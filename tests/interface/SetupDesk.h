// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/rules/RuleCategories.h"
#include "interface/preferences/TKSetupController.h"
#include "interface/preferences/TokenField.h"
#include "interface/preferences/WeekdaySelector.h"
#include "tests/fakes/Announcements.h"
#include "tests/interface/Desk.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimeEdit>
#include <QToolButton>
#include <QTreeView>

// A person who changes settings.
struct SetupDesk : Desk {
    template<class Control>
    Control& control(const char* name) {
        auto* found = setup.prefWindow().findChild<Control*>(QLatin1String(name));
        return found ? *found : throw std::invalid_argument(name);
    }

    AppPropertiesWindow& sheet() { return setup.ruleWindow(); }

    UserDefaults& defaults() { return fakes.defaults; }

    void press(const char* name) {
        auto& button = control<QAbstractButton>(name);
        if (!button.isEnabled())
            throw std::logic_error(std::string("cannot be pressed: ") + name);
        button.click();
        settle();
    }

    void showRules() {
        setup.editRules();
        settle();
    }

    QTreeView& rules() { return setup.rulesTab().ruleTableView(); }

    // "Mail ⇒ Post, (off) Notes".
    std::string rulesText() {
        QStringList texts;
        for (int row = 0; row < rules().model()->rowCount(); ++row) {
            const QModelIndex active = rules().model()->index(row, 0);
            const bool isOn = active.data(Qt::CheckStateRole).toInt() == Qt::Checked;
            texts << (isOn ? QString() : QStringLiteral("(off) ")) +
                         active.siblingAtColumn(1).data().toString();
        }
        return str(texts.join(QStringLiteral(", ")));
    }

    // Fills in the open sheet and saves.
    void fillIn(const char* name, const char* categories = "") {
        sheet().ruleAppName().setText(QString::fromUtf8(name));
        sheet().ruleCategories().setText(QString::fromUtf8(categories));
        press("saveRule");
    }

    void addRule(const char* name, const char* categories = "") {
        press("addRule");
        fillIn(name, categories);
    }

    PropertyListDictionary ruleset() {
        const auto* stored = defaults().object(kRulesetKey).asDictionary();
        return stored ? *stored : PropertyListDictionary();
    }

    void giveRule(const QString& name, PropertyListDictionary record) {
        PropertyListDictionary changed = ruleset();
        changed.insert(name, std::move(record));
        defaults().setObject(kRulesetKey, std::move(changed));
    }

    std::optional<Date> nextArchive() { return controller.exporting().periodicSave().nextFiring(); }

    bool startsAtLogin = false;
    bool refusesLogin = false;
    TKSetupController setup{
        controller, fakes.platform, alerts,
        LoginItem{.isEnabled = [this] { return startsAtLogin; },
                  .setEnabled = [this](bool isWanted) { startsAtLogin = isWanted && !refusesLogin; }}};
};
