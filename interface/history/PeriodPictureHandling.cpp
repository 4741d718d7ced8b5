// SPDX-License-Identifier: MIT
// Mouse and keyboard in a period.
#include "interface/history/PeriodPicture.h"

#include "interface/history/PictureTexts.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

std::optional<PeriodPicture::Item> PeriodPicture::itemAt(const QPoint& position) const {
    const QRect area = mirrored(plot().adjusted(0, 0, 0, height()));
    if (!area.contains(position))
        return std::nullopt;
    for (std::size_t place = 0; place < m_bars.size(); ++place) {
        const QRect whole = placeRect(place);
        if (position.x() < whole.left() || position.x() > whole.right())
            continue;
        const auto& parts = m_bars[place].parts;
        for (std::size_t part = 0; part < parts.size(); ++part)
            if (partRect(place, parts[part]).contains(position))
                return Item{place, part};
        return Item{place, {}};
    }
    return std::nullopt;
}

std::optional<std::size_t> PeriodPicture::legendAt(const QPoint& position) const {
    if (measures().legendWidth == 0)
        return std::nullopt;
    for (std::size_t entry = 0; entry < m_legend.size(); ++entry)
        if (legendRow(entry).contains(position))
            return entry;
    return std::nullopt;
}

void PeriodPicture::tellOf(const Item& item) {
    const Bar& bar = m_bars[item.bar];
    std::vector<PictureTip::Line> lines{{{}, m_places.name(item.bar), PictureTexts::length(bar.length)}};
    const auto add = [&](const Part& part) {
        const LegendEntry& entry = m_legend[part.entry];
        lines.push_back({entry.color, entry.shownName(),
                         PictureTexts::length(part.length) + QStringLiteral("  ") +
                             PictureTexts::share(part.length, bar.length)});
    };
    if (item.part)
        add(bar.parts[*item.part]);
    else
        std::ranges::for_each(bar.parts, add);
    const QRect place = placeRect(item.bar);
    tell(lines, place, place.center().x(), true);
}

void PeriodPicture::tellOfCurrent() {
    tellOf(m_items[std::size_t(currentItem())]);
}

void PeriodPicture::mouseMoveEvent(QMouseEvent* event) {
    pointTo(event->pos());
}

void PeriodPicture::tellAt(const QPoint& position) {
    const auto item = itemAt(position);
    const auto entry = legendAt(position);
    if (item != m_hovered || entry != m_hoveredEntry)
        update();
    m_hovered = item;
    m_hoveredEntry = entry;
    if (item)
        tellOf(*item);
    else
        tellNothing();
}

void PeriodPicture::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        TimePicture::mousePressEvent(event);
        return;
    }
    if (const auto item = itemAt(event->pos()))
        choose(numberOf(*item));
    else if (const auto entry = legendAt(event->pos()); entry && !m_legend[*entry].isOther)
        Q_EMIT entryChosen(QString(m_legend[*entry].name));
}

void PeriodPicture::leaveEvent(QEvent* event) {
    TimePicture::leaveEvent(event);
    m_hovered.reset();
    m_hoveredEntry.reset();
    update();
}

void PeriodPicture::walkBars(int steps) {
    if (m_bars.empty())
        return;
    std::size_t place = steps > 0 ? 0 : m_bars.size() - 1;
    if (currentItem() >= 0) {
        const auto last = std::ptrdiff_t(m_bars.size()) - 1;
        const auto current = std::ptrdiff_t(m_items[std::size_t(currentItem())].bar);
        place = std::size_t(std::clamp<std::ptrdiff_t>(current + steps, 0, last));
    }
    setCurrentItem(numberOf({place, {}}));
}

void PeriodPicture::walkParts(int steps) {
    if (currentItem() < 0) {
        walkBars(1);
        return;
    }
    const Item item = m_items[std::size_t(currentItem())];
    const int to = currentItem() + steps;
    if (to >= 0 && to < itemCount() && m_items[std::size_t(to)].bar == item.bar)
        setCurrentItem(to);
}

void PeriodPicture::keyPressEvent(QKeyEvent* event) {
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const int forth = isMirrored() ? -1 : 1;
    const auto last = int(m_bars.size());
    switch (isPlain ? event->key() : 0) {
    case Qt::Key_Left:
        walkBars(-forth);
        break;
    case Qt::Key_Right:
        walkBars(forth);
        break;
    case Qt::Key_Home:
        walkBars(-last);
        break;
    case Qt::Key_End:
        walkBars(last);
        break;
    case Qt::Key_Up:
        walkParts(1);
        break;
    case Qt::Key_Down:
        walkParts(-1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (currentItem() >= 0)
            choose(currentItem());
        break;
    case Qt::Key_Escape:
        if (currentItem() >= 0) {
            setCurrentItem(-1);
            break;
        }
        [[fallthrough]];
    default:
        TimePicture::keyPressEvent(event);
    }
}
