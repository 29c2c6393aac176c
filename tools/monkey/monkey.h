// Monkey: one run of random events over the whole game.
#ifndef TOOLS_MONKEY_MONKEY_H
#define TOOLS_MONKEY_MONKEY_H

#include "tools/monkey/user.h"
#include "tools/monkey/virtualhost.h"

#include <QDialog>
#include <QObject>
#include <QPointer>

// Everything that happens follows from the seed: chance, clock, the engine's random numbers and the
// passing of time are all its own. Needs a QPEApplication on the offscreen platform.
class Monkey : public QObject {
    Q_OBJECT

public:
    // For a run of so many events, one check after each. How a run goes depends on their number as
    // well as on the seed: searches are broken off at the end.
    Monkey(unsigned seed, int events, bool trace, Tally &tally);

    // Ends the program when a check fails; otherwise the hash of all that happened.
    std::uint64_t run();

protected:
    bool event(QEvent *event) override;

private:
    bool isOver() const { return journal_.events() >= limit_; }
    void step();
    void stepInSearch();
    void startAgain();

    Dice dice_;
    Journal journal_;
    VirtualHost host_;
    Referee referee_;
    User user_;
    Tally &tally_;
    QPointer<QDialog> dialog_; // whose event loop runs
    const int limit_;
    int rounds_ = 0;       // of events in the running search
    int roundsClosed_ = 0; // of those, after the window was closed
};

#endif
