#include "platform/dialogcontrols.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QErrorMessage>
#include <QEvent>
#include <QLayout>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QTextEdit>
#include <QWizard>

#include <algorithm>
#include <utility>

namespace {

// Between the row and the dialog's left, right and bottom edge.
constexpr int margin = 11;

template <class... Kinds>
bool isOneOf(const QObject *object) {
    return ((qobject_cast<const Kinds *>(object) != nullptr) || ...);
}

// Most of the toolkit's ready-made dialogs, message boxes among them, have a button box; the rest
// close by themselves or have single buttons.
bool bringsItsControls(const QDialog *dialog) {
    return isOneOf<QErrorMessage, QProgressDialog, QWizard>(dialog) ||
           dialog->findChild<QDialogButtonBox *>() != nullptr;
}

bool isChooser(const QWidget *widget) {
    return isOneOf<QAbstractButton, QAbstractItemView, QAbstractSlider, QAbstractSpinBox, QComboBox,
                   QLineEdit, QTextEdit>(widget) &&
           !isOneOf<QScrollBar>(widget);
}

bool isPartOfAChooser(const QWidget *widget) {
    for (const QWidget *above = widget->parentWidget(); above != nullptr;
         above = above->parentWidget()) {
        if (isChooser(above))
            return true;
    }
    return false;
}

// As the eye goes: line by line.
QList<QWidget *> choosersOf(const QDialog *dialog) {
    QList<QWidget *> choosers;
    for (QWidget *widget : dialog->findChildren<QWidget *>()) {
        if (isChooser(widget) && !isPartOfAChooser(widget))
            choosers << widget;
    }
    std::sort(choosers.begin(), choosers.end(), [dialog](const QWidget *a, const QWidget *b) {
        const QPoint placeA = a->mapTo(dialog, QPoint());
        const QPoint placeB = b->mapTo(dialog, QPoint());
        return std::pair(placeA.y(), placeA.x()) < std::pair(placeB.y(), placeB.x());
    });
    return choosers;
}

// A form meant for the pen alone has choosers that take no focus. Here they take it from the
// keyboard, and as before not from the pen.
void reachByTab(QWidget *chooser) {
    chooser->setFocusPolicy(static_cast<Qt::FocusPolicy>(chooser->focusPolicy() | Qt::TabFocus));
}

// The row stands last in the toolkit's circle of widgets. Only when it is there are the choosers
// put in their order: the toolkit leaves alone what follows on the other round the circle.
void addControls(QDialog *dialog) {
    const QList<QWidget *> order = choosersOf(dialog);
    std::for_each(order.begin(), order.end(), reachByTab);
    new ControlRow(dialog);
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

bool isLayoutsLimit(const QDialog *dialog) {
    const QLayout *layout = dialog->layout();
    return layout != nullptr && layout->totalMinimumSize().height() == dialog->minimumHeight();
}

} // namespace

DialogControls::DialogControls(QObject *parent) : QObject(parent) {}

bool DialogControls::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Show && !event->spontaneous()) {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (dialog != nullptr && dialog->isModal() && !bringsItsControls(dialog))
            addControls(dialog);
    }
    return QObject::eventFilter(watched, event);
}

ControlRow::ControlRow(QDialog *dialog) : QDialogButtonBox(dialog) {
    addButtons(!choosersOf(dialog).isEmpty());
    connect(this, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    connect(this, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    growDialog(dialog);
    placeBelowForm(dialog);
    dialog->installEventFilter(this);
    show();
}

int ControlRow::rowHeight() const {
    return sizeHint().height() + margin;
}

bool ControlRow::eventFilter(QObject *watched, QEvent *event) {
    const auto *dialog = qobject_cast<const QDialog *>(watched);
    if (event->type() == QEvent::Resize && dialog != nullptr)
        placeBelowForm(dialog);
    return QDialogButtonBox::eventFilter(watched, event);
}

// Return presses the button that has the focus, OK when none has it.
void ControlRow::addButtons(bool choice) {
    addButton(QDialogButtonBox::Ok)->setDefault(true);
    if (choice)
        addButton(QDialogButtonBox::Cancel)->setAutoDefault(true);
}

// A layout is told to keep off the row; without one the form stays where it is anyway. The limits
// grow before the size, which they bound. A lower limit that a layout has set follows by itself.
void ControlRow::growDialog(QDialog *dialog) {
    const QSize grownSize = dialog->size() + QSize(0, rowHeight());
    if (dialog->minimumHeight() > 0 && !isLayoutsLimit(dialog))
        dialog->setMinimumHeight(dialog->minimumHeight() + rowHeight());
    if (dialog->maximumHeight() < QWIDGETSIZE_MAX)
        dialog->setMaximumHeight(dialog->maximumHeight() + rowHeight());
    if (QLayout *layout = dialog->layout()) {
        QMargins margins = layout->contentsMargins();
        margins.setBottom(margins.bottom() + rowHeight());
        layout->setContentsMargins(margins);
    }
    dialog->resize(grownSize);
}

void ControlRow::placeBelowForm(const QDialog *dialog) {
    const int height = sizeHint().height();
    setGeometry(margin, dialog->height() - height - margin, dialog->width() - 2 * margin, height);
}
