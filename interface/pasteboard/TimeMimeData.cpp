// SPDX-License-Identifier: MIT
#include "interface/pasteboard/TimeMimeData.h"

#include "Classes/exchange/PasteboardTypes.h"
#include "Classes/exchange/ReadableForms.h"

namespace {

const QString kHtml = QStringLiteral("text/html");
const QString kHtmlInUtf8 = QStringLiteral("text/html;charset=utf-8");
const QString kRtf = QStringLiteral("text/rtf");
// Word processors ask for RTF under this name.
const QString kApplicationRtf = QStringLiteral("application/rtf");
const QString kTabular = QStringLiteral("text/tab-separated-values");
const QString kPlain = QStringLiteral("text/plain");

} // namespace

TimeMimeData::TimeMimeData(Provider provider, const std::vector<Identity>& timers)
    : m_provider(std::move(provider))
    , m_timers(timers) {
    setData(kTimerPasteboardType, timerPasteboardData(timers));
}

TimeMimeData::TimeMimeData(Provider provider, int projectRow)
    : m_provider(std::move(provider))
    , m_projectRow(projectRow) {
    setData(kProjectPasteboardType, projectPasteboardData(projectRow));
}

QStringList TimeMimeData::formats() const {
    // In this order, because most receivers take the first form that they know.
    return {kHtml,           kTabular, kRtf,
            kApplicationRtf, kPlain,   m_projectRow ? kProjectPasteboardType : kTimerPasteboardType};
}

bool TimeMimeData::hasFormat(const QString& type) const {
    return formats().contains(type);
}

std::vector<Identity> TimeMimeData::identities() const {
    if (!m_projectRow)
        return m_timers;
    auto members = m_provider.uuidsForProjectIndex(*m_projectRow);
    // A project without members is read as all timers.
    return members && !members->empty() ? *std::move(members) : m_provider.primaryUUIDs();
}

QMimeData* TimeMimeData::settled() const {
    auto* whole = new QMimeData;
    // A widespread clipboard manager loses the first form when a program ends, so HTML is there twice.
    whole->setData(kHtmlInUtf8, data(kHtml));
    for (const QString& type : formats())
        whole->setData(type, data(type));
    return whole;
}

QVariant TimeMimeData::retrieveData(const QString& type, QMetaType preferred) const {
    if (!formats().contains(type))
        return {};
    if (type == kTimerPasteboardType || type == kProjectPasteboardType)
        return QMimeData::retrieveData(type, preferred);
    const TimeStoreItem::Children timers = m_provider.timers(identities());
    if (type == kHtml)
        return ReadableForms::html(timers);
    if (type == kTabular)
        return ReadableForms::tabular(timers);
    if (type == kPlain)
        return ReadableForms::plain(timers);
    return ReadableForms::rtf(timers);
}
