// SPDX-License-Identifier: MIT
#include "Classes/rules/TitlePattern.h"

TitlePattern::TitlePattern(const PropertyListDictionary& record)
    : m_program(record.value(kTitleRuleProgram).toString()) {
    const QString text = record.value(kTitleRuleTitle).toString();
    if (text.isEmpty())
        return;
    const bool isExpression = record.value(kTitleRuleIsExpression).toBool();
    m_title.emplace(isExpression ? text : QRegularExpression::escape(text),
                    QRegularExpression::CaseInsensitiveOption |
                        QRegularExpression::UseUnicodePropertiesOption);
}

QString TitlePattern::fault() const {
    return m_title && !m_title->isValid() ? m_title->errorString() : QString();
}

bool TitlePattern::fits(const QString& program, const QString& title) const {
    return (m_program.isEmpty() || program.contains(m_program, Qt::CaseInsensitive)) && fitsTitle(title);
}

bool TitlePattern::fitsTitle(const QString& title) const {
    return !looksAtTitle() || m_title->match(title).hasMatch();
}
