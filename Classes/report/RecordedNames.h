// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/Sqlite.h"
#include "Classes/projects/ProjectPatterns.h"
#include "Classes/report/ReportNames.h"
#include "Classes/report/UnwrittenRows.h"
#include "platform/foundation/files/Folders.h"
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QHash>

// The names in a history, as changed by this user's rules, and their projects.
class RecordedNames : public ReportNames {
public:
    // The database outlives it. Rules or projects that cannot be read count as empty. `unwritten` is what the
    // database does not have yet.
    RecordedNames(SqliteDatabase& history, const Folders& folders, UnwrittenRows unwritten = {});

    std::optional<QString> program(qint64 number) const override;
    QString title(qint64 number) const override;
    Belonging belonging() const override { return projects().belonging; }
    QStringList projectsOf(qint64 timer, qint64 program, qint64 title) const override;
    QList<qsizetype> placesOf(qint64 timer, qint64 program, qint64 title) const override;
    QStringList categoriesOf(qint64 program) const override;

    // As the history itself has them: neither changed by rules nor made fit to be shown.
    Amendment::Whose recorded(qint64 program, qint64 title) const;
    bool hasProject(const QString& name) const { return projects().names.contains(name); }
    qsizetype projectCount() const { return projects().names.size(); }

private:
    struct Projects {
        QStringList names;
        // From a member's identity, in the history's form, to the positions of its projects among the names.
        QHash<QByteArray, QList<qsizetype>> memberships;
        // From the identity by which the history knows a project to its position.
        QHash<QByteArray, qsizetype> given;
        // By position among the names, of those that have any.
        std::vector<std::pair<qsizetype, ProjectPatterns>> patterns;
        Belonging belonging = Belonging::Timer;
    };

    // Reads them when they are first asked for: not every question is about projects, and they may be many.
    const Projects& projects() const;
    static Projects readProjects(const QString& path);
    QString rawProgram(qint64 number) const;
    QString rawTitle(qint64 number) const;
    QString recordedProgram(qint64 number) const;
    RowTimer recordedTimer(qint64 number) const;
    // The project that time was given to by hand; none for one that is not there any more.
    QList<qsizetype> givenTo(const RowProject& project) const;
    const QList<qsizetype>& fitting(qint64 program, qint64 title) const;

    SqliteDatabase& m_history;
    UnwrittenRows m_unwritten;
    // By program name.
    PropertyListDictionary m_rules;
    QString m_projectsPath;
    mutable std::optional<Projects> m_projects;
    // By program and title, found out once.
    mutable QHash<std::pair<qint64, qint64>, QList<qsizetype>> m_fitting;
};
