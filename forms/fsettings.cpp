#include "forms/fsettings.h"

#include "forms/chooser.h"
#include "forms/formfonts.h"
#include "rules/boardsizes.h"
#include "rules/ruleset.h"
#include "search/levels.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int formMargin = 11;
constexpr int formSpacing = 6;
constexpr int labelPoints = 9;

QStringList namesOf(const auto &rows) {
    QStringList names;
    for (const auto &row : rows)
        names << fsettings::tr(row.name);
    return names;
}

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
    showDefaults();

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

QComboBox *fsettings::addCombo(const char *name, const QLabel *label, const QStringList &items,
                               const QString &toolTip) {
    auto *combo = new Chooser(label->text(), this);
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
    row->addWidget(combo, 1);
    return row;
}

void fsettings::addRulesAndSize() {
    TextLabel1_2 = addLabel("TextLabel1_2", tr("Rules"));
    cmbRules = addCombo("cmbRules", TextLabel1_2, namesOf(ruleRows), tr("game rules"));
    rulesLayout = addRow(TextLabel1_2, cmbRules);

    TextLabel1_2_2 = addLabel("TextLabel1_2_2", tr("Board Size"));
    cmbSize = addCombo("cmbSize", TextLabel1_2_2, namesOf(boardSizes), tr("board size"));
    sizeLayout = addRow(TextLabel1_2_2, cmbSize);
}

void fsettings::addLevelAndPlayers() {
    TextLabel1 = addLabel("TextLabel1", tr("level"));
    cmbLevel = addCombo("cmbLevel", TextLabel1, namesOf(levels), tr("thinking level"));
    levelLayout = addRow(TextLabel1, cmbLevel);

    TextLabelP = addLabel("TextLabelP", tr("Players"));
    cmbPlayers =
        addCombo("cmbPlayers", TextLabelP,
                 {tr("Human-Computer"), tr("Human-Human"), tr("Computer-Computer")}, QString());
    playersLayout = addRow(TextLabelP, cmbPlayers);
}

void fsettings::showDefaults() {
    cmbPlayers->setCurrentIndex(humanComputer);
    cmbRules->setCurrentIndex(static_cast<int>(defaultRules));
    cmbSize->setCurrentIndex(defaultSizeItem);
    cmbLevel->setCurrentIndex(defaultLevelItem);
    chGiveAway->setChecked(false);
}

void fsettings::setFonts() {
    for (QLabel *label : {TextLabel1_2, TextLabel1_2_2, TextLabel1, TextLabelP})
        formfonts::setPointSize(label, labelPoints);
    for (QComboBox *combo : {cmbRules, cmbSize, cmbLevel})
        formfonts::setPointSize(combo, labelPoints);
    alignChoosers();
}

// The rows are layouts of their own: their combo boxes begin in one place and are of one width when
// the labels are.
void fsettings::alignChoosers() {
    const std::initializer_list<QLabel *> labels = {TextLabel1_2, TextLabel1_2_2, TextLabel1,
                                                    TextLabelP};
    int widest = 0;
    for (const QLabel *label : labels)
        widest = qMax(widest, label->sizeHint().width());
    for (QLabel *label : labels)
        label->setMinimumWidth(widest);
}
