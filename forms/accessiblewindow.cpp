#include "forms/accessiblewindow.h"

#include "forms/announcer.h"
#include "forms/mainform.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class AccessibleWindow : public QAccessibleWidget {
public:
    explicit AccessibleWindow(MainForm *form)
        : QAccessibleWidget(form, QAccessible::Window), announcer_(form->announcer) {}

    int childCount() const override { return QAccessibleWidget::childCount() + 1; }
    QAccessibleInterface *child(int index) const override {
        if (index == QAccessibleWidget::childCount())
            return QAccessible::queryAccessibleInterface(announcer_);
        return QAccessibleWidget::child(index);
    }
    int indexOfChild(const QAccessibleInterface *child) const override {
        if (child->object() == announcer_)
            return QAccessibleWidget::childCount();
        return QAccessibleWidget::indexOfChild(child);
    }

private:
    Announcer *announcer_;
};

QAccessibleInterface *newWindow(const QString &, QObject *object) {
    auto *form = qobject_cast<MainForm *>(object);
    return form != nullptr ? new AccessibleWindow(form) : nullptr;
}

} // namespace

void installAccessibleWindow() {
    QAccessible::installFactory(newWindow);
}
