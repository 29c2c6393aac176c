#include "view/boardcell.h"

#include "view/boardtable.h"
#include "view/mycanvasview.h"

#include <QApplication>

bool BoardCell::isValid() const {
    return table_->isValid() && index_ < table_->childCount();
}

QWindow *BoardCell::window() const {
    return table_->window();
}

QAccessibleInterface *BoardCell::parent() const {
    return table_;
}

QString BoardCell::text(QAccessible::Text kind) const {
    const SquareReport report = table_->view()->report(table_->squareOf(index_));
    switch (kind) {
    case QAccessible::Name:
        return report.name;
    case QAccessible::Description:
        return report.states;
    default:
        return {};
    }
}

QRect BoardCell::rect() const {
    const QWidget *viewport = table_->view()->viewport();
    const QRect square = table_->view()->squareRect(table_->squareOf(index_));
    return {viewport->mapToGlobal(square.topLeft()), square.size()};
}

QAccessible::State BoardCell::state() const {
    QAccessible::State state;
    const QAccessible::State boardState = table_->state();
    state.invisible = boardState.invisible;
    state.offscreen = boardState.offscreen;
    state.disabled = boardState.disabled;
    state.focusable = true;
    state.focused = table_->hasFocus(index_);
    state.selectable = true;
    state.selected = isSelected();
    return state;
}

void *BoardCell::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface *>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface *>(this);
    return nullptr;
}

bool BoardCell::isSelected() const {
    return table_->view()->report(table_->squareOf(index_)).selected;
}

int BoardCell::columnIndex() const {
    return index_ % table_->columnCount();
}

int BoardCell::rowIndex() const {
    return index_ / table_->columnCount();
}

QStringList BoardCell::actionNames() const {
    return {pressAction(), setFocusAction()};
}

// A dialog in front keeps mouse and keys from the board; the toolkit does not do so here.
void BoardCell::doAction(const QString &name) {
    MyCanvasView *const view = table_->view();
    const QWidget *const dialog = QApplication::activeModalWidget();
    if (!view->isVisible() || (dialog != nullptr && dialog != view->window()))
        return;
    const XY square = table_->squareOf(index_);
    if (name == setFocusAction()) {
        view->activateWindow();
        view->setFocus(Qt::ShortcutFocusReason);
        view->moveCursor(square);
    } else if (name == pressAction()) {
        emit view->clickedBxy(square.x, square.y, false);
    }
}
