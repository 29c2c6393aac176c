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

bool holdsSomethingToChoose(const QDialog *dialog) {
    const QList<QWidget *> widgets = dialog->findChildren<QWidget *>();
    return std::any_of(widgets.begin(), widgets.end(), isChooser);
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
            new ControlRow(dialog);
    }
    return QObject::eventFilter(watched, event);
}

ControlRow::ControlRow(QDialog *dialog) : QDialogButtonBox(dialog) {
    addButtons(dialog);
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

// Cancel does not become the default button when it gets the focus: Return always accepts.
void ControlRow::addButtons(QDialog *dialog) {
    const bool choice = holdsSomethingToChoose(dialog);
    addButton(QDialogButtonBox::Ok)->setDefault(true);
    if (choice)
        addButton(QDialogButtonBox::Cancel)->setAutoDefault(false);
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
