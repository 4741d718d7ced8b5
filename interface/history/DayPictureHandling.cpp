// SPDX-License-Identifier: MIT
// Mouse and keyboard in a day.
#include "interface/history/DayPicture.h"

#include "interface/history/AmendTexts.h"
#include "interface/history/PictureTexts.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPointer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

// What the pointer touches, on either side of it, in pixels.
constexpr double kTouch = 3;
constexpr std::size_t kMostTold = 5;
// For a notch of the wheel.
constexpr double kZoom = 1.25;
constexpr double kMove = 0.15;
constexpr double kNotch = 120;
constexpr double kMinute = 60 * 1000;
constexpr double kSecond = 1000;

} // namespace

std::vector<int> DayPicture::piecesAt(double x) const {
    const auto [from, to] = std::minmax({momentAt(x - kTouch), momentAt(x + kTouch)});
    auto piece = std::ranges::lower_bound(m_pieces, from, {}, [](const Piece& p) { return double(p.end()); });
    std::vector<int> found;
    for (; piece != m_pieces.end() && double(piece->start) <= to; ++piece)
        found.push_back(int(piece - m_pieces.begin()));
    return found;
}

int DayPicture::pieceAt(double x) const {
    const double moment = momentAt(x);
    const auto distance = [&](int item) {
        const Piece& piece = m_pieces[std::size_t(item)];
        return std::max({double(piece.start) - moment, moment - double(piece.end()), 0.0});
    };
    const std::vector<int> near = piecesAt(x);
    const auto nearest = std::ranges::min_element(near, {}, distance);
    return nearest != near.end() ? *nearest : -1;
}

PictureTip::Line DayPicture::lineOf(int item, Lane lane) const {
    const Piece& piece = m_pieces[std::size_t(item)];
    const LaneContent& content = m_lanes[lane];
    const LaneEntry& entry = content.entries[std::size_t(content.spans[std::size_t(item)].entry)];
    QString text = entry.isIdle ? localized("Idle") : piece.program;
    if (!piece.projects.isEmpty())
        text += QStringLiteral(" · ") + projectsText(piece);
    QString detail = PictureTexts::fromTo(piece.start, piece.end());
    if (!piece.title.isEmpty())
        detail += u'\n' + piece.title;
    if (const QString amended = AmendTexts::of(piece); !amended.isEmpty())
        detail += u'\n' + amended;
    return {entry.colors.front(), text, PictureTexts::length(piece.length),
            detail.replace(u'\n', QChar::LineSeparator)};
}

void DayPicture::tellAt(const QPoint& position) {
    if (m_drag) {
        if (m_drag->isMoved)
            tellOfDrag(position.x());
        return;
    }
    const auto lane = laneAt(position);
    const std::vector<int> found = lane ? piecesAt(position.x()) : std::vector<int>();
    const int hovered = lane ? pieceAt(position.x()) : -1;
    if (hovered != m_hovered || (lane && *lane != m_hoveredLane)) {
        m_hovered = hovered;
        m_hoveredLane = lane.value_or(m_hoveredLane);
        update();
    }
    if (found.empty()) {
        tellNothing();
        return;
    }
    std::vector<PictureTip::Line> lines;
    qint64 rest = 0;
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (i < kMostTold)
            lines.push_back(lineOf(found[i], *lane));
        else
            rest += m_pieces[std::size_t(found[i])].length;
    }
    if (found.size() > kMostTold)
        lines.push_back({{},
                         localized("%@ more").replace(
                             QLatin1String("%@"), QLocale().toString(qulonglong(found.size() - kMostTold))),
                         PictureTexts::length(rest)});
    tell(lines, chart(), position.x(), false);
}

void DayPicture::tellOfCurrent() {
    tell({lineOf(currentItem(), m_lane)}, chart(), itemRect(currentItem()).center().x(), false);
}

void DayPicture::tellOfDrag(int x) {
    const auto [from, to] = std::minmax({m_drag->from, m_drag->to});
    tell({{{}, PictureTexts::fromTo(qint64(from), qint64(to)), PictureTexts::length(qint64(to - from))}},
         chart(), x, false);
}

// To the end of a stretch that is near, else to what is round at this zoom.
double DayPicture::snapped(double x) const {
    const double moment = std::clamp(momentAt(x), m_view.from(), m_view.to());
    double best = moment;
    double distance = kTouch * timePerPixel();
    const auto consider = [&](double end) {
        if (std::abs(end - moment) < distance) {
            best = end;
            distance = std::abs(end - moment);
        }
    };
    for (const int item : piecesAt(x)) {
        consider(double(m_pieces[std::size_t(item)].start));
        consider(double(m_pieces[std::size_t(item)].end()));
    }
    consider(m_view.from());
    consider(m_view.to());
    if (best != moment)
        return best;
    const double round = timePerPixel() > 2 * kSecond ? kMinute : kSecond;
    return std::clamp(std::round(moment / round) * round, m_view.from(), m_view.to());
}

void DayPicture::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !chart().adjusted(-3, 0, 3, 0).contains(event->pos())) {
        TimePicture::mousePressEvent(event);
        return;
    }
    const double moment = momentAt(event->position().x());
    m_drag = Drag{moment, moment};
}

