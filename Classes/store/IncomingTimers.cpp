// SPDX-License-Identifier: MIT
#include "Classes/store/IncomingTimers.h"

#include "Classes/store/AccountEntries.h"
#include "platform/foundation/text/CleanText.h"

namespace {

const PropertyListArray* windowsOf(const PropertyListDictionary* entry) {
    return entry ? entry->value(kEntryWindows).asArray() : nullptr;
}

std::size_t timersIn(const PropertyListArray& apps) {
    std::size_t count = 0;
    for (const PropertyListValue& value : apps) {
        const PropertyListArray* windows = windowsOf(value.asDictionary());
        count += 1 + (windows ? windows->size() : 0);
    }
    return count;
}

} // namespace

IncomingTimers::IncomingTimers(TimeStoreServices& services, PropertyListValue entries, GivenUp givenUp)
    : m_services(services)
    , m_entries(std::move(entries))
    , m_givenUp(std::move(givenUp)) {
    const PropertyListDictionary* table = m_entries.asDictionary();
    const bool hasVersion = table && table->contains(kDatabaseVersion);
    const PropertyListArray* apps = table ? table->value(kDatabaseApps).asArray() : nullptr;
    // A file with a version must have a list of applications. Without the list, nobody knows what else is
    // missing.
    m_isAccount = table && !table->isEmpty() && (!hasVersion || apps);
    m_count = hasVersion ? (apps ? timersIn(*apps) : 0) : table ? table->size() : 0;
    if (hasVersion)
        m_list = apps;
    else
        m_table = table;
}

IncomingTimers::IncomingTimers(TimeStoreServices& services, const PropertyListArray& apps, GivenUp givenUp)
    : m_services(services)
    , m_list(&apps)
    , m_count(timersIn(apps))
    , m_givenUp(std::move(givenUp)) {}

IncomingTimers::~IncomingTimers() {
    if (!m_isTaken && m_made > 0)
        m_givenUp();
}

std::optional<Date> IncomingTimers::lastResetDate() const {
    return m_list ? m_entries.asDictionary()->value(kDatabaseLastResetDate).asDate() : std::nullopt;
}

double IncomingTimers::makeMore(std::size_t most) {
    for (; most > 0 && !isDone(); --most)
        makeOne();
    return isDone() ? 1 : std::min(0.99, double(m_made) / double(m_count));
}

IncomingTimers::AppSet IncomingTimers::take() {
    m_isTaken = true;
    return std::move(m_apps);
}

bool IncomingTimers::isDone() const {
    const std::size_t entries = m_list ? m_list->size() : m_table ? m_table->size() : 0;
    return !m_isAccount || (!m_app && m_next == entries);
}

void IncomingTimers::makeOne() {
    ++m_made;
    if (m_table) {
        makeOldest();
    } else if (!m_app) {
        beginApplication();
    } else {
        const PropertyListDictionary* record = (*m_windows)[m_nextWindow++].asDictionary();
        if (record && !record->value(kRecordName).toString().isEmpty())
            m_app->takeChild(*record, m_successions);
        else
            ++m_damaged;
    }
    if (m_app && m_nextWindow == m_windows->size())
        endApplication();
}

// The oldest form is a table of names and seconds. A table with a list under "Apps" is a newer file that has
// lost its version and perhaps more, so it is not taken as an account.
void IncomingTimers::makeOldest() {
    const auto& [name, seconds] = *(m_table->begin() + std::ptrdiff_t(m_next++));
    if (name == kDatabaseApps && seconds.asArray())
        m_isAccount = false;
    else
        m_apps.push_back(std::make_shared<TimeStoreApp>(m_services, cleanText(name), seconds));
}

void IncomingTimers::beginApplication() {
    static const PropertyListArray kNone;
    const PropertyListDictionary* entry = (*m_list)[m_next++].asDictionary();
    const PropertyListDictionary* record = entry ? entry->value(kEntryApp).asDictionary() : nullptr;
    if (!record) {
        ++m_damaged;
        return;
    }
    m_app = std::make_shared<TimeStoreApp>(m_services, *record);
    m_windows = windowsOf(entry);
    m_nextWindow = 0;
    if (m_windows)
        return;
    m_windows = &kNone;
    if (!entry->value(kEntryWindows).isAbsent())
        ++m_damaged;
}

void IncomingTimers::endApplication() {
    m_app->tellWindowsApart(m_successions);
    if (const auto uuid = m_app->uuid(); uuid && !m_seen.insert(*uuid).second) {
        m_app->setUuid(Identity::brandNew());
        m_successions.push_back({*uuid, *m_app->uuid()});
    }
    m_apps.push_back(std::move(m_app));
}
