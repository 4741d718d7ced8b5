// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>

// The header of columns that sort. Besides the mouse, the keys do: Left and Right go to a column, Space and Return sort by
// it or, if the rows are sorted by it, the other way round. Assistive programs hear the column and how the rows are
// sorted by it.
class SortingHeader : public QHeaderView {
    Q_OBJECT
public:
    explicit SortingHeader(QWidget* parent);

    // The column that the keys sort by.
    int currentSection() const { return m_section; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    void goTo(int section);
    void sort();
    void nameSection();

    int m_section = 0;
};
