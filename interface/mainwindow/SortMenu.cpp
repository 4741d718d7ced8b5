// SPDX-License-Identifier: MIT
#include "interface/mainwindow/SortMenu.h"

#include "interface/shell/ButtonText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QActionGroup>
#include <QHeaderView>
#include <QTreeView>

SortMenu::SortMenu(std::function<QTreeView&()> shown, QWidget* parent)
    : QMenu(localized("&Sort By"), parent)
    , m_shown(std::move(shown)) {
    setObjectName(QStringLiteral("sortMenu"));
    setAccessibleName(buttonText(title()));
    connect(this, &QMenu::aboutToShow, this, &SortMenu::fill);
    // A menu without entries would not be offered.
    addAction(title())->setEnabled(false);
}

void SortMenu::fill() {
    clear();
    QTreeView& outline = m_shown();
    addColumns(outline);
    addSeparator();
    addOrders(outline);
}

void SortMenu::addColumns(QTreeView& outline) {
    auto* group = new QActionGroup(this);
    QHeaderView& header = *outline.header();
    for (int column = 0; column < header.count(); ++column) {
        QAction* line = addAction(outline.model()->headerData(column, Qt::Horizontal).toString());
        line->setObjectName(QStringLiteral("sortByColumn%1").arg(column));
        line->setCheckable(true);
        line->setChecked(header.sortIndicatorSection() == column);
        group->addAction(line);
        connect(line, &QAction::triggered, &header,
                [&header, column] { header.setSortIndicator(column, header.sortIndicatorOrder()); });
    }
}

void SortMenu::addOrders(QTreeView& outline) {
    auto* group = new QActionGroup(this);
    QHeaderView& header = *outline.header();
    for (const auto& [order, name, text] :
         {std::tuple(Qt::AscendingOrder, "sortAscending", localized("&Ascending")),
          std::tuple(Qt::DescendingOrder, "sortDescending", localized("&Descending"))}) {
        QAction* line = addAction(text);
        line->setObjectName(QLatin1String(name));
        line->setCheckable(true);
        line->setChecked(header.sortIndicatorOrder() == order);
        group->addAction(line);
        connect(line, &QAction::triggered, &header,
                [&header, order = order] { header.setSortIndicator(header.sortIndicatorSection(), order); });
    }
}
