// SPDX-License-Identifier: MIT
// Rules of the house that no compiler checks. A line that breaks one is reported with its place, the reason,
// and what to write instead.
#include "tests/Places.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

struct SourceFile {
    // From the root of the repository.
    QString path;
    QStringList lines;
};

// What a line must not contain. Some patterns are split in two, because this file would break its own rule.
struct LineRule {
    QString files;
    QString except;
    QString forbidden;
    QString brokenBy;
    QString why;
};

const QString kProduct = QStringLiteral("^(app|Classes|helpers|interface|platform)/");
const QString kSources = QStringLiteral("\\.(cpp|h)$");
const QString kNothing = QStringLiteral("^$");

bool isMatch(const QString& pattern, const QString& text) {
    return QRegularExpression(pattern).match(text).hasMatch();
}

QStringList linesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(u'\n');
}

void collect(const QDir& root, const QString& folder, std::vector<SourceFile>& files) {
    const QString written =
        QStringLiteral("\\.(cpp|h|js|md|cmake|txt|json|sh|awk|desktop|xml|qrc|supp)$|^dev$|^\\.ci/");
    const QDir::Filters all =
        QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks;
    for (const QFileInfo& entry : QDir(folder).entryInfoList(all)) {
        const QString path = root.relativeFilePath(entry.filePath());
        if (entry.isDir()) {
            if (path != QLatin1String("build") && path != QLatin1String(".git"))
                collect(root, entry.filePath(), files);
        } else if (isMatch(written, path)) {
            files.push_back({path, linesOf(entry.filePath())});
        }
    }
}

// All files that people write and read here; nothing that was built, and no pictures.
std::vector<SourceFile> repository() {
    const QDir root(QStringLiteral(TICKLOG_SOURCE_DIR));
    std::vector<SourceFile> files;
    collect(root, root.path(), files);
    return files;
}

void report(const SourceFile& file, qsizetype line, const QString& why) {
    const QString text = line > 0 ? file.lines[line - 1].trimmed() : QString();
    const QByteArray path = QStringLiteral(TICKLOG_SOURCE_DIR "/%1").arg(file.path).toUtf8();
    ADD_FAILURE_AT(path.constData(), int(line)) << qPrintable(text) << "\n  " << qPrintable(why);
}

void expectKept(const LineRule& rule) {
    const QRegularExpression forbidden(rule.forbidden);
    // A rule that catches nothing is useless: it must catch its own example.
    ASSERT_TRUE(forbidden.match(rule.brokenBy).hasMatch()) << qPrintable(rule.brokenBy);
    int checked = 0;
    for (const SourceFile& file : repository()) {
        if (!isMatch(rule.files, file.path) || isMatch(rule.except, file.path))
            continue;
        ++checked;
        for (qsizetype line = 1; line <= file.lines.size(); ++line)
            if (forbidden.match(file.lines[line - 1]).hasMatch())
                report(file, line, rule.why);
    }
    EXPECT_GT(checked, 0) << "no file is checked: has the folder moved?";
}

} // namespace

TEST(HouseRules, theAccount_knowsNoScreenAndNoBus) {
    expectKept(
        {QStringLiteral("^(Classes/|platform/foundation/|platform/[^/]+$)"), kNothing,
         QStringLiteral(
             "#include [<\"](xcb|X11|wayland|Qt(Gui|Widgets|DBus)/|QDBus|QWidget|Q(Gui)?Application>)"),
         QStringLiteral("#include <xcb/xcb.h>"),
         QStringLiteral("it must run without a desktop: ask for what it needs through a port in platform/")});
}

TEST(HouseRules, theInterface_reachesTheDesktopThroughPorts) {
    expectKept(
        {QStringLiteral("^(interface|platform/[^/]+$)"), kNothing,
         QStringLiteral("#include [<\"](xcb|X11|wayland)"), QStringLiteral("#include <X11/Xlib.h>"),
         QStringLiteral("the same window must work under X and Wayland: put the call into a back end")});
}

TEST(HouseRules, foreignText_isShownThroughPlainText) {
    expectKept({QStringLiteral("^interface/"), QStringLiteral("^interface/shell/PlainText\\."),
                QStringLiteral("new QLabel\\b|public QLabel\\b|\\bQLabel [a-z]\\w*[;({]|"
                               "setToolTip\\((?!localized\\(|PlainText::|const )|setStatusTip|setWhatsThis|"
                               "QMessageBox::(about|critical|information|question|warning)|QToolTip::"),
                QStringLiteral("row->setToolTip(window.title());"),
                QStringLiteral("Qt draws as markup whatever looks like it: take PlainLabel and "
                               "PlainText::toolTip from interface/shell/PlainText.h")});
}

