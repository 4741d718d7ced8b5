// SPDX-License-Identifier: MIT
#include "interface/shell/SpokenItem.h"

#include <QHash>
#include <QPointer>
#include <QWidget>

namespace {

class SpokenItem : public QAccessibleInterface {
public:
    SpokenItem(QWidget& control, const QString& name)
        : m_control(&control)
        , m_name(name) {}

    bool isValid() const override { return m_control; }
    QObject* object() const override { return nullptr; }
    // Of some other roles it would be taken for an item that has gone.
    QAccessible::Role role() const override { return QAccessible::StaticText; }

    QAccessibleInterface* parent() const override {
        return m_control ? QAccessible::queryAccessibleInterface(m_control) : nullptr;
    }

    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? m_name : QString();
    }

    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        return m_control ? QRect(m_control->mapToGlobal(QPoint()), m_control->size()) : QRect();
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = state.focused = true;
        return state;
    }

private:
    QPointer<QWidget> m_control;
    QString m_name;
};

// Of each control the item that is spoken, and the one before, about which somebody may still ask.
QHash<const QObject*, QList<QAccessible::Id>>& spokenItems() {
    static QHash<const QObject*, QList<QAccessible::Id>> items;
    return items;
}

void forget(const QObject* control) {
    for (const QAccessible::Id item : spokenItems().take(control))
        QAccessible::deleteAccessibleInterface(item);
}

} // namespace

void speakItem(QWidget& control, const QString& name) {
    if (!spokenItems().contains(&control))
        QObject::connect(&control, &QObject::destroyed, [](QObject* gone) { forget(gone); });
    auto* item = new SpokenItem(control, name);
    QList<QAccessible::Id>& items = spokenItems()[&control];
    items << QAccessible::registerAccessibleInterface(item);
    if (items.size() > 2)
        QAccessible::deleteAccessibleInterface(items.takeFirst());
    QAccessibleEvent focus(item, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}

QString spokenItem(const QWidget& control) {
    const QList<QAccessible::Id> items = spokenItems().value(&control);
    const auto* last = items.isEmpty() ? nullptr : QAccessible::accessibleInterface(items.last());
    return last ? last->text(QAccessible::Name) : QString();
}
