// Draughts: the settings and the dialog for them.

#include "app/draughts.h"

#include "app/gamehist.h"
#include "base/host.h"
#include "forms/formsettings.h"
#include "rules/board.h"
#include "rules/boardsizes.h"
#include "rules/ruleset.h"
#include "search/abstractengine.h"
#include "search/levels.h"
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

template <class Row, std::size_t count>
bool isItem(const Row (&)[count], int index) {
    return index >= 0 && index < static_cast<int>(count);
}

void reportUnknown(const char *title, const char *text) {
    host().messageBox(BoxKind::Critical, QString::fromLatin1(title), QString::fromLatin1(text));
}

} // namespace

void Draughts::setRules(int index) {
    if (isBusy())
        return;
    if (!isItem(ruleRows, index))
        reportUnknown("Draughts::setRules", "unknown rules, using international");
    const RuleSet rules = isItem(ruleRows, index) ? RuleSet{index} : defaultRules;
    adoptEngine(newEngine(rules, pBoard.get(), 1, pStat.get(), pMetrics->size));
    pEngine->FillMoveList();
}

// The metrics keep their pixels: the squares of the new board share those of the old one.
void Draughts::setBSize(int index) {
    if (isBusy())
        return;
    if (!isItem(boardSizes, index))
        reportUnknown("Draughts::setRules", "unknown size, using international");
    const int squares = isItem(boardSizes, index) ? boardSizes[index].squares : defaultSquares;
    pMetrics->size = squares;
    XY::B_SIZE = squares;
    pBoard->startPos(squares);
    adoptEngine(
        std::unique_ptr<AbstractEngine>(pEngine->selfClone(pBoard.get(), 1, pStat.get(), squares)));
    const bool focused = focusWidget() == pView;
    delete pView;
    pCanvas.reset();
    trash.clear();
    createBoard();
    if (focused)
        pView->setFocus();
    pHist->clear();
    newGame();
}

void Draughts::setLevel(int index) {
    Level level = levels[defaultLevelItem];
    if (isItem(levels, index)) {
        level = levels[index];
    } else {
        reportUnknown("Draughts::setLevel", "unknown value, using default");
        pSettings->cmbLevel->setCurrentIndex(defaultLevelItem);
        level.scoreNoise = 1;
    }
    level.request(*pStat);
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
