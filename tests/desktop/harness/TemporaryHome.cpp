// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/TemporaryHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

TemporaryHome::TemporaryHome()
    : m_folder(QDir::tempPath() + QStringLiteral("/ticklog-test-XXXXXX")) {
    for (const QString& folder : {dataFolder(), configurationFolder(), runtimeFolder()})
        QDir().mkpath(folder);
    QFile::setPermissions(runtimeFolder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString TemporaryHome::path() const {
    return m_folder.path();
}

QProcessEnvironment TemporaryHome::environment() const {
    QProcessEnvironment environment;
    const QProcessEnvironment inherited = QProcessEnvironment::systemEnvironment();
    for (const QString& name :
         {QStringLiteral("PATH"), QStringLiteral("TMPDIR"), QStringLiteral("USER"), QStringLiteral("LOGNAME"),
          QStringLiteral("LD_LIBRARY_PATH"), QStringLiteral("ASAN_OPTIONS"), QStringLiteral("UBSAN_OPTIONS"),
          QStringLiteral("LSAN_OPTIONS")}) {
        if (inherited.contains(name))
            environment.insert(name, inherited.value(name));
    }
    environment.insert(QStringLiteral("HOME"), path());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), dataFolder());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), configurationFolder());
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), path() + QStringLiteral("/cache"));
    environment.insert(QStringLiteral("XDG_STATE_HOME"), path() + QStringLiteral("/state"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeFolder());
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    // Desktop programs must not look for a settings service on a bus that is not there.
    environment.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
    return environment;
}

void TemporaryHome::write(const QString& relativePath, const QByteArray& content) const {
    const QString full = path() + u'/' + relativePath;
    QDir().mkpath(QFileInfo(full).path());
    QFile file(full);
    if (!file.open(QFile::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(full));
}
