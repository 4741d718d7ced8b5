// SPDX-License-Identifier: MIT
#include "interface/setup/SetupAccessibility.h"

#include "interface/setup/TKInstructionStepView.h"
#include "interface/setup/TKInstructionView.h"

#include <QAccessibleWidget>

namespace {

class AccessiblePage : public QAccessibleWidget {
public:
    explicit AccessiblePage(TKInstructionView* view)
        : QAccessibleWidget(view, QAccessible::Grouping) {}
};

class AccessibleStep : public QAccessibleWidget {
public:
    explicit AccessibleStep(TKInstructionStepView* row)
        : QAccessibleWidget(row, QAccessible::Button)
        , m_row(*row) {}

    // The badge and the text say nothing more than the row, so it has no children.
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = m_row.isActive();
        return state;
    }

    QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name == pressAction())
            m_row.click();
        else
            QAccessibleWidget::doAction(name);
    }

    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    TKInstructionStepView& m_row;
};

QAccessibleInterface* describe(const QString&, QObject* object) {
    if (auto* row = qobject_cast<TKInstructionStepView*>(object))
        return new AccessibleStep(row);
    if (auto* view = qobject_cast<TKInstructionView*>(object))
        return new AccessiblePage(view);
    return nullptr;
}

} // namespace

void installSetupAccessibility() {
    // Installing the same factory again has no effect.
    QAccessible::installFactory(describe);
}
