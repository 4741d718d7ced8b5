// SPDX-License-Identifier: MIT
#include "tests/interface/pictures/HistoryPictures.h"

#include "interface/history/DayPicture.h"
#include "interface/history/TimeSheetForms.h"
#include "interface/history/TimeSheetWindow.h"
#include "tests/interface/HistoryViewDesk.h"
#include "tests/interface/pictures/DrawnIcons.h"
#include "tests/interface/pictures/Grab.h"

#include <QAbstractTextDocumentLayout>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QTemporaryDir>
#include <QTextDocument>

namespace {

struct Program {
    const char* name;
    QRgb color;
    const char* title;
    const char* other;
};

constexpr Program kPrograms[] = {
    {"Browser", 0x2a7de1, "Timetable of the western railway", "Meier & Sons – contact"},
    {"Writer", 0x1c71d8, "Offer for Meier", "Letter to the tax office"},
    {"Mail", 0x26a269, "Letter to Anna", "Inbox"},
    {"Draw", 0xe5a50a, "Poster", "Plan of the garden"},
    {"Terminal", 0x3d3846, "make test", "ssh garden"},
};

// Somebody who works for two clients, at the end of a working week.
struct Scene : HistoryViewDesk {
    explicit Scene(const QDir& folder)
        : m_folder(folder) {
        controller.window().resize(900, 600);
        while (today(0).date().dayOfWeek() != Qt::Friday)
            fakes.clock.advance(std::chrono::hours(24));
        std::vector<Identity> timers = makeTimers();
        project("Meier", {timers[1]}, 2);
        project("Garden plan", {timers[3]}, 4);
        controller.saveSettingsToDisk();
        for (const Program& program : kPrograms)
            if (program.name != std::string("Terminal"))
                iconNames.insert(
                    QString::fromUtf8(program.name),
                    drawnIcon(QString::fromUtf8(program.name), QColor::fromRgb(program.color), m_icons));
        const QDate date = today(0).date();
        for (int day = -40; day <= 0; ++day)
            if (date.addDays(day).dayOfWeek() <= 5 || day == 0)
                workOn(date.addDays(day), timers);
        seconds(8 * 3600 + 20 * 60);
    }

    std::vector<Identity> makeTimers() {
        PropertyListArray entries;
        for (const Program& program : kPrograms)
            entries.emplace_back(PropertyListDictionary{
                {kEntryApp, PropertyListDictionary{{kRecordName, QString::fromUtf8(program.name)},
                                                   {kRecordActiveTime, 1.0}}},
                {kEntryWindows, PropertyListArray()}});
        controller.tracker().setArrayRepresentation(entries);
        std::vector<Identity> timers;
        for (const Program& program : kPrograms)
            for (const auto& app : controller.tracker().fullTimeSet())
                if (app->name() == QLatin1String(program.name))
                    timers.push_back(*app->uuid());
        return timers;
    }

    void project(const char* label, const std::vector<Identity>& members, int tag) {
        const auto added = controller.projects().addNewProjectWithItems(members);
        controller.projects().setLabel(*added, QString::fromUtf8(label));
        controller.projects().setSelectedColorTag(*added, tag);
    }

    void workOn(QDate date, const std::vector<Identity>& timers) {
        QDateTime at(date, QTime(8, int(below(50))));
        const QDateTime end(date, QTime(16, int(below(59))));
        while (at < end) {
            const auto which = below(5);
            const qint64 length = 60 + below(which == 1 ? 3000 : 900);
            const Program& program = kPrograms[which];
            if (below(12) == 0)
                past(at, length, "Idle", "", RowPresence::Idle);
            else if (below(15) != 0)
                past(at, length, program.name, below(3) == 0 ? program.other : program.title,
                     RowPresence::Work, {.application = timers[which], .window = {}});
            at = at.addSecs(length);
        }
    }

    unsigned below(unsigned limit) {
        m_random = m_random * 1103515245U + 12345U;
        return (m_random >> 16) % limit;
    }

    void kind(CalendarRange::Kind kind) { command(historyActions().forKind(kind)); }

