// SPDX-License-Identifier: MIT
#include "interface/absences/ComingBack.h"

#include "Classes/projects/ProjectPatterns.h"
#include "interface/absences/AbsenceBar.h"
#include "interface/labels/TKLabelColorList.h"
#include "interface/shell/PlainText.h"
#include "platform/Notices.h"
#include "platform/foundation/text/DurationText.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/time/LocalTime.h"

#include <QLocale>
#include <QPointer>

#include <algorithm>

namespace {

const QString kProjectKey = QStringLiteral("project");
const QString kBreakKey = QStringLiteral("break");
const QString kSayKey = QStringLiteral("say");
// Whoever has not answered these never will.
constexpr std::size_t kMostQuestions = 30;
// As much as fits on a button.
constexpr qsizetype kLongestOnButton = 30;

// The text with its places filled one after the other.
QString filled(QString text, const QStringList& parts) {
    qsizetype from = 0;
    for (const QString& part : parts) {
        const qsizetype place = text.indexOf(QLatin1String("%@"), from);
        if (place < 0)
            break;
        text.replace(place, 2, part);
        from = place + part.size();
    }
    return text;
}

bool belongs(const WorkedOn& work, const ProjectRecord& project) {
    for (const Identity& member : project.flattenedMembers())
        if (member == work.application || member == work.window)
            return true;
    return ProjectPatterns(project).fit(work.program, work.title);
}

} // namespace

ComingBack::ComingBack(Ground ground)
    : m_ground(std::move(ground))
    , m_settings(m_ground.notifications.observe(kUserDefaultsDidChangeNotification,
                                                [this](const Notification&) { settingsChanged(); }))
    , m_watch(m_ground.tracker, m_ground.notifications, m_ground.defaults, m_ground.clock,
              {.cameBack = [this](const Absence& absence) { cameBack(absence); },
               .goesOn = [this](const Absence& absence) { return goesOn(absence); }}) {}

ComingBack::~ComingBack() {
    m_ground.notices.withdraw();
}

AbsenceBar& ComingBack::bar() {
    if (m_bar)
        return *m_bar;
    m_bar = &m_ground.bar();
    QObject::connect(m_bar, &AbsenceBar::booked, &m_receiver,
                     [this](int number, const QString& name, int position) {
                         const auto projects = m_ground.projects.projects();
                         const bool isThere = position >= 0 && std::size_t(position) < projects.size();
                         book(number, name, isThere ? projects[std::size_t(position)] : nullptr);
                     });
    QObject::connect(m_bar, &AbsenceBar::wasBreak, &m_receiver, [this](int number) { remove(number); });
    QObject::connect(m_bar, &AbsenceBar::dismissed, &m_receiver, [this] {
        m_questions.clear();
        ask();
    });
    return *m_bar;
}

void ComingBack::cameBack(const Absence& absence) {
    if (!m_ground.hasHistory())
        return;
    m_questions.push_front({++m_lastNumber, absence, projectBefore(absence.before)});
    if (m_questions.size() > kMostQuestions)
        m_questions.pop_back();
    askSoon();
}

bool ComingBack::goesOn(const Absence& absence) {
    const auto isIt = [&](const Question& question) {
        return question.absence.from == absence.from && question.absence.to == absence.to;
    };
    if (std::erase_if(m_questions, isIt) == 0)
        return false;
    askSoon();
    return true;
}

void ComingBack::settingsChanged() {
    if (m_questions.empty() || AbsenceWatch::isWished(m_ground.defaults))
        return;
    m_questions.clear();
    askSoon();
}

// A tick is under way.
void ComingBack::askSoon() {
    m_ground.runLoop.performSoon([receiver = QPointer(&m_receiver), this] {
        if (receiver)
            ask();
    });
}