void DayPicture::mouseMoveEvent(QMouseEvent* event) {
    pointTo(event->pos());
    if (!m_drag)
        return;
    const double x = event->position().x();
    if (!m_drag->isMoved) {
        if (std::abs(x - xOf(m_drag->from)) < QApplication::startDragDistance())
            return;
        m_drag->isMoved = true;
        m_drag->from = snapped(xOf(m_drag->from));
        m_hovered = -1;
    }
    m_drag->to = snapped(x);
    tellAt(event->pos());
    update();
}

void DayPicture::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_drag)
        return;
    const Drag drag = *m_drag;
    m_drag.reset();
    update();
    if (drag.isMoved) {
        const auto [from, to] = std::minmax({drag.from, drag.to});
        tellNothing();
        if (to - from < kSecond)
            return;
        m_chosen = {from, to};
        Q_EMIT rangeChosen(qint64(from), qint64(to));
        return;
    }
    const auto lane = laneAt(event->pos());
    const int item = lane ? pieceAt(event->position().x()) : -1;
    if (item < 0)
        return;
    m_lane = *lane;
    choose(item);
}

void DayPicture::leaveEvent(QEvent* event) {
    TimePicture::leaveEvent(event);
    m_hovered = -1;
    update();
}

void DayPicture::wheelEvent(QWheelEvent* event) {
    const QPoint turned = event->angleDelta();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        m_view.zoom(std::pow(kZoom, -turned.y() / kNotch), momentAt(event->position().x()));
        viewChanged();
        event->accept();
        return;
    }
    if (!m_view.isZoomed()) {
        event->ignore();
        return;
    }
    const double across = (isMirrored() ? turned.x() : -turned.x()) / kNotch;
    const double along = -turned.y() / kNotch;
    m_view.moveBy((across + along) * kMove * m_view.length());
    viewChanged();
    pointTo(event->position().toPoint());
    event->accept();
}

void DayPicture::walk(int steps) {
    if (m_pieces.empty())
        return;
    const int last = itemCount() - 1;
    int item = currentItem();
    if (item < 0) {
        // Begins where one looks.
        const auto first = std::ranges::lower_bound(m_pieces, m_view.from(), {},
                                                    [](const Piece& p) { return double(p.end()); });
        item = std::clamp(int(first - m_pieces.begin()), 0, last);
    } else {
        item = std::clamp(item + steps, 0, last);
    }
    setCurrentItem(item);
}

void DayPicture::cancel() {
    if (!m_drag || !m_drag->isMoved) {
        reset();
        return;
    }
    m_drag.reset();
    tellNothing();
    update();
}

void DayPicture::reset() {
    m_drag.reset();
    m_chosen.reset();
    setCurrentItem(-1);
    if (const auto day = workingDay(); std::pair(m_view.from(), m_view.to()) == day)
        showAll();
    else
        showWorkingDay();
    Q_EMIT rangeReset();
}

bool DayPicture::takeKey(int key, Qt::KeyboardModifiers modifiers) {
    const auto plain = modifiers & ~Qt::KeypadModifier;
    const bool isShifted = plain == Qt::ShiftModifier;
    const bool isZoom = plain == Qt::NoModifier || plain == Qt::ControlModifier || isShifted ||
                        plain == (Qt::ControlModifier | Qt::ShiftModifier);
    const int forth = isMirrored() ? -1 : 1;
    if (isZoom && (key == Qt::Key_Plus || key == Qt::Key_Equal))
        zoomIn();
    else if (isZoom && (key == Qt::Key_Minus || key == Qt::Key_Underscore))
        zoomOut();
    else if (key == Qt::Key_0 && !isShifted && isZoom)
        reset();
    else if (key == Qt::Key_Escape && plain == Qt::NoModifier)
        cancel();
    else if (isShifted && (key == Qt::Key_Left || key == Qt::Key_Right)) {
        m_view.moveBy((key == Qt::Key_Right ? forth : -forth) * kMove * m_view.length());
        viewChanged();
    } else if (plain != Qt::NoModifier)
        return false;
    else if (key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
        m_view.moveBy((key == Qt::Key_PageDown ? 1 : -1) * m_view.length());
        viewChanged();
    } else if (key == Qt::Key_Left || key == Qt::Key_Right)
        walk(key == Qt::Key_Right ? forth : -forth);
    else if (key == Qt::Key_Home || key == Qt::Key_End)
        setCurrentItem(key == Qt::Key_Home ? std::min(0, itemCount() - 1) : itemCount() - 1);
    else if (key == Qt::Key_Up || key == Qt::Key_Down) {
        m_lane = key == Qt::Key_Up ? Programs : Projects;
        walk(0);
    } else if ((key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) && currentItem() >= 0)
        choose(currentItem());
    else
        return false;
    return true;
}

void DayPicture::keyPressEvent(QKeyEvent* event) {
    if (!takeKey(event->key(), event->modifiers()))
        TimePicture::keyPressEvent(event);
}

bool DayPicture::event(QEvent* event) {
    if (event->type() == QEvent::NativeGesture) {
        const auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            m_view.zoom(1 / std::max(0.1, 1 + gesture->value()), momentAt(gesture->position().x()));
            viewChanged();
            return true;
        }
    }
    return TimePicture::event(event);
}
