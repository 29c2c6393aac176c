#include "tests/monkey/snapshot.h"

#include "app/gamehist.h"
#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "search/abstractengine.h"
#include "tests/rig/livehost.h"
#include "tests/rig/windowtext.h"
#include "tests/support/drawnboard.h"
#include "view/boardmetrics.h"
#include "view/drcanvaspiece.h"
#include "view/mycanvasview.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <set>
#include <sstream>

namespace {

std::string phaseText(const OpenGame &game) {
    constexpr const char *names[] = {"handing over", "waiting", "thinking", "broken off",
                                     "chosen",       "flying",  "over",     "closed"};
    std::string text = names[static_cast<int>(game.phase())];
    if (game.pMove == nullptr)
        return text;
    const XY from = game.pMove->from();
    const DrCanvasPiece &piece = *game.pieces[from.x][from.y];
    text.append(" ").append(moveText(*game.pMove)).append(" to ");
    return text.append(inOrder({{piece.boardX(), piece.boardY()}}));
}

// A piece at rest by its kind, one in flight as '*', one that is not where or as it must be as '?'.
char spriteLetter(const OpenGame &game, int x, int y) {
    const DrCanvasPiece *piece = game.pieces[x][y];
    if (piece == nullptr)
        return '.';
    const boardMetrics &m = *game.pMetrics;
    const QRect place(x * m.SquareWidthB(), (m.size - 1 - y) * m.SquareHeightB(), m.SquareWidthB(),
                      m.SquareHeightB());
    if (!piece->visible() || piece->z() != (piece->isDancing() ? 2 : 1))
        return '?';
    if (piece->isDancing())
        return '*';
    const bool inPlace =
        piece->boardX() == x && piece->boardY() == y && piece->boundingRect() == place;
    return inPlace ? letterOf(piece->getType()) : '?';
}

// None may be lost, in two places, or to be seen while it waits.
std::string poolText(const OpenGame &game) {
    std::set<const DrCanvasPiece *> all(game.trash.begin(), game.trash.end());
    for (const auto &column : game.pieces)
        all.insert(std::begin(column), std::end(column));
    all.erase(nullptr);
    const auto hidden = std::ranges::count_if(game.trash, [](const DrCanvasPiece *piece) {
        return !piece->visible() && !piece->isDancing();
    });
    return std::to_string(hidden) + " hidden of " + std::to_string(all.size());
}

std::string historyText(gameHist &history, bool thorough) {
    std::ostringstream text;
    text << std::hex << history.getBoard()->HKey() << (history.canPrev() ? " back" : "")
         << (history.canFwd() ? " forward" : "");
    if (!thorough)
        return text.str();
    int back = 0;
    while (history.prev())
        ++back;
    int last = 0;
    for (text << ' ' << history.getBoard()->HKey(); history.next(); ++last)
        text << ' ' << history.getBoard()->HKey();
    while (last-- > back)
        history.prev();
    return text.str();
}

std::string openText(const OpenGame &game) {
    std::string text;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const auto *box = qobject_cast<const QMessageBox *>(window);
        if (box == nullptr || !box->isVisible())
            continue;
        const bool warning = box->icon() == QMessageBox::Warning;
        const bool oneButton = box->standardButtons() == QMessageBox::Ok;
        text +=
            boxText(warning ? BoxKind::Warning : BoxKind::Critical, box->windowTitle(), box->text(),
                    oneButton ? BoxButtons::Ok : BoxButtons::OkCancel, box->parentWidget());
    }
    text += game.pSettings->isVisible() ? "settings\n" : "";
    return text + (game.pAbout->isVisible() ? "about\n" : "");
}

std::string settingsLine(const OpenGame &game) {
    const std::string text = settingsText(game);
    const bool choosing = game.pSettings->isVisible() && text.find("kept") == std::string::npos;
    return choosing ? "being chosen" : text;
}

std::string layoutText(const OpenGame &game) {
    std::ostringstream text;
    for (const QPushButton *button : {game.btnPrev, game.btnFwd, game.btnAbout, game.btnBreak,
                                      game.btnForce, game.btnSettings, game.btnNewGame})
        text << button->font().pointSize() << ' ';
    const QWidget &view = *game.pView;
    text << "points" << (game.lblThinking->font().bold() ? ", bold" : "") << ", board at "
         << view.x() - (game.width() - view.width()) / 2 << ',' << view.y();
    return text.str();
}

std::vector<std::string> linesOf(const Snapshot &snapshot) {
    std::vector<std::string> lines;
    for (const auto &[heading, value] : snapshot) {
        std::istringstream stream(value);
        for (std::string line; std::getline(stream, line);)
            lines.push_back(heading + ": " + line);
    }
    return lines;
}

} // namespace

std::string inOrder(std::vector<XY> squares) {
    const auto key = [](const XY &square) { return square.x * maxBoardSize + square.y; };
    std::ranges::sort(squares, {}, key);
    QStringList texts;
    for (const XY &square : squares)
        texts << LegalMove::XYtoString(square);
    texts.removeDuplicates();
    return texts.join(' ').toStdString();
}

std::string textOf(const Snapshot &snapshot) {
    std::string text;
    for (const std::string &line : linesOf(snapshot))
        text += line + "\n";
    return text;
}

std::string difference(const Snapshot &model, const Snapshot &window) {
    std::vector<std::string> expected = linesOf(model);
    std::vector<std::string> seen = linesOf(window);
    expected.resize(std::max(expected.size(), seen.size()));
    seen.resize(expected.size());
    std::string text;
    for (std::size_t i = 0; i < seen.size(); ++i) {
        if (seen[i] != expected[i])
            text += "must be " + expected[i] + "\nbut is  " + seen[i] + "\n";
    }
    return text;
}

Snapshot snapshotOf(OpenGame &game, bool thorough) {
    const board &b = *game.pBoard;
    const std::string rows =
        drawing(b.size, [&b](int x, int y) { return letterOf(b.squares[x][y]); });
    if (game.isClosed())
        return {{"phase", "closed"}, {"position", rows}};
    const std::set<int> sizes = {b.size, XY::B_SIZE, game.pMetrics->size, game.pEngine->size};
    Snapshot all = {
        {"phase", phaseText(game)},
        {"side to move", b.whiteToMove ? "white" : "black"},
        {"ply", std::to_string(b.plyCount)},
        {"squares", sizes.size() == 1 ? std::to_string(b.size) : "not agreed on"},
        {"position", rows},
        {"sprites", drawing(b.size, [&game](int x, int y) { return spriteLetter(game, x, y); })},
        {"sprites in the pool", poolText(game)},
        {"next squares", markedText(game, MarkNext)},
        {"path", markedText(game, MarkPath)},
        {"computer plays white", std::to_string(game.whiteComputer)},
        {"computer plays black", std::to_string(game.blackComputer)},
        {"history", historyText(*game.pHist, thorough)},
        {"request", requestText(game)},
        {"controls", controlsText(game)},
        {"pointer", game.pView->cursor().shape() == Qt::ForbiddenCursor ? "forbidden" : "arrow"},
        {"open", openText(game)},
        {"settings", settingsLine(game)},
        {"layout", layoutText(game)},
    };
    if (thorough && !game.flies())
        all.emplace_back("pixels", pixelsText(game));
    return all;
}
