// SPDX-License-Identifier: MIT
#include "Classes/store/TKUUIDManager.h"

#include "platform/foundation/files/PrivateFiles.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/text/CleanText.h"

namespace {

// The longest key: the name of a class, a window's title and its application's name.
constexpr qsizetype kLongestKey = 32 + 2 * kLongestText;

} // namespace

TKUUIDManager::TKUUIDManager(QString path, RunLoop& runLoop, SystemLog& log)
    : m_path(std::move(path))
    , m_runLoop(runLoop)
    , m_log(log) {
    load();
}

TKUUIDManager::~TKUUIDManager() {
    saveData();
}

QString TKUUIDManager::savePath(const QString& applicationSupportFolder) {
    return applicationSupportFolder + QStringLiteral("UUID.plist");
}

std::optional<Identity> TKUUIDManager::knownUUID(const QString& key) const {
    const auto known = m_namesToUUIDs.constFind(key);
    return known == m_namesToUUIDs.constEnd() ? std::nullopt : std::optional(*known);
}

Identity TKUUIDManager::uuidForName(const QString& key) {
    const auto known = m_namesToUUIDs.constFind(key);
    if (known != m_namesToUUIDs.constEnd())
        return *known;
    return *m_namesToUUIDs.insert(key, Identity::brandNew());
}

Identity TKUUIDManager::setUUID(const Identity& identity, const QString& key) {
    m_namesToUUIDs.insert(key, identity);
    requestSave();
    return identity;
}

void TKUUIDManager::renameName(const QString& oldKey, const QString& newKey) {
    if (oldKey == newKey)
        return;
    const auto moved = m_namesToUUIDs.constFind(oldKey);
    if (moved != m_namesToUUIDs.constEnd()) {
        const Identity identity = *moved;
        m_namesToUUIDs.erase(moved);
        m_namesToUUIDs.insert(newKey, identity);
    }
    requestSave();
}

void TKUUIDManager::forget(const QString& key) {
    if (m_namesToUUIDs.remove(key))
        requestSave();
}

void TKUUIDManager::forgetNames(
    const std::function<bool(const QString& key, const Identity& identity)>& isUnwanted) {
    if (m_namesToUUIDs.removeIf([&](auto entry) { return isUnwanted(entry.key(), entry.value()); }) > 0)
        requestSave();
}

QHash<QString, Identity> TKUUIDManager::namesOf(const std::unordered_set<Identity>& identities) const {
    QHash<QString, Identity> names;
    for (auto entry = m_namesToUUIDs.constBegin(); entry != m_namesToUUIDs.constEnd(); ++entry)
        if (identities.contains(entry.value()))
            names.insert(entry.key(), entry.value());
    return names;
}

void TKUUIDManager::setUUIDSet(const std::optional<std::unordered_set<Identity>>& used) {
    // Compares only the sizes, deliberately: comparing the members would cost more than the few entries it
    // could remove.
    if (!used || qsizetype(used->size()) == m_namesToUUIDs.size())
        return;
    const auto isNeeded = [&](const Identity& identity) {
        bool isIt = used->contains(identity);
        m_keepers->forEach([&](const IsNeeded& asked) { isIt = isIt || asked(identity); });
        return isIt;
    };
    m_namesToUUIDs.removeIf([&](auto entry) { return !isNeeded(entry.value()); });
    requestSave();
}

void TKUUIDManager::saveData() {
    if (!m_owedWrite)
        return;
    m_owedWrite.reset();
    write();
}

void TKUUIDManager::load() {
    const Result<PropertyListValue> file = PropertyList::readFile(m_path);
    const PropertyListDictionary* entries = file ? file->asDictionary() : nullptr;
    if (!entries) {
        if (file || file.failure().kind != Failure::Kind::NotFound)
            startEmpty(file ? QStringLiteral("no dictionary") : file.failure().text);
        return;
    }
    int damaged = 0;
    m_namesToUUIDs.reserve(qsizetype(entries->size()));
    for (const auto& [key, value] : *entries) {
        const QByteArray* bytes = value.asData();
        if (const auto identity = bytes ? Identity::fromBytes(*bytes) : std::nullopt;
            identity && key.size() <= kLongestKey)
            m_namesToUUIDs.insert(key, *identity);
        else
            ++damaged;
    }
    if (damaged > 0)
        m_log.log(QStringLiteral("%1 entries of the identity registry are not identities and were left out.")
                      .arg(damaged));
}

void TKUUIDManager::startEmpty(const QString& why) {
    const Result<QString> aside = PrivateFiles::setAside(m_path);
    m_log.log(
        QStringLiteral("The identity registry cannot be read and starts empty (%1); it was set aside: %2")
            .arg(why, aside ? *aside : aside.failure().text));
}

void TKUUIDManager::requestSave() {
    if (m_owedWrite && m_owedWrite->isValid())
        return;
    m_owedWrite = m_runLoop.scheduleOnce(kJoiningDelay, [this] { saveData(); });
}

void TKUUIDManager::write() {
    PropertyListDictionary entries;
    entries.reserve(std::size_t(m_namesToUUIDs.size()));
    for (auto entry = m_namesToUUIDs.constBegin(); entry != m_namesToUUIDs.constEnd(); ++entry)
        entries.insert(entry.key(), entry.value().bytes());
    const Outcome outcome = PropertyList::writeXmlFile(std::move(entries), m_path);
    if (outcome)
        return;
    m_log.log(QStringLiteral("The identity registry could not be written: ") + outcome.failure().text);
    requestSave();
}
