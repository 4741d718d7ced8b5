// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <array>
#include <functional>

class QLabel;
class QMenu;
class TKLabelButton;

// The row of seven colours in a menu, by which the current project's label is chosen.
class TKLabelViewController : public QWidget {
    Q_OBJECT
public:
    // The tag that stands for "no project": nothing can be chosen.
    static constexpr int kNoProject = -1;

    // Puts itself at the end of `menu`, which owns it from then on.
    explicit TKLabelViewController(QMenu& menu);

    // Is given the tag that the user chose.
    void setProjectController(std::function<void(int tag)> setSelectedColorTag);
    // What the current project has.
    void setSelectedTag(int tag);
    // Shows that a button was chosen, closes the menu, and only then has the tag stored.
    void setColoring(TKLabelButton& button);

    // Gives the focus to the button so many places on, if there is one: menus keep the Tab key for themselves.
    void moveFocus(const TKLabelButton& from, int places);

    // From no label to the last colour.
    const std::array<TKLabelButton*, 7>& labels() const { return m_labels; }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void focusSelected();

    QMenu& m_menu;
    QLabel* m_mainLabel;
    std::array<TKLabelButton*, 7> m_labels{};
    std::function<void(int)> m_setSelectedColorTag;
};
