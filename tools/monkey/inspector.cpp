#include "tools/monkey/inspector.h"

#include "app/gamehist.h"
#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "search/abstractengine.h"
#include "search/thinkstatistic.h"
#include "tools/monkey/boardinspector.h"
#include "view/boardmetrics.h"
#include "view/mycanvasview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

namespace {

using Check = QString (*)(OpenGame &, const GameModel &);

QString checkPosition(OpenGame &game, const GameModel &model) {
    if (!samePosition(*game.pBoard, model.shownPosition()))
        return "the position is\n" + drawing(*game.pBoard);
    if (game.pBoard->plyCount != model.position.plyCount)
        return "the ply counter is " + QString::number(game.pBoard->plyCount);
    if (XY::B_SIZE != model.squares() || game.pMetrics->size != model.squares())
        return "the board's sizes differ";
    return {};
}

QString checkCursor(OpenGame &game, const GameModel &model) {
    gameHist &history = *game.pHist;
    if (history.canPrev() != (model.cursor > 0) ||
        history.canFwd() != (model.cursor + 1 < model.history.size()))
        return "the history's cursor is elsewhere";
    if (!samePosition(*history.getBoard(), model.history[model.cursor]))
        return "the history's current position is\n" + drawing(*history.getBoard());
    return {};
}

QString checkPlayers(OpenGame &game, const GameModel &model) {
    if ((game.whiteComputer == 1) != model.whiteComputer ||
        (game.blackComputer == 1) != model.blackComputer) {
        return QString("the computer plays white %1, black %2")
            .arg(game.whiteComputer)
            .arg(game.blackComputer);
    }
    return {};
}

QString checkState(OpenGame &game, const GameModel &model) {
    if (game.thinking() != (model.phase == Phase::Thinking))
        return game.thinking() ? "a search runs" : "no search runs";
    if (game.flying() != (model.phase == Phase::Flying))
        return game.flying() ? "a piece flies" : "no piece flies";
    if ((game.pMove != nullptr) != game.flying())
        return "there is a move being played, and no flight, or the other way round";
    return {};
}

// What the settings are applied to. Items: Easy 1, Easy 2, then times in seconds.
QString checkRequest(OpenGame &game, const GameModel &model) {
    constexpr struct {
        int plies, seconds, noise;
    } levels[] = {{1, -1, 1000}, {2, -1, 400}, {-1, 2, 5},  {-1, 5, 5},
                  {-1, 10, 5},   {-1, 20, 5},  {-1, 60, 5}, {-1, 99999999, 5}};
    constexpr const char *engines[] = {"IntEngine", "AmEngine", "PolEngine"};
    const auto &level = levels[model.choices.level];
    const thinkStatistic &statistic = *game.pStat;
    if (statistic.reqDepth != level.plies || statistic.reqTime != level.seconds ||
        statistic.scoreNoise != level.noise)
        return "the level is not the chosen one";
    if (statistic.giveAway != model.choices.giveAway)
        return "giving away is not as chosen";
    if (game.pEngine->className() != QLatin1String(engines[model.choices.rules]))
        return QString("the rules are those of ") + game.pEngine->className();
    return {};
}

QString checkButtons(OpenGame &game, const GameModel &model) {
    for (const Button button : allButtons) {
        const QPushButton *widget = widgetOf(game, button);
        const bool pressable = widget->isVisibleTo(&game) && widget->isEnabled();
        if (pressable != model.pressable(button)) {
            return widget->objectName() +
                   (pressable ? " can be pressed" : " is hidden or disabled");
        }
    }
    if (game.btnAbout->isVisibleTo(&game) == model.breakShown())
        return "About and BREAK are not one at a time";
    return {};
}

// In the box the label still says what was before.
QString checkTexts(OpenGame &game, const GameModel &model) {
    const bool settled = model.open != Box::GameOver;
    if (settled && game.lblThinking->isVisibleTo(&game) != model.statusShown)
        return model.statusShown ? "the status is hidden" : "the status shows";
    if (settled && model.statusShown && game.lblThinking->text() != model.status)
        return "the status says " + game.lblThinking->text();
    int white = 0;
    int black = 0;
    model.position.countPieces(white, black);
    if (game.labelScore->text() != QString("%1/%2").arg(white).arg(black))
        return "the counts are " + game.labelScore->text();
    const bool forbidden = game.pView->cursor().shape() == Qt::ForbiddenCursor;
    if (forbidden != (model.phase == Phase::Thinking))
        return "the board's pointer is the wrong one";
    return {};
}

QString checkDialogs(OpenGame &game, const GameModel &model) {
    const formsettings &dialog = *game.pSettings;
    if (dialog.isVisible() != (model.dialog == OpenDialog::Settings))
        return dialog.isVisible() ? "the settings are open" : "the settings are closed";
    if (game.pAbout->isVisible() != (model.dialog == OpenDialog::About))
        return game.pAbout->isVisible() ? "About is open" : "About is closed";
    if (model.due.has_value())
        return "a box is missing";
    const Choices shown = shownChoices(game);
    const bool kept = dialog.rulesIndex == shown.rules && dialog.sizeIndex == shown.size &&
                      dialog.levelIndex == shown.level && dialog.giveAway == shown.giveAway;
    if (!kept)
        return "the settings keep something else than they show";
    if (!dialog.isVisible() && shown != model.choices)
        return "the settings are not the chosen ones";
    return {};
}

QString checkLayout(OpenGame &game, const GameModel &) {
    if (game.height() < 310 || game.height() > 320 || game.width() != 240)
        return QString("the window is %1 x %2").arg(game.width()).arg(game.height());
    const QWidget &view = *game.pView;
    if (view.y() != 0 || view.x() != (game.width() - view.width()) / 2)
        return "the board is not in the middle of the window's upper edge";
    for (const Button button : allButtons) {
        const int points = button == Button::Fwd ? 9 : 8;
        if (widgetOf(game, button)->font().pointSize() != points)
            return widgetOf(game, button)->objectName() + " has lost its font";
    }
    return game.lblThinking->font().bold() ? QString() : "the status has lost its font";
}

} // namespace

