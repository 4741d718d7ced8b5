// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <array>
#include <functional>

class QLabel;
class QMenu;
class TKLabelButton;

// A row of seven colours in a menu, from which the user chooses the current project's label.
class TKLabelViewController : public QWidget {
    Q_OBJECT
public:
    // The tag for "no project is selected": no label can be chosen then.
    static constexpr int kNoProject = -1;

    // Gets the tag that the user chose.
    using ProjectController = std::function<void(int tag)>;

    // Appends itself to `menu`, which owns it from then on.
    TKLabelViewController(QMenu& menu, ProjectController projectController);

    // The tag of the current project.
    void setSelectedTag(int tag);
    // Shows that a button was pressed, closes the menu, and only then passes the tag on.
    void setColoring(TKLabelButton& button);

    // Moves the focus by so many buttons, if there is one: menus do not pass on the Tab key.
    void moveFocus(const TKLabelButton& from, int places);

    // From no label to the last colour.
    const std::array<TKLabelButton*, 7>& labels() const { return m_labels; }

protected:
    void hideEvent(QHideEvent* event) override;

private:
    // The label of the current project, or the first.
    TKLabelButton& selected() const;

    QMenu& m_menu;
    QLabel* m_mainLabel;
    std::array<TKLabelButton*, 7> m_labels{};
    ProjectController m_projectController;
};
