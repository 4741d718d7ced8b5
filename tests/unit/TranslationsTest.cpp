// SPDX-License-Identifier: MIT
// Every language has all texts, in the right form, and is found.
#include "platform/foundation/text/Translations.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "tests/Places.h"
#include "tests/fakes/TestEngine.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList kLanguages{u"de"_s, u"es"_s, u"fr"_s, u"ja"_s, u"pl"_s};

struct Message {
    QString key;
    QString text;
    // "unfinished", "vanished", "obsolete"; empty if translated.
    QString state;
};

QString contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

QString catalogueOf(const QString& language) {
    return QStringLiteral(TICKLOG_SOURCE_DIR "/resources/translations/ticklog_%1.ts").arg(language);
}

QList<Message> messagesIn(const QString& language) {
    QXmlStreamReader reader(contentOf(catalogueOf(language)));
    QList<Message> messages;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == u"message"_s)
            messages << Message{};
        else if (reader.name() == u"source"_s)
            messages.last().key = reader.readElementText();
        else if (reader.name() == u"translation"_s) {
            messages.last().state = reader.attributes().value("type"_L1).toString();
            messages.last().text = reader.readElementText();
        }
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(reader.errorString());
    return messages;
}

// What people read where the catalogue's key stands.
QString english(const QString& key) {
    static const QList<Message> messages = messagesIn(u"en"_s);
    for (const Message& message : messages)
        if (message.key == key)
            return message.text;
    return key;
}

// The text of one string literal, or of several in a row.
QString meaningOf(const QString& literals) {
    static const QRegularExpression between(u"(?<!\\\\)\"\\s*\""_s);
    QString text = literals.trimmed();
    text.remove(between).remove(0, 1).chop(1);
    return text.replace("\\n"_L1, "\n"_L1).replace("\\\""_L1, "\""_L1);
}

QSet<QString> keysIn(const QString& source) {
    static const QRegularExpression shown(
        uR"((?:\blocalized\(|QT_TRANSLATE_NOOP\("Ticklog",)\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\))"_s);
    QSet<QString> keys;
    for (auto matches = shown.globalMatch(source); matches.hasNext();)
        keys << meaningOf(matches.next().captured(1));
    return keys;
}

