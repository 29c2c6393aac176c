// Boxes and dialogs on a real application: how they are answered, and when they may open.

#include "forms/fabout.h"
#include "forms/formsettings.h"
#include "platform/dialogcontrols.h"
#include "platform/guihost.h"
#include "platform/qcanvas.h"
#include "platform/qcanvasitem.h"
#include "platform/qcanvasview.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>

namespace {

using Buttons = QDialogButtonBox;

QPushButton *button(const QDialog &dialog, Buttons::StandardButton which) {
    return dialog.findChild<Buttons *>()->button(which);
}

// Does `act` to the next dialog that opens.
void onNextDialog(const std::function<void(QDialog &)> &act) {
    QTimer::singleShot(0, qApp, [act] {
        auto *open = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        open != nullptr ? act(*open) : onNextDialog(act);
    });
}

TEST(Dialogs, EveryWayOfAnsweringThem) {
    DialogControls controls;
    qApp->installEventFilter(&controls);
    GuiHost host;
    formsettings settings(nullptr, nullptr, true);
    fabout about(nullptr, nullptr, true);
    auto *window = new QWidget; // a case deletes it
    const auto ask = [&] {
        return host.messageBox(BoxKind::Warning, "a", "b", BoxButtons::OkCancel, window);
    };
    const auto credits = [&] { return about.exec() == 1; };
    const auto choose = [&] { return settings.exec() == 1; };
    const auto key = [](Qt::Key k) {
        return [k](QDialog &dialog) { QTest::keyClick(&dialog, k); };
    };
    const auto ok = [](QDialog &dialog) { button(dialog, Buttons::Ok)->click(); };
    const auto cancel = [](QDialog &dialog) { button(dialog, Buttons::Cancel)->click(); };
    const auto returnOnCancel = [](QDialog &dialog) {
        button(dialog, Buttons::Cancel)->setFocus();
        QTest::keyClick(button(dialog, Buttons::Cancel), Qt::Key_Return);
    };
    const struct {
        const char *way;
        std::function<bool()> show;
        std::function<void(QDialog &)> act;
        bool accepted;
    } cases[] = {
        {"settings, Return", choose, key(Qt::Key_Return), true},
        {"settings, Escape", choose, key(Qt::Key_Escape), false},
        {"settings, OK", choose, ok, true},
        {"settings, Cancel", choose, cancel, false},
        {"settings, Return on Cancel", choose, returnOnCancel, false},
        {"settings, title bar", choose, [](QDialog &dialog) { dialog.close(); }, false},
        {"about, OK", credits, ok, true},
        {"box, Return", ask, key(Qt::Key_Return), true},
        {"box, Escape", ask, key(Qt::Key_Escape), false},
        {"box, Cancel", ask, cancel, false},
        {"box, window deleted", ask, [&](QDialog &) { delete std::exchange(window, nullptr); },
         false},
    };
    for (const auto &[way, show, act, accepted] : cases) {
        window->show();
        onNextDialog(act);
        EXPECT_EQ(show(), accepted) << way;
    }

    // However often they were shown, the forms have grown by one row.
    const int row = settings.findChild<ControlRow *>()->rowHeight();
    EXPECT_EQ(settings.size(), QSize(209, 170 + row));
    EXPECT_LE(settings.chGiveAway->geometry().bottom(), 170 - 11);
    EXPECT_EQ(button(about, Buttons::Cancel), nullptr) << "nothing to choose";
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

TEST(Dialogs, WhatIsSaidWhilePaintingComesOnceAndAfterwards) {
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
    QTest::qWait(50);
    EXPECT_EQ(shown, QStringList({"first", "second"}));
}

} // namespace
