// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

// The search field. Escape returns to the rows and keeps the text. Ctrl+E is not used for editing here: it
// belongs to the command that exports what is shown.
class TKSearchField : public QLineEdit {
    Q_OBJECT
public:
    explicit TKSearchField(QWidget* parent = nullptr);

    // The outline that Escape returns to; not owned. Null for none.
    void setOutlineView(QWidget* outlineView) { m_outlineView = outlineView; }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void initStyleOption(QStyleOptionFrame* option) const override;

private:
    QWidget* m_outlineView = nullptr;
};
