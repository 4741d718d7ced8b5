// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/AbsenceWatch.h"
#include "Classes/projects/ProjectList.h"
#include "platform/foundation/time/RunLoop.h"

#include <QObject>

#include <deque>

class AbsenceBar;
class Notices;

// Asks people who come back what their absence was, if the settings say so: in a bar in the window, and for the
// latest in a notice of the desktop. What is not answered waits in the bar and remains what it was. No title
// leaves the window.
class ComingBack {
public:
    // What an absence was, by the user's own words: work of this name, for this project. One of the two may be
    // missing.
    struct Answer {
        Absence absence;
        QString name;
        ProjectList::Project project;
    };

    // Everything outlives this.
    struct Ground {
        TimeTracker& tracker;
        ProjectList& projects;
        // Asked for when there is something to show in it, and always the same.
        std::function<AbsenceBar&()> bar;
        Notices& notices;
        NotificationCenter& notifications;
        const UserDefaults& defaults;
        const Clock& clock;
        RunLoop& runLoop;
        // Whether there is a history to write answers to.
        std::function<bool()> hasHistory;
        // Brings the window to the front.
        std::function<void()> showWindow;
        // What was booked by hand before, the latest first.
        std::function<void(std::function<void(const QStringList&)>)> askForNames;
        std::function<void(const Answer&)> book;
    };

    explicit ComingBack(Ground ground);
    ComingBack(const ComingBack&) = delete;
    ComingBack& operator=(const ComingBack&) = delete;
    ~ComingBack();

private:
    struct Question {
        int number;
        Absence absence;
        // What was worked for before; null if nobody can say.
        ProjectList::Project project;
    };

    AbsenceBar& bar();
    void cameBack(const Absence& absence);
    bool goesOn(const Absence& absence);
    void settingsChanged();
    void askSoon();
    void ask();
    void showProjects();
    void showNotice(const Question& question);
    void answered(int number, const QString& key);
    void book(int number, const QString& name, const ProjectList::Project& project);
    void remove(int number);
    const Question* find(int number) const;
    ProjectList::Project projectBefore(const WorkedOn& work) const;
    QString textOf(const Absence& absence) const;

    Ground m_ground;
    // Null before the first question.
    AbsenceBar* m_bar = nullptr;
    // The newest first.
    std::deque<Question> m_questions;
    int m_lastNumber = 0;
    // The question in the desktop's notice; 0 for none.
    int m_inNotice = 0;
    ProjectList::Project m_lastProject;
    // Receives the bar's signals; its end makes calls that wait void.
    QObject m_receiver;
    // Only while there are questions.
    Subscription m_projectChanges;
    Subscription m_settings;
    AbsenceWatch m_watch;
};
