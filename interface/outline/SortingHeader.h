// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>

#include <optional>

// The header of columns that sort. Besides the mouse, the keys do: Left and Right go to a column, Space and Return sort by
// it or, if the rows are sorted by it, the other way round. Assistive programs hear the column and how the rows are
// sorted by it. The border between a column that takes what is left and the one after it can be dragged as well: it
// moves, and no column becomes narrower than the header's least section size.
class SortingHeader : public QHeaderView {
    Q_OBJECT
public:
    explicit SortingHeader(QWidget* parent);

    // The column that the keys sort by.
    int currentSection() const { return m_section; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    void goTo(int section);
    void sort();
    void nameSection();
    std::optional<int> sectionBesideBorder(int x) const;
    void drag(int x);

    // A column whose border is dragged: what it was when that began.
    struct Dragged {
        int section;
        int width;
        int x;
    };

    int m_section = 0;
    std::optional<Dragged> m_dragged;
};
