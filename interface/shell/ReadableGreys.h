// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QPalette;

// Keeps the grey of the palette for what is less important, such as explanations and invitations, easy to read: many
// themes have it too pale. Follows the palette of the program while it lives.
class ReadableGreys : public QObject {
    Q_OBJECT
public:
    ReadableGreys();

    // The palette with a grey that can be read on windows and on fields.
    static QPalette readable(const QPalette& palette);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void apply();

    bool m_isApplying = false;
};
