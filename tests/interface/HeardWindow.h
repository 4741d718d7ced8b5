// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMetaEnum>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSet>
#include <QTableView>
#include <QTest>
#include <QTextEdit>

// A window as assistive programs meet it: everything in it that is shown, by role and name, and the way of the Tab key
// through it.
class HeardWindow {
public:
    explicit HeardWindow(QWidget& window)
        : m_window(window) {}

    // What a listener would complain about, a line each; empty if all is well.
    QStringList complaints() {
        m_complaints.clear();
        const bool isMenu = m_window.windowType() == Qt::Popup;
        if (!isMenu) {
            followTab();
            pressMnemonics();
        }
        listen(*QAccessible::queryAccessibleInterface(&m_window), QString());
        return m_complaints;
    }

    // What is in it, a line each: "Slider: Least time".
    QStringList parts() {
        m_parts.clear();
        (void)complaints();
        return m_parts;
    }

    // The names of what Tab comes to.
    const QStringList& stops() const { return m_stops; }

    // Like "cutOffSlider", "color1" or "qt_edit": a word for programmers.
    static bool isIdentifier(const QString& name) {
        static const QRegularExpression kIdentifier(
            QStringLiteral("^(?:[a-z]+[A-Z0-9][A-Za-z0-9]*|\\w+_\\w+|Q[A-Z][A-Za-z]+)$"));
        return kIdentifier.match(name).hasMatch();
    }

private:
    static QString roleName(QAccessible::Role role) {
        return QLatin1String(QMetaEnum::fromType<QAccessible::Role>().valueToKey(role));
    }

    // Whether people do something with it, and not only with what is in it.
    static bool isControl(QAccessible::Role role) {
        static const QSet<int> kControls{
            QAccessible::Button,     QAccessible::CheckBox,       QAccessible::RadioButton,
            QAccessible::ComboBox,   QAccessible::SpinBox,        QAccessible::Slider,
            QAccessible::ButtonMenu, QAccessible::Tree,           QAccessible::Table,
            QAccessible::List,       QAccessible::ButtonDropDown, QAccessible::EditableText,
            QAccessible::PageTabList};
        return kControls.contains(role);
    }

    static bool needsName(QAccessible::Role role) {
        static const QSet<int> kNamed{
            QAccessible::PageTab,     QAccessible::MenuItem,    QAccessible::PopupMenu, QAccessible::ToolBar,
            QAccessible::Window,      QAccessible::Dialog,      QAccessible::ListItem,  QAccessible::TreeItem,
            QAccessible::ProgressBar, QAccessible::ColumnHeader};
        return isControl(role) || kNamed.contains(role);
    }

    void followTab() {
        m_visited.clear();
        m_stops.clear();
        m_window.activateWindow();
        if (!QTest::qWaitForWindowActive(&m_window))
            m_complaints << QStringLiteral("the window never becomes active");
        if (!m_window.focusWidget())
            QTest::keyClick(&m_window, Qt::Key_Tab);
        for (int step = 0; step < 200; ++step) {
            QWidget* focus = QApplication::focusWidget();
            // Tab may lead through the cells of a table, whose editors come and go, before it leads out.
            const auto* view = qobject_cast<QAbstractItemView*>(
                focus && focus->parentWidget() ? focus->parentWidget()->parentWidget() : nullptr);
            if (view || (focus && qobject_cast<QTableView*>(focus) && !m_visited.isEmpty() &&
                         focus == m_visited.last())) {
                QTest::keyClick(focus, Qt::Key_Tab);
                continue;
            }
            if (!focus || m_visited.contains(focus))
                return;
            m_visited << focus;
            QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(focus);
            m_stops << heard->text(QAccessible::Name);
            const bool isHeader = heard->role() == QAccessible::ColumnHeader;
            const bool isText = qobject_cast<QTextEdit*>(focus) || qobject_cast<QLabel*>(focus);
            const bool isPage = heard->role() == QAccessible::Grouping && !m_stops.last().isEmpty();
            if (!isControl(heard->role()) && !isText && !isPage && !isHeader)
                complain(*heard, "has the focus but is no control");
            // In a time the key goes on to the minutes first; in a field of several lines it writes.
            for (int part = 0; part < 12 && QApplication::focusWidget() == focus; ++part)
                QTest::keyClick(focus, Qt::Key_Tab);
            if (QApplication::focusWidget() == focus)
                QTest::keyClick(focus, Qt::Key_Tab, Qt::ControlModifier);
        }
    }

    // The mnemonic of a label leads to the control that it is the label of.
    void pressMnemonics() {
        for (const auto* label : m_window.findChildren<QLabel*>()) {
            QWidget* buddy = label->buddy();
            const QKeySequence mnemonic = QKeySequence::mnemonic(label->text());
            if (!buddy || mnemonic.isEmpty() || !label->isVisible() || !buddy->isEnabled())
                continue;
            QTest::keyClick(m_window.focusWidget() ? m_window.focusWidget() : &m_window, mnemonic[0].key(),
                            mnemonic[0].keyboardModifiers());
            const QWidget* focus = m_window.focusWidget();
            if (!focus || (focus != buddy && focus != buddy->focusProxy() && !buddy->isAncestorOf(focus)))
                m_complaints << label->text() + QStringLiteral(" leads nowhere");
        }
    }

