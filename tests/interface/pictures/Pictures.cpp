// SPDX-License-Identifier: MIT
// pictures FOLDER: draws the main window, one PNG for each scene, in the palette, language and scale of the
// environment (TICKLOG_DARK, TICKLOG_CONTRAST, TICKLOG_LANGUAGE, TICKLOG_MIRRORED, QT_SCALE_FACTOR). For people to look at.
#include "Classes/rules/RuleCategories.h"
#include "interface/mainwindow/FirstStart.h"
#include "interface/mainwindow/ObstacleBar.h"
#include "interface/preferences/TKSetupController.h"
#include "interface/preferences/TokenField.h"
#include "interface/setup/SetupWindow.h"
#include "interface/shell/ProgramIcons.h"
#include "interface/shell/QtAlerts.h"
#include "interface/shell/ReadableGreys.h"
#include "interface/shell/StatusItem.h"
#include "interface/sidebar/ProjectPatternsWindow.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/text/Translations.h"
#include "tests/interface/Desk.h"
#include "tests/interface/HistoryViewDesk.h"
#include "tests/interface/pictures/AbsencePictures.h"
#include "tests/interface/pictures/DrawnIcons.h"
#include "tests/interface/pictures/Grab.h"
#include "tests/interface/pictures/HistoryPictures.h"
#include "tests/interface/pictures/TimePictures.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QStyleFactory>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <QVBoxLayout>

#include <cstdio>
#include <memory>

namespace {

void wearDark() {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x2b, 0x2d, 0x30));
    dark.setColor(QPalette::WindowText, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x23));
    dark.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2b));
    dark.setColor(QPalette::Text, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::PlaceholderText, QColor(0x8c, 0x90, 0x96));
    dark.setColor(QPalette::Button, QColor(0x35, 0x38, 0x3b));
    dark.setColor(QPalette::ButtonText, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::Mid, QColor(0x45, 0x48, 0x4c));
    dark.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(0x75, 0x79, 0x7e));
    QApplication::setPalette(dark);
}

// Black, white, and yellow for what is chosen.
void wearContrast() {
    QPalette palette(Qt::white, Qt::black, Qt::white, Qt::white, Qt::white, Qt::white, Qt::white, Qt::black,
                     Qt::black);
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    QApplication::setPalette(palette);
}

struct Scene : Desk {
    explicit Scene(const char* file)
        : name(QLatin1String(file)) {
        controller.setProgramIcons(icons);
        controller.window().resize(900, 560);
    }

    // A week's work of somebody who writes, mails and draws.
    void work() {
        account("Firefox", 15300,
                {{QStringLiteral("Weather in Linz"), 900},
                 {QStringLiteral("Timetable of the western railway"), 1500},
                 {QStringLiteral(
                      "A very long title about the history of measuring time in the monasteries of the "
                      "Benedictines, second part"),
                  4200}});
        account("Inkscape", 8100, {{QStringLiteral("poster.svg"), 5400}, {QStringLiteral("map.svg"), 2700}});
        account("LibreOffice Writer", 23460,
                {{QStringLiteral("Yearly report.odt"), 14200}, {QStringLiteral("Letter to Anna.odt"), 3600}});
        account("Thunderbird", 9420, {{QStringLiteral("Inbox"), 7200}, {QStringLiteral("Sent"), 600}});
        account("Terminal", 4380);
        account("Idle", 7020);
        project("Poster", {"Inkscape"}, 2);
        project("Yearly report", {"LibreOffice Writer", "Thunderbird"}, 5);
        project("Reading", {"Firefox"}, 4);
        project("Garden", {}, 0);
    }

    void project(const char* label, const std::vector<const char*>& members, int tag) {
        std::vector<Identity> items;
        for (const auto& app : controller.tracker().fullTimeSet())
            for (const char* member : members)
                if (app->name() == QLatin1String(member))
                    items.push_back(*app->uuid());
        ProjectList& projects = controller.projects();
        const auto added = projects.addNewProjectWithItems(items);
        projects.setLabel(*added, QString::fromUtf8(label));
        projects.setSelectedColorTag(*added, tag);
    }

