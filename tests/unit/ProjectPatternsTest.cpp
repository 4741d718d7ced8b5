// SPDX-License-Identifier: MIT
// By what the history knows what is a project's, beside its members: in its record, in its file and in
// reports.
#include "Classes/projects/ProjectPatterns.h"
#include "Classes/history/HistoryFile.h"
#include "Classes/projects/ProjectFile.h"
#include "Classes/projects/ProjectList.h"
#include "Classes/report/RecordedNames.h"
#include "Classes/report/ReportFormats.h"
#include "Classes/report/ReportReading.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/fakes/TestEngine.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const Identity kMail = *Identity::fromBytes("mailmail");
const Identity kInbox = *Identity::fromBytes("inboxinb");

PropertyListDictionary pattern(const char* program, const char* title, bool isExpression = false) {
    PropertyListDictionary pattern{{kTitleRuleProgram, QString::fromUtf8(program)},
                                   {kTitleRuleTitle, QString::fromUtf8(title)}};
    if (isExpression)
        pattern.insert(kTitleRuleIsExpression, true);
    return pattern;
}

ProjectRecord projectWith(const char* label, const PropertyListArray& patterns) {
    ProjectRecord project;
    project.setLabel(QString::fromUtf8(label));
    project.setPatterns(patterns);
    return project;
}

bool fits(const PropertyListArray& patterns, const char* program, const char* title) {
    return ProjectPatterns(projectWith("Meier", patterns))
        .fit(QString::fromUtf8(program), QString::fromUtf8(title));
}

TEST(ProjectPatterns, fitProgramsAndTitlesAsRulesDo) {
    EXPECT_TRUE(fits({pattern("edit", "")}, "Editor", "a.txt"));
    EXPECT_TRUE(fits({pattern("", "meier")}, "Mail", "From MEIER"));
    EXPECT_FALSE(fits({pattern("edit", "meier")}, "Editor", "a.txt"));
    EXPECT_TRUE(fits({pattern("x", ""), pattern("", "^a.*t$", true)}, "Editor", "a.txt"));
    EXPECT_FALSE(fits({pattern("", "^a.*t$")}, "Editor", "a.txt"));
}

TEST(ProjectPatterns, thatAskForNothingOrAreWrong_fitNothing) {
    EXPECT_FALSE(fits({}, "Editor", "a.txt"));
    EXPECT_FALSE(fits({pattern("", "")}, "Editor", "a.txt"));
    EXPECT_FALSE(fits({pattern("Editor", "(", true)}, "Editor", "a.txt"));
    EXPECT_FALSE(fits({PropertyListValue(7)}, "Editor", "a.txt"));
}

TEST(ProjectPatterns, ofAFileFromAnywhere_areBounded) {
    PropertyListArray many;
    for (std::size_t i = 0; i < ProjectPatterns::kMost; ++i)
        many.emplace_back(pattern("no such program", ""));
    many.emplace_back(pattern("Editor", ""));
    EXPECT_FALSE(fits(many, "Editor", "a.txt"));
    EXPECT_FALSE(
        fits({pattern("", QByteArray(5000, 'a').constData())}, "Editor", QByteArray(5000, 'a').constData()));
}

TEST(ProjectPatterns, whatCannotBeDecided_belongsToNoProject) {
    const QByteArray longest = QByteArray(40, 'x') + " diary";
    EXPECT_FALSE(fits({pattern("", "(x+x+)+y|diary", true)}, "Editor", longest.constData()));
    EXPECT_TRUE(fits({pattern("", "(x+x+)+y|diary", true)}, "Editor", "My diary"));
}

TEST(ProjectPatterns, areInTheRecordOnlyWhereThereAreAny) {
    ProjectRecord project;
    project.setLabel(QStringLiteral("Meier"));
    const PropertyListDictionary before = project.entries();
    project.setPatterns({pattern("Editor", "")});
    EXPECT_TRUE(project.entries().contains(kProjectPatterns));
    project.setPatterns({});
    EXPECT_EQ(project.entries(), before);
}

