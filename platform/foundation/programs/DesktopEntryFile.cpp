// SPDX-License-Identifier: MIT
#include "platform/foundation/programs/DesktopEntryFile.h"

#include <QFile>

#include <utility>

namespace {

// Many times the size of an entry in all languages.
constexpr qint64 kLongestFile = 256 * 1024;

// Undoes the escapes that are allowed in every value.
QString unescaped(const QString& value) {
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value.at(i) != u'\\' || i + 1 == value.size()) {
            text += value.at(i);
            continue;
        }
        switch (value.at(++i).unicode()) {
        case u's':
            text += u' ';
            break;
        case u'n':
            text += u'\n';
            break;
        case u't':
            text += u'\t';
            break;
        case u'r':
            text += u'\r';
            break;
        default:
            text += value.at(i);
        }
    }
    return text;
}

} // namespace

namespace DesktopEntryFile {

std::optional<Group> read(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly) || file.size() > kLongestFile)
        return std::nullopt;
    return mainGroup(file.read(kLongestFile));
}

Group mainGroup(const QByteArray& content) {
    Group values;
    bool isMain = false;
    for (const QByteArray& raw : content.split('\n')) {
        const QByteArray line = raw.trimmed();
        if (line.startsWith('[')) {
            isMain = line == "[Desktop Entry]";
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        if (!isMain || equals <= 0 || line.startsWith('#'))
            continue;
        const QString key = QString::fromUtf8(line.first(equals).trimmed());
        if (!values.contains(key))
            values.insert(key, unescaped(QString::fromUtf8(line.mid(equals + 1).trimmed())));
    }
    return values;
}

QStringList commandWords(const QString& exec) {
    QStringList words;
    QString word;
    bool isQuoted = false;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar character = exec.at(i);
        if (character == u'"') {
            isQuoted = !isQuoted;
        } else if (character == u'\\' && isQuoted && i + 1 < exec.size()) {
            word += exec.at(++i);
        } else if (character == u' ' && !isQuoted) {
            if (!word.isEmpty())
                words << std::exchange(word, {});
        } else {
            word += character;
        }
    }
    if (!word.isEmpty())
        words << word;
    return words;
}

} // namespace DesktopEntryFile
