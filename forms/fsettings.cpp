#include "forms/fsettings.h"

#include "forms/formfonts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int formMargin = 11;
constexpr int formSpacing = 6;
constexpr int labelPoints = 9;

// The items that the dialog shows as built.
constexpr int internationalRules = 0;
constexpr int tenSquares = 2;
constexpr int fiveSeconds = 3;
constexpr int humanAgainstComputer = 0;

} // namespace

fsettings::fsettings(QWidget *parent, const char *name, bool modal, WFlags fl)
    : QDialog(parent, fl) {
    setObjectName(QString::fromUtf8(name != nullptr ? name : "fsettings"));
    setModal(modal);
    resize(209, 170);
    setMaximumSize(240, 300);
    setWindowTitle(tr("settings"));
    formLayout = new QVBoxLayout(this);
    formLayout->setContentsMargins(formMargin, formMargin, formMargin, formMargin);
    formLayout->setSpacing(formSpacing);

    addRulesAndSize();
    addLevelAndPlayers();
    chGiveAway = new QCheckBox(tr("Give Away"), this);
    chGiveAway->setObjectName(QStringLiteral("chGiveAway"));
    formLayout->addWidget(chGiveAway);

    // The dialog is worked with the pen.
    for (QWidget *chooser : {static_cast<QWidget *>(cmbRules), static_cast<QWidget *>(cmbSize),
                             static_cast<QWidget *>(cmbLevel), static_cast<QWidget *>(chGiveAway)})
        chooser->setFocusPolicy(Qt::NoFocus);
    setFonts();
}

fsettings::~fsettings() = default;

bool fsettings::event(QEvent *e) {
    const bool handled = QDialog::event(e);
    if (e->type() == QEvent::ApplicationFontChange)
        setFonts();
    return handled;
}

QLabel *fsettings::addLabel(const char *name, const QString &text) {
    auto *label = new QLabel(text, this);
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

QComboBox *fsettings::addCombo(const char *name, const QStringList &items, const QString &toolTip) {
    auto *combo = new QComboBox(this);
    combo->setObjectName(QString::fromLatin1(name));
    combo->setEditable(false);
    combo->addItems(items);
    combo->setToolTip(toolTip);
    return combo;
}

QHBoxLayout *fsettings::addRow(QLabel *label, QComboBox *combo) {
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(formSpacing);
    formLayout->addLayout(row);
    row->addWidget(label);
    row->addWidget(combo);
    label->setBuddy(combo);
    return row;
}

void fsettings::addRulesAndSize() {
    TextLabel1_2 = addLabel("TextLabel1_2", tr("Rules"));
    cmbRules = addCombo("cmbRules", {tr("International"), tr("American"), tr("Polish Traditional")},
                        tr("game rules"));
    cmbRules->setCurrentIndex(internationalRules);
    rulesLayout = addRow(TextLabel1_2, cmbRules);

    TextLabel1_2_2 = addLabel("TextLabel1_2_2", tr("Board Size"));
    cmbSize = addCombo(
        "cmbSize",
        {tr("6 for fun"), tr("8 checkers,brazylian"), tr("10 international"), tr("12 canadian")},
        tr("board size"));
    cmbSize->setCurrentIndex(tenSquares);
    sizeLayout = addRow(TextLabel1_2_2, cmbSize);
}

void fsettings::addLevelAndPlayers() {
    TextLabel1 = addLabel("TextLabel1", tr("level"));
    cmbLevel =
        addCombo("cmbLevel",
                 {tr("Easy 1"), tr("Easy 2"), tr("2 sec/move"), tr("5 sec/move"), tr("10 sec/move"),
                  tr("20 sec/move"), tr("1 min/move"), tr("infinite (until break)")},
                 tr("thinking level"));
    cmbLevel->setCurrentIndex(fiveSeconds);
    levelLayout = addRow(TextLabel1, cmbLevel);

    TextLabelP = addLabel("TextLabelP", tr("Players"));
    cmbPlayers =
        addCombo("cmbPlayers", {tr("Human-Computer"), tr("Human-Human"), tr("Computer-Computer")},
                 QString());
    cmbPlayers->setCurrentIndex(humanAgainstComputer);
    playersLayout = addRow(TextLabelP, cmbPlayers);
}

void fsettings::setFonts() {
    for (QLabel *label : {TextLabel1_2, TextLabel1_2_2, TextLabel1, TextLabelP})
        formfonts::setPointSize(label, labelPoints);
    for (QComboBox *combo : {cmbRules, cmbSize, cmbLevel})
        formfonts::setPointSize(combo, labelPoints);
}
