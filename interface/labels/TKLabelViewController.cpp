// SPDX-License-Identifier: MIT
#include "interface/labels/TKLabelViewController.h"

#include "interface/labels/TKLabelButton.h"
#include "interface/labels/TKLabelColorList.h"
#include "interface/shell/Named.h"
#include "interface/shell/PlainText.h"
#include "interface/shell/SpokenRole.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QWidgetAction>

#include <algorithm>

namespace {

constexpr int kIndent = 28;
constexpr int kAir = 4;
constexpr int kGap = 3;

constexpr std::array<const char*, 7> kNames = {"colorNone", "color1", "color2", "color3",
                                               "color4",    "color5", "color6"};

} // namespace

TKLabelViewController::TKLabelViewController(QMenu& menu, ProjectController projectController)
    : m_menu(menu)
    , m_mainLabel(named(new PlainLabel(localized("Label:")), QStringLiteral("mainLabel")))
    , m_projectController(std::move(projectController)) {
    speakAs(*this, QAccessible::Grouping);
    named(this, QStringLiteral("tkLabelMenuItem"), m_mainLabel->text());
    setFocusPolicy(Qt::StrongFocus);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kIndent, kAir, kIndent, kAir);
    rows->setSpacing(kAir);
    rows->addWidget(m_mainLabel);
    auto* cells = new QHBoxLayout;
    cells->setSpacing(kGap);
    rows->addLayout(cells);
    for (std::size_t tag = 0; tag < m_labels.size(); ++tag) {
        auto* button = named(new TKLabelButton(*this), QLatin1String(kNames[tag]),
                             TKLabelColorList::nameForTag(int(tag)));
        button->setColorTag(int(tag));
        button->setToolTip(PlainText::toolTip(button->accessibleName()));
        cells->addWidget(button);
        m_labels[tag] = button;
    }
    setFocusProxy(m_labels.front());
    cells->addStretch(1);
    // What a listener hears of this row of the menu.
    auto* action = new QWidgetAction(&menu);
    action->setText(m_mainLabel->text());
    action->setDefaultWidget(this);
    menu.addAction(action);
}

void TKLabelViewController::setColoring(TKLabelButton& button) {
    for (TKLabelButton* label : m_labels) {
        label->setSelectedColor(label == &button);
        label->repaint();
    }
    m_menu.close();
    m_projectController(button.colorTag());
}

void TKLabelViewController::setSelectedTag(int tag) {
    const bool isEnabled = tag != kNoProject;
    for (TKLabelButton* label : m_labels) {
        label->setEnabled(isEnabled);
        label->setSelectedColor(label->colorTag() == tag);
    }
    // The menu gives the focus to the row. Handed on later, it would be heard in the wrong order.
    setFocusProxy(&selected());
    // Otherwise the focus frame would stay around the previous colour.
    if (std::ranges::any_of(m_labels, &TKLabelButton::hasFocus))
        selected().setFocus(Qt::TabFocusReason);
    // Colours by role, so that the text can be read in a dark menu too.
    m_mainLabel->setForegroundRole(isEnabled ? QPalette::PlaceholderText : QPalette::WindowText);
}

void TKLabelViewController::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    // Otherwise the menu would give the focus back to the colour that was last chosen, not to the project's.
    for (TKLabelButton* label : m_labels)
        label->clearFocus();
}

TKLabelButton& TKLabelViewController::selected() const {
    const auto selected =
        std::ranges::find_if(m_labels, [](const auto* label) { return label->selectedColor(); });
    return *(selected == m_labels.end() ? m_labels.front() : *selected);
}

void TKLabelViewController::moveFocus(const TKLabelButton& from, int places) {
    const auto place = std::ranges::find(m_labels, &from) - m_labels.begin() + places;
    if (place >= 0 && place < std::ssize(m_labels))
        m_labels[std::size_t(place)]->setFocus(Qt::TabFocusReason);
}