    void selectProject(int row) {
        auto& outline = controller.window().projectOutline();
        outline.setCurrentIndex(outline.model()->index(row, 0));
        settle();
    }

    void search(const char* text) {
        controller.window().searchAppField().setText(QString::fromUtf8(text));
        settle();
    }

    void open(const char* row) { table().expand(this->row(row)); }

    void hover(const QModelIndex& index) {
        QTest::mouseMove(table().viewport(), table().visualRect(index).center());
        settle();
    }

    void save(const QDir& folder) {
        settle();
        // Icons are looked for when their rows are painted.
        controller.window().grab();
        for (int turn = 0; turn < 20; ++turn)
            settle();
        controller.window().grab().save(folder.filePath(name + QStringLiteral(".png")));
        std::printf("%s\n", qPrintable(folder.filePath(name + QStringLiteral(".png"))));
    }

    QString name;
    ProgramIcons icons{drawnIconOf};
};

PropertyListDictionary rulesOfAWriter() {
    return {
        {QStringLiteral("Firefox"), PropertyListDictionary{{kRuleCategories, QStringLiteral("reading")}}},
        {QStringLiteral("Inkscape"),
         PropertyListDictionary{{kRuleCategories, QStringLiteral("drawing,poster,work,garden plan")}}},
        {QStringLiteral("soffice.bin"), PropertyListDictionary{{kRuleEnableRename, true},
                                                               {kRuleRename, QStringLiteral("Writer")},
                                                               {kRuleBlock, true},
                                                               {kRuleCategories, QStringLiteral("work")}}}};
}

void drawPreferences(const QDir& folder) {
    Scene scene("preferences");
    scene.fakes.defaults.setObject(kRulesetKey, rulesOfAWriter());
    const LoginItem login{.isEnabled = [] { return true; }, .setEnabled = [](bool) {}};
    TKSetupController setup(scene.controller, scene.fakes.platform, scene.alerts, login);
    PrefWindow& window = setup.prefWindow();
    setup.showPrefWindow();
    grab(window, folder, "preferences-general");
    setup.editRules();
    setup.rulesTab().select(1);
    grab(window, folder, "preferences-rules");
    setup.editRule();
    grab(setup.ruleWindow(), folder, "preferences-rule");
    setup.ruleWindow().ruleBlockFromList().setEnabled(true);
    setup.ruleWindow().ruleBlockFromList().setChecked(true);
    grab(setup.ruleWindow(), folder, "preferences-rule-blocked");
    setup.cancelEditingRule();
    window.selectTab(QStringLiteral("Archive"));
    grab(window, folder, "preferences-archive-folded");
    scene.fakes.defaults.setObject(kSaveTimerPeriodically, true);
    grab(window, folder, "preferences-archive");
    window.selectTab(QStringLiteral("General"));
    grab(window, folder, "preferences-general-unfolded");
}

// What the history keeps, and what is forgotten of it.
void drawHistorySettings(const QDir& folder) {
    HistoryDesk desk;
    for (const auto& [program, title, time] :
         {std::tuple("Firefox", "Timetable of the western railway", 1200), std::tuple("Firefox", "Cats", 340),
          std::tuple("Thunderbird", "Letter to Anna", 95)})
        desk.work(program, title, time);
    PrefWindow& window = desk.setup.prefWindow();
    desk.setup.showPrefWindow();
    window.selectTab(QStringLiteral("Titles"));
    const auto rule = [](const char* program, const char* title, const char* effect, const char* by) {
        return PropertyListDictionary{{kTitleRuleProgram, QString::fromUtf8(program)},
                                      {kTitleRuleTitle, QString::fromUtf8(title)},
                                      {kTitleRuleEffect, QString::fromUtf8(effect)},
                                      {kTitleRuleReplacement, QString::fromUtf8(by)}};
    };
    PropertyListArray rules = TitleRules::fromTheStart();
    for (const auto& each : {rule("Thunderbird", "Anna", "replace", "A letter"),
                             rule("Diary", "", "private", ""), rule("", "railway", "leave out", "")})
        rules.emplace_back(each);
    desk.defaults().setObject(kTitleRules, std::move(rules));
    desk.settle();
    desk.setup.titlesTab().select(1);
    grab(window, folder, "preferences-titles");
    desk.setup.titlesTab().edit();
    grab(desk.setup.titlesTab().sheet(), folder, "preferences-title-rule");
    desk.setup.titlesTab().sheet().reject();
    window.selectTab(QStringLiteral("History"));
    grab(window, folder, "preferences-history");
    desk.setup.forgetHistory();
    desk.seconds(1);
    grab(*desk.setup.forgetWindow(), folder, "forget");
    desk.setup.forgetWindow()->close();
    desk.defaults().setObject(kHistoryDays, -1);
    grab(window, folder, "preferences-history-none");
}

