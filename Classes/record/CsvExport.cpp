// SPDX-License-Identifier: MIT
#include "Classes/record/CsvExport.h"

#include "platform/foundation/text/DurationText.h"

namespace {

constexpr QChar kByteOrderMark(0xFEFF);

} // namespace

namespace CsvExport {

QString text(const TimeStoreItem::Children& timers, Seconds total) {
    QString text = QStringLiteral("Total,Per Application,,Per Window\n") + durationText(total) +
                   QStringLiteral(",Application,Time,Window,Time\n");
    const auto addLine = [&](const QString& name, const QString& time, const QString& window,
                             const QString& windowTime) {
        text += u',' + name + u',' + time + u',' + window + u',' + windowTime + u'\n';
    };
    for (const auto& timer : timers) {
        const TimeStoreItem::Children windows = timer->children().value_or(TimeStoreItem::Children());
        if (windows.empty())
            addLine(timer->name(), timer->activeTimeString(), {}, {});
        for (std::size_t i = 0; i < windows.size(); ++i)
            addLine(i == 0 ? timer->name() : QString(), i == 0 ? timer->activeTimeString() : QString(),
                    windows[i]->name(), windows[i]->activeTimeString());
    }
    return text;
}

Outcome writeText(const QString& text, const QString& path, const WholeFile::Progress& progress,
                  FileCalls& calls) {
    const QString marked = kByteOrderMark + text;
    return WholeFile::write({reinterpret_cast<const char*>(marked.constData()), marked.size() * 2}, path,
                            progress, calls);
}

Outcome write(const TimeStoreItem::Children& timers, Seconds total, const QString& path) {
    return writeText(text(timers, total), path);
}

void tellFailure(SystemLog& log) {
    log.log(QStringLiteral("Error Exporting"));
}

QString formatString(const QString& text) {
    QString quoted = text;
    return u'"' + quoted.replace(u'"', QLatin1String("\"\"")) + u'"';
}

} // namespace CsvExport
