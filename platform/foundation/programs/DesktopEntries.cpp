// SPDX-License-Identifier: MIT
#include "platform/foundation/programs/DesktopEntries.h"

#include "platform/foundation/programs/DesktopEntryFile.h"
#include "platform/foundation/text/CleanText.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace {

constexpr std::chrono::seconds kTimeBetweenLooks{30};
constexpr int kDeepestFolder = 4;

// These programs start others, so they do not identify what they run.
bool runsOtherPrograms(const QString& executable) {
    static const QStringList kLaunchers{
        QStringLiteral("env"),  QStringLiteral("sh"),      QStringLiteral("bash"), QStringLiteral("dash"),
        QStringLiteral("perl"), QStringLiteral("flatpak"), QStringLiteral("snap"), QStringLiteral("java"),
        QStringLiteral("node"), QStringLiteral("gjs"),     QStringLiteral("wine"), QStringLiteral("electron"),
        QStringLiteral("ruby"), QStringLiteral("pkexec"),  QStringLiteral("mono"), QStringLiteral("bwrap"),
    };
    return kLaunchers.contains(executable) || executable.startsWith(u"python");
}

QString fileName(const QString& path) {
    return QFileInfo(path).fileName();
}

QString lettersAndDigits(const QString& text) {
    QString kept;
    std::ranges::copy_if(text.toCaseFolded(), std::back_inserter(kept),
                         [](QChar character) { return character.isLetterOrNumber(); });
    return kept;
}

// "org.gnome.Nautilus" belongs to "nautilus", "Gimp" to "gimp-2.10".
bool hasToDoWith(const QString& windowClass, const QString& program) {
    constexpr qsizetype kTelling = 3;
    QString shorter = lettersAndDigits(windowClass);
    QString longer = lettersAndDigits(program);
    if (shorter.size() > longer.size())
        shorter.swap(longer);
    return shorter == longer || (shorter.size() >= kTelling && longer.contains(shorter));
}

bool isGivenOnPurpose(const QString& windowClass, const QString& program) {
    return !windowClass.isEmpty() && !program.isEmpty() && !runsOtherPrograms(program) &&
           !runsOtherPrograms(windowClass.toLower()) && !hasToDoWith(windowClass, program);
}

// The program of a command line and its arguments, without the words before it that set its environment.
QStringList programAndArguments(const QString& command) {
    QStringList words = DesktopEntryFile::commandWords(command);
    if (!words.isEmpty() && fileName(words.first()) == u"env") {
        words.removeFirst();
        while (!words.isEmpty() && (words.first().contains(u'=') || words.first().startsWith(u'-')))
            words.removeFirst();
    }
    return words;
}

// Whether the program gets more arguments than the files to open.
bool hasOptions(const QStringList& programAndArguments) {
    return std::ranges::any_of(programAndArguments.sliced(std::min<qsizetype>(1, programAndArguments.size())),
                               [](const QString& argument) { return !argument.startsWith(u'%'); });
}

qint64 modificationTime(const QString& folder) {
    const QDateTime time = QFileInfo(folder).lastModified();
    return time.isValid() ? time.toMSecsSinceEpoch() : 0;
}

} // namespace

QStringList DesktopEntries::Places::languagesOfLocale(const QString& locale) {
    QString rest = locale;
    QString modifier;
    if (const qsizetype at = rest.indexOf(u'@'); at >= 0) {
        modifier = rest.mid(at);
        rest.truncate(at);
    }
    if (const qsizetype dot = rest.indexOf(u'.'); dot >= 0)
        rest.truncate(dot);
    if (rest.isEmpty() || rest == u"C" || rest == u"POSIX")
        return {};
    QStringList languages;
    const QString language = rest.section(u'_', 0, 0);
    if (!modifier.isEmpty())
        languages << rest + modifier;
    languages << rest;
    if (!modifier.isEmpty() && language != rest)
        languages << language + modifier;
    languages << language;
    languages.removeDuplicates();
    return languages;
}

