// SPDX-License-Identifier: MIT
#pragma once

#include "interface/setup/TKInstructionView.h"

#include <QPushButton>

#include <functional>

// Takes the place of the main window while the desktop does not let Ticklog see windows: shows how to allow
// it, and restarts Ticklog afterwards.
class SetupWindow : public QWidget {
    Q_OBJECT
public:
    // The intended size. Larger if the texts need it, smaller on a small screen.
    static constexpr QSize kSize{640, 628};

    struct Commands {
        std::function<void()> relaunch;
        std::function<void()> quit;
    };

    explicit SetupWindow(Commands commands);

    TKInstructionView& instructionView() const { return *m_instructionView; }
    QPushButton& restartButton() const { return *m_restartButton; }

    void makeKeyAndOrderFront();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QSize restartSize() const;
    // The height of the strip below the rows.
    int barHeight() const;
    void layOut();
    void centre();

    Commands m_commands;
    TKInstructionView* m_instructionView;
    QPushButton* m_restartButton;
};
