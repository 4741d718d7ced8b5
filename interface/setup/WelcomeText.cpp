// SPDX-License-Identifier: MIT
#include "interface/setup/WelcomeText.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFontPixels = 24;
constexpr double kSmallestFontPixels = 11;
// Times the font's own height: as wished, and when there is little room.
constexpr double kLineHeight = 1.5;
constexpr double kTightLineHeight = 1.2;
// The column, and the lower edges of the two boxes measured upwards from the page's lower edge.
constexpr double kX = 60;
constexpr double kWidth = 325;
constexpr double kBoxHeight = 200;
constexpr double kFirstY = 60;
constexpr double kSecondY = -75;
// Free space above, below and between the two.
constexpr double kTopMargin = 20;
constexpr double kBottomMargin = 8;
constexpr double kGap = 20;

const QColor kFirstColour = Qt::white;
const QColor kSecondColour(200, 230, 255);

QFont fontOf(double pixels) {
    QFont font;
    // Few desktops have Georgia; Gelasio is made to replace it.
    font.setFamilies({QStringLiteral("Georgia"), QStringLiteral("Gelasio"), QStringLiteral("Noto Serif"),
                      QStringLiteral("DejaVu Serif Condensed"), QStringLiteral("serif")});
    font.setStyleHint(QFont::Serif);
    font.setBold(true);
    font.setItalic(true);
    font.setPixelSize(qRound(pixels));
    return font;
}

struct Setting {
    double fontPixels;
    double lineHeight;
};

// A text wrapped to the column's width.
class Column {
public:
    Column(const QString& text, const Setting& setting, Qt::LayoutDirection direction)
        : m_layout(text, fontOf(setting.fontPixels)) {
        const bool isLastResort = setting.fontPixels <= kSmallestFontPixels;
        QTextOption option(direction == Qt::RightToLeft ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeft);
        // A text without a translation keeps its own reading direction.
        option.setTextDirection(Qt::LayoutDirectionAuto);
        option.setWrapMode(isLastResort ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::WordWrap);
        m_layout.setTextOption(option);
        m_layout.beginLayout();
        double y = 0;
        for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
            line.setLineWidth(kWidth);
            line.setPosition({0, y});
            m_isTooWide |= line.naturalTextWidth() > kWidth;
            // Extra line height goes below each line; the last line needs none.
            m_height = y + line.height();
            y += line.height() * setting.lineHeight;
        }
        m_layout.endLayout();
    }

    double height() const { return m_height; }
    // Whether some word is wider than the column.
    bool isTooWide() const { return m_isTooWide; }

    void paint(QPainter& painter, const QPointF& place, const QColor& colour) const {
        painter.setPen(colour);
        m_layout.draw(&painter, place);
    }

private:
    QTextLayout m_layout;
    double m_height = 0;
    bool m_isTooWide = false;
};

} // namespace

WelcomeText::WelcomeText(const QString& first, const QString& second, double textScale,
                         Qt::LayoutDirection direction)
    : m_first(first)
    , m_second(second)
    , m_textScale(textScale)
    , m_direction(direction) {}

WelcomeText::Places WelcomeText::places(int pageHeight) const {
    for (double pixels = std::round(kFontPixels * m_textScale);; --pixels)
        for (const double lineHeight : {kLineHeight, kTightLineHeight}) {
            const Column first(m_first, {pixels, lineHeight}, m_direction);
            const Column second(m_second, {pixels, lineHeight}, m_direction);
            double firstTop = pageHeight - kFirstY - kBoxHeight;
            double secondTop = std::max(pageHeight - kSecondY - kBoxHeight, firstTop + first.height() + kGap);
            const double excess = std::max(0.0, secondTop + second.height() - (pageHeight - kBottomMargin));
            // Moves the first line only as far as moving the second one is not enough.
            secondTop -= excess;
            firstTop = std::min(firstTop, secondTop - kGap - first.height());
            const bool fits = firstTop >= kTopMargin && !first.isTooWide() && !second.isTooWide();
            if (!fits && pixels > kSmallestFontPixels)
                continue;
            return {.first = {kX, firstTop, kWidth, first.height()},
                    .second = {kX, secondTop, kWidth, second.height()},
                    .fontPixels = pixels,
                    .lineHeight = lineHeight};
        }
}

void WelcomeText::paint(QPainter& painter, int pageHeight) const {
    const Places where = places(pageHeight);
    const Setting setting{where.fontPixels, where.lineHeight};
    Column(m_first, setting, m_direction).paint(painter, where.first.topLeft(), kFirstColour);
    Column(m_second, setting, m_direction).paint(painter, where.second.topLeft(), kSecondColour);
}
