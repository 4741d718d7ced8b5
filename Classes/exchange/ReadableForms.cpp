// SPDX-License-Identifier: MIT
#include "Classes/exchange/ReadableForms.h"

#include "Classes/exchange/RtfTable.h"

#include <array>

namespace {

TimeStoreItem::Children childrenOf(const TimeStoreItem& timer) {
    return timer.children().value_or(TimeStoreItem::Children());
}

using Row = std::array<QString, 4>;

const Row kHeading{QStringLiteral("Application"), QStringLiteral("Window"), QStringLiteral("Original Name"),
                   QStringLiteral("Time")};

// The timer's row, and below it the rows of its children. For the two forms that have a table.
std::vector<Row> rowsOf(const TimeStoreItem& timer) {
    // The column "Original Name" shows the name after renaming, deliberately.
    std::vector<Row> rows{{timer.name(), QString(), timer.renamedName(), timer.activeTimeString()}};
    for (const auto& child : childrenOf(timer))
        rows.push_back({timer.name(), child->name(), child->renamedName(), child->activeTimeString()});
    return rows;
}

} // namespace

namespace ReadableForms {

QString html(const TimeStoreItem::Children& timers) {
    QString text = QStringLiteral("<html><body><style>body { font-family: helvetica; }</style><table><tr>");
    for (const QString& title : kHeading)
        text += QStringLiteral("<th>") + title + QStringLiteral("</th>");
    text += QStringLiteral("</tr>\n");
    for (const auto& timer : timers) {
        for (const Row& row : rowsOf(*timer)) {
            text += QStringLiteral("<tr>");
            for (const QString& cell : row)
                text += QStringLiteral("<td>") + cell.toHtmlEscaped() + QStringLiteral("</td>");
            text += QStringLiteral("</tr>\n");
        }
        text += u'\n';
    }
    return text + QStringLiteral("</table></body></html>");
}

QByteArray rtf(const TimeStoreItem::Children& timers) {
    RtfTable table(int(kHeading.size()), kHeading);
    for (const auto& timer : timers)
        for (const Row& row : rowsOf(*timer))
            table.add(row);
    return std::move(table).finished();
}

QString tabular(const TimeStoreItem::Children& timers) {
    constexpr QChar kTab = u'\t';
    QString text;
    for (const auto& timer : timers) {
        if (timer->isApp()) {
            text += timer->name() + kTab + kTab + timer->renamedName() + kTab + timer->activeTimeString();
            for (const auto& child : childrenOf(*timer))
                text += timer->name() + kTab + child->name() + kTab + child->renamedName() + kTab +
                        child->activeTimeString();
        }
        text += u'\n';
    }
    return text;
}

QString plain(const TimeStoreItem::Children& timers) {
    QString text;
    for (const auto& timer : timers) {
        text += timer->renamedName() + QStringLiteral(", ") + timer->activeTimeString();
        if (timer->renamedName() != timer->name())
            text += QStringLiteral(" - ") + timer->name();
        text += u'\n';
    }
    return text;
}

} // namespace ReadableForms
