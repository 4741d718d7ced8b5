// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class TKSetupController;
class TokenField;

// The sheet in which one rule is edited. The controller decides what its controls show. Ends with 1 for Save,
// with 0 otherwise.
class AppPropertiesWindow : public QDialog {
    Q_OBJECT
public:
    // The controller must outlive the sheet.
    AppPropertiesWindow(TKSetupController& setupController, QWidget* prefWindow);

    QLineEdit& ruleAppName() const { return *m_ruleAppName; }

    QCheckBox& ruleBlockFromList() const { return *m_ruleBlockFromList; }

    QCheckBox& ruleRenameCheckbox() const { return *m_ruleRenameCheckbox; }

    QLineEdit& ruleRenameName() const { return *m_ruleRenameName; }

    TokenField& ruleCategories() const { return *m_ruleCategories; }

    QCheckBox& ruleRowForEachTitle() const { return *m_ruleRowForEachTitle; }

    QLabel& ruleRenameLabel() const { return *m_ruleRenameLabel; }

    QLabel& ruleCategoriesLabel() const { return *m_ruleCategoriesLabel; }

protected:
    // Updates the controls whenever the sheet becomes the active window.
    bool event(QEvent* event) override;

private:
    void connectControls();

    TKSetupController& m_setupController;
    QLineEdit* m_ruleAppName;
    QCheckBox* m_ruleBlockFromList;
    QCheckBox* m_ruleRenameCheckbox;
    QLineEdit* m_ruleRenameName;
    TokenField* m_ruleCategories;
    QCheckBox* m_ruleRowForEachTitle;
    QLabel* m_ruleRenameLabel;
    QLabel* m_ruleCategoriesLabel;
};
