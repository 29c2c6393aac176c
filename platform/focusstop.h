// FocusStop: the keyboard's way to a chooser that is meant for the pen.
#ifndef PLATFORM_FOCUSSTOP_H
#define PLATFORM_FOCUSSTOP_H

#include <QPointer>
#include <QWidget>

class QFocusFrame;

// A place in the tab order that stands for a chooser which takes no focus. Nothing of it is to be
// seen; while it has the focus a frame is drawn round the chooser, and the keys go there, except
// those that move on (Tab) or close the dialog (Return, Escape). The chooser acts on them as if it
// had the focus and says so by its own signals. To assistive technology it has the chooser's role,
// name and value, beside the chooser itself. Out of the tab order while the chooser is disabled or
// hidden, and gone with it.
class FocusStop : public QWidget {
    Q_OBJECT

public:
    // `chooser` may be any widget of the same window that works by keys; it is not owned.
    FocusStop(QWidget *chooser, QWidget *parent);
    ~FocusStop() override;

    // Null while the chooser is being destroyed.
    QWidget *chooser() const { return stoodFor; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void handOver(QKeyEvent *event);
    void followChooser();
    void passOnChanges();

    QPointer<QWidget> stoodFor;
    QPointer<QFocusFrame> frame; // while there is the focus
};

#endif
