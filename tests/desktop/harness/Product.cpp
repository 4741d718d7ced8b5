// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/Product.h"

#include "platform/foundation/PropertyList.h"

#include <QDir>

#include <csignal>

namespace {

PropertyListDictionary readDictionary(const QString& path) {
    const Result<PropertyListValue> file = PropertyList::readFile(path);
    const PropertyListDictionary* dictionary = file ? file->asDictionary() : nullptr;
    return dictionary ? *dictionary : PropertyListDictionary();
}

const PropertyListArray& arrayAt(const PropertyListDictionary& dictionary, const QString& key) {
    static const PropertyListArray kEmpty;
    const PropertyListArray* array = dictionary.value(key).asArray();
    return array ? *array : kEmpty;
}

} // namespace

PropertyListDictionary Product::runningSettings() {
    return {{QStringLiteral("kTKWasTimerRunning"), true}, {QStringLiteral("enableIdleDetection"), false}};
}

QString Product::settingsPath() const {
    return m_desk.home().configurationFolder() + QStringLiteral("/org.ticklog.Ticklog.plist");
}

QString Product::databasePath() const {
    return m_desk.home().dataFolder() + QStringLiteral("/Ticklog/Primary Database.tkd");
}

void Product::writeSettings(const PropertyListDictionary& settings) const {
    QDir().mkpath(m_desk.home().configurationFolder());
    static_cast<void>(PropertyList::writeXmlFile(settings, settingsPath()));
}

PropertyListDictionary Product::settings() const {
    return readDictionary(settingsPath());
}

bool Product::start(const QStringList& arguments) {
    QProcessEnvironment environment = m_desk.environment();
    for (auto variable = m_variables.cbegin(); variable != m_variables.cend(); ++variable)
        environment.insert(variable.key(), variable.value());
    m_program =
        std::make_unique<Program>(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog"), arguments, environment);
    // A window manager puts a new window in front, which must not happen after the test has begun.
    return waitFor([this] { return hasWindow() && m_desk.probe().activeWindow() == window(); });
}

bool Product::bringToFront(XClient& client, xcb_window_t window) const {
    return waitFor([&] {
        if (m_desk.probe().activeWindow() == window)
            return true;
        client.activate(window);
        return false;
    });
}

xcb_window_t Product::window() const {
    for (const xcb_window_t window : m_desk.probe().windows())
        if (m_desk.probe().text(window, "_NET_WM_NAME") == "Ticklog")
            return window;
    return 0;
}

std::optional<int> Product::end(int signal) {
    ::kill(pid_t(m_program->processIdentifier()), signal);
    m_program->waitUntilEnded();
    return m_program->exitStatus();
}

PropertyListDictionary Product::database() const {
    return readDictionary(databasePath());
}

QMap<QString, double> Product::applicationTimes() const {
    QMap<QString, double> times;
    const PropertyListDictionary file = database();
    for (const PropertyListValue& entry : arrayAt(file, QStringLiteral("Apps")))
        if (const auto* app = entry.asDictionary()->value(QStringLiteral("App")).asDictionary())
            times[app->value(QStringLiteral("Name")).toString()] +=
                app->value(QStringLiteral("ActiveTime")).number().value_or(0);
    return times;
}

QMap<QString, double> Product::windowTimes(const QString& application) const {
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
