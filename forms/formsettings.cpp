#include "forms/formsettings.h"

#include <QCheckBox>
#include <QComboBox>

formsettings::formsettings(QWidget *parent, const char *name, bool modal)
    : fsettings(parent, name, modal) {
    setDefaults();
    connect(cmbRules, &QComboBox::activated, this, &formsettings::setRules);
    connect(cmbSize, &QComboBox::activated, this, &formsettings::setBSize);
    connect(cmbLevel, &QComboBox::activated, this, &formsettings::setLevel);
    connect(chGiveAway, &QCheckBox::stateChanged, this, &formsettings::setGiveAway);
}

void formsettings::setDefaults() {
    showDefaults();
    rulesIndex = cmbRules->currentIndex();
    sizeIndex = cmbSize->currentIndex();
    levelIndex = cmbLevel->currentIndex();
    giveAway = chGiveAway->checkState() != Qt::Unchecked;
}

void formsettings::setRules(int i) {
    rulesIndex = i;
}

void formsettings::setBSize(int i) {
    sizeIndex = i;
}

void formsettings::setLevel(int i) {
    levelIndex = i;
}

void formsettings::setGiveAway(int state) {
    if (state == Qt::Unchecked)
        giveAway = false;
    else if (state == Qt::Checked)
        giveAway = true;
}
