// SPDX-License-Identifier: MIT
#include "Classes/report/ReportRequest.h"

#include "Classes/report/Moment.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array kKeyWords{"app",  "title", "project", "category", "day",
                               "week", "month", "hour",    "stretch"};
constexpr std::array kPresenceWords{"work", "idle", "all"};
constexpr std::array kFormatWords{"table", "csv", "json", "ics"};

template<std::size_t count>
std::optional<std::size_t> indexIn(const std::array<const char*, count>& words, const QString& word) {
    const auto found =
        std::ranges::find_if(words, [&](const char* each) { return word == QLatin1String(each); });
    return found != words.end() ? std::optional(std::size_t(found - words.begin())) : std::nullopt;
}

template<std::size_t count>
QString listOf(const std::array<const char*, count>& words) {
    QStringList list;
    for (const char* word : words)
        list << QString::fromLatin1(word);
    return list.join(QStringLiteral(", "));
}

Failure wrong(const QString& text) {
    return {Failure::Kind::Refused, text};
}

// Reads one option with its value. The failure's text is empty if it was understood.
class Reader {
public:
    Reader(const QDateTime& now, int dayBegins)
        : m_now(now)
        , m_dayBegins(dayBegins) {
        m_request.from = *momentOf(QStringLiteral("today"), now, dayBegins);
        m_request.to = now;
    }

    QString take(const QString& option, const QString& value) {
        if (option == QLatin1String("--from"))
            return takeMoment(option, value, m_request.from);
        if (option == QLatin1String("--to"))
            return takeMoment(option, value, m_request.to);
        if (option == QLatin1String("--by"))
            return takeKey(value);
        if (option == QLatin1String("--presence"))
            return takeWord(option, kPresenceWords, value, m_request.presence);
        if (option == QLatin1String("--format"))
            return takeWord(option, kFormatWords, value, m_request.format);
        if (option == QLatin1String("--project"))
            m_request.project = value;
        else if (option == QLatin1String("--search"))
            m_request.search = value;
        else
            m_request.file = value;
        return {};
    }

    Result<ReportRequest> finish() {
        if (m_request.from >= m_request.to)
            return wrong(QStringLiteral("--from must be before --to"));
        if (!m_keys.empty())
            m_request.keys = m_keys;
        else if (m_request.format == ReportFormat::Ics)
            m_request.keys = {ReportKey::Stretch};
        const bool hasStretch = std::ranges::count(m_request.keys, ReportKey::Stretch) > 0;
        if (hasStretch && m_request.keys.size() > 1)
            return wrong(QStringLiteral("--by stretch goes with no other key"));
        if (m_request.format == ReportFormat::Ics && !hasStretch)
            return wrong(QStringLiteral("--format ics shows stretches and no sums"));
        return m_request;
    }

private:
    QString takeMoment(const QString& option, const QString& value, QDateTime& moment) {
        const auto found = momentOf(value, m_now, m_dayBegins);
        if (!found)
            return QStringLiteral("%1: “%2” is no moment; 2026-11-20, 2026-11-20T14:30, monday, -7d are")
                .arg(option, value);
        moment = *found;
        return {};
    }

    QString takeKey(const QString& value) {
        const auto index = indexIn(kKeyWords, value);
        if (!index)
            return QStringLiteral("--by: “%1” is none of %2").arg(value, listOf(kKeyWords));
        const auto key = ReportKey(*index);
        if (std::ranges::count(m_keys, key) > 0)
            return QStringLiteral("--by %1 is there twice").arg(value);
        m_keys.push_back(key);
        return {};
    }

    template<std::size_t count, class Choice>
    static QString takeWord(const QString& option, const std::array<const char*, count>& words,
                            const QString& value, Choice& choice) {
        const auto index = indexIn(words, value);
        if (!index)
            return QStringLiteral("%1: “%2” is none of %3").arg(option, value, listOf(words));
        choice = Choice(*index);
        return {};
    }

    QDateTime m_now;
    int m_dayBegins;
    ReportRequest m_request;
    std::vector<ReportKey> m_keys;
};

const QStringList kOptions{QStringLiteral("--from"),   QStringLiteral("--to"),
                           QStringLiteral("--by"),     QStringLiteral("--project"),
                           QStringLiteral("--search"), QStringLiteral("--presence"),
                           QStringLiteral("--format"), QStringLiteral("--history")};

} // namespace

QString wordFor(ReportKey key) {
    return QString::fromLatin1(kKeyWords[std::size_t(key)]);
}

Result<ReportRequest> ReportRequest::parse(const QStringList& arguments, const QDateTime& now,
                                           int dayBegins) {
    Reader reader(now, dayBegins);
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString option = arguments[i].section(u'=', 0, 0);
        if (!kOptions.contains(option))
            return wrong(QStringLiteral("“%1” is not understood; --help says what is").arg(arguments[i]));
        const bool isJoined = option.size() < arguments[i].size();
        if (!isJoined && i + 1 == arguments.size())
            return wrong(option + QStringLiteral(" needs a value"));
        const QString value = isJoined ? arguments[i].mid(option.size() + 1) : arguments[++i];
        if (const QString problem = reader.take(option, value); !problem.isEmpty())
            return wrong(problem);
    }
    return reader.finish();
}

QString ReportRequest::help() {
    return QStringLiteral(
        "Usage: ticklog-report [--from WHEN] [--to WHEN] [--by KEY]... [--project NAME] [--search TEXT]\n"
        "                      [--presence work|idle|all] [--format table|csv|json|ics] [--history FILE]\n"
        "Says where the time went, from what Ticklog has recorded.\n"
        "\n"
        "  --from WHEN      from this moment on (today)\n"
        "  --to WHEN        until just before this moment (now)\n"
        "  --by KEY         sums by app, title, project, category, day, week, month or hour; or each stretch "
        "by\n"
        "                   itself. May be given several times (app)\n"
        "  --project NAME   only what belongs to this project; “No project” for what belongs to none\n"
        "  --search TEXT    only where the title or the program has this text in it\n"
        "  --presence WHAT  work, with what was booked by hand; idle; or all (work)\n"
        "  --format FORMAT  table for people, csv, json, or ics for calendars (table)\n"
        "  --history FILE   another file than your own\n"
        "  --help, --version\n"
        "\n"
        "WHEN: 2026-11-20, 2026-11-20T14:30, today, yesterday, monday … sunday, now, -90m, -5h, -7d, -3w.\n"
        "A day is its beginning: --from yesterday --to today is the whole of yesterday.\n");
}
