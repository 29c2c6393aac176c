#include "forms/chooser.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class AccessibleChooser : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleChooser(Chooser *chooser)
        : QAccessibleWidget(chooser, QAccessible::ComboBox) {}

    Chooser *chooser() const { return static_cast<Chooser *>(object()); }

    QString text(QAccessible::Text kind) const override {
        const QString choice = chooser()->currentText();
        if (kind == QAccessible::Name)
            return QStringLiteral("%1: %2").arg(chooser()->accessibleName(), choice);
        return kind == QAccessible::Value ? choice : QAccessibleWidget::text(kind);
    }
    void *interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return chooser()->currentIndex(); }
    void setCurrentValue(const QVariant &value) override { chooser()->pick(value.toInt()); }
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return chooser()->count() - 1; }
    QVariant minimumStepSize() const override { return 1; }

    QStringList actionNames() const override {
        return QAccessibleWidget::actionNames()
               << showMenuAction() << increaseAction() << decreaseAction();
    }
    void doAction(const QString &name) override {
        if (name == showMenuAction())
            chooser()->showPopup();
        else if (name == increaseAction())
            chooser()->pick(chooser()->currentIndex() + 1);
        else if (name == decreaseAction())
            chooser()->pick(chooser()->currentIndex() - 1);
        else
            QAccessibleWidget::doAction(name);
    }
};

QAccessibleInterface *newAccessible(const QString &, QObject *object) {
    auto *chooser = qobject_cast<Chooser *>(object);
    return chooser != nullptr ? new AccessibleChooser(chooser) : nullptr;
}

} // namespace

Chooser::Chooser(const QString &label, QWidget *parent) : QComboBox(parent) {
    QAccessible::installFactory(newAccessible); // before anything asks for it
    setAccessibleName(label);
}

void Chooser::pick(int index) {
    if (index < 0 || index >= count() || !isEnabled() || !isVisible())
        return;
    setCurrentIndex(index);
    emit activated(index);
}
