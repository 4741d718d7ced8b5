// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <array>

// The colours of project labels. Tag 0 is no label, 1 to 6 are the colours.
class TKLabelColorList {
public:
    static constexpr int kColors = 7;

    // The only list; it lives as long as the process.
    static const TKLabelColorList& sharedColorList();

    // Transparent (every component 0) for tag 0 and for tags without a colour.
    QColor colorForTag(int tag) const;

    // "Yellow", in the user's language; "No Label" for tag 0 and for tags without a colour.
    static QString nameForTag(int tag);

private:
    TKLabelColorList();

    std::array<QColor, kColors> m_colorList;
};
