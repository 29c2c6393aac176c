// The window system's controls of a modal form: the row with OK and Cancel.
#ifndef PLATFORM_DIALOGCONTROLS_H
#define PLATFORM_DIALOGCONTROLS_H

#include <QDialogButtonBox>
#include <QObject>

class QDialog;

// Watches the application for modal dialogs that are shown without a button row of their own and
// gives each such dialog a ControlRow, once, and Tab focus to all that can be chosen in it. Tab
// goes through the dialog line by line, the row last. Message boxes and the toolkit's other
// ready-made dialogs are left alone. Install it on the application object with
// installEventFilter().
class DialogControls : public QObject {
    Q_OBJECT

public:
    explicit DialogControls(QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

// The row itself, below the form: OK and Cancel where the form holds something to choose, OK alone
// where it only shows something. Return presses the button with the focus, else OK; Escape
// rejects. The dialog grows by the row's height, its size limits with it, and the form above keeps
// its geometry. Owned by the dialog.
class ControlRow : public QDialogButtonBox {
    Q_OBJECT

public:
    explicit ControlRow(QDialog *dialog);

    // What the dialog's height has grown by, in pixels.
    int rowHeight() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addButtons(bool choice);
    void growDialog(QDialog *dialog);
    void placeBelowForm(const QDialog *dialog);
};

#endif
