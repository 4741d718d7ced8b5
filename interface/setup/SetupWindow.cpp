// SPDX-License-Identifier: MIT
#include "interface/setup/SetupWindow.h"

#include "interface/setup/SetupAccessibility.h"
#include "interface/setup/TKInstructionStepView.h"
#include "interface/shell/Images.h"
#include "interface/shell/SpokenRole.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

namespace {

// Logical pixels.
constexpr QSize kRestartSize(96, 25);
constexpr int kRestartRight = 12;
constexpr int kRestartBottom = 8;
constexpr int kBarHeight = 44;
constexpr int kSmallestWidth = 440;
constexpr int kSmallestPageHeight = 180;

// Before it is made, because assistive programs may ask for it at once.
TKInstructionView* describedInstructions(QWidget* parent) {
    installSetupAccessibility();
    return new TKInstructionView({0, 0, SetupWindow::kSize.width(), TKInstructionView::kPageHeight}, parent);
}

} // namespace

SetupWindow::SetupWindow(Commands commands)
    : m_commands(std::move(commands))
    , m_instructionView(describedInstructions(this))
    , m_restartButton(new QPushButton(localized("Restart"), this)) {
    speakAs(*this, QAccessible::Window);
    setObjectName(QStringLiteral("setupWindow"));
    setWindowTitle(QStringLiteral("Ticklog"));
    setAccessibleName(windowTitle());
    m_restartButton->setObjectName(QStringLiteral("restart"));
    m_restartButton->setAccessibleName(m_restartButton->text());
    m_restartButton->installEventFilter(this);
    connect(m_restartButton, &QPushButton::clicked, this, [this] { m_commands.relaunch(); });
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(Qt::CTRL | Qt::Key_Q, this), &QShortcut::activated, this,
            [this] { m_commands.quit(); });
    const int wanted =
        TKInstructionView::kPageHeight + m_instructionView->rowsHeight(kSize.width()) + barHeight();
    resize(kSize.width(), std::max(kSize.height(), wanted));
    m_instructionView->setFocus();
}

void SetupWindow::makeKeyAndOrderFront() {
    if (!isVisible())
        centre();
    setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    show();
    raise();
    activateWindow();
}

void SetupWindow::centre() {
    const QRect space = screen()->availableGeometry();
    resize(size().boundedTo(space.size()));
    move(space.center() - rect().center());
}

QSize SetupWindow::restartSize() const {
    return m_restartButton->sizeHint().expandedTo(kRestartSize);
}

int SetupWindow::barHeight() const {
    return kBarHeight - kRestartSize.height() + restartSize().height();
}

void SetupWindow::layOut() {
    const int below = m_instructionView->rowsHeight(width()) + barHeight();
    setMinimumSize(kSmallestWidth, kSmallestPageHeight + below);
    m_instructionView->setGeometry(rect());
    m_instructionView->setPageHeight(std::max(kSmallestPageHeight, height() - below));
    const QSize size = restartSize();
    const int x = isRightToLeft() ? kRestartRight : width() - size.width() - kRestartRight;
    m_restartButton->setGeometry({QPoint(x, height() - kRestartBottom - size.height()), size});
}

void SetupWindow::resizeEvent(QResizeEvent*) {
    layOut();
}

void SetupWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange ||
        event->type() == QEvent::StyleChange)
        layOut();
}

bool SetupWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_restartButton->click();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
        // The arrow keys turn pages wherever the focus is.
        QCoreApplication::sendEvent(m_instructionView, event);
        return true;
    default:
        return false;
    }
}
