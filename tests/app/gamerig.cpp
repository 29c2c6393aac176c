#include "tests/app/gamerig.h"

#include <QApplication>
#include <QTimer>

#ifdef HAVE_XDISPLAY
#include "tools/demo/xdisplay.h"

namespace {

struct ReleaseSpy : QObject {
    ReleaseSpy() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override {
        seen |= event->type() == QEvent::MouseButtonRelease;
        return false;
    }
    bool seen = false;
};

} // namespace
#endif

void LiveHost::processEvents() {
    QCoreApplication::processEvents();
    RecordingHost::processEvents();
}

GameTest::GameTest() {
    game.setLevel(easy1);
    game.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&game));
}

GameTest::~GameTest() {
    EXPECT_EQ(boxes(), "");
}

void GameTest::press(QWidget *widget, QPoint at) {
    if (!widget->isVisible())
        return;
#ifdef HAVE_XDISPLAY
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        const ReleaseSpy release;
        const QWidget *window = widget->window();
        static XDisplay display;
        display.tap(static_cast<xcb_window_t>(window->winId()), widget->mapTo(window, at));
        EXPECT_TRUE(QTest::qWaitFor([&release] { return release.seen; }));
        return;
    }
#endif
    QTest::mouseClick(widget, Qt::LeftButton, {}, at);
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

void GameTest::place(const std::string &drawing, int players) {
    const board position = drawn(drawing);
    ASSERT_EQ(position.size, game.pMetrics->size);
    game.trashAllPieces();
    *game.pBoard = position;
    game.CreateCanvasPieces(game.pCanvas.get(), game.pBoard.get());
    game.pHist->clear();
    game.pHist->insert(game.pBoard.get());
    game.pSettings->cmbPlayers->setCurrentIndex(players);
    game.whiteComputer = players == computers || (players == 0 && !position.whiteToMove);
    game.blackComputer = players == computers || (players == 0 && position.whiteToMove);
    game.DoPlayerMove();
}

void GameTest::land(int moves) {
    for (const int end = game.pBoard->plyCount + moves; game.pBoard->plyCount < end;) {
        ASSERT_TRUE(game.flying()) << status();
        game.pCanvas->advance();
    }
}

void GameTest::settings(QDialogButtonBox::StandardButton button,
                        const std::function<void(formsettings &)> &pick) {
    formsettings &dialog = *game.pSettings;
    QTimer opened;
    QObject::connect(&opened, &QTimer::timeout, &dialog, [&] {
        auto *row = dialog.findChild<QDialogButtonBox *>();
        if (!dialog.isVisible() || row == nullptr || !QTest::qWaitForWindowExposed(&dialog))
            return;
        opened.stop();
        if (pick)
            pick(dialog);
        press(row->button(button));
    });
    opened.start(5);
    press(game.btnSettings);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !opened.isActive() && !dialog.isVisible(); }));
}

void GameTest::choose(QComboBox *combo, int item) {
    for (int at = combo->currentIndex(); at != item; at += at < item ? 1 : -1)
        QTest::keyClick(combo, at < item ? Qt::Key_Down : Qt::Key_Up);
}

std::string GameTest::boxes() {
    std::string text;
    for (const RecordingHost::Box &box : host.boxes)
        text += (box.title + ": " + box.text + "; ").toStdString();
    host.boxes.clear();
    return text;
}

std::string GameTest::status() const {
    const QString state = game.lblThinking->isVisible() ? game.lblThinking->text() : QString();
    QStringList parts = {'[' + state + ']', game.labelScore->text()};
    for (const QPushButton *button : {game.btnPrev, game.btnFwd, game.btnAbout, game.btnBreak,
                                      game.btnForce, game.btnSettings, game.btnNewGame}) {
        if (button->isVisible() && button->isEnabled())
            parts << button->objectName().mid(3);
    }
    return parts.join(' ').toStdString();
}

std::string GameTest::marked(MarkType mark) const {
    QStringList squares;
    for (int x = 0; x < game.pMetrics->size; ++x) {
        for (int y = x % 2; y < game.pMetrics->size; y += 2) {
            if (game.pCanvas->isMarked(x, y) == mark)
                squares << LegalMove::XYtoString({x, y});
        }
    }
    return squares.join(' ').toStdString();
}

std::string GameTest::shown() const {
    const QImage image = game.pView->viewport()->grab().toImage();
    const boardMetrics &m = *game.pMetrics;
    std::string text = game.pBoard->whiteToMove ? "w\n" : "b\n";
    for (int y = m.size - 1; y >= 0; --y, text += '\n') {
        for (int x = 0; x < m.size; ++x) {
            const QPoint corner(m.BxToScr(x), m.ByToScr(y));
            const int half = m.SquareWidthB() / 2;
            const QRgb centre = image.pixel(corner + QPoint(half, half));
            const QRgb body = image.pixel(corner + QPoint(half, half / 2));
            const bool white = body == qRgb(255, 255, 255);
            const bool king = centre == qRgb(255, 0, 0);
            if (centre == qRgb(0, 255, 0))
                text += 'x';
            else
                text += !white && body != qRgb(0, 0, 0) ? '.' : (white ? "wW" : "bB")[king];
        }
    }
    return text;
}

QColor GameTest::squareColour(int x, int y) const {
    const QPoint inside(game.pMetrics->BxToScr(x) + 1, game.pMetrics->ByToScr(y) + 1);
    return game.pView->viewport()->grab().toImage().pixelColor(inside);
}

void GameTest::expectAgreement() const {
    const board &b = *game.pBoard;
    for (int x = 0; x < maxBoardSize; ++x) {
        for (int y = 0; y < maxBoardSize; ++y) {
            const DrCanvasPiece *piece = game.pieces[x][y];
            const int code = b.squares[x][y] & codePiece;
            ASSERT_EQ(piece != nullptr ? piece->getType() & codePiece : 0, code) << x << ',' << y;
        }
    }
    const std::string expected = picture(b);
    std::string seen = shown();
    for (std::size_t i = 0; i < seen.size(); ++i) {
        if (game.flying() && seen[i] == 'x') // the next move takes it
            seen[i] = expected[i];
    }
    EXPECT_EQ(seen, expected);
    int white = 0, black = 0;
    b.countPieces(white, black);
    EXPECT_EQ(game.labelScore->text().toStdString(),
              std::to_string(white) + '/' + std::to_string(black));
    EXPECT_EQ(b.size, XY::B_SIZE);
    EXPECT_EQ(b.size, game.pEngine->size);
}
