// SPDX-License-Identifier: MIT
#include "interface/outline/KeyHolder.h"

#include "interface/shell/Contrast.h"

#include <QAbstractItemView>
#include <QApplication>

namespace {

// How much of the colour of a selection is left.
constexpr double kPale = 0.3;

} // namespace

bool KeyHolder::holdsKeys(const QAbstractItemView& view) {
    const QWidget* focus = QApplication::focusWidget();
    return focus == &view || (focus && view.viewport()->isAncestorOf(focus));
}

void KeyHolder::paleUnlessHolder(const QAbstractItemView& view, QStyleOptionViewItem& option) {
    if (holdsKeys(view))
        return;
    const QPalette& own = view.palette();
    const QColor pale = Contrast::mixed(own.color(QPalette::Active, QPalette::Highlight),
                                        own.color(QPalette::Active, QPalette::Base), kPale);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        option.palette.setColor(group, QPalette::Highlight, pale);
        option.palette.setColor(group, QPalette::HighlightedText,
                                own.color(QPalette::Active, QPalette::Text));
    }
}

void KeyHolder::inkOnSelection(QStyleOptionViewItem& option) {
    const QColor ground = option.palette.color(QPalette::Highlight);
    if (Contrast::of(option.palette.color(QPalette::Text), ground) >=
        Contrast::of(option.palette.color(QPalette::HighlightedText), ground))
        return;
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            option.palette.setColor(group, role, option.palette.color(group, QPalette::HighlightedText));
}
