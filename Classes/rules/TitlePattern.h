// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/rules/LetterPairs.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QRegularExpression>

#include <optional>

// The entries of a record by which titles are found. Program and title are found as a part, whatever their
// case; what is absent or empty fits all.
inline const QString kTitleRuleProgram = QStringLiteral("Program");
inline const QString kTitleRuleTitle = QStringLiteral("Title");
// Whether the title is a regular expression.
inline const QString kTitleRuleIsExpression = QStringLiteral("Expression");

// A title that patterns are tried on. Made once for many.
struct SoughtTitle {
    SoughtTitle(const QString& title) // NOLINT(google-explicit-constructor): it is the title
        : text(title)
        , pairs(LetterPairs::of(title)) {}

    QString text;
    LetterPairs pairs;
};

// What a title is found by: its program and what it says.
class TitlePattern {
public:
    // "Unknown": an expression for which this title takes so long that matching was given up.
    enum class Fit : unsigned char { No, Unknown, Yes };

    explicit TitlePattern(const PropertyListDictionary& record);

    // In the words of who reads expressions; empty for an expression that is right. One that is wrong fits
    // every title.
    QString fault() const;
    // Whether it asks what the title says.
    bool looksAtTitle() const { return m_title && m_title->isValid(); }
    // Whether nothing is asked for.
    bool fitsAll() const { return m_program.isEmpty() && !m_title; }
    Fit fit(const QString& program, const SoughtTitle& title) const;
    // Whatever the program.
    Fit fitOfTitle(const SoughtTitle& title) const;

private:
    QString m_program;
    // Absent: any title.
    std::optional<QRegularExpression> m_title;
    // None for an expression.
    LetterPairs m_needed;
};
