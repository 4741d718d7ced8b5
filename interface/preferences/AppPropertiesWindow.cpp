// SPDX-License-Identifier: MIT
#include "interface/preferences/AppPropertiesWindow.h"

#include "interface/preferences/TKSetupController.h"
#include "interface/preferences/TokenField.h"
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

template<class Control>
Control* called(Control* control, const char* name) {
    control->setObjectName(QLatin1String(name));
    return control;
}

} // namespace

AppPropertiesWindow::AppPropertiesWindow(TKSetupController& setupController, QWidget* prefWindow)
    : QDialog(prefWindow, Qt::Sheet)
    , m_setupController(setupController)
    , m_ruleAppName(called(new QLineEdit, "ruleAppName"))
    , m_ruleBlockFromList(called(new QCheckBox(localized("&Block from the list")), "ruleBlockFromList"))
    , m_ruleRenameCheckbox(called(new QCheckBox(localized("&Rename")), "ruleRenameCheckbox"))
    , m_ruleRenameName(called(new QLineEdit, "ruleRenameName"))
    , m_ruleCategories(called(new TokenField, "ruleCategories"))
    , m_ruleRenameLabel(called(new PlainLabel(localized("&New name:")), "ruleRenameLabel"))
    , m_ruleCategoriesLabel(called(new PlainLabel(localized("&Categories:")), "ruleCategoriesLabel")) {
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
    auto* buttons =
        called(new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel), "ruleButtons");
    called(buttons->button(QDialogButtonBox::Save), "saveRule");
    called(buttons->button(QDialogButtonBox::Cancel), "cancelEditingRule");
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