DesktopEntries::Places DesktopEntries::Places::forUser() {
    Places places;
    const QString home = qEnvironmentVariable("XDG_DATA_HOME");
    places.dataFolders << (home.startsWith(u'/') ? home : QDir::homePath() + QStringLiteral("/.local/share"));
    const QString shared = qEnvironmentVariable("XDG_DATA_DIRS");
    places.dataFolders << (shared.isEmpty() ? QStringLiteral("/usr/local/share:/usr/share") : shared)
                              .split(u':', Qt::SkipEmptyParts);
    QString locale;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (locale.isEmpty())
            locale = qEnvironmentVariable(name);
    }
    const QStringList ofLocale = languagesOfLocale(locale);
    // As gettext does: the list of languages counts only if a locale is set.
    if (!ofLocale.isEmpty()) {
        for (const QString& preferred : qEnvironmentVariable("LANGUAGE").split(u':', Qt::SkipEmptyParts))
            places.languages << languagesOfLocale(preferred);
    }
    places.languages << ofLocale;
    places.languages.removeDuplicates();
    return places;
}

DesktopEntries::DesktopEntries(Places places, const Clock& clock)
    : m_places(std::move(places))
    , m_clock(clock) {}

std::optional<QString> DesktopEntries::nameForWindow(const QStringList& classes, const QString& executable) {
    const QString question = classes.join(u'\n') + u'\n' + executable;
    auto answer = m_answers.constFind(question);
    if (answer == m_answers.constEnd() || answer->isNull()) {
        // An entry may have been installed since the last search.
        scanIfChanged();
        answer = m_answers.insert(question, find(classes, executable).value_or(QString()));
    }
    return answer->isNull() ? std::nullopt : std::optional(*answer);
}

std::optional<QString> DesktopEntries::nameForExecutable(const QString& executable) {
    return nameForWindow({}, executable);
}

std::optional<QString> DesktopEntries::iconOf(const QString& program) {
    scanIfChanged();
    const QString folded = program.toCaseFolded();
    for (const auto* index : {&m_byName, &m_byStartupClass, &m_byId, &m_byExecutable}) {
        const auto entry =
            index->constFind(index == &m_byName || index == &m_byExecutable ? program : folded);
        if (entry != index->constEnd() && !m_entries[*entry].icon.isEmpty())
            return m_entries[*entry].icon;
    }
    return std::nullopt;
}

bool DesktopEntries::knows(const QStringList& classes) const {
    return std::ranges::any_of(classes, [&](const QString& name) {
        const QString folded = name.toCaseFolded();
        return m_byStartupClass.contains(folded) || m_byId.contains(folded);
    });
}

std::optional<QString> DesktopEntries::find(const QStringList& classes, const QString& executable) {
    const QString program = fileName(executable);
    const bool isOnPurpose = !classes.isEmpty() && isGivenOnPurpose(classes.last(), program);
    for (const auto* index : {&m_byStartupClass, &m_byId}) {
        for (const QString& windowClass : classes) {
            const auto entry = index->constFind(windowClass.toCaseFolded());
            // All other names that it gives itself are the usual names of the program.
            const bool isUsual = isOnPurpose && hasToDoWith(windowClass, program);
            if (!windowClass.isEmpty() && !isUsual && entry != index->constEnd())
                return m_entries[*entry].name;
        }
    }
    if (isOnPurpose)
        return std::nullopt;
    // A suite's windows have the name of its program as their class until they have one of their own.
    for (const QString& windowClass : classes)
        if (const Entry* behind = entryBehind(windowClass.toCaseFolded()))
            return behind->name;
    if (program.isEmpty() || runsOtherPrograms(program))
        return std::nullopt;
    if (const auto entry = m_byExecutable.constFind(program); entry != m_byExecutable.constEnd())
        return m_entries[*entry].name;
    const Entry* behind = entryBehind(program);
    return behind ? std::optional(behind->name) : std::nullopt;
}

// Where menus start a program by another name: /usr/bin/libreoffice is a link to a script called soffice, which starts
// soffice.bin.
const DesktopEntries::Entry* DesktopEntries::entryBehind(const QString& program) {
    if (!m_byLinkedFile) {
        m_byLinkedFile.emplace();
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            const QFileInfo command(QStandardPaths::findExecutable(m_entries[i].executable));
            if (m_entries[i].executable.isEmpty() || !command.isSymLink())
                continue;
            const QString file = fileName(command.canonicalFilePath());
            const auto there = m_byLinkedFile->constFind(file);
            if (there == m_byLinkedFile->constEnd() || m_entries[i].remoteness < m_entries[*there].remoteness)
                m_byLinkedFile->insert(file, i);
        }
    }
    const QString started = program.endsWith(u".bin") ? program.chopped(4) : program;
    const auto entry = m_byLinkedFile->constFind(started);
    const bool isFound = entry != m_byLinkedFile->constEnd() && !runsOtherPrograms(started);
    return isFound ? &m_entries[*entry] : nullptr;
}