// The questions that granting trust may ask.
void drawAuthorization(const QDir& folder) {
    Scene scene("authorization");
    scene.show();
    QtAlerts alerts;
    alerts.setWindow(&scene.controller.window());
    AppAuthorization authorization(scene.fakes.platform, alerts, {[] {}, [] {}});
    const auto grabQuestion = [&](const char* name) {
        QTimer::singleShot(0, qApp, [&folder, name] {
            QWidget* box = QApplication::activeModalWidget();
            grab(*box, folder, name);
            box->close();
        });
    };
    scene.fakes.sandbox.sandboxed = true;
    grabQuestion("authorization");
    authorization.checkAccessibilityTrust();
    grabQuestion("authorization-failed");
    authorization.authFailError(Failure{Failure::Kind::NotFound, QStringLiteral("This was not authorized.")});
}

// Longer by about two fifths, as other languages are.
class Wordy : public QTranslator {
public:
    QString translate(const char*, const char* text, const char*, int) const override {
        const QString words = QString::fromUtf8(text);
        return words + u' ' + words.left(words.size() * 2 / 5).trimmed();
    }

    bool isEmpty() const override { return false; }
};

void drawSetup(const QDir& folder) {
    const auto make = [] {
        auto made = std::make_unique<SetupWindow>(SetupWindow::Commands{[] {}, [] {}});
        const QSize wanted = made->size();
        made->makeKeyAndOrderFront();
        // There is no real screen, so windows may be larger than it.
        made->resize(wanted);
        return made;
    };
    const auto draw = [&](SetupWindow& window, const char* name) { grab(window, folder, name); };
    auto window = make();
    TKInstructionView& view = window->instructionView();
    draw(*window, "setup-0");
    for (const char* name : {"setup-1", "setup-2", "setup-3", "setup-4"}) {
        view.moveToStep(view.lastStepNumber() + 1, false);
        draw(*window, name);
    }
    view.moveToStep(2, false);
    view.subMoveToStep(3, true);
    auto* turn = view.findChild<QVariantAnimation*>(QStringLiteral("turn"));
    turn->pause();
    turn->setCurrentTime(TKInstructionView::kTurnMs * 2 / 5);
    draw(*window, "setup-turning");
    view.moveToStep(1, false);
    view.clearFocus();
    view.setFocus(Qt::TabFocusReason);
    draw(*window, "setup-focus-page");
    QTest::keyClick(&view, Qt::Key_Tab);
    draw(*window, "setup-focus-row");
    window->resize(1000, 800);
    draw(*window, "setup-large");
    window->resize(440, 500);
    view.moveToStep(3, false);
    draw(*window, "setup-small");
    window.reset();
    const Wordy wordy;
    QCoreApplication::installTranslator(const_cast<Wordy*>(&wordy));
    window = make();
    draw(*window, "setup-long-0");
    window->instructionView().moveToStep(3, false);
    draw(*window, "setup-long-3");
    window.reset();
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(QFontInfo(usual).pixelSize() * 7 / 4);
    QApplication::setFont(large);
    window = make();
    draw(*window, "setup-long-large-0");
    QCoreApplication::removeTranslator(const_cast<Wordy*>(&wordy));
    window = make();
    draw(*window, "setup-large-font-0");
    window->instructionView().moveToStep(4, false);
    draw(*window, "setup-large-font-4");
    QApplication::setFont(usual);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    window = make();
    draw(*window, "setup-mirrored-0");
    window->instructionView().moveToStep(2, false);
    draw(*window, "setup-mirrored-2");
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void popUp(QMenu& menu, const QDir& folder, const char* name) {
    menu.popup(QPoint(20, 20));
    grab(menu, folder, name);
    menu.close();
}

// The icon in every size that panels ask for, on a light panel and on a dark one.
void drawStatusIcon(const QIcon& icon, const QDir& folder, const char* name) {
    QWidget panels;
    auto* rows = new QVBoxLayout(&panels);
    for (const QColor& colour : {QColor(0xee, 0xee, 0xec), QColor(0x1c, 0x1e, 0x21)}) {
        auto* panel = new QWidget;
        panel->setAutoFillBackground(true);
        panel->setPalette(QPalette(colour));
        auto* places = new QHBoxLayout(panel);
        for (const int size : {16, 22, 24, 32, 48, 64}) {
            auto* place = new QLabel;
            place->setPixmap(icon.pixmap(QSize(size, size)));
            places->addWidget(place);
        }
        rows->addWidget(panel);
    }
    grab(panels, folder, name);
}

void trouble(TKController& controller) {
    const QString store = QStringLiteral("Primary Database.tkd");
    controller.trouble().tell(
        AccountTrouble::Kind::StoreUnwritten,
        AccountTrouble::about(localized("“%@” cannot be saved: the disk is full."), store));
    controller.trouble().tell(AccountTrouble::Kind::ProjectsSetAside,
                              AccountTrouble::setAside(QStringLiteral("Ticklog Projects")));
}

void drawStatus(const QDir& folder) {
    Scene scene("status");
    scene.work();
    scene.show();
    scene.controller.appDelegate().applicationDidFinishLaunching();
    StatusMenu& status = scene.controller.appDelegate().statusMenu();
    const StatusItem& item = *scene.controller.appDelegate().presence().statusBarItem();
    drawStatusIcon(item.icon().icon(), folder, "status-icon-idle");
    scene.front("LibreOffice Writer", "Yearly report.odt");
    scene.command(scene.actions().toggleCounting);
    scene.seconds(75);
    drawStatusIcon(item.icon().icon(), folder, "status-icon-active");
    popUp(status.mainMenu(), folder, "status-menu");
    Q_EMIT status.mainMenu().aboutToShow();
    popUp(status.applicationTimesMenu(), folder, "status-all-timers");
    for (const QAction* action : status.mainMenu().actions())
        if (action->menu() && action->text().contains(QLatin1String("Yearly report")))
            popUp(*action->menu(), folder, "status-project");
    scene.fakes.frontApplication.obstacleText = QStringLiteral("Nobody tells.");
    scene.seconds(1);
    popUp(status.mainMenu(), folder, "status-obstacle");
    trouble(scene.controller);
    popUp(status.mainMenu(), folder, "status-trouble");
}

void drawAll(const QDir& folder) {
    {
        Scene scene("first-start");
        const FirstStart first(scene.controller, scene.fakes.defaults,
                               {.isEnabled = [] { return false; }, .setEnabled = [](bool) {}}, [] {});
        scene.show();
        scene.save(folder);
    }
    {
        Scene scene("all-timers");
        scene.work();
        scene.show();
        scene.front("LibreOffice Writer", "Yearly report.odt");
        scene.command(scene.actions().toggleCounting);
        scene.seconds(75);
        scene.open("LibreOffice Writer");
        scene.open("Firefox");
        scene.select({scene.row("Thunderbird")});
        scene.hover(scene.row("Inkscape"));
        scene.save(folder);
    }
    {
        Scene scene("obstacle");
        scene.work();
        scene.fakes.frontApplication.obstacleText =
            localized("GNOME Shell tells which window is in front only to its extensions, and the one that "
                      "belongs to Ticklog is not running.") +
            u' ' +
            localized("Until it runs, Ticklog sees only programs that tell assistive programs about their "
                      "windows; all other time counts as “Desktop”.");
        scene.controller.window().obstacleBar().offerRemedy(true);
        scene.show();
        scene.save(folder);
        scene.fakes.frontApplication.obstacleText.clear();
        scene.controller.window().obstacleBar().offerRemedy(false);
        trouble(scene.controller);
        scene.name = QStringLiteral("trouble");
        scene.save(folder);
    }
    {
        Scene scene("absence");
        scene.work();
        scene.show();
        drawAbsences(scene, folder);
    }
    {
        Scene scene("project");
        scene.work();
        scene.show();
        scene.selectProject(2);
        scene.open("Thunderbird");
        scene.save(folder);
        scene.selectProject(4);
        scene.name = QStringLiteral("empty-project");
        scene.save(folder);
    }
    {
        Scene scene("search");
        scene.work();
        scene.show();
        scene.search("re");
        scene.save(folder);
        scene.search("nothing like it");
        scene.name = QStringLiteral("nothing-found");
        scene.save(folder);
    }
    {
        Scene scene("frozen");
        scene.work();
        scene.show();
        scene.select({scene.row("Thunderbird")});
        scene.command(scene.actions().branch);
        scene.controller.tracker().branchNode(
            scene.controller.tracker().fullTimeSet()[0]->windows()[0]->node());
        scene.table().expandAllRows();
        scene.settle();
        scene.save(folder);
        scene.controller.window().resize(480, 360);
        scene.name = QStringLiteral("smallest");
        scene.save(folder);
    }
    {
        Scene scene("renaming");
        scene.work();
        scene.show();
        scene.table().setCurrentIndex(scene.row("Inkscape"));
        scene.controller.window().mainTable().editName();
        scene.settle();
        scene.save(folder);
    }
    drawPreferences(folder);
    drawHistoryPictures(folder);
    drawHistorySettings(folder);
    drawAuthorization(folder);
    drawSetup(folder);
    drawStatus(folder);
    drawTimePictures(folder);
    Scene scene("labels");
    scene.work();
    scene.show();
    scene.selectProject(1);
    scene.controller.projects().setPatterns(
        *scene.controller.projects().projects().front(),
        {PropertyListDictionary{{kTitleRuleProgram, QStringLiteral("Inkscape")}},
         PropertyListDictionary{{kTitleRuleTitle, QStringLiteral("poster|placard")},
                                {kTitleRuleIsExpression, true}}});
    scene.command(scene.actions().editPatterns);
    grab(*scene.controller.projectController().patternsWindow(), folder, "patterns");
    scene.controller.projectController().patternsWindow()->close();
    QMenu& menu = scene.controller.window().projectMenu();
    menu.popup(scene.controller.window().mapToGlobal(QPoint(20, 20)));
    scene.settle();
    menu.grab().save(folder.filePath(QStringLiteral("labels.png")));
    menu.close();
}

} // namespace

int main(int argc, char** argv) {
    qputenv("TZ", "UTC");
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (qEnvironmentVariableIsSet("TICKLOG_DARK"))
        wearDark();
    if (qEnvironmentVariableIsSet("TICKLOG_CONTRAST"))
        wearContrast();
    const ReadableGreys greys;
    const QString language = qEnvironmentVariable("TICKLOG_LANGUAGE", QStringLiteral("en"));
    QLocale::setDefault(QLocale(language));
    const Translations translations({language});
    if (qEnvironmentVariableIsSet("TICKLOG_MIRRORED"))
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("."));
    folder.mkpath(QStringLiteral("."));
    // The pictures of time or of the history alone, while one works at them.
    if (qEnvironmentVariableIsSet("TICKLOG_TIMES"))
        drawTimePictures(folder);
    else if (qEnvironmentVariableIsSet("TICKLOG_HISTORY"))
        drawHistoryPictures(folder);
    else
        drawAll(folder);
}
