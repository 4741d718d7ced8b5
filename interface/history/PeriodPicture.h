// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/report/CalendarRange.h"
#include "Classes/report/RangeAnswer.h"
#include "interface/history/PeriodPlaces.h"
#include "interface/history/TimePicture.h"

// Stacked bars, one for each day, week or month of a range, of programs or of projects. The eight that have most
// of the range have colours, the others are one grey part; a line says how much the bars with work have on
// average.
//
// Left and Right walk from bar to bar, Up and Down within one, Enter chooses.
class PeriodPicture : public TimePicture {
    Q_OBJECT
public:
    enum class By : unsigned char { Programs, Projects };

    explicit PeriodPicture(const PictureColors& colors, QWidget* parent = nullptr);

    using QWidget::show;
    // The bars in any order; where there is none, the place is empty. The cursor stays if only the bars are others.
    void show(const CalendarRange& range, const std::vector<RangeAnswer::Bar>& bars, By by, QDate today);

    // As shown, the largest first; the last may be "Other".
    QStringList legend() const;
    // Of what has a colour in the legend, and grey for all others.
    QColor colorOf(const QString& name) const;
    // Milliseconds, of the bars that have work; 0 if none has.
    qint64 average() const { return m_average; }
    // The part of a bar for an entry of the legend; empty where it has none. In the widget's coordinates.
    QRect partRect(QDate first, const QString& name) const;
    QRect legendRect(const QString& name) const;
    // The whole place of a bar, from top to bottom.
    QRect placeRect(QDate first) const;

    int itemCount() const override { return int(m_items.size()); }
    QString itemText(int item) const override;
    QString itemDetail(int item) const override;
    QRect itemRect(int item) const override;
    void choose(int item) override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void barChosen(QDate first);
    // After barChosen, if a part of the bar was chosen; also if one of the legend was. Never for "Other".
    void entryChosen(const QString& name);

protected:
    void paintStill(QPainter& painter) override;
    void paintMoving(QPainter& painter) override;
    void tellOfCurrent() override;
    void tellAt(const QPoint& position) override;
    void lookChanged() override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    struct LegendEntry {
        QString name;
        qint64 length = 0;
        QColor color{};
        QColor outline{};
        bool isOther = false;

        // In the user's language.
        QString shownName() const;
    };
    struct Part {
        // In the legend.
        std::size_t entry;
        qint64 length;
        // What lies below it in the bar.
        qint64 below;
    };
    struct Bar {
        QDate first;
        // Of work; where a stretch belongs to two projects, less than the parts together.
        qint64 length = 0;
        std::vector<Part> parts{};
        qint64 height() const { return parts.empty() ? 0 : parts.back().below + parts.back().length; }
    };
    // Where everything is, found once for all bars.
    struct Measures {
        qint64 step = 0;
        qint64 top = 0;
        int averageWidth = 0;
        int legendWidth = 0;
        QRect plot{};
    };
    // A bar, or one of its parts.
    struct Item {
        std::size_t bar;
        std::optional<std::size_t> part;

        friend bool operator==(const Item&, const Item&) = default;
    };

    void findLegend(const std::vector<RangeAnswer::Bar>& bars);
    void fillBars(const std::vector<RangeAnswer::Bar>& bars);
    void findColors();
    const std::vector<RangeAnswer::Entry>& entriesOf(const RangeAnswer::Bar& bar) const {
        return m_by == By::Programs ? bar.programs : bar.projects;
    }

    const Measures& measures() const;
    const QRect& plot() const { return measures().plot; }
    QRect mirrored(const QRect& rect) const;
    int axisWidth(qint64 step, qint64 top) const;
    int averageWidth() const;
    int legendWidth() const;
    int legendRowHeight() const;
    QRect legendRow(std::size_t entry) const;
    qint64 highest() const;
    qint64 step() const;
    double yOf(qint64 length) const;
    QRect placeRect(std::size_t bar) const;
    QRect partRect(std::size_t place, const Part& part) const;

    void paintAxis(QPainter& painter) const;
    void paintBars(QPainter& painter) const;
    void paintSums(QPainter& painter) const;
    void paintLabels(QPainter& painter) const;
    void paintAverage(QPainter& painter) const;
    void paintLegend(QPainter& painter) const;

    std::optional<Item> itemAt(const QPoint& position) const;
    std::optional<std::size_t> legendAt(const QPoint& position) const;
    int numberOf(const Item& item) const;
    void tellOf(const Item& item);
    void walkBars(int steps);
    void walkParts(int steps);

    PeriodPlaces m_places;
    By m_by = By::Programs;
    QDate m_today;
    std::vector<LegendEntry> m_legend;
    // One for each place.
    std::vector<Bar> m_bars;
    std::vector<Item> m_items;
    qint64 m_average = 0;
    // Absent until it is next needed.
    mutable std::optional<Measures> m_measures;
    std::optional<Item> m_hovered;
    std::optional<std::size_t> m_hoveredEntry;
};
