// SPDX-License-Identifier: MIT
#include "interface/preferences/TokenField.h"

#include "interface/shell/PlainText.h"
#include "interface/shell/SpokenRole.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QToolButton>

namespace {

// Logical pixels.
constexpr int kMargin = 4;
constexpr int kGap = 4;
constexpr int kNarrowestEditor = 48;
constexpr int kLines = 2;
constexpr int kWidth = 260;

} // namespace

TokenField::TokenField(QWidget* parent)
    : QFrame(parent)
    , m_editor(new QLineEdit(this)) {
    speakAs(*this, QAccessible::Grouping);
    m_editor->setObjectName(QStringLiteral("tokenEditor"));
    m_editor->setFrame(false);
    m_editor->installEventFilter(this);
    QPalette clear = m_editor->palette();
    clear.setBrush(QPalette::Base, Qt::transparent);
    m_editor->setPalette(clear);
    // Without a policy of its own, the mnemonic of its label would lead nowhere.
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_editor);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum, QSizePolicy::LineEdit);
    setSizePolicy(policy);
    connect(m_editor, &QLineEdit::textEdited, this, [this] {
        m_untouched = QString();
        complete(false);
    });
}

QStringList TokenField::tokens() const {
    QStringList words;
    for (const QToolButton* token : m_tokens)
        words << token->property("word").toString();
    return words;
}

QString TokenField::text() const {
    if (!m_untouched.isNull())
        return m_untouched;
    QStringList words = tokens();
    if (const QString typed = m_editor->text().trimmed(); !typed.isEmpty())
        words << typed;
    return words.join(u',');
}

void TokenField::setText(const QString& text) {
    qDeleteAll(std::exchange(m_tokens, {}));
    m_editor->setText(text);
    complete(true);
    m_untouched = text.isNull() ? QStringLiteral("") : text;
}

void TokenField::addToken(const QString& word) {
    auto* token = new QToolButton(this);
    token->setObjectName(QStringLiteral("token"));
    token->setProperty("word", word);
    token->setToolTip(PlainText::toolTip(word));
    token->setAccessibleName(word);
    token->setAccessibleDescription(localized("Category. Press Delete to remove it."));
    token->setFocusPolicy(Qt::StrongFocus);
    token->installEventFilter(this);
    // In the order in which they are shown.
    setTabOrder(m_tokens.isEmpty() ? static_cast<QWidget*>(m_editor) : m_tokens.last(), token);
    m_tokens << token;
    token->show();
}

void TokenField::removeToken(QToolButton& token) {
    const qsizetype place = m_tokens.indexOf(&token);
    m_untouched = QString();
    m_tokens.removeAt(place);
    token.hide();
    token.deleteLater();
    arrange();
    if (place < m_tokens.size())
        m_tokens[place]->setFocus(Qt::OtherFocusReason);
    else
        m_editor->setFocus(Qt::OtherFocusReason);
}

void TokenField::complete(bool all) {
    QStringList words = m_editor->text().split(u',');
    const QString rest = all ? QString() : words.takeLast();
    if (!all && words.isEmpty())
        return;
    for (const QString& word : words)
        if (!word.trimmed().isEmpty())
            addToken(word.trimmed());
    m_editor->setText(rest);
    arrange();
}

bool TokenField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        update();
        if (watched == m_editor && event->type() == QEvent::FocusOut && m_untouched.isNull())
            complete(true);
    }
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (watched != m_editor)
        return pressKeyOnToken(*static_cast<QToolButton*>(watched), key);
    const bool isAtStart = m_editor->cursorPosition() == 0 && !m_editor->hasSelectedText();
    if (isAtStart && !m_tokens.isEmpty() && (key == Qt::Key_Backspace || key == Qt::Key_Left)) {
        m_tokens.last()->setFocus(Qt::OtherFocusReason);
        return true;
    }
    // If there is nothing to complete, Return belongs to the window.
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!isReturn || m_editor->text().trimmed().isEmpty())
        return false;
    complete(true);
    return true;
}

bool TokenField::pressKeyOnToken(QToolButton& token, int key) {
    const qsizetype place = m_tokens.indexOf(&token);
    switch (key) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        removeToken(token);
        return true;
    case Qt::Key_Left:
        m_tokens[std::max<qsizetype>(place - 1, 0)]->setFocus(Qt::OtherFocusReason);
        return true;
    case Qt::Key_Right:
        if (place + 1 < m_tokens.size())
            m_tokens[place + 1]->setFocus(Qt::OtherFocusReason);
        else
            m_editor->setFocus(Qt::OtherFocusReason);
        return true;
    default:
        return false;
    }
}

int TokenField::lineHeight() const {
    return m_editor->sizeHint().height();
}

QSize TokenField::sizeHint() const {
    return {kWidth, kLines * lineHeight() + (kLines - 1) * kGap + 2 * kMargin};
}

QSize TokenField::minimumSizeHint() const {
    return {kWidth / 2, sizeHint().height()};
}

void TokenField::arrange() {
    const int right = width() - kMargin;
    int x = kMargin;
    int y = kMargin;
    const auto take = [&](QWidget& widget, int wanted) {
        const int taken = std::min(wanted, right - kMargin);
        if (x > kMargin && x + taken > right) {
            x = kMargin;
            y += lineHeight() + kGap;
        }
        widget.setGeometry(x, y, taken, lineHeight());
        x += taken + kGap;
    };
    for (QToolButton* token : m_tokens) {
        const QString word = token->property("word").toString();
        const int air = 2 * token->fontMetrics().averageCharWidth();
        const int widest = right - kMargin - air;
        token->setText(
            token->fontMetrics().elidedText(word, Qt::ElideRight, widest).replace(u'&', QLatin1String("&&")));
        take(*token, token->fontMetrics().horizontalAdvance(word) + air);
    }
    take(*m_editor, kNarrowestEditor);
    m_editor->resize(right - m_editor->x(), lineHeight());
    setMinimumHeight(std::max(sizeHint().height(), y + lineHeight() + kMargin));
}

void TokenField::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    arrange();
}

void TokenField::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        arrange();
    update();
}

void TokenField::mousePressEvent(QMouseEvent*) {
    m_editor->setFocus(Qt::MouseFocusReason);
}

void TokenField::paintEvent(QPaintEvent*) {
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, this);
    frame.state |= QStyle::State_Sunken;
    frame.state.setFlag(QStyle::State_HasFocus, isAncestorOf(window()->focusWidget()) && isActiveWindow());
    QStylePainter(this).drawPrimitive(QStyle::PE_PanelLineEdit, frame);
}