QSet<QString> keysInTheSources() {
    QSet<QString> keys;
    for (const char* folder : {"Classes", "app", "helpers", "interface", "platform"}) {
        QDirIterator files(QStringLiteral(TICKLOG_SOURCE_DIR "/") + QLatin1String(folder),
                           {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            keys |= keysIn(contentOf(files.next()));
    }
    return keys;
}

// All matches of `pattern` in a text, sorted.
QStringList found(const QString& pattern, const QString& text) {
    const QRegularExpression expression(pattern);
    QStringList result;
    for (auto matches = expression.globalMatch(text); matches.hasNext();)
        result << matches.next().captured();
    result.sort();
    return result;
}

// "&Datei" and "ファイル(&F)" have an accelerator; "Security & Privacy" has none.
qsizetype acceleratorsIn(const QString& text) {
    return found(u"&\\w"_s, text).size();
}

class TranslationsTest : public testing::TestWithParam<int> {
protected:
    const QString language = kLanguages[GetParam()];

    template<typename Check>
    void forEveryText(Check check) {
        const QList<Message> messages = messagesIn(language);
        EXPECT_GT(messages.size(), 200);
        for (const Message& message : messages)
            check(message);
    }
};

INSTANTIATE_TEST_SUITE_P(Languages, TranslationsTest, testing::Range(0, int(kLanguages.size())),
                         [](const auto& row) { return kLanguages[row.param].toStdString(); });

TEST(TranslationKeys, areFoundHoweverTheyAreWritten) {
    EXPECT_EQ(keysIn(u"x = localized(\"One \"\n   \"two\\n\\\"%@\\\"\") + localized(\"3\");"_s),
              (QSet<QString>{u"One two\n\"%@\""_s, u"3"_s}));
    EXPECT_EQ(keysIn(u"{1, QT_TRANSLATE_NOOP(\"Ticklog\", \"Red\")}, localized(row.text)"_s),
              QSet<QString>{u"Red"_s});
}

TEST_P(TranslationsTest, hasEveryTextOfTheSourcesAndNoOther) {
    const QSet<QString> wanted = keysInTheSources();
    EXPECT_GT(wanted.size(), 200);
    QSet<QString> there;
    forEveryText([&](const Message& message) {
        EXPECT_FALSE(there.contains(message.key)) << "twice: " << qPrintable(message.key);
        there << message.key;
    });
    for (const QString& key : wanted - there)
        ADD_FAILURE() << qPrintable(key) << "\n  is new: run ./dev translations and translate it";
    for (const QString& key : there - wanted)
        ADD_FAILURE() << qPrintable(key) << "\n  is shown no longer: run ./dev translations";
}

TEST(EnglishTranslations, haveTextsOfTheSourcesThatReadOtherwise) {
    const QSet<QString> wanted = keysInTheSources();
    for (const Message& message : messagesIn(u"en"_s)) {
        EXPECT_TRUE(wanted.contains(message.key)) << qPrintable(message.key) << "\n  is shown no longer";
        EXPECT_NE(message.text, message.key);
        EXPECT_EQ(message.state, QString()) << qPrintable(message.key);
        EXPECT_EQ(acceleratorsIn(message.text), acceleratorsIn(message.key)) << qPrintable(message.text);
        EXPECT_EQ(found(u"%(@|ld|n|\\d)"_s, message.text), found(u"%(@|ld|n|\\d)"_s, message.key));
    }
}

TEST(EnglishTranslations, areThereForWhoeverReadsEnglishOrNoLanguageThatThereIs) {
    for (const QStringList& languages : {QStringList{u"en-GB"_s}, QStringList{u"C"_s}, QStringList()}) {
        const Translations english(languages);
        EXPECT_EQ(localized("Hide Dock Icon"), u"Hide from Task Bar"_s);
        EXPECT_EQ(localized("Quit"), u"Quit"_s);
    }
}

TEST_P(TranslationsTest, leavesNothingUntranslated) {
    forEveryText([](const Message& message) {
        EXPECT_EQ(message.state, QString()) << qPrintable(message.key);
        EXPECT_FALSE(message.text.isEmpty()) << qPrintable(message.key);
    });
}

TEST_P(TranslationsTest, keepsWhatIsFilledIn) {
    forEveryText([](const Message& message) {
        const QString filledIn = u"%(@|ld|n|\\d)"_s;
        EXPECT_EQ(found(filledIn, message.text), found(filledIn, message.key)) << qPrintable(message.text);
    });
}

TEST_P(TranslationsTest, keepsBlanksAtTheEndsAndEllipses) {
    forEveryText([](const Message& message) {
        for (const char* ends : {"^ *", " *$", "…|\\.\\.\\.$", "\n"})
            EXPECT_EQ(found(QString::fromUtf8(ends), message.text),
                      found(QString::fromUtf8(ends), english(message.key)))
                << qPrintable(message.text) << ": " << ends;
        EXPECT_EQ(found(u"[ \u00a0]{2}"_s, message.text), QStringList()) << qPrintable(message.text);
    });
}

// One form of quotation marks and ellipses, and nothing that a desktop like this does not have.
void expectWellWritten(const QString& text) {
    EXPECT_EQ(found(u"\"|'|\\.\\.\\."_s, text), QStringList()) << qPrintable(text);
    EXPECT_EQ(
        found(u"\\bDock\\b|[Mm]enubar|OS X|timer set|System Preferences|[Ss]witch(ed)? (it )?on\\b"_s, text),
        QStringList())
        << qPrintable(text);
}

TEST_P(TranslationsTest, isWrittenByOneHand) {
    forEveryText([](const Message& message) { expectWellWritten(message.text); });
}

TEST(EnglishTranslations, areWrittenByOneHand) {
    for (const QString& key : keysInTheSources())
        expectWellWritten(english(key));
}

TEST_P(TranslationsTest, hasAnAcceleratorWhereEnglishHasOne) {
    forEveryText([](const Message& message) {
        EXPECT_EQ(acceleratorsIn(message.text), acceleratorsIn(message.key)) << qPrintable(message.text);
    });
}

TEST_P(TranslationsTest, insideTheProgram_saysWhatTheCatalogueSays) {
    const Translations translations({language});
    EXPECT_EQ(translations.language(), language);
    forEveryText(
        [](const Message& message) { EXPECT_EQ(localized(message.key.toUtf8().constData()), message.text); });
}

TEST_P(TranslationsTest, textThatIsNotInIt_showsItself) {
    const Translations translations({language});
    EXPECT_EQ(localized("No such text"), u"No such text"_s);
}

std::string languageFor(const QStringList& languages) {
    return Translations(languages).language().toStdString();
}

TEST(Translations, areTheFirstThatThereAre) {
    EXPECT_EQ(languageFor({u"de-AT"_s}), "de");
    EXPECT_EQ(languageFor({u"de_DE"_s, u"fr"_s}), "de");
    EXPECT_EQ(languageFor({u"tlh"_s, u"pl-Latn-PL"_s, u"fr"_s}), "pl");
    EXPECT_EQ(languageFor({u"ja"_s}), "ja");
}

TEST(Translations, areNoneForEnglishEvenIfAnotherLanguageIsNamedAfterIt) {
    EXPECT_EQ(languageFor({u"en-GB"_s, u"de"_s}), "en");
    EXPECT_EQ(languageFor({u"C"_s, u"de"_s}), "en");
    EXPECT_EQ(languageFor({u"tlh"_s}), "en");
    EXPECT_EQ(languageFor({}), "en");
}

TEST(Translations, endWithTheirObject) {
    {
        const Translations german({u"de"_s});
        EXPECT_EQ(localized("Quit"), u"Beenden"_s);
    }
    EXPECT_EQ(localized("Quit"), u"Quit"_s);
}

struct Durations {
    const char* language;
    // For 0, 1, 2, 5 and 22: seconds alone, and hours, minutes and seconds together.
    std::vector<const char*> seconds;
    std::vector<const char*> together;
};

class TranslatedDurationsTest : public testing::TestWithParam<Durations> {};

INSTANTIATE_TEST_SUITE_P(
    Languages, TranslatedDurationsTest,
    testing::Values(
        Durations{"de",
                  {"0 Sekunden", "1 Sekunde", "2 Sekunden", "5 Sekunden", "22 Sekunden"},
                  {"0 Sekunden", "1 Stunde, 1 Minute, 1 Sekunde", "2 Stunden, 2 Minuten, 2 Sekunden",
                   "5 Stunden, 5 Minuten, 5 Sekunden", "22 Stunden, 22 Minuten, 22 Sekunden"}},
        Durations{"fr",
                  {"0 seconde", "1 seconde", "2 secondes", "5 secondes", "22 secondes"},
                  {"0 seconde", "1 heure, 1 minute, 1 seconde", "2 heures, 2 minutes, 2 secondes",
                   "5 heures, 5 minutes, 5 secondes", "22 heures, 22 minutes, 22 secondes"}},
        Durations{"es",
                  {"0 segundos", "1 segundo", "2 segundos", "5 segundos", "22 segundos"},
                  {"0 segundos", "1 hora, 1 minuto, 1 segundo", "2 horas, 2 minutos, 2 segundos",
                   "5 horas, 5 minutos, 5 segundos", "22 horas, 22 minutos, 22 segundos"}},
        // Polish has two plurals ("22 godziny", "5 godzin") for one key: abbreviations suit both.
        Durations{"pl",
                  {"0 sek.", "1 sek.", "2 sek.", "5 sek.", "22 sek."},
                  {"0 sek.", "1 godz., 1 min, 1 sek.", "2 godz., 2 min, 2 sek.", "5 godz., 5 min, 5 sek.",
                   "22 godz., 22 min, 22 sek."}},
        Durations{"ja",
                  {"0秒", "1秒", "2秒", "5秒", "22秒"},
                  {"0秒", "1時間, 1分, 1秒", "2時間, 2分, 2秒", "5時間, 5分, 5秒", "22時間, 22分, 22秒"}}),
    [](const auto& row) { return std::string(row.param.language); });

TEST_P(TranslatedDurationsTest, countRightly) {
    const Translations translations({QLatin1String(GetParam().language)});
    TestEngine engine;
    engine.fakes.defaults.setObject(kIncludeSecondsWhenCopyingTime, true);
    const std::vector<double> counts{0, 1, 2, 5, 22};
    for (std::size_t row = 0; row < counts.size(); ++row) {
        const double count = counts[row];
        EXPECT_EQ(engine.tracker.humanTimeStringForDouble(count), QString::fromUtf8(GetParam().seconds[row]));
        EXPECT_EQ(engine.tracker.humanTimeStringForDouble(3661 * count),
                  QString::fromUtf8(GetParam().together[row]));
    }
}

} // namespace
