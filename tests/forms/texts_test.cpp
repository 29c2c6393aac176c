// Whether every text that the player reads has room where it stands, in every language.

#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "forms/formstat.h"
#include "forms/mainform.h"
#include "platform/compactstyle.h"
#include "platform/dialogcontrols.h"

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

#include <algorithm>

namespace {

// The forms as the player gets them, at 72 dpi in the font that comes with the program.
class Texts {
public:
    Texts() {
        qApp->installEventFilter(&controls);
        for (QWidget *form : {static_cast<QWidget *>(&game), static_cast<QWidget *>(&settings),
                              static_cast<QWidget *>(&figures), static_cast<QWidget *>(&about)})
            measure(form);
        game.lblThinking->setText("W");
        for (const char *text : {"*** THINKING ***", "Your Move", "You Must Capture", "Game Over"})
            draw(game.lblThinking, QCoreApplication::translate("Draughts", text));
        draw(game.labelScore, "30/30");
    }

    QStringList measured, tooLong;

private:
    void measure(QWidget *form) {
        const int width = form->width();
        form->show();
        QApplication::processEvents();
        if (form->width() != width)
            tooLong << form->objectName() + " has grown";
        for (const auto *label : form->findChildren<QLabel *>())
            draw(label, label->text());
        for (const auto *button : form->findChildren<QPushButton *>())
            draw(button, button->text());
        for (const auto *box : form->findChildren<QCheckBox *>())
            draw(box, box->text());
        for (const auto *combo : form->findChildren<QComboBox *>()) {
            for (int i = 0; i < combo->count(); ++i)
                draw(combo, combo->itemText(i));
        }
    }

    // Where the style draws the text.
    static QRect room(const QWidget *widget) {
        QStyleOptionComboBox combo;
        QStyleOptionButton button;
        combo.initFrom(widget);
        button.initFrom(widget);
        const QStyle &style = *widget->style();
        if (qobject_cast<const QPushButton *>(widget) != nullptr)
            return style.subElementRect(QStyle::SE_PushButtonContents, &button, widget);
        if (qobject_cast<const QCheckBox *>(widget) != nullptr)
            return style.subElementRect(QStyle::SE_CheckBoxContents, &button, widget);
        if (qobject_cast<const QComboBox *>(widget) != nullptr)
            return style
                .subControlRect(QStyle::CC_ComboBox, &combo, QStyle::SC_ComboBoxEditField, widget)
                .adjusted(1, 0, -1, 0);
        return widget->contentsRect();
    }

    void draw(const QWidget *widget, const QString &text) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const bool wraps = label != nullptr && label->wordWrap();
        const bool centred = label != nullptr ? label->alignment() == Qt::AlignCenter
                                              : widget->inherits("QPushButton");
        const int flags = (wraps ? int(Qt::TextWordWrap) : 0) | Qt::AlignVCenter |
                          int(centred ? Qt::AlignHCenter : Qt::AlignLeft);
        const QRect drawn = widget->fontMetrics().boundingRect(room(widget), flags, text);
        if (text.isEmpty() || text == "0")
            return;
        measured << text;
        const int right = drawn.translated(widget->mapTo(widget->window(), QPoint())).right();
        if (right >= 240 || !room(widget).contains(drawn) || isCovered(widget, drawn))
            tooLong << text;
    }

    // Neighbours made later lie above.
    static bool isCovered(const QWidget *widget, QRect drawn) {
        bool above = false;
        for (const QObject *child : widget->parent()->children()) {
            const auto *other = qobject_cast<const QWidget *>(child);
            if (above && other != nullptr && other->isVisible() &&
                other->geometry().intersects(drawn.translated(widget->pos())) &&
                other->objectName() != "btnBreak") // only ever shown in place of btnAbout
                return true;
            above = above || child == widget;
        }
        return false;
    }

    DialogControls controls;
    MainForm game;
    formsettings settings{nullptr, nullptr, true};
    formStat figures{nullptr, nullptr, true};
    fabout about{nullptr, nullptr, true};
};

struct Endless : QTranslator {
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override {
        return QString::fromUtf8(text) + QString("W").repeated(300);
    }
};

struct TextsTest : testing::Test {
    TextsTest() {
        QApplication::setStyle(new CompactStyle);
        QApplication::setFont(QFont("DejaVu Sans", 9));
    }
};

TEST_F(TextsTest, FitTheirPlacesInEveryLanguage) {
    ASSERT_EQ(QFontInfo(QApplication::font()).family(), "DejaVu Sans");
    const QStringList catalogues = QDir(":/i18n").entryList() << QString();
    EXPECT_GE(catalogues.size(), 4);
    for (const QString &catalogue : catalogues) {
        QTranslator language;
        ASSERT_NE(language.load(":/i18n/" + catalogue), catalogue.isEmpty());
        QApplication::installTranslator(&language);
        const Texts texts;
        EXPECT_EQ(texts.tooLong.join("; ").toStdString(), "") << catalogue.toStdString();
        EXPECT_EQ(texts.measured.size(), 49);
    }
}

TEST_F(TextsTest, AreFoundToBeTooLong) {
    Endless language;
    QApplication::installTranslator(&language);
    const Texts texts;
    for (const QString &text : texts.measured)
        EXPECT_TRUE(texts.tooLong.contains(text) || text == "30/30") << text.left(20).toStdString();
}

} // namespace
