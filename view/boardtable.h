// BoardTable: the board as screen readers know it.
#ifndef VIEW_BOARDTABLE_H
#define VIEW_BOARDTABLE_H

#include "view/squarereport.h"

#include <QAccessibleWidget>

#include <vector>

class MyCanvasView;

// A table of the playing squares alone, as they are seen: one row for each row of the board from
// the top, and in it half as many cells as the board is wide. The cell of the view's cursor has the
// focus whenever the view has it. Each cell has an action, to press it, which is a tap on its
// square.
//
// The view answers for all that the cells tell. What has changed since is passed on when the view
// says so, square by square.
class BoardTable final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    // Lets every MyCanvasView be such a table.
    static void install();
    // That of a view; null as long as nobody wants to know.
    static BoardTable *of(MyCanvasView *view);

    explicit BoardTable(MyCanvasView *view);

    // Tells what the squares' reports say now and did not say before.
    void tellChanges();
    // Tells where the focus is on the board, if the view has it.
    void tellFocus();

    MyCanvasView *view() const;
    // Cells are counted as they are read: by rows from the top, from the left.
    XY squareOf(int index) const;
    bool hasFocus(int index) const;

    int childCount() const override { return rowCount() * columnCount(); }
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *focusChild() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface *cellAt(int row, int column) const override;
    int rowCount() const override;
    int columnCount() const override { return rowCount() / 2; }
    QString rowDescription(int) const override { return {}; }
    QString columnDescription(int) const override { return {}; }
    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    int selectedCellCount() const override;
    QList<QAccessibleInterface *> selectedCells() const override;
    // Rows and columns are not chosen.
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *) override {}

private:
    ~BoardTable() override;
    int indexOf(XY square) const;

    struct Cell {
        QAccessible::Id id = 0; // 0: nobody has asked for it yet
        SquareReport told;      // when it was asked for, or told of
    };
    mutable std::vector<Cell> cells_; // as many as the largest board has
};

#endif
