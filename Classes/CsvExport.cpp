// SPDX-License-Identifier: MIT
#include "Classes/CsvExport.h"

#include "Classes/TimeTracker.h"

#include <QFile>
#include <QStringEncoder>

namespace CsvExport {

QString text(const TimeStoreItem::Children& timers, Seconds total) {
    QString text = QStringLiteral("Total,Per Application,,Per Window\n") +
                   TimeTracker::timeStringForDouble(total) +
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

Outcome write(const TimeStoreItem::Children& timers, Seconds total, const QString& path) {
    QStringEncoder encoder(QStringConverter::Utf16, QStringConverter::Flag::WriteBom);
    const QByteArray bytes = encoder.encode(text(timers, total));
    QFile file(path);
    const bool isNew = !file.exists();
    if (!file.open(QFile::WriteOnly) ||
        (isNew && !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) ||
        file.write(bytes) != bytes.size() || !file.flush())
        return Failure{Failure::Kind::CannotWrite, file.errorString()};
    return Done{};
}

QString formatString(const QString& text) {
    QString quoted = text;
    return u'"' + quoted.replace(u'"', QLatin1String("\"\"")) + u'"';
}

} // namespace CsvExport
