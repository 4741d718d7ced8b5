// SPDX-License-Identifier: MIT
#include "interface/labels/LabelAccessibility.h"

#include "interface/labels/TKLabelButton.h"

#include <QAccessibleWidget>

namespace {

class AccessibleLabel : public QAccessibleWidget {
public:
    explicit AccessibleLabel(TKLabelButton& button)
        : QAccessibleWidget(&button, QAccessible::RadioButton)
        , m_button(button) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = m_button.selectedColor();
        return state;
    }

    QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name == pressAction())
            m_button.choose();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    TKLabelButton& m_button;
};

QAccessibleInterface* describe(const QString&, QObject* object) {
    auto* button = qobject_cast<TKLabelButton*>(object);
    return button ? new AccessibleLabel(*button) : nullptr;
}

} // namespace

void installLabelAccessibility() {
    // Installing the same factory again has no effect.
    QAccessible::installFactory(describe);
}
