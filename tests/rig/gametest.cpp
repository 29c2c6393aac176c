#include "tests/rig/gametest.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

GameTest::GameTest() {
    game.setLevel(easy1);
    game.show();
    game.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&game));
}

GameTest::~GameTest() {
    EXPECT_EQ(boxes(), "") << "boxes that the test did not expect";
}

void GameTest::press(QWidget *widget, QPoint at) {
    if (widget->isVisible())
        hand.click(widget->window(), widget->mapTo(widget->window(), at));
}

void GameTest::tap(int x, int y) {
    const boardMetrics &m = *game.pMetrics;
    press(game.pView->viewport(),
          QPoint(m.BxToScr(x) + m.SquareWidthB() / 2, m.ByToScr(y) + m.SquareHeightB() / 2));
}

void GameTest::taps(const std::string &squares) {
    for (std::size_t i = 0; i < squares.size(); i += 3)
        tap(squares[i] - '0', squares[i + 1] - '0');
}

void GameTest::keys(const QWidget &window, const QList<Qt::Key> &typed) {
    for (const Qt::Key key : typed) {
        const QWidget *list = QApplication::activePopupWidget();
        Hand::type(list != nullptr ? list : &window, key);
    }
}

void GameTest::place(const std::string &drawing, int players) {
    const board position = drawn(drawing);
    ASSERT_EQ(position.size, game.pMetrics->size);
    game.trashAllPieces();
    *game.pBoard = position;
    game.CreateCanvasPieces(game.pCanvas.get(), game.pBoard.get());
    game.pHist->clear();
    game.pHist->insert(game.pBoard.get());
    game.pSettings->cmbPlayers->setCurrentIndex(players);
    const bool white = position.whiteToMove;
    game.whiteComputer = players == computers || (players == humanComputer && !white);
    game.blackComputer = players == computers || (players == humanComputer && white);
    game.DoPlayerMove();
}

void GameTest::land(int moves) {
    for (const int end = game.pBoard->plyCount + moves; game.pBoard->plyCount < end;) {
        ASSERT_TRUE(game.flies()) << status();
        game.pCanvas->advance();
    }
}

void GameTest::whileOpen(const QDialog *dialog, const std::function<void()> &open,
                         const std::function<void()> &act) {
    bool opened = false;
    QTimer inItsEventLoop;
    QObject::connect(&inItsEventLoop, &QTimer::timeout, dialog, [&] {
        if (!dialog->isActiveWindow())
            return;
        inItsEventLoop.stop();
        opened = true;
        act();
    });
    inItsEventLoop.start(0);
    open();
    EXPECT_TRUE(opened);
    EXPECT_FALSE(dialog->isVisible());
}

void GameTest::duringSearch(const std::function<void()> &act) {
    const int round = host.eventRounds + 3;
    host.onEvents = [this, round, act] {
        if (host.eventRounds == round)
            act();
    };
}

QColor GameTest::squareColour(int x, int y) const {
    const QPoint inside(game.pMetrics->BxToScr(x) + 1, game.pMetrics->ByToScr(y) + 1);
    return game.pView->viewport()->grab().toImage().pixelColor(inside);
}

void GameTest::expectAgreement() const {
    const board &b = *game.pBoard;
    const auto sprite = [this](int x, int y) {
        const DrCanvasPiece *piece = game.pieces[x][y];
        return letterOf(piece != nullptr ? piece->getType() : 0);
    };
    EXPECT_EQ(shown(), position()) << "the pixels";
    EXPECT_EQ(position().substr(2), drawing(b.size, sprite)) << "the sprites";
    int white = 0;
    int black = 0;
    b.countPieces(white, black);
    EXPECT_EQ(game.labelScore->text().toStdString(),
              std::to_string(white) + '/' + std::to_string(black));
    EXPECT_EQ(XY::B_SIZE, b.size);
    EXPECT_EQ(game.pEngine->size, b.size);
}
