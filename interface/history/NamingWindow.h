// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <functional>

class PlainLabel;
class QLineEdit;
class QPushButton;

// Asks what a piece of time was.
class NamingWindow : public QDialog {
    Q_OBJECT
public:
    explicit NamingWindow(QWidget* parent);

    // `times` says which piece it is; `name` is what it is called now. `done` is called if the user answers.
    void openFor(const QString& times, const QString& name, std::function<void(const QString&)> done);

    void accept() override;

private:
    PlainLabel* m_times;
    QLineEdit* m_name;
    QPushButton* m_button;
    std::function<void(const QString&)> m_done;
};
