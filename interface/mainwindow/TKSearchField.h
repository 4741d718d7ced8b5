// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

// The field whose text narrows the rows. Escape goes back to the rows and leaves the text as it is.
// Ctrl+E is left to the command that exports what is shown.
class TKSearchField : public QLineEdit {
    Q_OBJECT
public:
    explicit TKSearchField(QWidget* parent = nullptr);

    // The rows; not owned. Null for none.
    void setOutlineView(QWidget* outlineView) { m_outlineView = outlineView; }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* m_outlineView = nullptr;
};
