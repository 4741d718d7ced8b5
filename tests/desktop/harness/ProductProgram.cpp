// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/ProductProgram.h"

#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/Places.h"

#include <QDir>

#include <csignal>

namespace {

PropertyListDictionary readDictionary(const QString& path) {
    const Result<PropertyListValue> file = PropertyList::readFile(path);
    const PropertyListDictionary* dictionary = file ? file->asDictionary() : nullptr;
    return dictionary ? *dictionary : PropertyListDictionary();
}

PropertyListArray arrayAt(const PropertyListDictionary& dictionary, const QString& key) {
    const PropertyListArray* array = dictionary.value(key).asArray();
    return array ? *array : PropertyListArray();
}

} // namespace

PropertyListDictionary ProductProgram::runningSettings() {
    return {{QStringLiteral("kTKWasTimerRunning"), true}, {QStringLiteral("enableIdleDetection"), false}};
}

QString ProductProgram::settingsPath() const {
    return m_home.configurationFolder() + QStringLiteral("/org.ticklog.Ticklog.plist");
}

QString ProductProgram::databasePath() const {
    return m_home.dataFolder() + QStringLiteral("/Ticklog/Primary Database.tkd");
}

void ProductProgram::writeSettings(const PropertyListDictionary& settings) const {
    QDir().mkpath(m_home.configurationFolder());
    static_cast<void>(PropertyList::writeXmlFile(settings, settingsPath()));
}

PropertyListDictionary ProductProgram::settings() const {
    return readDictionary(settingsPath());
}

void ProductProgram::launch(QProcessEnvironment environment, const QStringList& arguments,
                            Program::Output output) {
    for (auto variable = m_variables.cbegin(); variable != m_variables.cend(); ++variable)
        environment.insert(variable.key(), variable.value());
    m_program = std::make_unique<Program>(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog"), arguments,
                                          environment, output);
}

std::optional<int> ProductProgram::end(int signal) {
    ::kill(pid_t(m_program->processIdentifier()), signal);
    m_program->waitUntilEnded();
    return m_program->exitStatus();
}

PropertyListDictionary ProductProgram::database() const {
    return readDictionary(databasePath());
}

QMap<QString, double> ProductProgram::applicationTimes() const {
    QMap<QString, double> times;
    const PropertyListDictionary file = database();
    for (const PropertyListValue& entry : arrayAt(file, QStringLiteral("Apps")))
        if (const auto* app = entry.asDictionary()->value(QStringLiteral("App")).asDictionary())
            times[app->value(QStringLiteral("Name")).toString()] +=
                app->value(QStringLiteral("ActiveTime")).number().value_or(0);
    return times;
}

QMap<QString, double> ProductProgram::windowTimes(const QString& application) const {
    QMap<QString, double> times;
    const PropertyListDictionary file = database();
    for (const PropertyListValue& entry : arrayAt(file, QStringLiteral("Apps"))) {
        const auto* app = entry.asDictionary()->value(QStringLiteral("App")).asDictionary();
        if (!app || app->value(QStringLiteral("Name")).toString() != application)
            continue;
        for (const PropertyListValue& window : arrayAt(*entry.asDictionary(), QStringLiteral("Windows")))
            if (const auto* record = window.asDictionary())
                times[record->value(QStringLiteral("Name")).toString()] =
                    record->value(QStringLiteral("ActiveTime")).number().value_or(0);
    }
    return times;
}