bool DesktopEntries::isChanged() const {
    return std::ranges::any_of(
        m_folders, [](const Folder& folder) { return modificationTime(folder.path) != folder.modified; });
}

void DesktopEntries::scanIfChanged() {
    const std::chrono::nanoseconds now = m_clock.monotonic();
    if (m_lastLook && now - *m_lastLook < kTimeBetweenLooks)
        return;
    const bool isFirst = !m_lastLook;
    m_lastLook = now;
    if (isFirst || isChanged())
        scan();
}

void DesktopEntries::scan() {
    m_entries.clear();
    m_byStartupClass.clear();
    m_byId.clear();
    m_byExecutable.clear();
    m_byName.clear();
    m_byLinkedFile.reset();
    m_folders.clear();
    m_answers.clear();
    for (const QString& folder : m_places.dataFolders)
        scanFolder(folder + QStringLiteral("/applications"), {}, 0);
}

void DesktopEntries::scanFolder(const QString& folder, const QString& idPrefix, int depth) {
    m_folders.push_back({folder, modificationTime(folder)});
    const auto found =
        QDir(folder).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& file : found) {
        if (file.isDir() && depth < kDeepestFolder)
            scanFolder(file.filePath(), idPrefix + file.fileName() + u'-', depth + 1);
        else if (file.fileName().endsWith(u".desktop") && file.isFile())
            addEntry(file.filePath(), idPrefix + file.completeBaseName());
    }
}

void DesktopEntries::addEntry(const QString& path, const QString& id) {
    const QString foldedId = id.toCaseFolded();
    // The entry in a more important folder replaces all others with this id.
    if (m_byId.contains(foldedId))
        return;
    const std::optional<Entry> entry = readEntry(path);
    if (!entry)
        return;
    const std::size_t index = m_entries.size();
    m_entries.push_back(*entry);
    m_byId.insert(foldedId, index);
    const auto enter = [&](QHash<QString, std::size_t>& hash, const QString& key) {
        const auto there = hash.constFind(key);
        if (!key.isEmpty() && (there == hash.constEnd() || entry->remoteness < m_entries[*there].remoteness))
            hash.insert(key, index);
    };
    enter(m_byStartupClass, entry->startupClass.toCaseFolded());
    enter(m_byExecutable, entry->executable);
    enter(m_byName, entry->name);
    enter(m_byName, entry->plainName);
}

std::optional<DesktopEntries::Entry> DesktopEntries::readEntry(const QString& path) const {
    const auto read = DesktopEntryFile::read(path);
    if (!read)
        return std::nullopt;
    const DesktopEntryFile::Group& values = *read;
    if (values.value(QStringLiteral("Type"), QStringLiteral("Application")) != u"Application")
        return std::nullopt;
    Entry entry;
    for (const QString& language : m_places.languages) {
        if (entry.name.isEmpty())
            entry.name = values.value(QStringLiteral("Name[") + language + u']');
    }
    entry.plainName = cleanText(values.value(QStringLiteral("Name")));
    entry.name = entry.name.isEmpty() ? entry.plainName : cleanText(entry.name);
    if (entry.name.isEmpty())
        return std::nullopt;
    const auto isTrue = [&](const char* key) { return values.value(QLatin1String(key)) == u"true"; };
    entry.icon = values.value(QStringLiteral("Icon"));
    entry.startupClass = values.value(QStringLiteral("StartupWMClass"));
    const QStringList command = programAndArguments(values.value(QStringLiteral("Exec")));
    entry.remoteness = (isTrue("NoDisplay") || isTrue("Hidden") ? 2 : 0) + (hasOptions(command) ? 1 : 0);
    // A terminal program's windows belong to the terminal.
    if (!isTrue("Terminal")) {
        entry.executable = fileName(command.value(0));
        const QString tried = values.value(QStringLiteral("TryExec"));
        if (entry.executable.isEmpty() || (runsOtherPrograms(entry.executable) && !tried.isEmpty()))
            entry.executable = fileName(tried);
    }
    return entry;
}
