// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/Amendment.h"
#include "platform/foundation/values/Result.h"

#include <QDialog>

#include <functional>

class PlainLabel;
class QComboBox;
class QDateTimeEdit;
class QLineEdit;
class QPushButton;

// Asks for time to be booked by hand: from when to when, what it was, and for which project. Says how much of that is
// free, because what was worked there stays.
class BookingWindow : public QDialog {
    Q_OBJECT
public:
    struct Booking {
        Amendment::Piece piece;
        QString name;
        // A place among the projects, below 0 for none.
        int project = -1;
    };
    // Asks how many milliseconds of a piece are free, and tells it then or later.
    using AskFree = std::function<void(const Amendment::Piece&, std::function<void(const Result<qint64>&)>)>;

    BookingWindow(AskFree askFree, QWidget* parent);

    // Begins with this piece. `done` is called if the user books.
    void openFor(const Amendment::Piece& piece, const QStringList& projects,
                 std::function<void(const Booking&)> done);

    void accept() override;

private:
    void addControls();
    Amendment::Piece piece() const;
    void look();
    void show(const Amendment::Piece& asked, const Result<qint64>& free);

    AskFree m_askFree;
    QDateTimeEdit* m_from;
    QDateTimeEdit* m_to;
    QLineEdit* m_name;
    QComboBox* m_project;
    PlainLabel* m_free;
    QPushButton* m_button;
    std::function<void(const Booking&)> m_done;
};
