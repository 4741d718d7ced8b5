// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

#include <functional>

class QTreeView;

// Sorts the rows that are shown by one of their columns, upwards or downwards, as a click on the header does. Its
// entries are those of the outline that is shown when it opens.
class SortMenu : public QMenu {
    Q_OBJECT
public:
    SortMenu(std::function<QTreeView&()> shown, QWidget* parent);

private:
    void fill();
    void addColumns(QTreeView& outline);
    void addOrders(QTreeView& outline);

    std::function<QTreeView&()> m_shown;
};
