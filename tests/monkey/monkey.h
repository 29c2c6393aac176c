// Monkey: one run of random events over the whole game.
#ifndef TESTS_MONKEY_MONKEY_H
#define TESTS_MONKEY_MONKEY_H

#include "platform/guihost.h"
#include "tests/monkey/gamemodel.h"
#include "tests/monkey/user.h"
#include "tests/rig/opengame.h"

#include <QDialog>
#include <QPointer>

#include <map>
#include <memory>

class QKeyEvent;
class QPushButton;

// What all runs together have seen, and how often.
using Tally = std::map<std::string, int>;

// Has the user act, tells the model what reaches the game, and holds the game to it after each
// event: a press on the board, a release on a button that is held down, a dialog that closes go to
// the model before the game sees them. The first difference ends the program.
//
// It is the host of the program while it lives, with real boxes and a clock that only moves when
// the program does something; the toolkit's timers stand still. So everything that happens follows
// from the seed. Needs a QPEApplication on the offscreen platform.
class Monkey : public GuiHost {
    Q_OBJECT

public:
    // For a run of so many events. How a run goes depends on their number as well as on the seed:
    // searches are broken off at the end.
    Monkey(unsigned seed, int events, bool trace, Tally &tally);
    ~Monkey() override;

    // Ends the program when a check fails; otherwise the hash of all that happened.
    std::size_t run();

    // For the user.
    OpenGame &game() { return *window_; }
    GameModel &model() { return model_; }
    Journal &journal() { return journal_; }
    // Lets so many animation steps pass.
    void passTime(int steps);

    bool messageBox(BoxKind kind, const QString &title, const QString &text, BoxButtons buttons,
                    QWidget *parent) override;
    void processEvents() override; // inside a search
    void beep() override {}
    void pause(int microseconds) override { now_ += microseconds / 1000; }
    qint64 clockMs() override { return now_; }
    unsigned seed() override; // a search begins

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void openWindow();
    void show();
    void step();
    void check();
    void follow();
    void runDialog(QDialog *dialog);
    void leaveSettings(bool accepted);
    void watchButton(const QPushButton &button, const QEvent *event);
    void watchKey(const QObject *receiver, const QKeyEvent &key);
    void watchBoard(const QEvent *event);
    void noteTap(const XY &square);
    void noteClick(const std::string &button);

    Dice dice_;
    Journal journal_;
    Tally &tally_;
    GameModel model_;
    std::unique_ptr<OpenGame> window_;
    User user_;
    Host *previous_;
    QPointer<QDialog> dialog_; // whose event loop runs
    qint64 now_ = 0;
    int checks_ = 0;
    int rounds_ = 0;         // of events in the running search
    bool searching_ = false; // until its move is known
    bool timePasses_ = false;
};

#endif
