// SPDX-License-Identifier: MIT
#include "Classes/ReadableForms.h"

namespace {

TimeStoreItem::Children childrenOf(const TimeStoreItem& timer) {
    return timer.children().value_or(TimeStoreItem::Children());
}

QString row(const QStringList& cells) {
    QString text = QStringLiteral("<tr>");
    for (const QString& cell : cells)
        text += QStringLiteral("<td>") + cell.toHtmlEscaped() + QStringLiteral("</td>");
    return text + QStringLiteral("</tr>\n");
}

} // namespace

namespace ReadableForms {

QString html(const TimeStoreItem::Children& timers) {
    QString text =
        QStringLiteral("<html><body><style>body { font-family: helvetica; }</style><table>"
                       "<tr><th>Application</th><th>Window</th><th>Original Name</th><th>Time</th></tr>\n");
    for (const auto& timer : timers) {
        // Under "Original Name" stands the name after renaming, deliberately.
        text += row({timer->name(), QString(), timer->renamedName(), timer->activeTimeString()});
        for (const auto& child : childrenOf(*timer))
            text += row({timer->name(), child->name(), child->renamedName(), child->activeTimeString()});
        text += u'\n';
    }
    return text + QStringLiteral("</table></body></html>");
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