TEST(HouseRules, work_isCreditedThroughOneDoor) {
    expectKept(
        {kProduct,
         QStringLiteral("^Classes/(engine/(CountedTimers\\.cpp|TimeTracker\\.(cpp|h))|"
                        "store/TimeStoreNode\\.(cpp|h))$"),
         QStringLiteral("addTimeInterval|updateActiveTimeInStore|[.>]addTime\\("),
         QStringLiteral("window->addTimeInterval(time);"),
         QStringLiteral("whoever listens would miss it: work is credited as a stretch by the tracker, and "
                        "all other time comes by correctTime()")});
}

TEST(HouseRules, theTime_isReadFromTheClockAlone) {
    expectKept(
        {kProduct, QStringLiteral("^platform/foundation/time/Clock\\.cpp$"),
         QStringLiteral(
             "(system|steady|high_resolution)_clock::now|QDateTime::current|QDate::current|QTime::current|"
             "\\bgettimeofday\\b|\\bclock_gettime\\b|\\btime\\((NULL|nullptr|0)\\)|QElapsedTimer"),
         QStringLiteral("const Date now = std::chrono::system_clock::now();"),
         QStringLiteral("tests turn the clock by hand: take a Clock& at construction and ask it")});
}

TEST(HouseRules, tests_waitForConditionsNotForTime) {
    expectKept(
        {QStringLiteral("^tests/.*\\.(cpp|h)$"), QStringLiteral("^tests/unit/HouseRulesTest"),
         QStringLiteral("\\b(u|nano)?sleep\\(|sleep_(for|until)|::[mu]?sleep\\(|qSleep\\(|\\bqWait\\(|"
                        "^\\s*(static_cast<void>\\(|\\(void\\) ?)?passTime\\("),
         QStringLiteral("QThread::msleep(100);"),
         QStringLiteral(
             "too short on a busy machine and too long on every other: wait until something is so, with "
             "a limit")});
}

TEST(HouseRules, tests_allRun) {
    expectKept(
        {QStringLiteral("^tests/"), QStringLiteral("^tests/desktop/harness/Packaged\\.h$"),
         QStringLiteral("GTEST_"
                        "SKIP|\\bQ"
                        "SKIP\\b|DISABLED"
                        "_"),
         QStringLiteral("GTEST_"
                        "SKIP();"),
         QStringLiteral(
             "a test that may not run proves nothing: have ./dev install what it needs, or fail; where some "
             "release has no package of it, tests/desktop/harness/Packaged.h")});
}

TEST(HouseRules, comments_sayWhyInTheirOwnWords) {
    expectKept({QStringLiteral("."), kNothing,
                QStringLiteral("\\b[Ss]"
                               "pec(s|ification|ifications)?\\b|\\b[Pp]arts? [1-9]\\.[1-9]\\b"),
                QStringLiteral("as the s"
                               "pec says"),
                QStringLiteral("whoever reads this has nothing but the repository: say why it is so")});
}

TEST(HouseRules, work_isFinished) {
    expectKept({QStringLiteral("."), kNothing,
                QStringLiteral("\\b(TO"
                               "DO|FIX"
                               "ME|XX"
                               "X|HA"
                               "CK)\\b|not imple"
                               "mented"),
                QStringLiteral("// TO"
                               "DO: later"),
                QStringLiteral("finish it, or leave it out and name it in CHANGELOG.md")});
}

TEST(HouseRules, files_holdOneIdea) {
    for (const SourceFile& file : repository())
        if (isMatch(kSources, file.path) && file.lines.size() > 600)
            report(file, 1,
                   QStringLiteral("%1 lines are more than one idea: find the second").arg(file.lines.size()));
}

TEST(HouseRules, sources_beginWithTheLicence) {
    for (const SourceFile& file : repository()) {
        if (!isMatch(kSources, file.path) || isMatch(QStringLiteral("^cmake/"), file.path))
            continue;
        if (!file.lines.front().startsWith(QStringLiteral("// SPDX-License-Identifier: MIT")))
            report(file, 1,
                   QStringLiteral("the first line names the licence: // SPDX-License-Identifier: MIT"));
        if (file.path.endsWith(QStringLiteral(".h")) && !file.lines.contains(QStringLiteral("#pragma once")))
            report(file, 1, QStringLiteral("a header that is read twice must count once: #pragma once"));
    }
}
