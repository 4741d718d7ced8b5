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
    if (!isExpression)
        m_needed = LetterPairs::neededBy(text);
}

QString TitlePattern::fault() const {
    return m_title && !m_title->isValid() ? m_title->errorString() : QString();
}

TitlePattern::Fit TitlePattern::fit(const QString& program, const SoughtTitle& title) const {
    return m_program.isEmpty() || program.contains(m_program, Qt::CaseInsensitive) ? fitOfTitle(title)
                                                                                   : Fit::No;
}

TitlePattern::Fit TitlePattern::fitOfTitle(const SoughtTitle& title) const {
    if (!looksAtTitle())
        return Fit::Yes;
    if (!title.pairs.mayHave(m_needed))
        return Fit::No;
    const QRegularExpressionMatch match = m_title->match(title.text);
    if (match.hasMatch())
        return Fit::Yes;
    return match.isValid() ? Fit::No : Fit::Unknown;
}
