// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

// The field whose text narrows the rows. Escape goes back to the rows and leaves the text as it is.
class TKSearchField : public QLineEdit {
    Q_OBJECT
public:
    explicit TKSearchField(QWidget* parent = nullptr);

    // The rows; not owned. Null for none.
    void setOutlineView(QWidget* outlineView) { m_outlineView = outlineView; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* m_outlineView = nullptr;
};
