// MainForm: the layout of the main window.
#ifndef FORMS_MAINFORM_H
#define FORMS_MAINFORM_H

#include "platform/wflags.h"

#include <QWidget>

class Announcer;
class QHBoxLayout;
class QLabel;
class QPushButton;

// A fixed form of 240 x 320 pixels: room for the board at the top and below it two rows of small
// buttons and two labels. It creates and places its children and keeps their fonts; what the
// buttons do is the business of the class that derives from it. In a window that the desktop makes
// larger all the same, the controls lie as in a form in its middle. btnAbout and btnBreak overlap:
// one of them is to be hidden. The children belong to the form.
//
// Return presses the button that has the focus, and most buttons have keys of their own, which
// their tool tips name: Ctrl+N, Ctrl+Z, Ctrl+Y, F1, Escape. A key does what a click would do: of a
// button that is hidden or disabled nothing. Ctrl+Q closes the window.
class MainForm : public QWidget {
    Q_OBJECT

public:
    // `name` is the object name; null stands for "MainForm".
    explicit MainForm(QWidget *parent = nullptr, const char *name = nullptr, WFlags fl = WFlags());
    ~MainForm() override;

    QPushButton *btnSettings;
    QPushButton *btnPrev;
    QPushButton *btnFwd;
    QPushButton *btnAbout;
    QPushButton *btnBreak;
    QPushButton *btnForce;
    QPushButton *btnNewGame;
    QLabel *labelScore;
    QLabel *lblThinking;
    QHBoxLayout *Layout8;
    Announcer *announcer; // for those who hear the window

protected:
    // Sets the children's fonts again when the application's font changes, and keeps the controls
    // in the middle of the window.
    bool event(QEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;

    // Tab comes to `board` first and then to the buttons as the eye goes, whatever order they were
    // made in.
    void orderControls(QWidget *board);

    // Where in the window the form's 240 x 320 pixels begin: (0, 0) unless it is larger.
    QPoint formOrigin() const;

private:
    QPushButton *addButton(QWidget *owner, const char *name, const QString &text);
    void setUpWindow(const char *name);
    void addUpperRow();
    void addBreak();
    void addLowerRow();
    void setFonts();
    void nameControls();
    void giveKeys();
    void centreControls();

    QPoint controlsOrigin_; // the form's origin that the controls are placed for
};

#endif
