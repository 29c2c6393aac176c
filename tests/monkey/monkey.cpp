#include "tests/monkey/monkey.h"

#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "search/abstractengine.h"
#include "tests/rig/windowtext.h"
#include "tests/support/drawnboard.h"
#include "view/boardmetrics.h"
#include "view/drcanvaspiece.h"
#include "view/mycanvasview.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>

#include <cmath>
#include <utility>

namespace {

constexpr int msPerRound = 300; // so a search of a minute takes a few thousand nodes
// Events come at one in so many of a search's rounds, at each when it has lasted for very long.
constexpr int roundsBetweenEvents = 24;
constexpr int veryManyRounds = 400;
constexpr int checksBetweenThoroughOnes = 64;

} // namespace

Monkey::Monkey(unsigned seed, int events, bool trace, Tally &tally)
    : dice_(seed), journal_(seed, events, trace), tally_(tally), user_(*this, dice_),
      previous_(setHost(this)) {
    AbstractEngine::eventLoop = 0;
    qApp->installEventFilter(this);
}

Monkey::~Monkey() {
    setHost(previous_);
}

std::size_t Monkey::run() {
    openWindow();
    while (!journal_.isOver()) {
        if (!window_->isClosed()) {
            step();
            continue;
        }
        ++tally_["window closed"];
        if (dice_.oneIn(2)) {
            openWindow();
        } else {
            model_.reopen();
            show();
        }
    }
    window_.reset();
    return journal_.hash();
}

// The first one, or one after another that was closed.
void Monkey::openWindow() {
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            journal_.fail("a window stays open: " + window->windowTitle().toStdString());
    }
    window_.reset();
    model_ = GameModel();
    window_ = std::make_unique<OpenGame>();
    connect(window_->pSettings.get(), &QDialog::finished, this,
            [this](int result) { leaveSettings(result == QDialog::Accepted); });
    connect(window_->pAbout, &QDialog::finished, this, [this] { model_.leaveAbout(); });
    show();
}

void Monkey::show() {
    journal_.note("show the window");
    searching_ = false;
    window_->show();
    window_->activateWindow();
    QCoreApplication::processEvents();
    check();
}

// A dialog that was just left returns to whoever opened it first.
void Monkey::step() {
    user_.act();
    QCoreApplication::processEvents();
    if (dialog_.isNull() || dialog_->isVisible())
        check();
}

// A search without limit ends sooner or later with BREAK.
void Monkey::processEvents() {
    now_ += msPerRound;
    ++rounds_;
    if (window_->isClosed())
        journal_.fail("the search goes on although the window is closed");
    check();
    QCoreApplication::processEvents();
    if (journal_.isOver()) {
        AbstractEngine::breakThinking = true;
        return;
    }
    if (!dice_.oneIn(rounds_ < veryManyRounds ? roundsBetweenEvents : 1))
        return;
    for (int n = dice_.between(1, 3); n > 0 && !window_->isClosed(); --n)
        step();
}

unsigned Monkey::seed() {
    follow();
    if (model_.phase != GameModel::Phase::Thinking)
        journal_.fail("a search begins that has no reason to");
    if (std::exchange(searching_, true))
        journal_.fail("a search begins inside another");
    ++tally_["level " + std::to_string(model_.choices.level)];
    rounds_ = 0;
    return static_cast<unsigned>(dice_.below(1000));
}

bool Monkey::messageBox(BoxKind kind, const QString &title, const QString &text, BoxButtons buttons,
                        QWidget *parent) {
    follow();
    journal_.note("box " + text.toStdString());
    model_.openBox();
    const bool confirmed = GuiHost::messageBox(kind, title, text, buttons, parent);
    journal_.note(confirmed ? "box confirmed" : "box left");
    model_.answer(confirmed);
    return confirmed;
}

void Monkey::runDialog(QDialog *dialog) {
    const QPointer<QDialog> behind = std::exchange(dialog_, dialog);
    while (!dialog_.isNull() && dialog_->isVisible()) {
        if (journal_.isOver())
            dialog_->reject();
        else
            step();
    }
    dialog_ = behind;
}

void Monkey::leaveSettings(bool accepted) {
    const formsettings &dialog = *window_->pSettings;
    const Choices shown = {dialog.cmbRules->currentIndex(), dialog.cmbSize->currentIndex(),
                           dialog.cmbLevel->currentIndex(), dialog.cmbPlayers->currentIndex(),
                           dialog.chGiveAway->isChecked()};
    journal_.note((accepted ? "settings accepted: " : "settings left: ") + shown.text());
    accepted ? model_.accept(shown) : model_.reject(shown);
}

