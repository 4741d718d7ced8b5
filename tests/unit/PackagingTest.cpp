// SPDX-License-Identifier: MIT
// The files by which desktops, software centres and services know Ticklog: they must agree, in every
// language.
#include "tests/Places.h"

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString sourceOf(const QString& path) {
    QFile file(u"" TICKLOG_SOURCE_DIR "/"_s + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

QString contentOf(const QString& path) {
    return sourceOf(u"resources/"_s + path);
}

// Those that the program speaks besides English, in order.
QStringList languages() {
    QStringList found;
    for (const QString& name : QDir(u"" TICKLOG_SOURCE_DIR "/resources/translations"_s)
                                   .entryList({u"ticklog_*.ts"_s}, QDir::Files, QDir::Name))
        found << name.section(u'_', 1).section(u'.', 0, 0);
    found.removeOne(u"en"_s);
    EXPECT_GE(found.size(), 5);
    return found;
}

// The texts of all elements of a name, by language; English has none.
QMap<QString, QStringList> textsOf(const QString& file, const QString& element) {
    QMap<QString, QStringList> texts;
    QXmlStreamReader reader(contentOf(file));
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != element)
            continue;
        const QString language = reader.attributes().value(u"xml:lang"_s).toString();
        texts[language] << reader.readElementText().simplified();
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    return texts;
}

// Each language must have as many texts as English, each once.
void expectInEveryLanguage(const QString& file, const QString& element) {
    SCOPED_TRACE(qPrintable(file + u": "_s + element));
    const auto texts = textsOf(file, element);
    EXPECT_EQ(texts.keys().mid(1), languages());
    QStringList all;
    for (const QStringList& those : texts) {
        EXPECT_EQ(those.size(), texts.value(QString()).size());
        all << those;
    }
    EXPECT_FALSE(all.contains(QString()));
}

QStringList matches(const QString& pattern, const QString& text) {
    QStringList found;
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found << match.next().captured(1);
    return found;
}

TEST(Packaging, theDesktopEntry_speaksEveryLanguage) {
    const QString entry = contentOf(u"org.ticklog.Ticklog.desktop"_s);
    for (const QString& key : {u"GenericName"_s, u"Comment"_s, u"Keywords"_s}) {
        EXPECT_EQ(matches(u'^' + key + u"\\[(\\w+)\\]=.+$"_s, entry), languages()) << qPrintable(key);
        EXPECT_EQ(matches(u'^' + key + u"(=).+$"_s, entry).size(), 1) << qPrintable(key);
    }
    EXPECT_EQ(matches(u"^Name(.*)$"_s, entry), QStringList{u"=Ticklog"_s}) << "a name is no word";
}

TEST(Packaging, theDescriptionForSoftwareCentres_speaksEveryLanguage) {
    const QString file = u"org.ticklog.Ticklog.metainfo.xml"_s;
    for (const QString& element : {u"summary"_s, u"p"_s, u"keyword"_s})
        expectInEveryLanguage(file, element);
    EXPECT_EQ(textsOf(file, u"lang"_s).value(QString()), languages());
    EXPECT_EQ(textsOf(file, u"name"_s), (QMap<QString, QStringList>{{QString(), {u"Ticklog"_s}}}));
}

TEST(Packaging, theQuestionsOfPolkit_speakEveryLanguageAndNameTheProgram) {
    const QString file = u"system/org.ticklog.TKAXTrusted.policy"_s;
    expectInEveryLanguage(file, u"description"_s);
    expectInEveryLanguage(file, u"message"_s);
    for (const QStringList& messages : textsOf(file, u"message"_s))
        for (const QString& message : messages)
            EXPECT_EQ(message.count(u"$(program)"_s), 1) << qPrintable(message);
}

TEST(Packaging, theKindOfItsFiles_isNamedInEveryLanguage) {
    expectInEveryLanguage(u"org.ticklog.Ticklog.mime.xml"_s, u"comment"_s);
}

TEST(Packaging, softwareCentresAndMenus_sayTheSame) {
    const QString entry = contentOf(u"org.ticklog.Ticklog.desktop"_s);
    const auto summaries = textsOf(u"org.ticklog.Ticklog.metainfo.xml"_s, u"summary"_s);
    const auto keywords = textsOf(u"org.ticklog.Ticklog.metainfo.xml"_s, u"keyword"_s);
    for (const QString& language : QStringList{QString()} + languages()) {
        const QString suffix = language.isEmpty() ? QString() : u'[' + language + u']';
        EXPECT_TRUE(entry.contains(u"\nComment"_s + suffix + u'=' + summaries[language].value(0) + u'\n'))
            << qPrintable(language);
        EXPECT_TRUE(
            entry.contains(u"\nKeywords"_s + suffix + u'=' + keywords[language].join(u';') + u";\n"_s))
            << qPrintable(language);
    }
}

TEST(Packaging, whatTheBusStarts_isWhatTheDesktopEntryStarts) {
    const QString entry = contentOf(u"org.ticklog.Ticklog.desktop"_s);
    const QString service = contentOf(u"org.ticklog.Ticklog.service"_s);
    EXPECT_EQ(matches(u"^DBusActivatable=(.*)$"_s, entry), QStringList{u"true"_s});
    EXPECT_EQ(matches(u"^Exec=(.*)$"_s, entry), QStringList{u"ticklog %f"_s});
    // By the bus files come in messages.
    EXPECT_EQ(matches(u"^Exec=(.*)$"_s, service), QStringList{u"ticklog"_s});
    EXPECT_EQ(matches(u"^Name=(.*)$"_s, service), QStringList{u"org.ticklog.Ticklog"_s})
        << "the bus and launchers know it by the name of the entry";
}

// What the sandbox lets Ticklog reach.
QStringList flatpakPermissions() {
    const QString manifest = sourceOf(u"packaging/flatpak/org.ticklog.Ticklog.yaml"_s);
    const QString list = matches(u"^finish-args:\\n((?:  - .*\\n)+)"_s, manifest).value(0);
    const QStringList permissions = matches(u"^  - (\\S+)$"_s, list);
    EXPECT_FALSE(permissions.isEmpty());
    EXPECT_EQ(permissions.size(), list.count(u'\n'));
    return permissions;
}

TEST(Packaging, thePermissionsInFlatpak_areEachExplained) {
    EXPECT_EQ(matches(u"^\\| `(--[^`]+)` \\| \\S.+ \\|$"_s, sourceOf(u"docs/flatpak.md"_s)),
              flatpakPermissions())
        << "each permission has a line in the page, in the same order";
}

TEST(Packaging, inFlatpak_neitherNetworkNorFilesNorWholeBusesAreReached) {
    for (const QString& permission : flatpakPermissions())
        EXPECT_TRUE(
            QRegularExpression(
                u"^(--share=ipc|--socket=(wayland|fallback-x11)|--(system-)?talk-name=[A-Za-z0-9.]+)$"_s)
                .match(permission)
                .hasMatch())
            << qPrintable(permission);
}

TEST(Packaging, theNamesThatFlatpakLetsReach_areThoseThatTheSourcesCall) {
    QString sources;
    QDirIterator files(u"" TICKLOG_SOURCE_DIR "/platform"_s, {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        sources += QString::fromUtf8(file.readAll());
    }
    for (const QString& name : flatpakPermissions().filter(u"talk-name"_s))
        EXPECT_TRUE(sources.contains(u'"' + name.section(u'=', 1) + u'"')) << qPrintable(name);
}

// What bash offers behind the words that it makes of a command line; the last one is being typed.
std::string offered(const QStringList& words) {
    QProcess bash;
    bash.start(QStringLiteral("bash"),
               QStringList{QStringLiteral("-c"),
                           QStringLiteral(". '" TICKLOG_SOURCE_DIR "/resources/completions/ticklog-report'\n"
                                          "compopt() { echo -n \"bash's own: $*\"; }\n"
                                          "COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _ticklog_report\n"
                                          "echo -n \"${COMPREPLY[*]}\""),
                           QStringLiteral("bash"), QStringLiteral("ticklog-report")} +
                   words);
    EXPECT_TRUE(bash.waitForFinished());
    return bash.readAllStandardOutput().toStdString();
}

TEST(Packaging, theValueOfAnOption_isCompletedAlsoBehindAnEqualsSign) {
    const QString format = QStringLiteral("--format");
    const QString sign = QStringLiteral("=");
    EXPECT_EQ(offered({format, QString()}), "table csv json ics");
    EXPECT_EQ(offered({format, sign}), "table csv json ics");
    EXPECT_EQ(offered({format, sign, QString()}), "table csv json ics");
    EXPECT_EQ(offered({format, sign, QStringLiteral("c")}), "csv");
    EXPECT_EQ(offered({QStringLiteral("--fo")}), "--format");
}

TEST(Packaging, theNameOfAFile_isCompletedAndQuotedByBash) {
    for (const QStringList& words :
         {QStringList{u"--history"_s, u"His"_s}, {u"--history"_s, u"="_s, u"His"_s}})
        EXPECT_EQ(offered(words), "bash's own: -o default");
}

TEST(Packaging, zshCompletesAValueAlsoBehindAnEqualsSign) {
    const QString completion = contentOf(u"completions/_ticklog-report"_s);
    // "--by=[what it is]:what follows:" takes its value from the next word or from the same; without the sign only
    // from the next.
    static const QRegularExpression taking(u"--([a-z]+)(=?)\\[[^]]*\\]:"_s);
    int options = 0;
    for (const QRegularExpressionMatch& option : taking.globalMatch(completion)) {
        ++options;
        EXPECT_EQ(option.captured(2), u"="_s) << qPrintable(option.captured(1));
    }
    EXPECT_EQ(options, 8);
}

} // namespace
