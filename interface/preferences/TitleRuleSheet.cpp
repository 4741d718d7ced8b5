// SPDX-License-Identifier: MIT
#include "interface/preferences/TitleRuleSheet.h"

#include "Classes/rules/TitleRules.h"
#include "interface/preferences/TitleRulesTable.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/CleanText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int kWidth = 460;

constexpr std::pair<TitleRules::Effect, const char*> kEffects[] = {
    {TitleRules::Effect::LeaveOut, "leave out"},
    {TitleRules::Effect::Replace, "replace"},
    {TitleRules::Effect::Private, "private"},
    {TitleRules::Effect::Keep, "keep"}};

QLineEdit* field(const char* name) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    edit->setMaxLength(int(kLongestText));
    return edit;
}

// Blanks around a text come from copying, and with them nothing would match.
QString textIn(const QLineEdit& edit) {
    return cleanText(edit.text()).trimmed();
}

} // namespace

TitleRuleSheet::TitleRuleSheet(std::function<void(const PropertyListDictionary&)> saved, QWidget* parent)
    : QDialog(parent, Qt::Sheet)
    , m_saved(std::move(saved))
    , m_program(field("titleRuleProgram"))
    , m_match(new QComboBox)
    , m_title(field("titleRuleTitle"))
    , m_effect(new QComboBox)
    , m_replacement(field("titleRuleReplacement"))
    , m_fault(new PlainLabel) {
    setObjectName(QStringLiteral("titleRuleSheet"));
    setWindowTitle(localized("Rule for Titles"));
    setAccessibleName(windowTitle());
    setWindowModality(Qt::WindowModal);
    m_match->setObjectName(QStringLiteral("titleRuleMatch"));
    m_match->setAccessibleName(localized("How the title is found"));
    m_match->addItems({localized("contains"), localized("matches the expression")});
    m_effect->setObjectName(QStringLiteral("titleRuleEffect"));
    for (const auto& [effect, word] : kEffects)
        m_effect->addItem(TitleRulesTable::effectText(effect), QLatin1String(word));
    m_fault->setObjectName(QStringLiteral("titleRuleFault"));
    m_fault->setWordWrap(true);
    addControls();
    for (QComboBox* box : {m_match, m_effect})
        connect(box, &QComboBox::currentIndexChanged, this, &TitleRuleSheet::choiceChanged);
    connect(m_title, &QLineEdit::textChanged, this, &TitleRuleSheet::choiceChanged);
    setMinimumWidth(kWidth);
}

void TitleRuleSheet::addControls() {
    m_program->setPlaceholderText(localized("Any"));
    m_title->setPlaceholderText(localized("Any"));
    // One below the other, for the expressions are long.
    auto* title = new QVBoxLayout;
    title->addWidget(m_match, 0, Qt::AlignLeft);
    title->addWidget(m_title);
    title->addWidget(m_fault);
    auto* form = new QFormLayout;
    form->addRow(localized("&Program contains:"), m_program);
    auto* titleLabel = new PlainLabel(localized("&Title:"));
    titleLabel->setBuddy(m_title);
    form->addRow(titleLabel, title);
    form->addRow(localized("&Effect:"), m_effect);
    form->addRow(localized("&New text:"), m_replacement);
    m_title->setAccessibleName(localized("Title"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    m_save = buttons->button(QDialogButtonBox::Save);
    m_save->setObjectName(QStringLiteral("saveTitleRule"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        accept();
        m_saved(rule());
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(form);
    rows->addStretch(1);
    rows->addWidget(buttons);
}

void TitleRuleSheet::openFor(const PropertyListDictionary& rule) {
    m_rule = rule;
    m_program->setText(rule.value(kTitleRuleProgram).toString());
    m_title->setText(rule.value(kTitleRuleTitle).toString());
    m_match->setCurrentIndex(rule.value(kTitleRuleIsExpression).toBool() ? 1 : 0);
    m_replacement->setText(rule.value(kTitleRuleReplacement).toString());
    for (int i = 0; i < m_effect->count(); ++i)
        if (kEffects[i].first == TitleRules::effectOf(rule))
            m_effect->setCurrentIndex(i);
    choiceChanged();
    m_program->setFocus();
    open();
    makeRoom();
}

PropertyListDictionary TitleRuleSheet::rule() const {
    PropertyListDictionary rule = m_rule;
    const auto set = [&](const QString& key, const QString& text) {
        rule.remove(key);
        if (!text.isEmpty())
            rule.insert(key, text);
    };
    set(kTitleRuleProgram, textIn(*m_program));
    set(kTitleRuleTitle, textIn(*m_title));
    rule.insert(kTitleRuleIsExpression, m_match->currentIndex() == 1);
    rule.insert(kTitleRuleEffect, m_effect->currentData().toString());
    set(kTitleRuleReplacement,
        TitleRules::effectOf(rule) == TitleRules::Effect::Replace ? textIn(*m_replacement) : QString());
    return rule;
}

void TitleRuleSheet::choiceChanged() {
    const PropertyListDictionary now = rule();
    const QString fault = TitleRules::faultOf(now);
    m_fault->setText(
        fault.isEmpty()
            ? QString()
            : localized("This expression cannot be read: %@").replace(QLatin1String("%@"), fault));
    m_fault->setVisible(!fault.isEmpty());
    m_save->setEnabled(fault.isEmpty());
    m_replacement->setEnabled(TitleRules::effectOf(now) == TitleRules::Effect::Replace);
    if (isVisible())
        makeRoom();
}

// A window does not grow by itself when a text in it takes a second line.
void TitleRuleSheet::makeRoom() {
    m_fault->setMinimumHeight(m_fault->text().isEmpty() ? 0 : m_fault->heightForWidth(m_title->width()));
}
