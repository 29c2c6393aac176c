// Whether every text that the player reads has room where it stands, in every language, at 72 dpi
// in the font that comes with the program.

#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "forms/formstat.h"
#include "forms/mainform.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFontInfo>
#include <QLabel>
#include <QPushButton>
#include <QStyleOption>
#include <QTranslator>

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

// Where the text is drawn in that room, or beyond it.
QRect drawnAt(const QWidget &widget, const QString &text) {
    const auto *label = qobject_cast<const QLabel *>(&widget);
    const bool wraps = label != nullptr && label->wordWrap();
    const bool centred =
        label != nullptr ? label->alignment() == Qt::AlignCenter : widget.inherits("QPushButton");
    const int flags = Qt::AlignVCenter | (wraps ? int(Qt::TextWordWrap) : 0) |
                      int(centred ? Qt::AlignHCenter : Qt::AlignLeft);
    return widget.fontMetrics().boundingRect(room(widget), flags, text);
}

// Not under a neighbour, either. A widget that is hidden takes turns with one that is not.
bool fits(const QWidget &widget, const QString &text) {
    const QRect drawn = drawnAt(widget, text);
    const auto isOnTop = [&](QPoint corner) {
        return widget.isHidden() ||
               widget.window()->childAt(widget.mapTo(widget.window(), corner)) == &widget;
    };
    return room(widget).contains(drawn) && isOnTop(drawn.topLeft()) && isOnTop(drawn.bottomRight());
}

// Shows the form and lists its texts that do not fit.
QStringList tooLong(QWidget &form) {
    QStringList found;
    form.show();
    QApplication::processEvents();
    for (const QWidget *widget : form.findChildren<QWidget *>()) {
        for (const QString &text : textsOf(*widget)) {
            if (!fits(*widget, text))
                found << text;
        }
    }
    return found;
}

void expectAllToFit() {
    MainForm game;
    game.btnBreak->hide();
    EXPECT_EQ(tooLong(game), QStringList());
    for (const char *state : {"*** THINKING ***", "Your Move", "You Must Capture", "Game Over"}) {
        const QString text = QCoreApplication::translate("Draughts", state);
        EXPECT_TRUE(fits(*game.lblThinking, text)) << text.toStdString();
    }
    EXPECT_TRUE(fits(*game.labelScore, "30/30"));
    formsettings settings(nullptr, nullptr, true);
    EXPECT_EQ(tooLong(settings), QStringList());
    formStat figures;
    EXPECT_EQ(tooLong(figures), QStringList());
    fabout about(nullptr, nullptr, true);
    EXPECT_EQ(tooLong(about), QStringList());
}

TEST(Texts, FitTheirPlacesInEveryLanguage) {
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
