// Boxes and dialogs on the real application: how they look, how they are answered, and when they
// may open.

#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "forms/formstat.h"
#include "platform/dialogcontrols.h"
#include "platform/guihost.h"
#include "platform/qcanvas.h"
#include "platform/qcanvasitem.h"
#include "platform/qcanvasview.h"
#include "tests/platform/nextdialog.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace {

using Row = QDialogButtonBox;
using Hand = std::function<void(QDialog &)>;

QPushButton *button(const QDialog &dialog, Row::StandardButton which) {
    return dialog.findChild<Row *>()->button(which);
}

Hand press(Row::StandardButton which) {
    return [which](QDialog &dialog) { button(dialog, which)->click(); };
}

Hand type(Qt::Key key) {
    return [key](QDialog &dialog) { QTest::keyClick(&dialog, key); };
}

void returnOnCancel(QDialog &dialog) {
    button(dialog, Row::Cancel)->setFocus();
    QTest::keyClick(button(dialog, Row::Cancel), Qt::Key_Return);
}

void closeIt(QDialog &dialog) {
    dialog.close();
}

TEST(Dialogs, AreAcceptedByOkAndReturnAlone) {
    formsettings settings(nullptr, nullptr, true);
    fabout about(nullptr, nullptr, true);
    auto window = std::make_unique<QWidget>();
    const auto choose = [&] { return settings.exec() == QDialog::Accepted; };
    const auto credits = [&] { return about.exec() == QDialog::Accepted; };
    const auto ask = [&](QWidget *parent) {
        return GuiHost().messageBox(BoxKind::Warning, "a", "b", BoxButtons::OkCancel, parent);
    };
    const auto question = [&] { return ask(window.get()); };
    const auto orphan = [&] { return ask(nullptr); };
    const auto closeWindow = [&](QDialog &) { window->close(); };
    const auto deleteWindow = [&](QDialog &) { window.reset(); };
    const struct {
        const char *way;
        std::function<bool()> show;
        Hand hand;
        bool accepted;
    } cases[] = {
        {"settings, OK", choose, press(Row::Ok), true},
        {"settings, Return", choose, type(Qt::Key_Return), true},
        {"settings, Cancel", choose, press(Row::Cancel), false},
        {"settings, Return on Cancel", choose, returnOnCancel, false},
        {"settings, Escape", choose, type(Qt::Key_Escape), false},
        {"settings, title bar", choose, closeIt, false},
        {"about, OK", credits, press(Row::Ok), true},
        {"box, OK", question, press(Row::Ok), true},
        {"box, Return", question, type(Qt::Key_Return), true},
        {"box, Cancel", question, press(Row::Cancel), false},
        {"box, Escape", question, type(Qt::Key_Escape), false},
        {"box, its window closed", question, closeWindow, false},
        {"box without a parent, the window closed", orphan, closeWindow, false},
        {"box, its window deleted", question, deleteWindow, false},
    };
    for (const auto &dialog : cases) {
        window->show();
        onNextDialog(dialog.hand);
        EXPECT_EQ(dialog.show(), dialog.accepted) << dialog.way;
    }
}

// What is to be seen of a box, closed at once.
QString shown(BoxKind kind, BoxButtons buttons) {
    QString words;
    onNextDialog([&](QDialog &dialog) {
        const auto &box = dynamic_cast<QMessageBox &>(dialog);
        words = QVariant::fromValue(box.icon()).toString() + ' ' + box.windowTitle() + ": " +
                box.text();
        for (const QAbstractButton *button : box.findChild<Row *>()->buttons())
            words += " [" + button->text() + ']';
        dialog.accept();
    });
    GuiHost().messageBox(kind, "title", "text", buttons);
    return words;
}

TEST(Boxes, HaveTheIconAndTheButtonsOfTheirKind) {
    EXPECT_EQ(shown(BoxKind::Information, BoxButtons::Ok), "Information title: text [OK]");
    EXPECT_EQ(shown(BoxKind::Critical, BoxButtons::Ok), "Critical title: text [OK]");
    EXPECT_EQ(shown(BoxKind::Warning, BoxButtons::OkCancel), "Warning title: text [OK] [Cancel]");
}

// Says the same at every painting, and asks what it can have no answer to.
struct Complaint : QCanvasRectangle {
    Complaint(QCanvas *canvas, Host &to) : QCanvasRectangle(0, 0, 9, 9, canvas), host(to) {
        show();
    }
    void draw(QPainter &) override {
        for (const char *title : {"first", "first", "second"})
            EXPECT_TRUE(host.messageBox(BoxKind::Warning, title, "text"));
        EXPECT_FALSE(host.messageBox(BoxKind::Warning, "a", "b", BoxButtons::OkCancel));
    }
    Host &host;
};

TEST(Boxes, AskedForWhilePaintingComeOnceAndAfterwards) {
    GuiHost host;
    QCanvas canvas(20, 20);
    Complaint complaint(&canvas, host);
    QCanvasView view(&canvas);
    view.viewport()->grab();
    QStringList shown;
    onNextDialog([&](QDialog &first) {
        shown << first.windowTitle();
        view.viewport()->grab(); // the box has uncovered it: said already
        onNextDialog([&](QDialog &second) {
            shown << second.windowTitle();
            second.accept();
        });
        first.accept();
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.size() == 2; }));
    QApplication::processEvents();
    EXPECT_EQ(shown, QStringList({"first", "second"}));
}

TEST(ControlRow, StandsBelowTheFormHoweverOftenItIsShown) {
    formsettings settings(nullptr, nullptr, true);
    for (int time = 0; time < 3; ++time) {
        onNextDialog(press(Row::Ok));
        settings.exec();
    }
    const int height = settings.findChild<ControlRow *>()->rowHeight();
    EXPECT_EQ(settings.size(), QSize(209, 170 + height));
    EXPECT_EQ(settings.maximumSize(), QSize(240, 300 + height));
    EXPECT_LE(settings.chGiveAway->geometry().bottom(), 170 - 11);
}

TEST(ControlRow, IsForModalFormsWithCancelWhereThereIsAChoice) {
    fabout about(nullptr, nullptr, true);
    formStat modeless;
    about.show();
    modeless.show();
    EXPECT_EQ(button(about, Row::Cancel), nullptr);
    EXPECT_EQ(modeless.findChild<ControlRow *>(), nullptr);
}

} // namespace
