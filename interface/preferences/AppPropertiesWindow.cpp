// SPDX-License-Identifier: MIT
#include "interface/preferences/AppPropertiesWindow.h"

#include "interface/preferences/RulesTab.h"
#include "interface/preferences/TKSetupController.h"
#include "interface/preferences/TokenField.h"
#include "interface/shell/Named.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int kAirAboveButtons = 10;
constexpr int kWidth = 420;

} // namespace

AppPropertiesWindow::AppPropertiesWindow(TKSetupController& setupController, QWidget* prefWindow)
    : QDialog(prefWindow, Qt::Sheet)
    , m_setupController(setupController)
    , m_ruleAppName(named(new QLineEdit, QStringLiteral("ruleAppName")))
    , m_ruleBlockFromList(
          named(new QCheckBox(localized("&Block from the list")), QStringLiteral("ruleBlockFromList")))
    , m_ruleRenameCheckbox(named(new QCheckBox(localized("&Rename")), QStringLiteral("ruleRenameCheckbox")))
    , m_ruleRenameName(named(new QLineEdit, QStringLiteral("ruleRenameName")))
    , m_ruleCategories(named(new TokenField, QStringLiteral("ruleCategories")))
    , m_ruleRowForEachTitle(
          named(new QCheckBox(localized("A row for each &title")), QStringLiteral("ruleRowForEachTitle")))
    , m_ruleRenameLabel(named(new PlainLabel(localized("&New name:")), QStringLiteral("ruleRenameLabel")))
    , m_ruleCategoriesLabel(
          named(new PlainLabel(localized("&Categories:")), QStringLiteral("ruleCategoriesLabel"))) {
    setObjectName(QStringLiteral("ruleWindow"));
    setWindowTitle(localized("Rule"));
    setAccessibleName(windowTitle());
    setWindowModality(Qt::WindowModal);
    m_ruleRenameLabel->setBuddy(m_ruleRenameName);
    m_ruleCategoriesLabel->setBuddy(m_ruleCategories);
    // The field is only a frame; screen readers read its editor.
    m_ruleCategories->setAccessibleName(localized("Categories"));
    m_ruleCategories->editor().setAccessibleName(localized("Categories"));
    m_ruleCategories->editor().setAccessibleDescription(
        localized("Press comma or Enter to add; press Delete to remove."));
    auto* form = new QFormLayout;
    form->addRow(localized("&Application:"), m_ruleAppName);
    form->addRow(QString(), m_ruleBlockFromList);
    form->addRow(QString(), m_ruleRenameCheckbox);
    form->addRow(m_ruleRenameLabel, m_ruleRenameName);
    form->addRow(m_ruleCategoriesLabel, m_ruleCategories);
    RulesTab::explainRowsForTitles(*m_ruleRowForEachTitle);
    form->addRow(QString(), m_ruleRowForEachTitle);
    auto* buttons = named(new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel),
                          QStringLiteral("ruleButtons"));
    named(buttons->button(QDialogButtonBox::Save), QStringLiteral("saveRule"));
    named(buttons->button(QDialogButtonBox::Cancel), QStringLiteral("cancelEditingRule"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { m_setupController.saveRule(); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { m_setupController.cancelEditingRule(); });
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(form);
    rows->addStretch(1);
    rows->addSpacing(kAirAboveButtons);
    rows->addWidget(buttons);
    setMinimumWidth(kWidth);
    connectControls();
}

void AppPropertiesWindow::connectControls() {
    connect(m_ruleBlockFromList, &QCheckBox::toggled, this,
            [this] { m_setupController.blockBox(*m_ruleBlockFromList); });
    connect(m_ruleRenameCheckbox, &QCheckBox::toggled, this,
            [this] { m_setupController.renameBox(*m_ruleRenameCheckbox); });
    connect(this, &QDialog::finished, this, [this](int code) { m_setupController.didEndRuleSheet(code); });
}

bool AppPropertiesWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        m_setupController.loadAppPropertiesSheet();
    return QDialog::event(event);
}
