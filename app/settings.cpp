// Draughts: the settings and the dialog for them.

#include "app/draughts.h"

#include "app/choices.h"
#include "app/gamehist.h"
#include "base/host.h"
#include "forms/formsettings.h"
#include "rules/board.h"
#include "search/abstractengine.h"
#include "search/thinkstatistic.h"
#include "view/boardmetrics.h"
#include "view/drcanvas.h"
#include "view/mycanvasview.h"

#include <QCheckBox>
#include <QComboBox>

namespace {

// What the dialog holds, for comparing and for putting it back.
struct Chosen {
    int level;
    int rules;
    int size;
    int players;
    bool giveAway;
};

Chosen chosenIn(const formsettings &dialog) {
    return {dialog.levelIndex, dialog.rulesIndex, dialog.sizeIndex,
            dialog.cmbPlayers->currentIndex(), dialog.giveAway};
}

void showInWidgets(formsettings &dialog, const Chosen &chosen) {
    dialog.cmbLevel->setCurrentIndex(chosen.level);
    dialog.cmbRules->setCurrentIndex(chosen.rules);
    dialog.cmbSize->setCurrentIndex(chosen.size);
    dialog.chGiveAway->setChecked(chosen.giveAway);
}

void putBack(formsettings &dialog, const Chosen &chosen) {
    showInWidgets(dialog, chosen);
    dialog.cmbPlayers->setCurrentIndex(chosen.players);
    dialog.levelIndex = chosen.level;
    dialog.rulesIndex = chosen.rules;
    dialog.sizeIndex = chosen.size;
    dialog.giveAway = chosen.giveAway;
}

void reportUnknown(const char *title, const char *text) {
    host().messageBox(BoxKind::Critical, QString::fromLatin1(title), QString::fromLatin1(text));
}

} // namespace

void Draughts::setRules(int index) {
    if (isBusy())
        return;
    pEngine.reset();
    const std::optional<RuleSet> rules = rulesChoice(index);
    if (!rules.has_value())
        reportUnknown("Draughts::setRules", "unknown rules, using international");
    adoptEngine(
        newEngine(rules.value_or(fallbackRules), pBoard.get(), 1, pStat.get(), pMetrics->size));
    pEngine->FillMoveList();
}

// The metrics keep their pixels: the squares of the new board share those of the old one.
void Draughts::setBSize(int index) {
    if (isBusy())
        return;
    const std::optional<int> choice = squaresChoice(index);
    if (!choice.has_value())
        reportUnknown("Draughts::setRules", "unknown size, using international");
    const int squares = choice.value_or(fallbackSquares);
    pMetrics->size = squares;
    XY::B_SIZE = squares;
    pBoard->startPos(squares);
    adoptEngine(pEngine->selfClone(pBoard.get(), 1, pStat.get(), squares));
    delete pView;
    pCanvas.reset();
    trash.clear();
    createBoard();
    pHist->clear();
    newGame();
}

void Draughts::setLevel(int index) {
    const std::optional<Level> choice = levelChoice(index);
    if (!choice.has_value()) {
        reportUnknown("Draughts::setLevel", "unknown value, using default");
        pSettings->cmbLevel->setCurrentIndex(fiveSecondsItem);
    }
    const Level level = choice.value_or(fallbackLevel);
    if (level.plies > 0)
        pStat->setReqDepth(level.plies);
    else
        pStat->setReqTime(level.seconds);
    pStat->scoreNoise = level.scoreNoise;
}

void Draughts::setGiveAway(bool on) {
    pStat->giveAway = on;
}

// Rules and level are in place before a new size starts its new game. A size that was changed but
// not accepted leaves the game as it was.
void Draughts::showSettings() {
    if (isBusy())
        return;
    const Chosen before = chosenIn(*pSettings);
    showInWidgets(*pSettings, before);
    const bool accepted = pSettings->exec() == QDialog::Accepted;
    const Chosen now = chosenIn(*pSettings);
    if (!accepted)
        putBack(*pSettings, before);
    if (phase_ == Phase::Closed)
        return;
    if (accepted) {
        pStat->giveAway = now.giveAway;
        if (now.level != before.level)
            setLevel(now.level);
        if (now.rules != before.rules)
            setRules(now.rules);
        if (now.size != before.size)
            setBSize(now.size);
        setPlayersByChoice(pSettings->cmbPlayers->currentIndex());
    }
    if (now.size == before.size)
        DoPlayerMove();
}