void ComingBack::ask() {
    std::vector<AbsenceBar::Question> shown;
    for (const Question& question : m_questions)
        shown.push_back({question.number, textOf(question.absence)});
    if (m_questions.empty()) {
        m_projectChanges = {};
    } else if (!m_projectChanges) {
        m_projectChanges = m_ground.projects.observeChanges([this](const ProjectListChange& change) {
            if (change.phase == ChangePhase::Did)
                showProjects();
        });
        showProjects();
        m_ground.askForNames([this](const QStringList& names) { bar().setNames(names); });
    }
    if (m_bar || !shown.empty())
        bar().ask(shown);
    const int newest = m_questions.empty() ? 0 : m_questions.front().number;
    if (newest == m_inNotice || (newest < m_inNotice && find(m_inNotice)))
        return;
    m_ground.notices.withdraw();
    // An older one was in a notice already.
    if (newest > m_inNotice)
        showNotice(m_questions.front());
}

void ComingBack::showProjects() {
    std::vector<AbsenceBar::Project> projects;
    for (const ProjectList::Project& project : m_ground.projects.projects())
        projects.push_back(
            {project->label(), TKLabelColorList::sharedColorList().colorForTag(project->colorTag())});
    bar().setProjects(projects);
}

void ComingBack::showNotice(const Question& question) {
    m_inNotice = question.number;
    const double length = secondsBetween(question.absence.from, question.absence.to);
    Notice notice{
        .title =
            localized("You were away for %@").replace(QLatin1String("%@"), durationInWords(length, false)),
        .text = localized("%@. What was it?").replace(QLatin1String("%@"), textOf(question.absence)),
        .buttons = {},
        .usualKey = kSayKey};
    if (question.project)
        notice.buttons.push_back({kProjectKey, PlainText::cut(question.project->label(), kLongestOnButton)});
    notice.buttons.push_back({kBreakKey, localized("Break")});
    notice.buttons.push_back({kSayKey, localized("Say…")});
    m_ground.notices.show(notice,
                          [this, number = question.number](const QString& key) { answered(number, key); });
}

void ComingBack::answered(int number, const QString& key) {
    const Question* question = find(number);
    if (!question)
        return;
    if (key == kBreakKey)
        return remove(number);
    if (key == kProjectKey && question->project && m_ground.projects.positionOf(*question->project))
        return book(number, {}, question->project);
    m_ground.showWindow();
    bar().beginAnswer(number);
}

void ComingBack::book(int number, const QString& name, const ProjectList::Project& project) {
    const Question* question = find(number);
    if (!question)
        return;
    const Answer answer{question->absence, name, project};
    if (project)
        m_lastProject = project;
    remove(number);
    m_ground.book(answer);
}

void ComingBack::remove(int number) {
    std::erase_if(m_questions, [&](const Question& question) { return question.number == number; });
    ask();
}

const ComingBack::Question* ComingBack::find(int number) const {
    const auto found = std::ranges::find(m_questions, number, &Question::number);
    return found == m_questions.end() ? nullptr : &*found;
}

// A guess for a button; where the work was no project's, the one that was answered last.
ProjectList::Project ComingBack::projectBefore(const WorkedOn& work) const {
    for (const ProjectList::Project& project : m_ground.projects.projects())
        if (belongs(work, *project))
            return project;
    return m_lastProject && m_ground.projects.positionOf(*m_lastProject) ? m_lastProject : nullptr;
}

// With days where it is not all of today.
QString ComingBack::textOf(const Absence& absence) const {
    const QDateTime from = localTime(absence.from);
    const QDateTime to = localTime(absence.to);
    const QLocale locale;
    const auto text = [&](const QDateTime& time, bool hasDay) {
        return hasDay ? locale.toString(time, QLocale::ShortFormat)
                      : locale.toString(time.time(), QLocale::ShortFormat);
    };
    const QDate today = localTime(m_ground.clock.now()).date();
    return filled(localized("%@ – %@ (%@)"),
                  {text(from, from.date() != today), text(to, to.date() != from.date()),
                   durationInWords(secondsBetween(absence.from, absence.to), false)});
}
