// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

#include <QMimeData>

#include <functional>

// What a copy or a drag of timers or of a project carries: which they are, at once; and how they read, in four forms that
// are made when a receiver asks for them.
class TimeMimeData : public QMimeData {
    Q_OBJECT
public:
    // Where the readable forms come from; must be callable as long as the data can be asked.
    struct Provider {
        // The timers of these identities, none of them through another one as well.
        std::function<TimeStoreItem::Children(const std::vector<Identity>&)> timers;
        // What a sidebar row stands for; absent for all timers.
        std::function<std::optional<std::vector<Identity>>(int row)> uuidsForProjectIndex;
        // All top-level timers.
        std::function<std::vector<Identity>()> primaryUUIDs;
    };

    TimeMimeData(Provider provider, const std::vector<Identity>& timers);
    TimeMimeData(Provider provider, int projectRow);

    QStringList formats() const override;
    bool hasFormat(const QString& type) const override;

    // The same with every form made, for when the provider is about to go; owned by the caller.
    QMimeData* settled() const;

protected:
    QVariant retrieveData(const QString& type, QMetaType preferred) const override;

private:
    std::vector<Identity> identities() const;

    Provider m_provider;
    std::vector<Identity> m_timers;
    std::optional<int> m_projectRow;
};
