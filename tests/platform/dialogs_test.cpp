// Boxes and dialogs on the real application: how they look, how they are answered, and when they
// may open.

#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "forms/formstat.h"
#include "platform/dialogcontrols.h"
#include "platform/formwindows.h"
#include "platform/guihost.h"
#include "platform/qcanvas.h"
#include "platform/qcanvasitem.h"
#include "platform/qcanvasview.h"
#include "tests/platform/nextdialog.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QWindow>

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

void close(QDialog &dialog) {
    dialog.close();
}

bool ask(QWidget *parent, const Hand &hand) {
    onNextDialog(hand);
    return GuiHost().messageBox(BoxKind::Warning, "a", "b", BoxButtons::OkCancel, parent);
}

TEST(DialogsAndBoxes, AreAcceptedByOkAndReturnAlone) {
    const struct {
        const char *way;
        Hand hand;
        bool accepted;
    } cases[] = {{"OK", press(Row::Ok), true},
                 {"Return", type(Qt::Key_Return), true},
                 {"Cancel", press(Row::Cancel), false},
                 {"Escape", type(Qt::Key_Escape), false},
                 {"title bar", close, false}};
    formsettings settings(nullptr, nullptr, true);
    for (const auto &[way, hand, accepted] : cases) {
        onNextDialog(hand);
        EXPECT_EQ(settings.exec() == QDialog::Accepted, accepted) << way;
        EXPECT_EQ(ask(nullptr, hand), accepted) << "box, " << way;
    }
}

TEST(Boxes, AreCancelledWithTheirWindow) {
    auto window = std::make_unique<QWidget>();
    window->show();
    EXPECT_FALSE(ask(window.get(), [&](QDialog &) { window->close(); }));
    window->show();
    EXPECT_FALSE(ask(nullptr, [&](QDialog &) { window->close(); })) << "the last one";
    EXPECT_FALSE(ask(window.get(), [&](QDialog &) { window.reset(); }));
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

struct Complaint : QCanvasRectangle {
    using QCanvasRectangle::QCanvasRectangle;
    void draw(QPainter &) override { host.messageBox(BoxKind::Warning, "once", "text"); }
    GuiHost host;
};

TEST(Boxes, AskedForWhilePaintingComeOnceAndAfterwards) {
    QCanvas canvas(20, 20);
    Complaint complaint(0, 0, 9, 9, &canvas);
    complaint.show();
    QCanvasView view(&canvas);
    view.viewport()->grab();
    QStringList titles;
    onNextDialog([&](QDialog &dialog) {
        titles << dialog.windowTitle();
        view.viewport()->grab(); // the box has uncovered it: said already
        dialog.accept();
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !titles.isEmpty(); }));
    QApplication::processEvents();
    EXPECT_EQ(titles, QStringList("once"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(ControlRow, StandsBelowTheFormHoweverOftenItIsShown) {
    formsettings settings(nullptr, nullptr, true);
    settings.show();
    settings.hide();
    settings.show();
    const int height = settings.findChild<ControlRow *>()->rowHeight();
    EXPECT_EQ(settings.size(), QSize(209, 170 + height));
    EXPECT_EQ(settings.maximumSize(), QSize(240, 300 + height));
}

TEST(MaximisedSizes, AWindowMayBeAsLargeAsTheScreenOnceItIsMaximised) {
    MaximisedSizes sizes;
    qApp->installEventFilter(&sizes);
    QWindow window;
    window.setMaximumSize({240, 320});
    window.show();
    EXPECT_EQ(window.maximumSize(), QSize(240, 320));
    window.setWindowStates(Qt::WindowMaximized);
    EXPECT_GT(window.maximumWidth(), 4000);
}

TEST(ControlRow, IsForModalFormsWithCancelWhereThereIsAChoice) {
    fabout about(nullptr, nullptr, true);
    formStat modeless;
    about.show();
    modeless.show();
    EXPECT_EQ(modeless.findChild<ControlRow *>(), nullptr);
    EXPECT_EQ(button(about, Row::Cancel), nullptr);
}

} // namespace
