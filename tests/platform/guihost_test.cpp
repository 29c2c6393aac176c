#include "platform/guihost.h"

#include "platform/paintscope.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

QMessageBox *openBox() {
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

// Does `act` to the next box that opens.
void onNextBox(const std::function<void(QMessageBox *)> &act) {
    QTimer::singleShot(0, qApp, [act] {
        if (QMessageBox *box = openBox())
            act(box);
        else
            onNextBox(act);
    });
}

bool ask(GuiHost &host, QWidget *parent = nullptr) {
    return host.messageBox(BoxKind::Warning, "confirm", "confirm NewGame", BoxButtons::OkCancel,
                           parent);
}

TEST(GuiHost, ShowsWhatItIsGiven) {
    GuiHost host;
    const struct {
        BoxKind kind;
        QMessageBox::Icon icon;
        BoxButtons buttons;
        int buttonCount;
    } cases[] = {
        {BoxKind::Information, QMessageBox::Information, BoxButtons::Ok, 1},
        {BoxKind::Warning, QMessageBox::Warning, BoxButtons::OkCancel, 2},
        {BoxKind::Critical, QMessageBox::Critical, BoxButtons::Ok, 1},
    };
    for (const auto &c : cases) {
        onNextBox([&c](QMessageBox *box) {
            EXPECT_EQ(box->windowTitle(), "title");
            EXPECT_EQ(box->text(), "text");
            EXPECT_EQ(box->icon(), c.icon);
            EXPECT_EQ(box->buttons().size(), c.buttonCount);
            box->button(QMessageBox::Ok)->click();
        });
        EXPECT_TRUE(host.messageBox(c.kind, "title", "text", c.buttons));
    }
}

TEST(GuiHost, ReturnConfirmsAndEscapeDoesNot) {
    GuiHost host;
    onNextBox([](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Return); });
    EXPECT_TRUE(ask(host));
    onNextBox([](QMessageBox *box) { QTest::keyClick(box, Qt::Key_Escape); });
    EXPECT_FALSE(ask(host));
    onNextBox([](QMessageBox *box) { box->button(QMessageBox::Cancel)->click(); });
    EXPECT_FALSE(ask(host));
}

TEST(GuiHost, WhatIsSaidWhilePaintingComesOnceAndAfterwards) {
    GuiHost host;
    {
        const PaintScope painting;
        EXPECT_TRUE(host.messageBox(BoxKind::Warning, "first", "text"));
        EXPECT_TRUE(host.messageBox(BoxKind::Warning, "first", "text"));
        EXPECT_TRUE(host.messageBox(BoxKind::Warning, "second", "text"));
        EXPECT_EQ(openBox(), nullptr);
        EXPECT_FALSE(ask(host)) << "nobody can be asked while painting";
    }
    QStringList shown;
    const auto note = [&](QMessageBox *box) {
        shown << box->windowTitle();
        const PaintScope uncovered;
        host.messageBox(BoxKind::Warning, box->windowTitle(), "text");
        box->accept();
    };
    onNextBox([&](QMessageBox *box) {
        onNextBox(note);
        note(box);
    });
    QTest::qWait(50);
    EXPECT_EQ(shown, QStringList({"first", "second"}));
    EXPECT_EQ(openBox(), nullptr);
}

TEST(GuiHost, BoxClosesWithTheWindowBehindIt) {
    GuiHost host;
    QWidget window;
    window.show();
    for (QWidget *parent : {&window, static_cast<QWidget *>(nullptr)}) {
        window.show();
        onNextBox([&window](QMessageBox *) { window.close(); });
        EXPECT_FALSE(ask(host, parent));
    }
}

TEST(GuiHost, BoxMayGoWithItsParent) {
    GuiHost host;
    auto *window = new QWidget;
    window->show();
    onNextBox([window](QMessageBox *) { delete window; });
    EXPECT_FALSE(ask(host, window));
}

TEST(GuiHost, QuittingEndsAnOpenBox) {
    GuiHost host;
    bool answered = false;
    QTimer::singleShot(0, qApp, [&] {
        EXPECT_FALSE(ask(host));
        answered = true;
    });
    onNextBox([](QMessageBox *) { QCoreApplication::quit(); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(answered);
}

TEST(GuiHost, HandlesEventsUnlessPainting) {
    GuiHost host;
    int delivered = 0;
    QTimer::singleShot(0, qApp, [&delivered] { ++delivered; });
    {
        const PaintScope painting;
        host.processEvents();
    }
    EXPECT_EQ(delivered, 0);
    host.processEvents();
    EXPECT_EQ(delivered, 1);
}

} // namespace