    void save(const char* name) {
        // The icons come one by one.
        for (int turn = 0; turn < 20; ++turn)
            settle();
        grab(controller.window(), m_folder, name);
    }

private:
    const QDir& m_folder;
    QTemporaryDir m_icons;
    unsigned m_random = 11;
};

void drawRanges(Scene& scene) {
    using Kind = CalendarRange::Kind;
    scene.showHistory();
    scene.command(scene.historyActions().today);
    scene.outline().expand(scene.outline().model()->index(0, 0));
    scene.save("history-day");
    scene.command(scene.historyActions().byProject);
    scene.outline().expand(scene.outline().model()->index(1, 0));
    scene.save("history-day-projects");
    scene.kind(Kind::Week);
    scene.save("history-week-projects");
    scene.command(scene.historyActions().byProgram);
    scene.outline().choose(QStringLiteral("Mail"));
    scene.save("history-week");
    scene.outline().clearSelection();
    scene.kind(Kind::Month);
    scene.save("history-month");
    scene.kind(Kind::Year);
    scene.save("history-year");
    scene.view.showRange(CalendarRange::span(scene.today(0).date().addDays(-20), scene.today(0).date()));
    scene.save("history-span");
}

void drawWidths(Scene& scene) {
    MainWindow& window = scene.controller.window();
    const QSize usual = window.size();
    for (const auto& [width, name] :
         {std::pair(640, "history-640"), std::pair(760, "history-760"), std::pair(1280, "history-1280")}) {
        window.resize(width, 560);
        scene.kind(CalendarRange::Kind::Day);
        scene.save(name);
    }
    window.resize(480, 360);
    scene.save("history-small");
    window.resize(usual);
}

void drawEmptyStates(Scene& scene) {
    scene.kind(CalendarRange::Kind::Day);
    scene.view.showRange(scene.view.range().previous());
    scene.save("history-empty-day");
    scene.kind(CalendarRange::Kind::Week);
    scene.view.showRange(scene.view.range().next().next());
    scene.save("history-empty-week");
    scene.fakes.defaults.setObject(kHistoryDays, -1);
    scene.settle();
    scene.command(scene.historyActions().today);
    scene.save("history-none");
}

// As it comes out of the printer.
void drawPage(const SheetPage& page, const QDir& folder) {
    constexpr double kDotsPerMillimetre = 4;
    const QSizeF paper = TimeSheetForms::pageLayout().fullRect(QPageLayout::Millimeter).size();
    QImage image((paper * kDotsPerMillimetre).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDotsPerMeterX(int(kDotsPerMillimetre * 1000));
    image.setDotsPerMeterY(int(kDotsPerMillimetre * 1000));
    QPainter painter(&image);
    const auto document = TimeSheetForms::document(page);
    const QRectF inner = TimeSheetForms::pageLayout().paintRect(QPageLayout::Millimeter);
    document->documentLayout()->setPaintDevice(&image);
    document->setPageSize(inner.size() * kDotsPerMillimetre);
    painter.translate(inner.topLeft() * kDotsPerMillimetre);
    document->drawContents(&painter);
    painter.end();
    image.save(folder.filePath(QStringLiteral("time-sheet-page.png")));
    QFile pdf(folder.filePath(QStringLiteral("time-sheet.pdf")));
    if (pdf.open(QFile::WriteOnly))
        pdf.write(TimeSheetForms::pdf(page));
}

void drawSheet(Scene& scene, const QDir& folder) {
    scene.kind(CalendarRange::Kind::Week);
    scene.command(scene.historyActions().timeSheet);
    TimeSheetWindow& sheet = *scene.view.timeSheet();
    grab(sheet, folder, "time-sheet");
    SheetPage page = sheet.page();
    page.name = QStringLiteral("Anna Berg, Linz");
    page.notes = QStringLiteral("Poster: second draft.\nThank you for your trust.");
    drawPage(page, folder);
    sheet.close();
    scene.kind(CalendarRange::Kind::Month);
    scene.command(scene.historyActions().timeSheet);
    grab(sheet, folder, "time-sheet-month");
    sheet.close();
}

// A gap is booked, and a stretch is called what it was.
void drawAmending(Scene& scene, const QDir& folder) {
    scene.command(scene.historyActions().today);
    scene.kind(CalendarRange::Kind::Day);
    DayPicture& picture = scene.pane().dayPicture();
    const auto child = [&](const char* name) {
        return scene.controller.window().findChild<QDialog*>(QLatin1String(name));
    };
    scene.view.showPiece(std::pair(scene.today(12).toMSecsSinceEpoch(), scene.today(14).toMSecsSinceEpoch()));
    scene.settle();
    scene.command(scene.historyActions().amend.book);
    child("bookingWindow")
        ->findChild<QLineEdit*>(QStringLiteral("bookedName"))
        ->setText(QStringLiteral("Lunch with Meier"));
    grab(*child("bookingWindow"), folder, "history-book");
    child("bookingWindow")->accept();
    scene.view.showPiece(std::nullopt);
    scene.settle();
    picture.setFocus();
    picture.setCurrentItem(2);
    scene.command(scene.historyActions().amend.name);
    child("namingWindow")->findChild<QLineEdit*>()->setText(QStringLiteral("Meeting with Meier"));
    grab(*child("namingWindow"), folder, "history-name");
    child("namingWindow")->accept();
    scene.settle();
    picture.setCurrentItem(-1);
    picture.setCurrentItem(2);
    scene.save("history-amended");
    picture.setCurrentItem(-1);
    auto* menu = scene.controller.window().findChild<QMenu*>(QStringLiteral("historyMenu"));
    menu->ensurePolished();
    menu->adjustSize();
    grab(*menu, folder, "history-menu");
}

void drawManual(Scene& scene, const QDir& folder) {
    scene.command(scene.actions().showManual);
    auto& manual = *scene.controller.window().findChild<QDialog*>(QStringLiteral("manualWindow"));
    manual.findChild<QListWidget*>()->setCurrentRow(3);
    grab(manual, folder, "manual");
    manual.close();
}

} // namespace

void drawHistoryPictures(const QDir& folder) {
    {
        HistoryViewDesk desk;
        desk.controller.window().resize(900, 600);
        desk.showHistory();
        grab(desk.controller.window(), folder, "history-first");
    }
    Scene scene(folder);
    drawRanges(scene);
    drawWidths(scene);
    drawSheet(scene, folder);
    drawAmending(scene, folder);
    drawManual(scene, folder);
    drawEmptyStates(scene);
}