    void listen(QAccessibleInterface& heard, const QString& around) {
        // Only what a menu or a window is in is not shown: hidden menus are opened by their own test.
        if (heard.state().invisible)
            return;
        const QString name = heard.text(QAccessible::Name);
        m_around = around;
        m_parts << roleName(heard.role()) + QStringLiteral(": ") + name;
        if (name.trimmed().isEmpty() && needsName(heard.role()) && !isInner(heard))
            complain(heard, "has no name");
        if (isIdentifier(name) || (heard.object() && !name.isEmpty() &&
                                   name == heard.object()->objectName() && name.at(0).isLower()))
            complain(heard, "is called by an identifier");
        listenToRole(heard);
        listenToLabel(heard, name);
        // Rows are many and alike.
        const bool hasRows = heard.role() == QAccessible::Tree || heard.role() == QAccessible::Table;
        const int children = hasRows ? std::min(heard.childCount(), 40) : heard.childCount();
        for (int i = 0; i < children; ++i)
            if (QAccessibleInterface* child = heard.child(i))
                listen(*child, around + u'/' + roleName(heard.role()));
    }

    void listenToRole(QAccessibleInterface& heard) {
        auto* widget = qobject_cast<QWidget*>(heard.object());
        if (!widget || heard.role() == QAccessible::MenuItem)
            return;
        if (widget->isWindow() && heard.role() != QAccessible::Window &&
            heard.role() != QAccessible::Dialog && heard.role() != QAccessible::AlertMessage &&
            heard.role() != QAccessible::PopupMenu)
            complain(heard, "is a window without saying so");
        if (heard.role() == QAccessible::LayeredPane || heard.role() == QAccessible::Border)
            complain(heard, "is spoken of, but means nothing to people");
        if (isControl(heard.role()) && heard.role() != QAccessible::PageTabList && widget->isEnabled() &&
            !isInner(heard) && !isReached(*widget))
            complain(heard, "cannot be reached by Tab");
    }

    // Assistive programs say a label in the place of a control's own name.
    void listenToLabel(QAccessibleInterface& heard, const QString& name) {
        if (!isControl(heard.role()) || name.isEmpty())
            return;
        for (const auto& [label, relation] : heard.relations(QAccessible::Label)) {
            const QString said = label->text(QAccessible::Name);
            // A menu without a name of its own is called by what is chosen, which is heard as its value too.
            const bool isHeardAnyway = plain(said) == plain(name) || name == heard.text(QAccessible::Value);
            if (!isHeardAnyway)
                complain(heard, qPrintable(QStringLiteral("is spoken as “%1”").arg(said)));
        }
    }

    // As it is spoken.
    static QString plain(QString text) {
        static const QRegularExpression kUnspoken(QStringLiteral("\\(&\\w\\)|[&:：…]"));
        return text.remove(kUnspoken).trimmed();
    }

    // Whether Qt made it as a part of another control, whose name and keys it has.
    static bool isInner(const QAccessibleInterface& heard) {
        const auto* widget = qobject_cast<QWidget*>(heard.object());
        if (!widget)
            return false;
        return widget->objectName().startsWith(QLatin1String("qt_")) ||
               qobject_cast<const QLineEdit*>(widget->parentWidget()) || widget->inherits("QTabBar") ||
               (widget->parentWidget() && widget->parentWidget()->inherits("QTabBar"));
    }

    bool isReached(QWidget& widget) const {
        if (m_window.windowType() == Qt::Popup || m_visited.contains(&widget) ||
            m_visited.contains(widget.focusProxy()))
            return true;
        for (const QWidget* stop : m_visited)
            if (widget.isAncestorOf(stop))
                return true;
        // Of the choices of which one holds, Tab comes to that one.
        const auto* choice = qobject_cast<const QAbstractButton*>(&widget);
        if (!choice || !choice->autoExclusive())
            return false;
        return std::ranges::any_of(m_visited, [&](const QWidget* stop) {
            return stop->parentWidget() == widget.parentWidget() &&
                   qobject_cast<const QAbstractButton*>(stop);
        });
    }

    void complain(QAccessibleInterface& heard, const char* what) {
        const QObject* object = heard.object();
        m_complaints << QStringLiteral("%1 “%2” (%3 %4) in %5 %6")
                            .arg(roleName(heard.role()), heard.text(QAccessible::Name),
                                 object ? QLatin1String(object->metaObject()->className())
                                        : QLatin1String("row"),
                                 object ? object->objectName() : QString(), m_around, QLatin1String(what));
    }

    QWidget& m_window;
    QList<QWidget*> m_visited;
    QStringList m_stops;
    QStringList m_parts;
    QStringList m_complaints;
    QString m_around;
};