bool Monkey::eventFilter(QObject *watched, QEvent *event) {
    auto *dialog = qobject_cast<QDialog *>(watched);
    const auto *button = qobject_cast<QPushButton *>(watched);
    switch (event->type()) {
    case QEvent::Timer:
        return true;
    case QEvent::Show:
        if (dialog != nullptr && !event->spontaneous())
            QMetaObject::invokeMethod(
                this, [this, shown = QPointer(dialog)] { runDialog(shown); }, Qt::QueuedConnection);
        break;
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease:
        if (button != nullptr && button->window() == window_.get())
            watchButton(*button, event);
        break;
    case QEvent::Shortcut:
        if (watched->parent()->parent() != nullptr) // a button's, not the window's
            noteClick(watched->parent()->objectName().mid(3).toStdString());
        break;
    case QEvent::KeyPress:
        watchKey(watched, *static_cast<QKeyEvent *>(event));
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (watched == window_->pView->viewport())
            watchBoard(event);
        break;
    default:
        break;
    }
    return false;
}

// A button is clicked by a release on it, or of the space key, while it is down.
void Monkey::watchButton(const QPushButton &button, const QEvent *event) {
    if (!button.isDown() || !button.isEnabled())
        return;
    const auto *mouse = dynamic_cast<const QMouseEvent *>(event);
    const auto *key = dynamic_cast<const QKeyEvent *>(event);
    const bool released = event->type() == QEvent::MouseButtonRelease &&
                          mouse->button() == Qt::LeftButton &&
                          button.rect().contains(mouse->position().toPoint());
    const bool typed =
        event->type() == QEvent::KeyRelease && key->key() == Qt::Key_Space && !key->isAutoRepeat();
    if (released || typed)
        noteClick(button.objectName().mid(3).toStdString());
}

// The board taps its cursor's square; to the window Return comes from a button that has no use for
// it.
void Monkey::watchKey(const QObject *receiver, const QKeyEvent &key) {
    const bool isPress =
        (key.key() == Qt::Key_Return || key.key() == Qt::Key_Space) && !key.isAutoRepeat();
    const auto *button = qobject_cast<QPushButton *>(window_->focusWidget());
    if (receiver == window_->pView && key.key() == Qt::Key_Escape)
        model_.cancel();
    else if (receiver == window_->pView && isPress)
        noteTap(window_->pView->cursorSquare());
    else if (receiver == window_.get() && isPress && button != nullptr)
        noteClick(button->objectName().mid(3).toStdString());
}

void Monkey::noteClick(const std::string &button) {
    journal_.note("clicks " + button);
    model_.click(button);
}

void Monkey::watchBoard(const QEvent *event) {
    const QPointF at = static_cast<const QMouseEvent *>(event)->position();
    const int side = window_->pMetrics->SquareWidthB();
    const int n = model_.squares();
    const XY square(static_cast<int>(std::floor(at.x() / side)),
                    n - 1 - static_cast<int>(std::floor(at.y() / side)));
    if (square.x >= 0 && square.y >= 0 && square.x < n && square.y < n &&
        (square.x + square.y) % 2 == 0)
        noteTap(square);
}

void Monkey::noteTap(const XY &square) {
    journal_.note("taps " + inOrder({square}));
    model_.tap(square);
}

void Monkey::passTime(int steps) {
    const bool before = std::exchange(timePasses_, true);
    for (int step = 0; step < steps; ++step) {
        window_->pCanvas->advance();
        check();
    }
    timePasses_ = before;
}

// What the model cannot foretell: how far a flight has come, which only the passing of time may
// bring about, and what the computer plays.
void Monkey::follow() {
    const OpenGame &game = *window_;
    if (timePasses_ && model_.phase == GameModel::Phase::Flying) {
        const XY from = model_.flight->from();
        if (game.pBoard->plyCount == model_.position.plyCount + 1) {
            ++tally_[model_.choices.text().substr(0, sizeof "rules 0, size 0" - 1)];
            journal_.note("lands");
            model_.land();
            if (model_.phase == GameModel::Phase::Over)
                ++tally_["game over"];
        } else if (const DrCanvasPiece *piece = game.pieces[from.x][from.y]) {
            model_.flyTo({piece->boardX(), piece->boardY()});
        }
    }
    if (model_.phase == GameModel::Phase::Thinking && game.flies() && game.pMove != nullptr) {
        journal_.note("the computer plays " + moveText(*game.pMove));
        searching_ = false;
        model_.begin(*game.pMove);
    }
}

void Monkey::check() {
    follow();
    const bool thorough = ++checks_ % checksBetweenThoroughOnes == 0;
    const Snapshot expected = model_.snapshot(thorough);
    const Snapshot seen = snapshotOf(*window_, thorough);
    if (!model_.fault.empty() || seen != expected)
        journal_.fail(model_.fault + '\n' + difference(expected, seen));
}
