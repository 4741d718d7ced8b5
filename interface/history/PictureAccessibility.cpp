// SPDX-License-Identifier: MIT
#include "interface/history/PictureAccessibility.h"

#include "interface/history/TimePicture.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

namespace {

class AccessibleItem : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleItem(TimePicture* picture, int item)
        : m_picture(picture)
        , m_item(item) {}

    bool isValid() const override { return m_picture && m_item < m_picture->itemCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent() ? parent()->window() : nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QAccessibleInterface* parent() const override {
        return m_picture ? QAccessible::queryAccessibleInterface(m_picture) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        if (!isValid())
            return {};
        return kind == QAccessible::Name          ? m_picture->itemText(m_item)
               : kind == QAccessible::Description ? m_picture->itemDetail(m_item)
                                                  : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        if (!isValid())
            return {};
        const QRect rect = m_picture->itemRect(m_item);
        return {m_picture->mapToGlobal(rect.topLeft()), rect.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid)
            return state;
        state.focusable = state.selectable = true;
        state.selected = m_picture->currentItem() == m_item;
        state.focused = state.selected && m_picture->hasFocus();
        state.invisible = !m_picture->isVisible();
        state.offscreen = itemIsOutside();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override {
        if (!isValid())
            return;
        if (name == pressAction()) {
            m_picture->choose(m_item);
        } else if (name == setFocusAction()) {
            m_picture->setFocus();
            m_picture->setCurrentItem(m_item);
        }
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    int item() const { return m_item; }

private:
    bool itemIsOutside() const { return !m_picture->itemRect(m_item).intersects(m_picture->rect()); }

    QPointer<TimePicture> m_picture;
    int m_item;
};

class AccessiblePicture : public QAccessibleWidget {
public:
    explicit AccessiblePicture(TimePicture* picture)
        : QAccessibleWidget(picture, QAccessible::List)
        , m_picture(*picture) {}

    ~AccessiblePicture() override {
        for (const QAccessible::Id id : m_items)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return m_picture.itemCount(); }

    QAccessibleInterface* child(int item) const override {
        if (item < 0 || item >= childCount())
            return nullptr;
        if (!m_items.contains(item))
            m_items.insert(item,
                           QAccessible::registerAccessibleInterface(new AccessibleItem(&m_picture, item)));
        return QAccessible::accessibleInterface(m_items.value(item));
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* item = dynamic_cast<const AccessibleItem*>(child);
        return item ? item->item() : -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint at = m_picture.mapFromGlobal(QPoint(x, y));
        for (int item = childCount(); item-- > 0;)
            if (m_picture.itemRect(item).contains(at))
                return child(item);
        return nullptr;
    }

    QAccessibleInterface* focusChild() const override { return child(m_picture.currentItem()); }

private:
    TimePicture& m_picture;
    // By item, of those that were asked for.
    mutable QHash<int, QAccessible::Id> m_items;
};

class AccessibleTip : public QAccessibleWidget {
public:
    explicit AccessibleTip(PictureTip* tip)
        : QAccessibleWidget(tip, QAccessible::ToolTip)
        , m_tip(*tip) {}

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name)
            return {};
        QStringList lines;
        for (const PictureTip::Line& line : m_tip.lines())
            lines << line.text + u' ' + line.figure;
        return lines.join(u'\n');
    }

private:
    PictureTip& m_tip;
};

QAccessibleInterface* describe(const QString&, QObject* object) {
    if (auto* tip = qobject_cast<PictureTip*>(object))
        return new AccessibleTip(tip);
    auto* picture = qobject_cast<TimePicture*>(object);
    return picture ? new AccessiblePicture(picture) : nullptr;
}

} // namespace

void installPictureAccessibility() {
    // Installing the same factory again has no effect.
    QAccessible::installFactory(describe);
}
