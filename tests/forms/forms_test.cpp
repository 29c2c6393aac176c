// The forms by themselves: what the player reads on them and what the game relies on.

#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "forms/formstat.h"
#include "forms/mainform.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QTest>

namespace {

// The form, then a line for every widget: its place unless a layout has it, its largest size if it
// has one, its font's points unless they are the application's, its weight, text and tool tip, and
// "pen" where it takes no focus though it can be worked. Of a list the text is all items, the
// current one in brackets; prose is left out.
const char *const mainForm = R"(MainForm 240x320 min 240x310 max 240x320 'tavlora v1.0.3'
btnSettings at 185,235 50x22 max 50x32767 8pt 'Settings'
Layout8 at 0,235 48x24
btnPrev max 20x22 8pt '<<'
btnFwd max 20x22 9pt '>>'
btnAbout at 85,235 40x22 max 40x32767 8pt 'About'
btnBreak at 55,235 40x22 max 40x22 8pt 'BREAK' pen
btnForce at 130,235 60x22 max 60x22 8pt 'Force Move'
btnNewGame at 0,260 60x22 max 60x32767 8pt 'NewGame'
labelScore at 69,261 34x22 ' 12/12' tip 'On Board'
lblThinking at 115,260 115x22 max 150x32767 bold '**** THINKING ****')";

const char *const settingsForm = R"(fsettings 209x170 min 0x0 max 240x300 'settings'
TextLabel1_2 9pt 'Rules'
cmbRules 9pt '[International]|American|Polish Traditional' tip 'game rules' pen
TextLabel1_2_2 9pt 'Board Size'
cmbSize 9pt '6 for fun|8 checkers,brazylian|[10 international]|12 canadian' tip 'board size' pen
TextLabel1 9pt 'level'
cmbLevel 9pt 'Easy 1|Easy 2|2 sec/move|[5 sec/move]|10 sec/move|20 sec/move|1 min/move|infinite (until break)' tip 'thinking level' pen
TextLabelP 9pt 'Players'
cmbPlayers '[Human-Computer]|Human-Human|Computer-Computer'
chGiveAway 'Give Away' pen)";

const char *const figuresForm = R"(formStat 169x233 min 0x0 max any 'statistic'
TextLabel2 at 10,10 39x16 'Scores'
llTime at 10,40 35x16 bold 'time'
TextLabel2_2 at 11,116 45x16 'Moves'
TextLabel2_2_2 at 10,145 55x16 'MaxLevel'
lMaxLevel at 75,145 80x16 '0'
TextLabel2_2_2_2 at 10,180 50x16 'Nodes'
lNodes at 75,180 80x16 '0'
lMovesGenerated at 74,116 80x16 '0'
lTime at 75,40 85x16 bold '0'
lScoresCalculated at 70,10 85x16 '0'
labelEScore at 76,75 80x16 bold '0'
TextLabel1_2_4 at 10,70 45x16 bold 'Score')";

const char *const aboutForm = R"(fabout 220x224 min 220x200 max 220x260 'About'
TextLabel1 bold 'Tavlora v 1.0.3'
PixmapLabel1
TextLabel6 10pt)";

