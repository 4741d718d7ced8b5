// SPDX-License-Identifier: MIT
#include "tests/interface/pictures/AbsencePictures.h"

#include "interface/absences/AbsenceBar.h"
#include "interface/labels/TKLabelColorList.h"
#include "tests/interface/Desk.h"

#include <QComboBox>
#include <QDir>

#include <cstdio>

void drawAbsences(Desk& desk, const QDir& folder) {
    QMainWindow& window = desk.controller.window();
    AbsenceBar& bar = desk.controller.window().absenceBar();
    const auto save = [&](const char* name) {
        desk.settle();
        const QString path = folder.filePath(QLatin1String(name) + QStringLiteral(".png"));
        window.grab().save(path);
        std::printf("%s\n", qPrintable(path));
    };
    std::vector<AbsenceBar::Project> projects;
    for (const auto& project : desk.controller.projects().projects())
        projects.push_back(
            {project->label(), TKLabelColorList::sharedColorList().colorForTag(project->colorTag())});
    bar.setProjects(projects);
    bar.ask({{1, QStringLiteral("12:03 – 13:10 (1 hour, 7 minutes)")}});
    save("absence");
    bar.ask({{4, QStringLiteral("15:31 – 16:02 (31 minutes)")},
             {3, QStringLiteral("14:12 – 14:40 (28 minutes)")},
             {2, QStringLiteral("13:15 – 13:50 (35 minutes)")},
             {1, QStringLiteral("12:03 – 13:10 (1 hour, 7 minutes)")}});
    bar.findChild<QLineEdit*>(QStringLiteral("absenceName"))->setText(QStringLiteral("Visit at Meier's"));
    bar.findChild<QComboBox*>(QStringLiteral("absenceProject"))->setCurrentIndex(1);
    save("absences");
    window.resize(560, 480);
    save("absences-narrow");
    bar.ask({});
}