TEST(ProjectPatterns, areSaved_andUndoneWithTheOtherEdits) {
    TestEngine engine;
    ProjectList projects(engine.store, engine.fakes.defaults, engine.fakes.folders.documents);
    const auto project = projects.addNewProjectWithItems({});
    const ProjectList::Snapshot before = projects.snapshot();
    std::vector<ProjectListChange::Kind> told;
    const Subscription changes =
        projects.observeChanges([&](const ProjectListChange& change) { told.push_back(change.kind); });
    projects.setPatterns(*project, {pattern("Editor", "")});
    EXPECT_EQ(told, std::vector{ProjectListChange::Kind::Patterns});
    EXPECT_FALSE(projects.snapshot().isLike(before));
    const auto file = PropertyList::readFile(*projects.file().urlForTKProjects());
    ASSERT_TRUE(file);
    EXPECT_EQ(ProjectRecord(*file->asArray()->front().asDictionary()).patterns().size(), 1U);
    projects.restore(before);
    EXPECT_TRUE(projects.projects().front()->patterns().empty());
    projects.setPatterns(*projects.mainItem(), {pattern("Editor", "")});
    EXPECT_TRUE(projects.mainItem()->patterns().empty()) << "all timers are all timers";
}

class ReportedPatterns : public testing::Test {
protected:
    ReportedPatterns() {
        m_folders.applicationSupport = m_folder.path();
        m_folders.settingsFile = m_folder.filePath(QStringLiteral("settings.plist"));
        m_folders.documents = m_folder.path();
        const qint64 nine = QDateTime(QDate(2026, 5, 4), QTime(9, 0)).toMSecsSinceEpoch();
        add(nine, 60'000, "Mail", "From Meier", {kMail, kInbox});
        add(nine + 60'000, 30'000, "Editor", "Offer for Meier.odt");
        add(nine + 90'000, 10'000, "Editor", "Diary.odt");
    }

    void add(qint64 start, qint64 length, const char* program, const char* title,
             const RowTimer& timer = {}) {
        SqliteTransaction transaction(m_file.database());
        m_file.add({start, length, 0, QString::fromUtf8(program), QString::fromUtf8(title), timer,
                    RowPresence::Work});
        transaction.commit();
    }

    void write(const std::vector<ProjectRecord>& projects) {
        PropertyListArray records;
        for (const ProjectRecord& project : projects)
            records.emplace_back(project.entries());
        ASSERT_TRUE(PropertyList::writeBinaryFile(records, ProjectFile::pathIn(m_folders.documents)));
    }

    // Of a range of months, which sums are kept of, with "|" between lines.
    std::string report(const char* arguments) {
        const auto request = ReportRequest::parse(QStringList{QStringLiteral("--from=2026-01-01"),
                                                              QStringLiteral("--to=2026-06-01"),
                                                              QStringLiteral("--format=csv")} +
                                                      QString::fromUtf8(arguments).split(u' '),
                                                  QDateTime(QDate(2026, 6, 1), QTime(12, 0)), 0);
        EXPECT_TRUE(request);
        const RecordedNames names(m_file.database(), m_folders);
        Report report(*request, names, 0);
        readInto(report, m_file.database(), *request, 0);
        return QString::fromUtf8(ReportFormats::csv(report))
            .replace(QLatin1String("\r\n"), QLatin1String("|"))
            .toStdString();
    }

    QTemporaryDir m_folder;
    Folders m_folders;
    HistoryFile m_file{m_folder.filePath(QStringLiteral("History.sqlite"))};
};

TEST_F(ReportedPatterns, whatFits_isTheProjectsAlsoInThePast_besideItsMembers) {
    ProjectRecord meier = projectWith("Meier", {pattern("", "meier")});
    meier.addMembers({kMail});
    write({meier, projectWith("Office", {pattern("", "\\.odt$", true)})});
    EXPECT_EQ(report("--by=project"), "project,seconds|Meier,90|Office,40|");
    EXPECT_EQ(report("--by=app --project=Meier"), "app,seconds|Mail,60|Editor,30|");
    EXPECT_EQ(report("--by=app --project=Office"), "app,seconds|Editor,40|");
    EXPECT_EQ(report("--by=day --by=project"),
              "day,project,seconds|2026-05-04,Meier,90|2026-05-04,Office,40|");
}

TEST_F(ReportedPatterns, ofProgramsAlone_areReadFromTheSumsOfMonths) {
    write({projectWith("Writing", {pattern("editor", "")})});
    m_file.database().execute("DELETE FROM days");
    EXPECT_EQ(report("--by=project"), "project,seconds|No project,60|Writing,40|");
    EXPECT_EQ(report("--by=app --project"
                     "=Writing"),
              "app,seconds|Editor,40|");
}

TEST_F(ReportedPatterns, whatNobodyHas_isNoProject) {
    write({projectWith("Meier", {pattern("", "meier")})});
    EXPECT_EQ(report("--by=project"), "project,seconds|Meier,90|No project,10|");
}

} // namespace
