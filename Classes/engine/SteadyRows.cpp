// SPDX-License-Identifier: MIT
#include "Classes/engine/SteadyRows.h"

#include "Classes/rules/SteadyTitle.h"

std::shared_ptr<TimeStoreWindow> SteadyRows::rowFor(TimeStoreApp& app, const QString& title,
                                                    const WindowElement& element) {
    Rows& rows = rowsOf(app);
    const QString steady = steadyTitle(title);
    const auto known = rows.byTitle.value(steady).lock();
    const bool goesOn =
        known && !known->branched() && app.holds(*known) && steadyTitle(known->name()) == steady;
    const auto row = app.windowStoreForName(goesOn ? known->name() : title, element);
    rows.byTitle.insert(steady, row);
    rows.count = app.windowCount();
    return row;
}

SteadyRows::Rows& SteadyRows::rowsOf(TimeStoreApp& app) {
    const auto known = m_known.find(&app);
    if (known != m_known.end() && known->second.count == app.windowCount() &&
        known->second.app.lock().get() == &app)
        return known->second;
    std::erase_if(m_known, [](const auto& entry) { return entry.second.app.expired(); });
    Rows rows{.app = app.shared_from_this(), .count = app.windowCount(), .byTitle = {}};
    for (const auto& window : app.windows())
        if (!window->branched())
            rows.byTitle.insert(steadyTitle(window->name()), window);
    return m_known.insert_or_assign(&app, std::move(rows)).first->second;
}
