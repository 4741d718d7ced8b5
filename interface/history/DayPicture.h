// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/RangeAnswer.h"
#include "interface/history/LaneColumns.h"
#include "interface/history/TimePicture.h"
#include "interface/history/TimeView.h"

#include <array>

// A day, or a piece of one: an hour axis, a lane for programs and one for projects. Idle time is pale, what lies
// between stretches is empty, and a line says where now is. Elapsed time is drawn, local time is written. A day opens
// on its working day: the full hours from the first work to the last, and a few at the least.
//
// Ctrl and the wheel, and the keys + - 0, zoom; the wheel, Shift and the arrow keys, and Page Up and Down move the
// piece that is shown. Left and Right walk from stretch to stretch, Up and Down between the lanes, Enter chooses.
// Dragging chooses a piece; 0 and Escape ask for all again, which first shows the working day, then all hours.
class DayPicture : public TimePicture {
    Q_OBJECT
public:
    enum Lane : unsigned char { Programs, Projects };

    explicit DayPicture(const PictureColors& colors, QWidget* parent = nullptr);

    using QWidget::show;
    // Milliseconds since 1970; `end` is not included. Zoom and cursor stay if only the end or the pieces are
    // others; the working day grows with them.
    void show(qint64 begin, qint64 end, std::vector<RangeAnswer::Piece> pieces, qint64 now);
    // Moves only the line.
    void setNow(qint64 now);

    const TimeView& view() const { return m_view; }
    void zoomIn();
    void zoomOut();
    void showAll();
    void showWorkingDay();
    // What 0 does.
    void reset();

    // In the widget's coordinates.
    double xOf(double moment) const;
    double momentAt(double x) const;
    QRect laneRect(Lane lane) const;
    Lane currentLane() const { return m_lane; }
    // What a click there means; below 0 for nothing.
    int itemAt(const QPoint& position) const { return laneAt(position) ? pieceAt(position.x()) : -1; }
    // Of what a lane shows; invalid for a name that it does not show.
    QColor colorOf(Lane lane, const QString& name) const;

    int itemCount() const override { return int(m_pieces.size()); }
    QString itemText(int item) const override;
    QString itemDetail(int item) const override;
    QRect itemRect(int item) const override;
    void choose(int item) override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // A piece was chosen by dragging.
    void rangeChosen(qint64 begin, qint64 end);
    // All is wanted again.
    void rangeReset();
    // "No project" for work that belongs to none.
    void programChosen(const QString& name);
    void projectChosen(const QString& name);

protected:
    void paintStill(QPainter& painter) override;
    void paintMoving(QPainter& painter) override;
    void reveal(int item) override;
    void tellOfCurrent() override;
    void tellAt(const QPoint& position) override;
    void lookChanged() override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    using Piece = RangeAnswer::Piece;

    // What a lane's spans were spent with: one program, or all the projects that a stretch belongs to.
    struct LaneEntry {
        QStringList names;
        bool isIdle = false;
        QList<QColor> colors{};
        // The same as they are painted, and that of its outline.
        std::vector<QRgb> fills{};
        QRgb edge = 0;
    };
    struct LaneContent {
        std::vector<LaneSpan> spans;
        std::vector<LaneEntry> entries;
        // By entry; equal for those of the same colours.
        std::vector<int> colorOf;
    };
    // Pixels of the device that have the same entry.
    struct Run {
        int first;
        int end;
        LaneColumn column;
    };
    struct Drag {
        double from;
        double to;
        bool isMoved = false;
    };

    QRect chart() const;
    int axisHeight() const;
    int laneHeight() const;
    int nameWidth() const { return m_nameWidth; }
    void measureNames();
    QString nameOf(Lane lane) const;
    std::optional<Lane> laneAt(const QPoint& position) const;
    double timePerPixel() const;

    void fillLane(Lane lane);
    QStringList namesIn(Lane lane, const Piece& piece) const;
    void findColors(LaneContent& lane) const;

    void paintAxis(QPainter& painter) const;
    void paintLane(QPainter& painter, Lane lane) const;
    void paintRuns(QPainter& painter, const QRect& pixels, const LaneContent& content,
                   const std::vector<LaneColumn>& columns) const;
    void paintNames(QPainter& painter, const QRect& pixels, const LaneContent& content,
                    const std::vector<Run>& runs) const;
    void paintSelection(QPainter& painter) const;
    void paintNow(QPainter& painter) const;

    // The pieces that the pointer touches, and the one that it means.
    std::vector<int> piecesAt(double x) const;
    int pieceAt(double x) const;
    void tellOfDrag(int x);
    PictureTip::Line lineOf(int piece, Lane lane) const;
    QString projectsText(const Piece& piece) const;
    double snapped(double x) const;
    // From the first work to the last, in full hours; all if there is none.
    std::pair<double, double> workingDay() const;
    // The user has chosen what is seen.
    void viewChanged();
    void walk(int steps);
    bool takeKey(int key, Qt::KeyboardModifiers modifiers);
    // Ends dragging, or else asks for all again.
    void cancel();

    std::vector<Piece> m_pieces;
    qint64 m_now = 0;
    int m_nameWidth = 0;
    TimeView m_view;
    // Nobody has zoomed or moved since the day was opened.
    bool m_isAsOpened = true;
    std::array<LaneContent, 2> m_lanes;
    Lane m_lane = Programs;
    std::optional<Drag> m_drag;
    // The piece that was chosen last.
    std::optional<std::pair<double, double>> m_chosen;
    int m_hovered = -1;
    Lane m_hoveredLane = Programs;
};
