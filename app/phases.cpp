// Draughts: what can be seen and pressed in each phase of the game.

#include "app/draughts.h"

#include "app/gamehist.h"
#include "view/drcanvas.h"
#include "view/mycanvasview.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <iterator>

namespace {

// `same` is as the phase before left it, `hist` as far as the history can be stepped through.
enum Cell { same, off, on, hist };

struct Row {
    Draughts::Phase phase;
    struct {
        Cell breakButton = same, about = same, status = same;
    } shown;
    struct {
        Cell force = same, settings = same, newGame = same, steps = same, about = same;
    } enabled;
    struct {
        Cell taps = same, newGame = same, force = same, breakButton = same, flight = same;
    } connected;
    Cell forbiddenCursor;
};

using enum Draughts::Phase;

// The player's own flight leaves NewGame enabled and disconnects it: it would flicker. BREAK stays
// in the flight after a search, and when the computer moves on: hidden for a moment only, it would
// lose a click of which the press has come and the release has not.
// clang-format off
constexpr Row rows[] = {
    //          shown               enabled                          connected                       cursor
    //          BREAK About status  Force Sett. New  <<>>  About     taps  New  Force BREAK flight
    {HandOver, {same, on,   same}, {on,   on,   on,   hist, on  }, {same, off,  same, same, off }, off },
    {Waiting,  {off,  on,   on  }, {on,   on,   on,   hist, on  }, {on,   on,   on,   same, same}, off },
    {Thinking, {on,   off,  on  }, {off,  off,  off,  off,  same}, {off,  same, same, on,   same}, on  },
    {BrokenOff, {}, {}, {}, same},
    {Chosen,   {same, same, off }, {same, same, same, same, same}, {same, same, same, same, same}, off },
    {Flying,   {same, same, same}, {off,  off,  same, off,  off }, {off,  off,  same, same, on  }, same},
    {Over,     {off,  on,   same}, {off,  on,   on,   hist, on  }, {off,  on,   off,  same, same}, off },
    {Closed, {}, {}, {}, same},
};
// clang-format on

constexpr const Row &rowOf(Draughts::Phase phase) {
    return rows[static_cast<int>(phase)];
}

static_assert(std::all_of(std::begin(rows), std::end(rows),
                          [](const Row &row) { return &rowOf(row.phase) == &row; }));

void reveal(QWidget *widget, Cell cell) {
    if (cell != same)
        widget->setVisible(cell == on);
}

void enable(QWidget *widget, Cell cell, bool asHistory = false) {
    if (cell != same)
        widget->setEnabled(cell == hist ? asHistory : cell == on);
}

template <class Sender, class Signal, class Slot>
void wire(Cell cell, Sender *sender, Signal signal, Draughts *game, Slot slot) {
    if (cell == on)
        QObject::connect(sender, signal, game, slot, Qt::UniqueConnection);
    else if (cell == off)
        QObject::disconnect(sender, signal, game, slot);
}

} // namespace

void Draughts::enter(Phase phase) {
    if (phase_ == Closed) {
        interrupted_ = phase;
        return;
    }
    phase_ = phase;
    if (isBusy())
        keepFocus();
    showControls();
    connectControls();
    pView->tellSquares();
}

void Draughts::showControls() {
    const Row &row = rowOf(phase_);
    if (row.forbiddenCursor != same)
        pView->setCursor(row.forbiddenCursor == on ? Qt::ForbiddenCursor : Qt::ArrowCursor);
    reveal(lblThinking, row.shown.status);
    reveal(btnBreak, row.shown.breakButton);
    reveal(btnAbout, row.shown.about);
    enable(btnForce, row.enabled.force);
    enable(btnSettings, row.enabled.settings);
    enable(btnNewGame, row.enabled.newGame);
    enable(btnPrev, row.enabled.steps, pHist->canPrev());
    enable(btnFwd, row.enabled.steps, pHist->canFwd());
    enable(btnAbout, row.enabled.about);
}

void Draughts::connectControls() {
    const auto &connected = rowOf(phase_).connected;
    using Button = QPushButton;
    wire(connected.taps, pView, &MyCanvasView::clickedBxy, this, &Draughts::userInput);
    wire(connected.newGame, btnNewGame, &Button::clicked, this, &Draughts::newGame);
    wire(connected.force, btnForce, &Button::clicked, this, &Draughts::forceMove);
    wire(connected.breakButton, btnBreak, &Button::clicked, this, &Draughts::breakThinking);
    wire(connected.flight, pCanvas.get(), &DrCanvas::signalDance, this, &Draughts::AfterDance);
}

// The toolkit takes the focus from a button that is disabled or hidden and gives it to another, and
// a screen reader names each of them. So it rests on the board, which always takes it.
void Draughts::keepFocus() {
    if (!focusKept_.isNull() || focusWidget() == nullptr)
        return;
    focusKept_ = focusWidget();
    pView->setFocus(Qt::OtherFocusReason);
}

// Whoever plays by keyboard goes on from where he was, the board or the button pressed last.
void Draughts::giveBackFocus() {
    if (!focusKept_.isNull() && focusKept_->isEnabled())
        focusKept_->setFocus();
    focusKept_.clear();
}
