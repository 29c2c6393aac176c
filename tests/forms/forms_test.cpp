// The forms by themselves: how they look, whether their texts have room, what a player's choice
// does.

#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "forms/formstat.h"
#include "forms/mainform.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QLabel>
#include <QPushButton>
#include <QStyleOption>
#include <QTest>
#include <QTranslator>

#include <initializer_list>

namespace {

QStringList textsOf(const QWidget &widget) {
    QStringList texts = {widget.property("text").toString()};
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget)) {
        for (int i = 0; i < combo->count(); ++i)
            texts << combo->itemText(i);
    }
    texts.removeAll(QString());
    return texts;
}

QString inWords(QSize size) {
    return size.width() == QWIDGETSIZE_MAX
               ? QStringLiteral("any")
               : QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString inWords(const QWidget &widget) {
    QString words = widget.objectName();
    if (widget.parentWidget()->layout() == nullptr)
        words +=
            QStringLiteral(" at %1,%2 ").arg(widget.x()).arg(widget.y()) + inWords(widget.size());
    if (inWords(widget.maximumSize()) != "any")
        words += " max " + inWords(widget.maximumSize());
    if (widget.font().pointSize() != QApplication::font(&widget).pointSize())
        words += QStringLiteral(" %1pt").arg(widget.font().pointSize());
    if (widget.font().bold())
        words += " bold";
    if (!textsOf(widget).isEmpty() && !widget.property("wordWrap").toBool())
        words += " '" + textsOf(widget).join('|') + '\'';
    if (!widget.toolTip().isEmpty())
        words += " tip '" + widget.toolTip() + '\'';
    const bool canBeWorked = widget.inherits("QAbstractButton") || widget.inherits("QComboBox");
    if (canBeWorked && widget.focusPolicy() == Qt::NoFocus)
        words += " pen";
    return words;
}

// The form, then a line for every widget: its place unless a layout has it, its largest size if it
// has one, its font's points unless they are the application's, its weight, text and tool tip, and
// "pen" where it takes no focus though it can be worked. Of a list the text is all items;
// prose is left out.
QString formInWords(const QWidget &form) {
    QString words = form.objectName() + ' ' + inWords(form.size()) + " min " +
                    inWords(form.minimumSize()) + " max " + inWords(form.maximumSize()) + " '" +
                    form.windowTitle() + '\'';
    for (const QWidget *widget : form.findChildren<QWidget *>()) {
        const bool isPartOfAList = widget->parentWidget()->inherits("QComboBox") ||
                                   widget->window()->inherits("QComboBoxPrivateContainer");
        if (!isPartOfAList)
            words += '\n' + inWords(*widget);
    }
    return words + '\n';
}

QString inWords(std::initializer_list<QWidget *> forms) {
    QStringList words;
    for (const QWidget *form : forms)
        words << formInWords(*form);
    return words.join('\n');
}

// In a font that is none of theirs; the widgets', as the application's keeps its size.
TEST(Forms, AreBuiltAsToldAndStaySoInAnotherFont) {
    const QFont usual = QApplication::font();
    QApplication::setFont(QFont(usual.family(), 14), "QWidget");
    MainForm game;
    formsettings settings;
    formStat figures;
    fabout about;
    const std::initializer_list<QWidget *> forms = {&game, &settings, &figures, &about};
    QFile file(TEST_DATA "/forms.txt");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString told = file.readAll();
    EXPECT_EQ(inWords(forms).toStdString(), told.toStdString());
    QApplication::setFont(QFont(usual.family(), 20), "QWidget");
    for (QWidget *form : forms) {
        for (QWidget *widget : form->findChildren<QWidget *>())
            widget->setFont(QFont()); // forgets what is its own
        QEvent change(QEvent::ApplicationFontChange);
        QCoreApplication::sendEvent(form, &change);
    }
    EXPECT_EQ(inWords(forms).toStdString(), told.toStdString());
    QApplication::setFont(usual);
}

TEST(Forms, SettingsFollowThePlayerAndNotTheProgram) {
    formsettings settings;
    EXPECT_EQ(settings.cmbRules->currentText(), "International");
    EXPECT_EQ(settings.cmbSize->currentText(), "10 international");
    EXPECT_EQ(settings.cmbLevel->currentText(), "5 sec/move");
    settings.show();
    settings.cmbRules->setCurrentIndex(2);
    EXPECT_EQ(settings.rulesIndex, 0) << "not the player's choice";
    for (QComboBox *combo : {settings.cmbRules, settings.cmbSize, settings.cmbLevel}) {
        combo->setCurrentIndex(0);
        combo->showPopup();
        QTest::keyClick(combo->view(), Qt::Key_Down);
        QTest::keyClick(combo->view(), Qt::Key_Return);
    }
    EXPECT_EQ(settings.rulesIndex, 1);
    EXPECT_EQ(settings.sizeIndex, 1);
    EXPECT_EQ(settings.levelIndex, 1);
    settings.setGiveAway(Qt::PartiallyChecked);
    EXPECT_FALSE(settings.giveAway) << "the undecided state is not on";
    settings.chGiveAway->click();
    settings.setGiveAway(Qt::PartiallyChecked);
    EXPECT_TRUE(settings.giveAway) << "the undecided state changes nothing";
    settings.setDefaults();
    EXPECT_EQ(settings.rulesIndex, 0);
    EXPECT_EQ(settings.sizeIndex, 2);
    EXPECT_EQ(settings.levelIndex, 3);
    EXPECT_FALSE(settings.giveAway);
}

// Where the style draws the widget's text.
QRect room(const QWidget &widget) {
    QStyleOptionComboBox combo;
    QStyleOptionButton button;
    combo.initFrom(&widget);
    button.initFrom(&widget);
    const QStyle &style = *widget.style();
    if (widget.inherits("QPushButton"))
        return style.subElementRect(QStyle::SE_PushButtonContents, &button, &widget);
    if (widget.inherits("QCheckBox"))
        return style.subElementRect(QStyle::SE_CheckBoxContents, &button, &widget);
    if (widget.inherits("QComboBox"))
        return style.subControlRect(QStyle::CC_ComboBox, &combo, QStyle::SC_ComboBoxEditField,
                                    &widget);
    return widget.contentsRect();
}

// Not under a neighbour, either. A widget that is hidden takes turns with one that is not.
void expectToFit(const QWidget &widget, const QString &text) {
    const auto *label = qobject_cast<const QLabel *>(&widget);
    int flags = Qt::AlignCenter;
    if (label != nullptr)
        flags = int(label->alignment()) | (label->wordWrap() ? int(Qt::TextWordWrap) : 0);
    const QRect drawn = widget.fontMetrics().boundingRect(room(widget), flags, text);
    EXPECT_TRUE(room(widget).contains(drawn)) << text.toStdString();
    for (const QPoint corner : {drawn.topLeft(), drawn.bottomRight()}) {
        const QWidget *onTop = widget.window()->childAt(widget.mapTo(widget.window(), corner));
        EXPECT_EQ(widget.isHidden() ? &widget : onTop, &widget) << text.toStdString();
    }
}

void expectAllToFit() {
    MainForm game;
    game.btnBreak->hide();
    formsettings settings(nullptr, nullptr, true);
    formStat figures;
    fabout about(nullptr, nullptr, true);
    for (QWidget *form : std::initializer_list<QWidget *>{&game, &settings, &figures, &about}) {
        form->show();
        QApplication::processEvents();
        for (const QWidget *widget : form->findChildren<QWidget *>()) {
            for (const QString &text : textsOf(*widget))
                expectToFit(*widget, text);
        }
    }
    for (const QComboBox *combo : {settings.cmbRules, settings.cmbSize, settings.cmbPlayers}) {
        EXPECT_EQ(combo->x(), settings.cmbLevel->x());
        EXPECT_EQ(combo->width(), settings.cmbLevel->width());
    }
    for (const char *state : {"*** THINKING ***", "Your Move", "You Must Capture", "Game Over"})
        expectToFit(*game.lblThinking, QCoreApplication::translate("Draughts", state));
    expectToFit(*game.labelScore, "30/30");
}

// At 72 dpi in the font that comes with the program.
TEST(Forms, HaveRoomForTheirTextsInEveryLanguage) {
    ASSERT_EQ(QFontInfo(QApplication::font()).family(), "DejaVu Sans");
    expectAllToFit();
    for (const QString &catalogue : QDir(":/i18n").entryList()) {
        SCOPED_TRACE(catalogue.toStdString());
        QTranslator language;
        ASSERT_TRUE(language.load(":/i18n/" + catalogue));
        QApplication::installTranslator(&language);
        expectAllToFit();
    }
}

} // namespace
