// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

// The sheet in which one rule for titles is edited. An invalid regular expression is reported and cannot be
// saved.
class TitleRuleSheet : public QDialog {
    Q_OBJECT
public:
    // `saved` gets the record when the user saves it.
    TitleRuleSheet(std::function<void(const PropertyListDictionary&)> saved, QWidget* parent);

    void openFor(const PropertyListDictionary& rule);
    // The rule in the controls; entries that they do not show keep their values.
    PropertyListDictionary rule() const;

private:
    void addControls();
    void choiceChanged();
    void makeRoom();

    std::function<void(const PropertyListDictionary&)> m_saved;
    PropertyListDictionary m_rule;
    QLineEdit* m_program;
    QComboBox* m_match;
    QLineEdit* m_title;
    QComboBox* m_effect;
    QLineEdit* m_replacement;
    QLabel* m_fault;
    QPushButton* m_save;
};
