// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

#include <optional>

class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QStringListModel;
class QToolButton;

// A bar at the top of the window that asks what an absence was. Several wait in a list; the answer is about the
// one that is chosen in it. Hidden while there is nothing to ask. It never takes the focus by itself.
class AbsenceBar : public QFrame {
    Q_OBJECT
public:
    struct Question {
        int number;
        // "12:03 – 13:10 (1 hour, 7 minutes)".
        QString text;
    };
    struct Project {
        QString label;
        QColor color;
    };

    explicit AbsenceBar(QWidget* parent = nullptr);

    // The newest first. What is being typed stays, for the question that it is about if that is still there.
    void ask(const std::vector<Question>& questions);
    // What the field completes.
    void setNames(const QStringList& names);
    // In the order of the sidebar.
    void setProjects(const std::vector<Project>& projects);
    // The user wants to answer this question.
    void beginAnswer(int number);
    // The question that the answer is about; absent if there is none.
    std::optional<int> chosen() const;

    // In the order in which Tab goes through them.
    QList<QWidget*> controls() const;

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // It was this. `project` is a position among the projects, or -1 for none. At least one of the two says
    // something.
    void booked(int number, const QString& name, int project);
    // It was no work.
    void wasBreak(int number);
    // Nothing of it all is to be answered.
    void dismissed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeHead();
    QBoxLayout* makeAnswer();
    void tellOfQuestion();
    void offerBooking();
    void book();
    int project() const;

    QLabel* m_text;
    QToolButton* m_dismiss;
    QListWidget* m_list;
    QLineEdit* m_name;
    QStringListModel* m_names;
    QComboBox* m_project;
    QPushButton* m_book;
    QPushButton* m_break;
    // The field above or beside the buttons.
    QBoxLayout* m_answer = nullptr;
};