QString inWords(QSize size) {
    return size.width() == QWIDGETSIZE_MAX
               ? QStringLiteral("any")
               : QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString textOf(const QWidget &widget) {
    const auto *label = qobject_cast<const QLabel *>(&widget);
    const auto *combo = qobject_cast<const QComboBox *>(&widget);
    if (label != nullptr && label->wordWrap())
        return {};
    if (combo == nullptr)
        return widget.property("text").toString();
    QStringList items;
    for (int i = 0; i < combo->count(); ++i)
        items << (i == combo->currentIndex() ? '[' + combo->itemText(i) + ']' : combo->itemText(i));
    return items.join('|');
}

QString inWords(const QWidget &widget) {
    QStringList words = {widget.objectName()};
    if (widget.parentWidget()->layout() == nullptr)
        words << QStringLiteral("at %1,%2").arg(widget.x()).arg(widget.y())
              << inWords(widget.size());
    if (inWords(widget.maximumSize()) != "any")
        words << "max" << inWords(widget.maximumSize());
    if (widget.font().pointSize() != QApplication::font().pointSize())
        words << QStringLiteral("%1pt").arg(widget.font().pointSize());
    if (widget.font().bold())
        words << "bold";
    if (!textOf(widget).isEmpty())
        words << '\'' + textOf(widget) + '\'';
    if (!widget.toolTip().isEmpty())
        words << "tip" << '\'' + widget.toolTip() + '\'';
    const bool canBeWorked = widget.inherits("QAbstractButton") || widget.inherits("QComboBox");
    if (canBeWorked && widget.focusPolicy() == Qt::NoFocus)
        words << "pen";
    return words.join(' ');
}

std::string formInWords(const QWidget &form) {
    QStringList lines = {form.objectName() + ' ' + inWords(form.size()) + " min " +
                         inWords(form.minimumSize()) + " max " + inWords(form.maximumSize()) +
                         " '" + form.windowTitle() + '\''};
    for (const QWidget *widget : form.findChildren<QWidget *>()) {
        const bool isPartOfAList = widget->parentWidget()->inherits("QComboBox") ||
                                   widget->window()->inherits("QComboBoxPrivateContainer");
        if (!isPartOfAList)
            lines << inWords(*widget);
    }
    return lines.join('\n').toStdString();
}

// A font of the application's that is none of the forms'.
class LargeFont {
public:
    LargeFont() { setPoints(14); }
    ~LargeFont() { QApplication::setFont(usual_); }
    void setPoints(int points) const { QApplication::setFont(QFont(usual_.family(), points)); }

private:
    const QFont usual_ = QApplication::font();
};

struct Forms : testing::Test {
    LargeFont font;
    MainForm game;
    formsettings settings;
    formStat figures;
    fabout about;

    void expectAllAsTold() const {
        EXPECT_EQ(formInWords(game), mainForm);
        EXPECT_EQ(formInWords(settings), settingsForm);
        EXPECT_EQ(formInWords(figures), figuresForm);
        EXPECT_EQ(formInWords(about), aboutForm);
    }
};

TEST_F(Forms, AreBuiltAsTold) {
    expectAllAsTold();
    EXPECT_EQ(about.TextLabel1->font().family(), "adobe-helvetica");
    EXPECT_EQ(fabout(nullptr, "credits").objectName(), "credits");
}

TEST_F(Forms, TakeTheirFontsAgainWhenTheApplicationsFontChanges) {
    for (const QWidget *form : {static_cast<QWidget *>(&game), static_cast<QWidget *>(&settings),
                                static_cast<QWidget *>(&figures), static_cast<QWidget *>(&about)}) {
        for (QWidget *widget : form->findChildren<QWidget *>()) {
            QFont spoilt; // in what is set, and so in that only
            if (widget->font().pointSize() != QApplication::font().pointSize())
                spoilt.setPointSize(30);
            if (widget->font().bold())
                spoilt.setBold(false);
            widget->setFont(spoilt);
        }
    }
    font.setPoints(20);
    QApplication::processEvents(); // the change is told then
    expectAllAsTold();
}

TEST_F(Forms, ThePictureStaysInTheMiddle) {
    for (const int height : {224, 260}) {
        about.resize(220, height);
        about.show();
        EXPECT_EQ(about.PixmapLabel1->size(), QSize(80, 81));
        EXPECT_EQ(about.PixmapLabel1->x(), (220 - 80) / 2);
    }
}

// The toolkit reports a press again and again while a key is held.
TEST_F(Forms, AHeldEscapePressesBreakOnce) {
    game.show();
    game.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&game));
    int presses = 0;
    QObject::connect(game.btnBreak, &QPushButton::clicked, [&] { ++presses; });
    for (const bool repeated : {false, true, true})
        QTest::simulateEvent(&game, true, Qt::Key_Escape, {}, {}, repeated);
    EXPECT_EQ(presses, 1);
    game.btnBreak->hide();
    QTest::keyClick(&game, Qt::Key_Escape);
    EXPECT_EQ(presses, 1);
}

TEST_F(Forms, SettingsFollowThePlayerAndNotTheProgram) {
    const struct {
        QComboBox *combo;
        const int &field;
        int byDefault;
    } choices[] = {{settings.cmbRules, settings.rulesIndex, 0},
                   {settings.cmbSize, settings.sizeIndex, 2},
                   {settings.cmbLevel, settings.levelIndex, 3}};
    settings.show();
    for (const auto &choice : choices) {
        choice.combo->setCurrentIndex(0);
        EXPECT_EQ(choice.field, choice.byDefault) << choice.combo->objectName().toStdString();
        choice.combo->showPopup();
        QTest::keyClick(choice.combo->view(), Qt::Key_Down);
        QTest::keyClick(choice.combo->view(), Qt::Key_Return);
        EXPECT_EQ(choice.field, 1) << choice.combo->objectName().toStdString();
    }
    for (const bool given : {true, false}) {
        QTest::mouseClick(settings.chGiveAway, Qt::LeftButton, {}, QPoint(6, 6));
        settings.setGiveAway(Qt::PartiallyChecked);
        EXPECT_EQ(settings.giveAway, given) << "the undecided state changes nothing";
    }
    settings.cmbPlayers->setCurrentIndex(2);
    settings.chGiveAway->setChecked(true);
    settings.setDefaults();
    EXPECT_EQ(settings.cmbPlayers->currentIndex(), 0);
    EXPECT_FALSE(settings.giveAway);
    for (const auto &choice : choices)
        EXPECT_EQ(choice.field, choice.byDefault) << choice.combo->objectName().toStdString();
}

} // namespace
