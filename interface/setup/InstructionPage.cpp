// SPDX-License-Identifier: MIT
#include "interface/setup/InstructionPage.h"

#include "interface/setup/WelcomeText.h"
#include "interface/shell/Images.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QApplication>
#include <QFontInfo>
#include <QPainter>

namespace {

// The usual size of a program's text, in logical pixels.
constexpr double kUsualFontPixels = 14;

} // namespace

InstructionPage::InstructionPage(int number)
    : m_number(number)
    , m_size(Images::size(QStringLiteral("Step%1.png").arg(number))) {}

QString InstructionPage::welcomeLine(int line) {
    return line == 0 ? localized("For Ticklog to function you must grant it access to your computer.")
                     : localized("Follow these simple steps and Ticklog will be running in no time.");
}

QString InstructionPage::stepText(int step) {
    switch (step) {
    case 1:
        return localized("Launch the Security & Privacy panel in the System Preferences.");
    case 2:
        return localized("Select the Privacy tab and unlock the padlock to allow settings changes.");
    case 3:
        return localized("Select the Accessibility group and drag Ticklog into the list on the right.");
    case 4:
        return localized("Finally tick the checkbox associated with Ticklog and restart Ticklog.");
    default:
        return {};
    }
}

QString InstructionPage::text(int number) {
    return number == 0 ? QString(welcomeLine(0) + u' ' + welcomeLine(1)) : stepText(number);
}

double InstructionPage::textScale() {
    return std::max(1.0, QFontInfo(QApplication::font()).pixelSize() / kUsualFontPixels);
}

const QPixmap& InstructionPage::picture(qreal scale, Qt::LayoutDirection direction) const {
    if (!m_picture.isNull() && qFuzzyCompare(m_picture.devicePixelRatio(), scale))
        return m_picture;
    m_picture = Images::stretched(QStringLiteral("Step%1.png").arg(m_number), m_size, scale);
    if (m_number == 0) {
        QPainter painter(&m_picture);
        WelcomeText(welcomeLine(0), welcomeLine(1), textScale(), direction).paint(painter, m_size.height());
    }
    return m_picture;
}
