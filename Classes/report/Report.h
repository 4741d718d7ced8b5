// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/ReportNames.h"
#include "Classes/report/ReportRequest.h"

#include <QHash>
#include <QJsonValue>

#include <array>

// One printed line: a cell for each heading, and the time.
struct ReportLine {
    // Texts; the projects of a stretch are an array of texts.
    std::vector<QJsonValue> cells;
    qint64 milliseconds;
    // Milliseconds since 1970, for a stretch by itself; 0 in a sum.
    qint64 start = 0;
};

// Computes what was asked for, from stretches. Stretches by themselves are joined again where only the recorder has
// divided them.
class Report {
public:
    // Both outlive it.
    Report(const ReportRequest& request, const ReportNames& names, int dayBegins);

    void add(const RecordedStretch& stretch);
    // Adds a sum of the history: the time of one program, title and presence on one day, or in a month given
    // by its first day. For reports that need nothing finer. Only its length is used; whether it lies in the
    // range is not checked.
    void addDay(QDate day, const RecordedStretch& sum);

    // Whether sums without titles are of no use, because titles decide about what is asked for.
    bool needsTitles() const;

    // The day of the user's calendar on which a stretch begins.
    static QDate dayOf(const RecordedStretch& stretch, int dayBegins);

    // The headings of the cells, without the time, which comes last.
    QStringList heads() const;
    // The time of each project, by its place in the list, and at -1 that of none. Only if a key is Project.
    const QHash<qsizetype, qint64>& byPlace() const { return m_byPlace; }
    // Sorted by time if a key is a time, otherwise by length, the longest first.
    std::vector<ReportLine> lines() const;

private:
    static constexpr std::size_t kMostKeys = 8;

    // A number for each key; its meaning depends on the key.
    struct Codes {
        std::array<qint64, kMostKeys> numbers{};

        friend bool operator==(const Codes&, const Codes&) = default;
        friend std::size_t qHash(const Codes& codes, std::size_t seed = 0) {
            return qHashRange(codes.numbers.begin(), codes.numbers.end(), seed);
        }
    };

    // Gives equal texts the same number.
    class Texts {
    public:
        qint64 numberOf(const QString& text);
        const QString& operator[](qint64 number) const { return m_texts[number]; }

    private:
        QStringList m_texts;
        QHash<QString, qint64> m_numbers;
    };

    // Facts about a program, a title or a timer, found only once.
    struct Program {
        bool isShown;
        bool isFound;
        qint64 name;
        std::vector<qint64> categories;
    };
    struct Title {
        bool isFound;
        qint64 text;
    };
    struct Belonging {
        bool isWanted;
        QStringList names;
        std::vector<qint64> projects;
        QList<qsizetype> places;
    };

    // A stretch by itself, as it is told.
    struct Alone {
        qint64 end() const { return start + length; }
        bool goesOnIn(const Alone& next) const;

        qint64 start;
        qint64 length;
        int offset;
        RecordedStretch::Presence presence;
        qint64 program;
        qint64 title;
        QStringList projects;
    };

    const Program& program(qint64 number);
    const Title& title(qint64 number);
    const Belonging& belonging(const RecordedStretch& stretch);
    bool isWanted(RecordedStretch::Presence presence) const;
    bool isWanted(const RecordedStretch& stretch);
    bool isFound(const QString& text) const;
    void addAlone(const RecordedStretch& stretch);
    std::vector<Alone> joined() const;
    ReportLine lineOf(const Alone& stretch) const;
    void addPieces(const RecordedStretch& stretch);
    void addSums(const RecordedStretch& piece);
    void addSum(const RecordedStretch& piece, std::size_t key, Codes& codes);
    qint64 timeCode(ReportKey key, const RecordedStretch& piece) const;
    QString textOf(ReportKey key, qint64 code) const;

    const ReportRequest& m_request;
    const ReportNames& m_names;
    qint64 m_dayBegins;
    qint64 m_from;
    qint64 m_to;
    // Stretches are cut where a new period of this length begins; 0 means not at all.
    qint64 m_step = 0;
    Texts m_texts;
    QHash<qint64, Program> m_programs;
    QHash<qint64, Title> m_titles;
    // By timer and, where they count, program and title.
    QHash<Codes, Belonging> m_belongings;
    QHash<Codes, qint64> m_sums;
    QHash<qsizetype, qint64> m_byPlace;
    std::vector<Alone> m_alone;
};
