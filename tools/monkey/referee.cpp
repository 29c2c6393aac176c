#include "tools/monkey/referee.h"

#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "rules/legalmove.h"
#include "tools/monkey/inspector.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/mycanvasview.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMouseEvent>

#include <cmath>
#include <utility>

namespace {

// The history and the pixels are compared at every so many checks.
constexpr int checksBetweenPictures = 64;

const char *nameOf(Button button) {
    constexpr const char *names[] = {"<<",         ">>",       "About",  "BREAK",
                                     "Force Move", "Settings", "NewGame"};
    return names[static_cast<int>(button)];
}

} // namespace

Referee::Referee(Journal &journal, Tally &tally) : journal_(journal), tally_(tally) {
    qApp->installEventFilter(this);
}

Referee::~Referee() = default;

void Referee::openWindow() {
    model_ = GameModel();
    searching_ = 0;
    window_ = std::make_unique<OpenGame>();
    OpenGame &game = *window_;
    connect(game.pSettings.get(), &QDialog::finished, this, [this](int result) {
        const Choices shown = shownChoices(*window_);
        journal_.note(QString("settings %1: %2 %3 %4 %5 %6")
                          .arg(result == QDialog::Accepted ? "accepted" : "left")
                          .arg(shown.rules)
                          .arg(shown.size)
                          .arg(shown.level)
                          .arg(shown.players)
                          .arg(shown.giveAway));
        result == QDialog::Accepted ? model_.accept(shown) : model_.reject(shown);
    });
    connect(game.pAbout, &QDialog::finished, this, [this] { model_.leaveAbout(); });
    game.show();
    game.activateWindow();
    QCoreApplication::processEvents();
    check();
}

void Referee::noteClose() {
    model_.close();
}

bool Referee::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::Timer:
        return true;
    case QEvent::Show: {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (dialog != nullptr && !event->spontaneous())
            onDialog(dialog);
        break;
    }
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease:
        watchButton(watched, event);
        break;
    case QEvent::Shortcut:
        if (window_ != nullptr && watched->parent() == window_->btnBreak)
            noteClick(Button::Break);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        watchBoard(watched, event);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

// A button is clicked by a release on it, or of the space key, while it is down.
void Referee::watchButton(QObject *watched, QEvent *event) {
    for (const Button button : allButtons) {
        if (window_ == nullptr || watched != widgetOf(*window_, button))
            continue;
        const QPushButton &widget = *widgetOf(*window_, button);
        if (!widget.isDown() || !widget.isEnabled())
            return;
        const auto *mouse = dynamic_cast<QMouseEvent *>(event);
        const auto *key = dynamic_cast<QKeyEvent *>(event);
        const bool clicked = mouse != nullptr
                                 ? mouse->button() == Qt::LeftButton &&
                                       widget.rect().contains(mouse->position().toPoint())
                                 : key->key() == Qt::Key_Space;
        if (clicked)
            noteClick(button);
        return;
    }
}

void Referee::noteClick(Button button) {
    journal_.note(QString("clicks ") + nameOf(button));
    tally_.breaks += button == Button::Break;
    model_.click(button);
}

void Referee::watchBoard(QObject *watched, const QEvent *event) {
    if (window_ == nullptr || watched != window_->pView->viewport())
        return;
    const QPointF at = static_cast<const QMouseEvent *>(event)->position();
    const int side = window_->pMetrics->SquareWidthB();
    const int n = model_.squares();
    const XY square(static_cast<int>(std::floor(at.x() / side)),
                    n - 1 - static_cast<int>(std::floor(at.y() / side)));
    if (square.x < 0 || square.y < 0 || square.x >= n || square.y >= n || (square.x + square.y) % 2)
        return;
    journal_.note("taps " + LegalMove::XYtoString(square));
    model_.tap(square);
}

void Referee::passTime(int steps) {
    const bool before = std::exchange(timePasses_, true);
    for (int step = 0; step < steps; ++step) {
        window_->pCanvas->advance();
        check();
    }
    timePasses_ = before;
}

// What the model cannot foretell: when a flight ends, which only the passing of time may bring
// about, and what the computer plays.
void Referee::follow() {
    const OpenGame &game = *window_;
    if (timePasses_ && model_.phase == Phase::Flying &&
        game.pBoard->plyCount == model_.position.plyCount + 1) {
        ++tally_.moves[model_.choices.rules][model_.choices.size];
        model_.land();
        tally_.gamesOver += model_.phase == Phase::Over;
        journal_.note("lands");
    }
    if (model_.phase == Phase::Thinking && !game.thinking() && game.flying() &&
        game.pMove != nullptr) {
        const Move move = moveOf(*game.pMove);
        model_.begin(move);
        searching_ = 0;
        journal_.note("the computer plays " + notation(move.path));
    }
}

void Referee::check() {
    follow();
    QString fault = inspect(*window_, model_);
    if (fault.isEmpty() && !window_->closed() && ++checks_ % checksBetweenPictures == 0) {
        fault = inspectHistory(*window_, model_);
        if (fault.isEmpty())
            fault = inspectPixels(*window_, model_);
    }
    if (!fault.isEmpty())
        fail(fault);
}

void Referee::noteSearch() {
    follow();
    if (model_.phase != Phase::Thinking)
        fail("a search begins that has no reason to");
    if (++searching_ > 1)
        fail("a search begins inside another");
    ++tally_.searches[model_.choices.level];
}

void Referee::noteBox(const QString &title, const QString &text) {
    follow();
    const bool known = (title == "confirm" && text == "confirm NewGame") ||
                       (title == "Game Over" && text == title);
    if (!known)
        fail("a box says " + title + ": " + text);
    ++tally_.boxes;
    journal_.note("box " + title);
    box_ = title == "confirm" ? Box::Confirm : Box::GameOver;
    model_.openBox(*box_);
    check();
}

void Referee::noteAnswer(bool confirmed) {
    journal_.note(confirmed ? "box confirmed" : "box left");
    tally_.newGames += box_ == Box::Confirm && confirmed;
    model_.answer(*box_, confirmed);
}

void Referee::fail(const QString &fault) {
    constexpr const char *phases[] = {"waiting", "thinking", "flying", "over", "closed"};
    const Choices &c = model_.choices;
    journal_.fail(fault, QString("%1; rules %2, level %3, players %4, status \"%5\"\n")
                                 .arg(phases[static_cast<int>(model_.phase)])
                                 .arg(c.rules)
                                 .arg(c.level)
                                 .arg(c.players)
                                 .arg(model_.status) +
                             drawing(model_.shownPosition()));
}
