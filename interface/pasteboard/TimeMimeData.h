// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

#include <QMimeData>

#include <functional>

// The data of a copy or a drag of timers or of a project. It holds their identities; four readable forms are
// made only when a receiver asks for them.
class TimeMimeData : public QMimeData {
    Q_OBJECT
public:
    // Gives the content of the readable forms. Must be callable for as long as the data may be asked.
    struct Provider {
        // The timers of these identities, without those that are children of another one.
        std::function<TimeStoreItem::Children(const std::vector<Identity>&)> timers;
        // The members of a sidebar row; absent for all timers.
        std::function<std::optional<std::vector<Identity>>(int row)> uuidsForProjectIndex;
        // All top-level timers.
        std::function<std::vector<Identity>()> primaryUUIDs;
    };

    TimeMimeData(Provider provider, const std::vector<Identity>& timers);
    TimeMimeData(Provider provider, int projectRow);

    QStringList formats() const override;
    bool hasFormat(const QString& type) const override;

    // A copy with all forms already made, for when the provider is about to end. Owned by the caller.
    QMimeData* settled() const;

protected:
    QVariant retrieveData(const QString& type, QMetaType preferred) const override;

private:
    std::vector<Identity> identities() const;

    Provider m_provider;
    std::vector<Identity> m_timers;
    std::optional<int> m_projectRow;
};
