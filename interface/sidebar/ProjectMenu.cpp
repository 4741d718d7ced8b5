// SPDX-License-Identifier: MIT
#include "interface/sidebar/ProjectMenu.h"

#include "interface/labels/ColorDot.h"
#include "interface/labels/TKLabelColorList.h"
#include "interface/shell/ButtonText.h"
#include "interface/shell/TimerMenuItem.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QPainter>

namespace {

// Logical pixels.
constexpr int kDot = 12;
constexpr int kIcon = 16;

QIcon dotIcon(int tag, qreal scale) {
    const QColor color = TKLabelColorList::sharedColorList().colorForTag(tag);
    if (color.alpha() == 0)
        return {};
    QPixmap picture(QSize(kIcon, kIcon) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr double kEdge = (kIcon - kDot) / 2.0;
    drawColorDot(painter, {kEdge, kEdge, kDot, kDot}, color, 1);
    return picture;
}

} // namespace

ProjectMenu::ProjectMenu(const QString& title, const ProjectList& projects, Choices choices, QWidget* parent)
    : QMenu(title, parent)
    , m_projects(projects)
    , m_choices(std::move(choices)) {
    setAccessibleName(buttonText(title));
    connect(this, &QMenu::aboutToShow, this, &ProjectMenu::fill);
    fill();
}

void ProjectMenu::fill() {
    clear();
    for (const ProjectList::Project& project : m_projects.projects()) {
        QAction* line = addAction(dotIcon(project->colorTag(), devicePixelRatioF()),
                                  menuName(MenuForm::Drawn, project->label()));
        const bool isChosen = m_choices.isChosen(*project);
        line->setCheckable(isChosen);
        line->setChecked(isChosen);
        line->setEnabled(!isChosen);
        connect(line, &QAction::triggered, this, [this, project] { m_choices.project(project); });
    }
    if (m_projects.count() > 0)
        addSeparator();
    addAction(localized("&New Project…"), this, [this] { m_choices.newProject(); });
}