QPushButton *widgetOf(const OpenGame &game, Button button) {
    QPushButton *const widgets[] = {game.btnPrev,  game.btnFwd,      game.btnAbout,  game.btnBreak,
                                    game.btnForce, game.btnSettings, game.btnNewGame};
    return widgets[static_cast<int>(button)];
}

Choices shownChoices(const OpenGame &game) {
    const formsettings &dialog = *game.pSettings;
    return {dialog.cmbRules->currentIndex(), dialog.cmbSize->currentIndex(),
            dialog.cmbLevel->currentIndex(), dialog.cmbPlayers->currentIndex(),
            dialog.chGiveAway->isChecked()};
}

// A window that was closed only has to leave the position alone.
QString inspect(OpenGame &game, const GameModel &model) {
    if (!model.fault.isEmpty())
        return model.fault;
    if (game.closed() != (model.phase == Phase::Closed))
        return game.closed() ? "the window was closed" : "the window was not closed";
    if (game.closed())
        return samePosition(*game.pBoard, model.shownPosition()) ? QString()
                                                                 : "the closed game goes on";
    constexpr Check checks[] = {checkState,   checkPosition, checkCursor, checkPlayers,
                                checkRequest, checkButtons,  checkTexts,  checkDialogs,
                                checkLayout,  checkSprites,  checkMarks};
    for (const Check check : checks) {
        const QString fault = check(game, model);
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}

QString inspectHistory(OpenGame &game, const GameModel &model) {
    gameHist &history = *game.pHist;
    std::size_t at = model.cursor;
    while (history.prev())
        --at;
    bool same = at == 0;
    do
        same = same && at < model.history.size() &&
               samePosition(*history.getBoard(), model.history[at]);
    while (++at, history.next());
    same = same && at == model.history.size();
    for (std::size_t back = model.cursor + 1; back < model.history.size(); ++back)
        history.prev();
    return same ? QString() : "the history holds other positions";
}
