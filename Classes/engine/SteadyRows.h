// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreApp.h"

#include <QHash>

#include <map>

// The rows of applications by their titles without what counts in them (steadyTitle()), for applications that have a
// row for each title: a song or a download that counts on goes on in its row, whatever came between. Notes what it is
// asked for; walks the rows only if some have come or gone otherwise.
class SteadyRows {
public:
    // The row in which this title is counted. It gets the element and may still be called by the title before.
    std::shared_ptr<TimeStoreWindow> rowFor(TimeStoreApp& app, const QString& title,
                                            const WindowElement& element);
    // Rows may have got other names.
    void forget() { m_known.clear(); }

private:
    struct Rows {
        std::weak_ptr<TimeStoreItem> app;
        std::size_t count = 0;
        QHash<QString, std::weak_ptr<TimeStoreWindow>> byTitle;
    };

    Rows& rowsOf(TimeStoreApp& app);

    std::map<const TimeStoreApp*, Rows> m_known;
};
