// SPDX-License-Identifier: MIT
#include "interface/shell/ReadableGreys.h"

#include "interface/shell/Contrast.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>

namespace {

// In percent.
constexpr int kBrighterPage = 128;

} // namespace

ReadableGreys::ReadableGreys() {
    apply();
    qApp->installEventFilter(this);
}

QPalette ReadableGreys::readable(const QPalette& palette) {
    QPalette greys;
    greys.setResolveMask(0);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        QColor grey = palette.color(group, QPalette::PlaceholderText);
        for (const auto& [ground, text] :
             {std::pair(QPalette::Base, QPalette::Text), std::pair(QPalette::AlternateBase, QPalette::Text),
              std::pair(QPalette::Window, QPalette::WindowText)})
            grey = Contrast::readable(grey, palette.color(group, text), palette.color(group, ground));
        // Styles draw the pages of tabs somewhat brighter than buttons.
        grey = Contrast::readable(grey, palette.color(group, QPalette::WindowText),
                                  palette.color(group, QPalette::Button).lighter(kBrighterPage));
        greys.setColor(group, QPalette::PlaceholderText, grey);
    }
    return greys;
}

void ReadableGreys::apply() {
    if (m_isApplying)
        return;
    m_isApplying = true;
    const QPalette now = QApplication::palette();
    QPalette wanted = now;
    const QPalette greys = readable(now);
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        wanted.setColor(group, QPalette::PlaceholderText, greys.color(group, QPalette::PlaceholderText));
    if (wanted != now)
        QApplication::setPalette(wanted);
    m_isApplying = false;
}

bool ReadableGreys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange && watched == qApp)
        apply();
    return false;
}
