#include "tools/monkey/boardinspector.h"

#include "tools/monkey/inspector.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/drcanvaspiece.h"
#include "view/mycanvasview.h"

#include <QImage>

#include <algorithm>
#include <set>

namespace {

QString at(const char *what, int x, int y) {
    return QString("%1 at (%2,%3)").arg(what).arg(x).arg(y);
}

bool isMover(const GameModel &model, int x, int y) {
    return model.flight.has_value() && model.flight->from() == XY(x, y);
}

// A piece at rest: where and what it is.
QString checkResting(const OpenGame &game, const DrCanvasPiece &piece, int x, int y) {
    const boardMetrics &m = *game.pMetrics;
    if (piece.isDancing() || piece.z() != 1)
        return at("a piece flies that does not move", x, y);
    if (piece.boardX() != x || piece.boardY() != y)
        return at("a sprite belongs to another square", x, y);
    const QRect place(x * m.SquareWidthB(), (m.size - 1 - y) * m.SquareHeightB(), m.SquareWidthB(),
                      m.SquareHeightB());
    return piece.boundingRect() == place ? QString() : at("a sprite is out of place", x, y);
}

QString checkFlying(const DrCanvasPiece &piece, const Move &move) {
    const XY target(piece.boardX(), piece.boardY());
    const bool onPath =
        std::find(move.path.begin() + 1, move.path.end(), target) != move.path.end();
    if (!piece.isDancing() || !onPath)
        return at("the piece that moves does not fly along its path", target.x, target.y);
    return {};
}

QString checkSprite(const OpenGame &game, const GameModel &model, int x, int y) {
    const DrCanvasPiece *piece = game.pieces[x][y];
    const int code = game.pBoard->squares[x][y];
    if ((piece != nullptr) != (code != 0))
        return at(piece != nullptr ? "a sprite without a piece" : "a piece without a sprite", x, y);
    if (piece == nullptr)
        return {};
    constexpr int drawn = codePiece | codeTaken;
    if ((piece->getType() & drawn) != (code & drawn))
        return at("a sprite shows another piece", x, y);
    if (!piece->visible())
        return at("a piece is hidden", x, y);
    return isMover(model, x, y) ? checkFlying(*piece, *model.flight)
                                : checkResting(game, *piece, x, y);
}

std::set<std::pair<int, int>> asSet(const std::vector<XY> &squares) {
    std::set<std::pair<int, int>> set;
    for (const XY &square : squares)
        set.insert({square.x, square.y});
    return set;
}

std::set<std::pair<int, int>> marked(const OpenGame &game, MarkType mark) {
    std::set<std::pair<int, int>> found;
    for (int x = 0; x < maxBoardSize; ++x) {
        for (int y = 0; y < maxBoardSize; ++y) {
            if (game.pCanvas->isMarked(x, y) == mark)
                found.insert({x, y});
        }
    }
    return found;
}

bool isPart(const std::set<std::pair<int, int>> &part, const std::set<std::pair<int, int>> &whole) {
    return std::includes(whole.begin(), whole.end(), part.begin(), part.end());
}

} // namespace

QString checkSprites(OpenGame &game, const GameModel &model) {
    std::set<const DrCanvasPiece *> known;
    for (int x = 0; x < maxBoardSize; ++x) {
        for (int y = 0; y < maxBoardSize; ++y) {
            const QString fault = checkSprite(game, model, x, y);
            if (!fault.isEmpty())
                return fault;
            if (game.pieces[x][y] != nullptr && !known.insert(game.pieces[x][y]).second)
                return at("a sprite stands on two squares", x, y);
        }
    }
    for (const DrCanvasPiece *piece : game.trash) {
        if (piece->visible() || piece->isDancing())
            return "a sprite of the pool is to be seen";
        if (!known.insert(piece).second)
            return "a sprite is on the board and in the pool, or in the pool twice";
    }
    const int squares = model.squares();
    const int men = squares * (squares / 2 - 1);
    if (known.size() != static_cast<std::size_t>(men))
        return QString("there are %1 sprites, not %2").arg(known.size()).arg(men);
    return {};
}

// In a flight the path is marked as far as the piece has come.
QString checkMarks(OpenGame &game, const GameModel &model) {
    if (marked(game, MarkNext) != asSet(model.nextMarks))
        return "other squares are offered than may be tapped";
    const auto path = marked(game, MarkPath);
    if (!model.flight.has_value())
        return path == asSet(model.pathMarks) ? QString() : "the last move is not the marked one";
    const Move &move = *model.flight;
    const bool fits = isPart(path, asSet(move.path)) && path.count({move.from().x, move.from().y});
    return fits ? QString() : "the marks are not those of the flight";
}

// The upper part of each disc, and the free squares' lower left corner, clear of a flying piece.
QString inspectPixels(const OpenGame &game, const GameModel &model) {
    if (model.flight.has_value())
        return {};
    const QImage image = game.pView->viewport()->grab().toImage();
    const boardMetrics &m = *game.pMetrics;
    for (int x = 0; x < m.size; ++x) {
        for (int y = x % 2; y < m.size; y += 2) {
            const QPoint corner(x * m.SquareWidthB(), (m.size - 1 - y) * m.SquareHeightB());
            const QRgb body =
                image.pixel(corner + QPoint(m.SquareWidthB() / 2, m.SquareHeightB() / 4));
            const int code = model.position.squares[x][y];
            const bool white = body == qRgb(255, 255, 255);
            const bool black = body == qRgb(0, 0, 0);
            if (white != ((code & codeWhite) != 0) || black != ((code & codeBlack) != 0))
                return at("the picture shows something else", x, y);
        }
    }
    return {};
}
