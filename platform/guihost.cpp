#include "platform/guihost.h"

#include "platform/paintscope.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>

#include <algorithm>

namespace {

bool applicationCanShowBoxes() {
    return qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr &&
           !QCoreApplication::closingDown();
}

QMessageBox::Icon iconOf(BoxKind kind) {
    switch (kind) {
    case BoxKind::Information:
        return QMessageBox::Information;
    case BoxKind::Warning:
        return QMessageBox::Warning;
    case BoxKind::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(BoxButtons buttons) {
    return buttons == BoxButtons::OkCancel ? QMessageBox::Ok | QMessageBox::Cancel
                                           : QMessageBox::StandardButtons(QMessageBox::Ok);
}

// The window that a box belongs to: its parent's, otherwise the one that the user sees.
QWidget *windowBehind(QWidget *parent) {
    if (parent != nullptr)
        return parent->window();
    if (QApplication::activeWindow() != nullptr)
        return QApplication::activeWindow();
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto shown = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->isVisible() && window->windowType() != Qt::ToolTip;
    });
    return shown != windows.end() ? *shown : nullptr;
}

// Rejects the box when the window behind it goes away: a box does not outlive the program's window.
class CloseWithWindow : public QObject {
public:
    CloseWithWindow(QDialog *box, QWidget *window) : QObject(box), box_(box) {
        if (window != nullptr)
            window->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            box_->reject();
        return false;
    }

private:
    QDialog *box_;
};

} // namespace

GuiHost::GuiHost(QObject *parent) : QObject(parent) {}

// Never deleted: who asks it last, a static object on its way out, is not known.
void GuiHost::provide() {
    static auto *const provided = new GuiHost;
    substituteDisplayFreeHost(provided);
}

bool GuiHost::messageBox(BoxKind kind, const QString &title, const QString &text,
                         BoxButtons buttons, QWidget *parent) {
    if (!applicationCanShowBoxes())
        return Host::messageBox(kind, title, text, buttons, parent);
    if (PaintScope::active()) {
        const bool question = buttons != BoxButtons::Ok;
        if (question)
            Host::messageBox(kind, title, text, buttons, parent);
        else
            postpone({kind, title, text, parent});
        return !question;
    }

    // The box may go with its parent while it is open.
    const QPointer<QMessageBox> box =
        new QMessageBox(iconOf(kind), title, text, buttonsOf(buttons), parent);
    box->setDefaultButton(QMessageBox::Ok);
    new CloseWithWindow(box, windowBehind(parent));
    const bool confirmed = box->exec() == QMessageBox::Ok;
    delete box;
    return confirmed;
}

void GuiHost::processEvents() {
    if (!PaintScope::active())
        Host::processEvents();
}

void GuiHost::beep() {
    if (applicationCanShowBoxes())
        QApplication::beep();
}

void GuiHost::postpone(const Waiting &box) {
    const bool known = std::any_of(waiting_.begin(), waiting_.end(), [&box](const Waiting &other) {
        return other.kind == box.kind && other.title == box.title && other.text == box.text;
    });
    if (known)
        return;
    waiting_.append(box);
    if (waiting_.size() == 1)
        QMetaObject::invokeMethod(this, &GuiHost::showWaiting, Qt::QueuedConnection);
}

// The box on the screen stays in the list until it is closed, so that the painting that it uncovers
// or causes does not ask for it again.
void GuiHost::showWaiting() {
    while (!waiting_.isEmpty()) {
        const Waiting box = waiting_.first();
        messageBox(box.kind, box.title, box.text, BoxButtons::Ok, box.parent);
        waiting_.removeFirst();
    }
}
