// SPDX-License-Identifier: MIT
#include "interface/mainwindow/SumBarAccessibility.h"

#include "interface/mainwindow/CutoffSlider.h"
#include "interface/mainwindow/SumOfTimesLabel.h"

#include <QAccessibleWidget>

namespace {

class AccessibleSum : public QAccessibleWidget {
public:
    explicit AccessibleSum(SumOfTimesLabel& sum)
        : QAccessibleWidget(&sum, QAccessible::StaticText)
        , m_sum(sum) {}

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name)
            return QAccessibleWidget::text(kind);
        return QString(m_sum.accessibleName() + QStringLiteral(", ") + m_sum.text());
    }

private:
    const SumOfTimesLabel& m_sum;
};

// The steps of the slider mean nothing to people: it has seconds as its value, and says them in words.
class AccessibleCutoff : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleCutoff(CutoffSlider& cutoff)
        : QAccessibleWidget(&cutoff, QAccessible::Slider)
        , m_cutoff(cutoff) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? m_cutoff.timeInWords() : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return double(m_cutoff.seconds()); }
    void setCurrentValue(const QVariant& seconds) override { m_cutoff.setSeconds(seconds.toFloat()); }
    QVariant minimumValue() const override { return 0.0; }
    QVariant maximumValue() const override { return double(CutoffSlider::mostSeconds()); }
    QVariant minimumStepSize() const override { return 1.0; }

protected:
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

private:
    CutoffSlider& m_cutoff;
};

QAccessibleInterface* describe(const QString&, QObject* object) {
    if (auto* sum = qobject_cast<SumOfTimesLabel*>(object))
        return new AccessibleSum(*sum);
    if (auto* cutoff = qobject_cast<CutoffSlider*>(object))
        return new AccessibleCutoff(*cutoff);
    return nullptr;
}

} // namespace

void installSumBarAccessibility() {
    // Installing the same factory again has no effect.
    QAccessible::installFactory(describe);
}
