#include "platform/focusstop.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFocusFrame>
#include <QKeyEvent>

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
        return chooser() == nullptr || type == QAccessible::ActionInterface
                   ? QAccessibleWidget::interface_cast(type)
                   : chooser()->interface_cast(type);
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (chooserActions() != nullptr)
            names << chooserActions()->actionNames();
        return names;
    }
    void doAction(const QString &name) override {
        if (name == setFocusAction())
            QAccessibleWidget::doAction(name);
        else if (chooserActions() != nullptr)
            chooserActions()->doAction(name);
    }

private:
    QAccessibleInterface *chooser() const {
        return QAccessible::queryAccessibleInterface(stop->chooser());
    }

    QAccessibleActionInterface *chooserActions() const {
        return chooser() != nullptr ? chooser()->actionInterface() : nullptr;
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
    passOnChanges();
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
}

void FocusStop::focusInEvent(QFocusEvent *event) {
    QWidget::focusInEvent(event);
    if (frame.isNull() && !stoodFor.isNull()) {
        frame = new QFocusFrame(this);
        frame->setWidget(stoodFor);
    }
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

// The chooser announces its changes as its own; whoever follows the focus listens here. A list's
// choice is its name, as with the toolkit's combo boxes.
void FocusStop::passOnChanges() {
    if (const auto *list = qobject_cast<const QComboBox *>(stoodFor)) {
        connect(list, &QComboBox::currentTextChanged, this, [this] {
            QAccessibleEvent change(this, QAccessible::NameChanged);
            QAccessible::updateAccessibility(&change);
        });
    } else if (const auto *button = qobject_cast<const QAbstractButton *>(stoodFor)) {
        connect(button, &QAbstractButton::toggled, this, [this] {
            QAccessible::State changed;
            changed.checked = true;
            QAccessibleStateChangeEvent change(this, changed);
            QAccessible::updateAccessibility(&change);
        });
    }
}
