// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/TimeStoreItem.h"

#include <QTreeView>

class TimeTreeModel;

// The outline of timers. Draws and forwards: deleting is asked for, renaming goes through the model.
class TKOutlineDisplayView : public QTreeView {
    Q_OBJECT
public:
    explicit TKOutlineDisplayView(QWidget* parent = nullptr);

    // The model must outlive the view or be replaced first.
    void setTimeModel(TimeTreeModel& model);
    // The nodes of the selected rows, from top to bottom.
    TimeStoreItem::Children selectedItems() const;
    void editName();

Q_SIGNALS:
    void deleteKeyPressed();
    void selectionDidChange();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void fitTimeColumn();
    void forgetCollapsed(const QModelIndex& index);
    void drawInvitation();

    TimeTreeModel* m_model = nullptr;
};
