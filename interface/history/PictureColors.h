// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/files/UserDefaults.h"

#include <QColor>
#include <QPalette>
#include <QStringList>

#include <functional>

// The settings' key of what PictureColors keeps.
inline const QString kHistoryColors = QStringLiteral("kTKHistoryColors");

// The colours of programs and projects in the pictures of the history. Whoever is seen for the first time gets
// the colour that the fewest have so far, and keeps it, so that a colour means the same today and next year.
// The colours are told apart by the colour-blind too; there are lighter ones for dark palettes.
//
// What is kept is in the settings: a number for each digest of a name. A digest is too short to tell
// which name it was, because the names of programs may be private. Main thread only.
class PictureColors {
public:
    static constexpr int kSlots = 16;
    // The oldest are forgotten beyond that.
    static constexpr std::size_t kMostKept = 1000;

    enum class Kind : unsigned char { Program, Project };

    // The settings outlive it. `labelOf` answers a project's colour label, 0 for none: projects that have one
    // are shown in its colour.
    explicit PictureColors(UserDefaults& settings, std::function<int(const QString&)> labelOf = {});

    // A colour for each name, in order. Of those not seen before, the first has the first choice. The empty
    // name and "No project" are nobody's, and grey.
    QList<QColor> colors(Kind kind, const QStringList& names, const QPalette& palette) const;
    QColor color(Kind kind, const QString& name, const QPalette& palette) const {
        return colors(kind, {name}, palette).front();
    }

    static QColor idle(const QPalette& palette);
    // All that are too small for a colour of their own.
    static QColor other(const QPalette& palette);
    // What belongs to nobody.
    static QColor nobody(const QPalette& palette);

    // Of the same hue as the fill, with a contrast of at least 3:1 to the window's background.
    static QColor outline(const QColor& fill, const QPalette& palette);
    // Black or white, whichever is read better on it.
    static QColor textOn(const QColor& fill);
    // From 1 to 21.
    static double contrast(const QColor& one, const QColor& other);
    // Whether the window's background is darker than its text.
    static bool isDark(const QPalette& palette);

private:
    QList<int> slotsOf(Kind kind, const QStringList& names) const;

    UserDefaults& m_settings;
    std::function<int(const QString&)> m_labelOf;
};
