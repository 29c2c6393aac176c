#include "platform/focusstop.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QEvent>
#include <QFocusFrame>
#include <QKeyEvent>

#include <utility>

namespace {

// What assistive technology is told of a stop: all that it would be told of the chooser, but for
// the focus.
class StopInterface : public QAccessibleWidget {
public:
    explicit StopInterface(FocusStop *of) : QAccessibleWidget(of), stop(of) {}

    QAccessible::Role role() const override {
        return chooser() != nullptr ? chooser()->role() : QAccessibleWidget::role();
    }
    QString text(QAccessible::Text kind) const override {
        return chooser() != nullptr ? chooser()->text(kind) : QString();
    }
    QRect rect() const override { return chooser() != nullptr ? chooser()->rect() : QRect(); }
    QAccessible::State state() const override {
        QAccessible::State state =
            chooser() != nullptr ? chooser()->state() : QAccessibleWidget::state();
        state.focusable = true;
        state.focused = stop->hasFocus();
        return state;
    }
    QList<std::pair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override {
        return chooser() != nullptr ? chooser()->relations(match)
                                    : QAccessibleWidget::relations(match);
    }
    void *interface_cast(QAccessible::InterfaceType type) override {
        return chooser() != nullptr ? chooser()->interface_cast(type) : nullptr;
    }

private:
    QAccessibleInterface *chooser() const {
        return QAccessible::queryAccessibleInterface(stop->chooser());
    }

    FocusStop *stop;
};

QAccessibleInterface *newStopInterface(const QString &, QObject *object) {
    auto *stop = qobject_cast<FocusStop *>(object);
    return stop != nullptr ? new StopInterface(stop) : nullptr;
}

bool closesTheDialog(const QKeyEvent *event) {
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
           event->key() == Qt::Key_Escape;
}

} // namespace

FocusStop::FocusStop(QWidget *chooser, QWidget *parent) : QWidget(parent), stoodFor(chooser) {
    QAccessible::installFactory(newStopInterface);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(1, 1);
    chooser->installEventFilter(this);
    connect(chooser, &QObject::destroyed, this, &QObject::deleteLater);
    followChooser();
}

FocusStop::~FocusStop() {
    delete frame;
}

void FocusStop::keyPressEvent(QKeyEvent *event) {
    handOver(event);
}

void FocusStop::keyReleaseEvent(QKeyEvent *event) {
    handOver(event);
}

// What the chooser does not take has been offered to the dialog on its way from there.
void FocusStop::handOver(QKeyEvent *event) {
    if (stoodFor.isNull() || closesTheDialog(event)) {
        event->ignore();
        return;
    }
    QCoreApplication::sendEvent(stoodFor, event);
    event->accept();
    announceChange();
}

// Also when the chooser's list closes.
void FocusStop::focusInEvent(QFocusEvent *event) {
    QWidget::focusInEvent(event);
    if (frame.isNull() && !stoodFor.isNull()) {
        frame = new QFocusFrame(this);
        frame->setWidget(stoodFor);
    }
    announceChange();
}

void FocusStop::focusOutEvent(QFocusEvent *event) {
    QWidget::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason)
        delete frame;
}

bool FocusStop::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::EnabledChange:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        followChooser();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void FocusStop::followChooser() {
    setEnabled(stoodFor->isEnabled());
    setVisible(!stoodFor->isHidden());
}

// The chooser announces its changes for itself; whoever follows the focus listens here.
void FocusStop::announceChange() {
    const QAccessibleInterface *chooser =
        QAccessible::isActive() ? QAccessible::queryAccessibleInterface(stoodFor) : nullptr;
    if (chooser == nullptr)
        return;
    const QString value = chooser->text(QAccessible::Name);
    if (value != std::exchange(announcedValue, value)) {
        QAccessibleEvent change(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&change);
    }
    const bool checked = chooser->state().checked;
    if (checked != std::exchange(announcedCheck, checked)) {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent change(this, changed);
        QAccessible::updateAccessibility(&change);
    }
}
