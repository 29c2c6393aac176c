#include "tests/rig/windowtext.h"

#include "forms/formsettings.h"
#include "rules/legalmove.h"
#include "search/abstractengine.h"
#include "search/thinkstatistic.h"
#include "tests/support/drawnboard.h"
#include "view/boardmetrics.h"
#include "view/mycanvasview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

std::string controlsText(const OpenGame &game) {
    const QLabel &label = *game.lblThinking;
    const QString state = label.isVisibleTo(&game) ? label.text() : QString();
    QStringList parts = {'[' + state + ']', game.labelScore->text()};
    for (const QPushButton *button : {game.btnPrev, game.btnFwd, game.btnAbout, game.btnBreak,
                                      game.btnForce, game.btnSettings, game.btnNewGame}) {
        if (button->isVisibleTo(&game) && button->isEnabled())
            parts << button->objectName().mid(3);
    }
    return parts.join(' ').toStdString();
}

std::string markedText(const OpenGame &game, MarkType mark) {
    QStringList squares;
    for (int x = 0; x < game.pMetrics->size; ++x) {
        for (int y = 0; y < game.pMetrics->size; ++y) {
            if (game.pCanvas->isMarked(x, y) == mark)
                squares << LegalMove::XYtoString({x, y});
        }
    }
    return squares.join(' ').toStdString();
}

// The body is seen above the middle, a crown or a cross in the middle.
std::string pixelsText(const OpenGame &game) {
    const QImage image = game.pView->viewport()->grab().toImage();
    const boardMetrics &m = *game.pMetrics;
    const int half = m.SquareWidthB() / 2;
    return drawing(m.size, [&](int x, int y) {
        const QPoint corner(m.BxToScr(x), m.ByToScr(y));
        const QRgb centre = image.pixel(corner + QPoint(half, half));
        const QRgb body = image.pixel(corner + QPoint(half, half / 2));
        const bool white = body == qRgb(255, 255, 255);
        if (centre == qRgb(0, 255, 0))
            return 'x';
        if (!white && body != qRgb(0, 0, 0))
            return '.';
        if (centre == qRgb(255, 0, 0))
            return white ? 'W' : 'B';
        return white ? 'w' : 'b';
    });
}

std::string settingsText(const OpenGame &game) {
    const formsettings &dialog = *game.pSettings;
    const auto line = [&dialog](int rules, int size, int level, bool giveAway) {
        const int players = dialog.cmbPlayers->currentIndex();
        return QString("rules %1, size %2, level %3, players %4, give-away %5")
            .arg(rules)
            .arg(size)
            .arg(level)
            .arg(players)
            .arg(giveAway)
            .toStdString();
    };
    const std::string shown = line(dialog.cmbRules->currentIndex(), dialog.cmbSize->currentIndex(),
                                   dialog.cmbLevel->currentIndex(), dialog.chGiveAway->isChecked());
    const std::string kept =
        line(dialog.rulesIndex, dialog.sizeIndex, dialog.levelIndex, dialog.giveAway);
    return kept == shown ? shown : shown + "; kept: " + kept;
}

std::string requestText(const OpenGame &game) {
    const thinkStatistic &s = *game.pStat;
    return QString("%1, %2, noise %3%4")
        .arg(game.pEngine->className())
        .arg(s.reqDepth > 0 ? QString("depth %1").arg(s.reqDepth) : QString("%1 s").arg(s.reqTime))
        .arg(s.scoreNoise)
        .arg(s.giveAway ? ", give-away" : "")
        .toStdString();
}
