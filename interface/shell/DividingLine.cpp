// SPDX-License-Identifier: MIT
#include "interface/shell/DividingLine.h"

#include "interface/shell/SpokenRole.h"

#include <QFrame>

QFrame* dividingLine() {
    auto* line = new QFrame;
    speakAs(*line, QAccessible::Separator);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    return line;
}
