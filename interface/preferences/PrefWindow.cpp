// SPDX-License-Identifier: MIT
#include "interface/preferences/PrefWindow.h"

#include "Classes/common/Settings.h"
#include "interface/shell/SpokenRole.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QEvent>
#include <QLayout>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr int kMargin = 12;
constexpr int kWidth = 520;
// What is around a page; rather too much than too little.
constexpr int kTabFrame = 8;

} // namespace

PrefWindow::PrefWindow(UserDefaults& defaults)
    : m_defaults(defaults)
    , m_prefTabView(new QTabWidget) {
    speakAs(*this, QAccessible::Dialog);
    setObjectName(QStringLiteral("prefWindow"));
    setWindowTitle(localized("Preferences"));
    setAccessibleName(windowTitle());
    setWindowFlag(Qt::Window);
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
    m_prefTabView->setObjectName(QStringLiteral("prefTabView"));
    m_prefTabView->setAccessibleName(windowTitle());
    // What only holds the pages is not spoken of.
    for (auto* pages : m_prefTabView->findChildren<QStackedWidget*>())
        speakAs(*pages, QAccessible::Client);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->addWidget(m_prefTabView);
    for (const QKeySequence& key : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
}

void PrefWindow::selectTab(const QString& identifier) {
    for (int i = 0; i < m_prefTabView->count(); ++i)
        if (m_prefTabView->widget(i)->objectName() == identifier)
            m_prefTabView->setCurrentIndex(i);
}

void PrefWindow::awakeFromNib(QWidget& bottomViewToResizeTo, NotificationCenter& notifications) {
    m_bottomViewToResizeTo = &bottomViewToResizeTo;
    fit();
    // A window that was never shown has no layout yet.
    setAttribute(Qt::WA_DontShowOnScreen);
    show();
    hide();
    setAttribute(Qt::WA_DontShowOnScreen, false);
    m_bigHeight = height();
    m_isUnfolded = m_defaults.boolForKey(kSaveTimerPeriodically);
    autoresizeWindow();
    m_defaultsChanges =
        notifications.observe(kUserDefaultsDidChangeNotification, [this](const Notification&) {
            const bool isUnfolded = m_defaults.boolForKey(kSaveTimerPeriodically);
            if (std::exchange(m_isUnfolded, isUnfolded) != isUnfolded)
                autoresizeWindow();
        });
}

int PrefWindow::heightOfPagesWithout(const QWidget& one) const {
    const int width = std::max(kWidth, sizeHint().width()) - 2 * kMargin - kTabFrame;
    int highest = 0;
    for (int i = 0; i < m_prefTabView->count(); ++i) {
        const QWidget* page = m_prefTabView->widget(i);
        if (page == &one)
            continue;
        const QLayout* layout = page->layout();
        highest = std::max(highest, layout->totalMinimumSize().height());
        if (layout->hasHeightForWidth())
            highest = std::max(highest, layout->totalMinimumHeightForWidth(width));
    }
    return highest;
}

void PrefWindow::fit() {
    // Pages that are not shown do not tell it.
    m_prefTabView->updateGeometry();
    resize(std::max(kWidth, sizeHint().width()), sizeHint().height());
    setMinimumWidth(minimumSizeHint().width());
}

void PrefWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    const bool isOther = event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    // Later, when the controls have heard of it as well.
    if (isOther && m_bottomViewToResizeTo)
        QMetaObject::invokeMethod(this, &PrefWindow::measureAnew, Qt::QueuedConnection);
}

void PrefWindow::measureAnew() {
    // What is not shown keeps its old sizes until it is asked anew, from the inside out.
    const auto askPages = [this] {
        const auto parts = m_prefTabView->findChildren<QWidget*>();
        for (auto part = parts.rbegin(); part != parts.rend(); ++part)
            if (QLayout* inner = (*part)->layout()) {
                inner->invalidate();
                inner->activate();
                // What is around it keeps what it knew, until the event loop runs or it is told.
                (*part)->updateGeometry();
            }
    };
    askPages();
    Q_EMIT controlsChanged();
    askPages();
    setMinimumHeight(0);
    setMaximumHeight(QWIDGETSIZE_MAX);
    m_bottomViewToResizeTo->setVisible(true);
    layout()->invalidate();
    layout()->activate();
    fit();
    m_bigHeight = height();
    autoresizeWindow();
}

int PrefWindow::heightToFold() const {
    // Pages that were never shown have no layout either.
    for (QWidget* page = m_bottomViewToResizeTo->parentWidget(); page; page = page->parentWidget()) {
        if (!m_prefTabView->isAncestorOf(page) || m_prefTabView->indexOf(page) < 0)
            continue;
        page->layout()->setGeometry(m_prefTabView->currentWidget()->rect());
    }
    return height() - m_bottomViewToResizeTo->mapTo(this, QPoint(0, 0)).y();
}

void PrefWindow::autoresizeWindow() {
    const bool isUnfolded = m_defaults.boolForKey(kSaveTimerPeriodically);
    layout()->activate();
    const int top = pos().y();
    const int folded = isUnfolded ? 0 : heightToFold();
    const int newHeight = m_bigHeight - folded;
    // The lower edge moves by the height of the hidden part. The upper edge stays in place only if the window
    // was in the other state before.
    const int newTop = isUnfolded ? top : top + height() - m_bigHeight;
    m_bottomViewToResizeTo->setVisible(isUnfolded);
    setFixedHeight(newHeight);
    if (newTop != top)
        move(pos().x(), newTop);
}

void PrefWindow::makeKeyAndOrderFront(const std::function<void()>& reload) {
    reload();
    setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    show();
    raise();
    activateWindow();
}
