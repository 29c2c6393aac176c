#include "view/boardtable.h"

#include "view/boardcell.h"
#include "view/boardcursor.h"
#include "view/boardmetrics.h"
#include "view/mycanvasview.h"

#include <QAccessible>

#include <utility>

namespace {

QAccessibleInterface *newTable(const QString &, QObject *object) {
    auto *view = qobject_cast<MyCanvasView *>(object);
    return view != nullptr ? new BoardTable(view) : nullptr;
}

void tell(QAccessibleInterface *cell, QAccessible::Event what) {
    QAccessibleEvent event(cell, what);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void BoardTable::install() {
    QAccessible::installFactory(newTable);
}

BoardTable *BoardTable::of(MyCanvasView *view) {
    if (!QAccessible::isActive())
        return nullptr;
    return dynamic_cast<BoardTable *>(QAccessible::queryAccessibleInterface(view));
}

BoardTable::BoardTable(MyCanvasView *view)
    : QAccessibleWidget(view, QAccessible::Table), cells_(maxBoardSize * maxBoardSize / 2) {}

BoardTable::~BoardTable() {
    for (const Cell &cell : cells_) {
        if (cell.id != 0)
            QAccessible::deleteAccessibleInterface(cell.id);
    }
}

MyCanvasView *BoardTable::view() const {
    return static_cast<MyCanvasView *>(object());
}

int BoardTable::rowCount() const {
    const bool hasBoard = isValid() && view()->shownMetrics() != nullptr;
    return hasBoard ? view()->shownMetrics()->size : 0;
}

void BoardTable::tellChanges() {
    for (int index = 0; index < childCount(); ++index) {
        Cell &cell = cells_[index];
        if (cell.id == 0)
            continue;
        const SquareReport now = view()->report(squareOf(index));
        const SquareReport before = std::exchange(cell.told, now);
        if (now.name != before.name)
            tell(child(index), QAccessible::NameChanged);
        if (now.states != before.states)
            tell(child(index), QAccessible::DescriptionChanged);
        if (now.selected != before.selected)
            tell(child(index),
                 now.selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
    }
}

void BoardTable::tellFocus() {
    if (QAccessibleInterface *const cell = focusChild())
        tell(cell, QAccessible::Focus);
}

// The even rows of the board begin with a playing square at the left, seen from either side.
XY BoardTable::squareOf(int index) const {
    const boardMetrics &metrics = *view()->shownMetrics();
    const int row = index / columnCount();
    const int y = metrics.ScrToBy(row * metrics.SquareHeightB());
    const int column = 2 * (index % columnCount()) + (rowCount() - 1 - row) % 2;
    return {metrics.ScrToBx(column * metrics.SquareWidthB()), y};
}

int BoardTable::indexOf(XY square) const {
    for (int index = 0; index < childCount(); ++index) {
        if (squareOf(index) == square)
            return index;
    }
    return -1;
}

bool BoardTable::hasFocus(int index) const {
    return view()->hasFocus() && squareOf(index) == view()->cursorSquare();
}

QAccessibleInterface *BoardTable::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    Cell &cell = cells_[index];
    if (cell.id == 0) {
        auto *self = const_cast<BoardTable *>(this);
        cell = {QAccessible::registerAccessibleInterface(new BoardCell(self, index)),
                view()->report(squareOf(index))};
    }
    return QAccessible::accessibleInterface(cell.id);
}

int BoardTable::indexOfChild(const QAccessibleInterface *child) const {
    const auto *cell = dynamic_cast<const BoardCell *>(child);
    return cell != nullptr ? cell->index() : -1;
}

QAccessibleInterface *BoardTable::focusChild() const {
    return view()->hasFocus() ? child(indexOf(view()->cursorSquare())) : nullptr;
}

// It is a cell that has the focus.
QAccessible::State BoardTable::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.focused = false;
    return state;
}

void *BoardTable::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface *BoardTable::cellAt(int row, int column) const {
    const bool exists = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
    return exists ? child(row * columnCount() + column) : nullptr;
}

int BoardTable::selectedCellCount() const {
    return static_cast<int>(selectedCells().size());
}

QList<QAccessibleInterface *> BoardTable::selectedCells() const {
    QList<QAccessibleInterface *> selected;
    for (int index = 0; index < childCount(); ++index) {
        if (view()->report(squareOf(index)).selected)
            selected << child(index);
    }
    return selected;
}
