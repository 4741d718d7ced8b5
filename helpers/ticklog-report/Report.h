// SPDX-License-Identifier: MIT
#pragma once

#include "helpers/ticklog-report/ReportNames.h"
#include "helpers/ticklog-report/ReportRequest.h"

#include <QHash>
#include <QJsonValue>

#include <array>

// One line of what is printed: a cell a head, and the time.
struct ReportLine {
    // Texts; the projects of a stretch are an array.
    std::vector<QJsonValue> cells;
    qint64 milliseconds;
    // Of a stretch by itself, in milliseconds since 1970; 0 in a sum.
    qint64 start = 0;
};

// What was asked for, made of the stretches that it is given one after the other, in the order of time.
class Report {
public:
    // Both outlive it.
    Report(const ReportRequest& request, const ReportNames& names, int dayBegins);

    void add(const RecordedStretch& stretch);
    // What a whole day has of one program, title and presence, for who asks for nothing finer, or a month, with its first
    // day; only its length counts, and the range is not looked at.
    void addDay(QDate day, const RecordedStretch& sum);

    // Whether sums without titles are of no use, because titles decide about what is asked for.
    bool needsTitles() const;

    // The day of the user's calendar on which a stretch begins.
    static QDate dayOf(const RecordedStretch& stretch, int dayBegins);

    // What the cells of a line are, without the time, which comes last.
    QStringList heads() const;
    // Sorted by time where a head is of time, else the most first.
    std::vector<ReportLine> lines() const;

private:
    static constexpr std::size_t kMostKeys = 8;

    // A number for each key; what it stands for depends on the key.
    struct Codes {
        std::array<qint64, kMostKeys> numbers{};

        friend bool operator==(const Codes&, const Codes&) = default;
        friend std::size_t qHash(const Codes& codes, std::size_t seed = 0) {
            return qHashRange(codes.numbers.begin(), codes.numbers.end(), seed);
        }
    };

    // The same number for the same text.
    class Texts {
    public:
        qint64 numberOf(const QString& text);
        const QString& operator[](qint64 number) const { return m_texts[number]; }

    private:
        QStringList m_texts;
        QHash<QString, qint64> m_numbers;
    };

    // What is known of a program, a title or a timer, found out once.
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
    };

    const Program& program(qint64 number);
    const Title& title(qint64 number);
    const Belonging& belonging(const RecordedStretch& stretch);
    bool isWanted(RecordedStretch::Presence presence) const;
    bool isWanted(const RecordedStretch& stretch);
    bool isFound(const QString& text) const;
    void addAlone(const RecordedStretch& stretch);
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
    // Stretches are cut where a new one of these begins; 0 where they are not.
    qint64 m_step = 0;
    Texts m_texts;
    QHash<qint64, Program> m_programs;
    QHash<qint64, Title> m_titles;
    // By timer and, where they count, program and title.
    QHash<Codes, Belonging> m_belongings;
    QHash<Codes, qint64> m_sums;
    std::vector<ReportLine> m_alone;
};
