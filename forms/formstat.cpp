#include "forms/formstat.h"

#include "forms/formfonts.h"

#include <QEvent>
#include <QLabel>

formStat::formStat(QWidget *parent, const char *name, bool modal, WFlags fl) : QDialog(parent, fl) {
    setObjectName(QString::fromUtf8(name != nullptr ? name : "formStat"));
    setModal(modal);
    resize(169, 233);
    setWindowTitle(tr("statistic"));

    TextLabel2 = addLabel("TextLabel2", {10, 10, 39, 16}, tr("Scores"));
    llTime = addLabel("llTime", {10, 40, 35, 16}, tr("time"));
    TextLabel2_2 = addLabel("TextLabel2_2", {11, 116, 45, 16}, tr("Moves"));
    TextLabel2_2_2 = addLabel("TextLabel2_2_2", {10, 145, 55, 16}, tr("MaxLevel"));
    lMaxLevel = addLabel("lMaxLevel", {75, 145, 80, 16}, tr("0"));
    TextLabel2_2_2_2 = addLabel("TextLabel2_2_2_2", {10, 180, 50, 16}, tr("Nodes"));
    lNodes = addLabel("lNodes", {75, 180, 80, 16}, tr("0"));
    lMovesGenerated = addLabel("lMovesGenerated", {74, 116, 80, 16}, tr("0"));
    lTime = addLabel("lTime", {75, 40, 85, 16}, tr("0"));
    lScoresCalculated = addLabel("lScoresCalculated", {70, 10, 85, 16}, tr("0"));
    labelEScore = addLabel("labelEScore", {76, 75, 80, 16}, tr("0"));
    TextLabel1_2_4 = addLabel("TextLabel1_2_4", {10, 70, 45, 16}, tr("Score"));
    setFonts();
}

formStat::~formStat() = default;

bool formStat::event(QEvent *e) {
    const bool handled = QDialog::event(e);
    if (e->type() == QEvent::ApplicationFontChange)
        setFonts();
    return handled;
}

QLabel *formStat::addLabel(const char *name, const QRect &place, const QString &text) {
    auto *label = new QLabel(text, this);
    label->setObjectName(QString::fromLatin1(name));
    label->setGeometry(place);
    return label;
}

void formStat::setFonts() {
    for (QLabel *label : {llTime, lTime, labelEScore, TextLabel1_2_4})
        formfonts::setBold(label);
}
