#include "tests/monkey/snapshot.h"

#include "app/gamehist.h"
#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "search/abstractengine.h"
#include "tests/rig/windowtext.h"
#include "tests/support/drawnboard.h"
#include "tests/support/recordinghost.h"
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
    const int side = m.SquareWidthB();
    const QRect place(x * side, (m.size - 1 - y) * side, side, side);
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

std::string historyText(gameHist &history) {
    std::ostringstream text;
    text << std::hex << history.getBoard()->HKey() << (history.canPrev() ? " back" : "")
         << (history.canFwd() ? " forward" : "");
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

std::string difference(const Snapshot &model, const Snapshot &window) {
    std::string text;
    for (std::size_t i = 0; i < model.size() && i < window.size(); ++i) {
        const auto &[heading, expected] = model[i];
        const auto &[headingSeen, seen] = window[i];
        if (model[i] != window[i])
            text.append(heading + " must be " + expected + "\nbut " + headingSeen + " is " + seen +
                        "\n");
    }
    return text;
}

Snapshot snapshotOf(OpenGame &game, bool thorough) {
    const board &b = *game.pBoard;
    if (game.isClosed())
        return {{"phase", "closed"}, {"position", picture(b)}};
    const std::string dialogs = openText(game);
    const std::set<int> sizes = {b.size, XY::B_SIZE, game.pMetrics->size, game.pEngine->size};
    Snapshot all = {
        {"phase", phaseText(game)},
        {"ply", std::to_string(b.plyCount)},
        {"squares", sizes.size() == 1 ? std::to_string(b.size) : "not agreed on"},
        {"position", picture(b)},
        {"sprites", drawing(b.size, [&game](int x, int y) { return spriteLetter(game, x, y); })},
        {"sprites in the pool", poolText(game)},
        {"next squares", markedText(game, MarkNext)},
        {"path", markedText(game, MarkPath)},
        {"computer plays", computersText(game.whiteComputer != 0, game.blackComputer != 0)},
        {"history", historyText(*game.pHist)},
        {"request", requestText(game)},
        {"controls", controlsText(game)},
        {"pointer", game.pView->cursor().shape() == Qt::ForbiddenCursor ? "forbidden" : "arrow"},
        {"open", dialogs},
        {"settings", dialogs == "settings\n" ? dialogs : settingsText(game)},
    };
    if (thorough && !game.flies())
        all.emplace_back("pixels", pixelsText(game));
    return all;
}
