// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ColumnMonkey.h"

#include "CellButton.h"
#include "TestCompat.h"
#include "ViewHelpers.h"

#include <QSortFilterProxyModel>
#include <QStringListModel>

namespace {

const int mostDeclarations = 7;

const ColumnKind kinds[] = {{"combobox", "ComboItemDelegate", false},
                            {"editcombobox", "EditComboItemDelegate", false},
                            {"editbox", "EditItemDelegate", false},
                            {" EditBox ", "EditItemDelegate", false},
                            {"passwordbox", "PasswordItemDelegate", false},
                            {"checkbox:Verify", "CheckItemDelegate", false},
                            {"button:Go", nullptr, true},
                            {"BUTTON : L\xf6schen:%1", nullptr, true},
                            {"", nullptr, false},
                            {"nonsense:button", nullptr, false}};
const int kindCount = sizeof(kinds) / sizeof(kinds[0]);

} // namespace

ColumnMonkey::ColumnMonkey(quint32 seed)
    : SectionMonkey(seed)
    , clicks(0)
    , proxy(nullptr)
{
}

ColumnMonkey::~ColumnMonkey()
{
    delete list;
}

void ColumnMonkey::canDeclareColumns()
{
    can(15, "declareColumns", &ColumnMonkey::declareColumns);
    can(15, "bindList", &ColumnMonkey::bindList);
    can(10, "replaceModel", &ColumnMonkey::replaceModel);
    can(3, "showSorted", &ColumnMonkey::showSorted);
    can(3, "setModelAgain", &ColumnMonkey::setModelAgain);
    can(2, "takeModelAway", &ColumnMonkey::takeModelAway);
    can(4, "deleteModel", &ColumnMonkey::deleteModel);
    can(2, "replaceView", &ColumnMonkey::replaceView);
}

// What the application hears

void ColumnMonkey::noteRows(const QModelIndex &parent, int start)
{
    for (int column = 0; !parent.isValid() && column < declared.size(); ++column) {
        if (kindOf(column)->isButton) {
            expectButton(start, column);
        }
    }
}

void ColumnMonkey::noteReset()
{
    withButton.clear();
}

void ColumnMonkey::noteWrite(const QModelIndex &cell)
{
    react(cell.row());
}

void ColumnMonkey::noteClick(QWidget *button, int row, int column, const QStringList &rowData)
{
    ++clicks;
    expect(button && view->button(row, column) == button, "a click from elsewhere");
    QStringList texts;
    for (int i = 0; i < declared.size(); ++i) {
        if (kindOf(i)->delegate) {
            texts.append(view->model()->index(row, i).data(Qt::EditRole).toString());
        }
    }
    expectEqual(rowData, texts, "texts of a click");
    react(row);
}

// What the application does

void ColumnMonkey::declareColumns()
{
    QList<int> chosen;
    QStringList declarations;
    for (int left = dice.below(mostDeclarations); left > 0; --left) {
        chosen.append(dice.below(kindCount));
        declarations.append(QString::fromLatin1(kinds[chosen.last()].declaration));
    }
    view->setColumns(declarations);
    declared = chosen; // only now: what is committed may bring about other declarations before
    expectEqual(view->getColumns(), declarations, "declarations");
}

void ColumnMonkey::bindList()
{
    if (list && dice.oneIn(3)) {
        delete list;
    }
    if (!list) {
        list = new QStringListModel(QStringList() << "a"
                                                  << "b");
    }
    view->bindModel(dice.between(-1, mostDeclarations), list, dice.between(-1, 1));
}

// The old model goes later: it may be the one that called.
void ColumnMonkey::replaceModel()
{
    if (grid) {
        grid->deleteLater();
    }
    grid = createGrid();
    show(grid);
}

void ColumnMonkey::showSorted()
{
    if (grid) {
        QSortFilterProxyModel *former = proxy;
        proxy = new QSortFilterProxyModel(this);
        proxy->setSourceModel(grid);
        proxy->setDynamicSortFilter(dice.oneIn(2));
        proxy->sort(dice.below(2));
        show(proxy);
        delete former;
    }
}

void ColumnMonkey::setModelAgain()
{
    if (view->model()) {
        show(view->model());
    }
}

void ColumnMonkey::takeModelAway()
{
    show(nullptr);
}

void ColumnMonkey::deleteModel()
{
    if (view->model() == grid) {
        compat::deleteModel(grid, view);
    }
}

void ColumnMonkey::replaceView()
{
    if (view) {
        show(nullptr);
    }
    delete view;
    view = new OpenTable;
    connect(view,
            SIGNAL(buttonClicked(QWidget*,int,int,QStringList)),
                   SLOT(noteClick(QWidget*,int,int,QStringList)));
    declareColumns();
    replaceModel();
    showWindow(view, 400, 200);
}

// How it is done, and what to look at

void ColumnMonkey::show(QAbstractItemModel *model)
{
    QList<QPersistentModelIndex> free;
    QList<QPersistentModelIndex> edited; // of which some may get free now
    const bool isNew = model != view->model();
    for (int row = 0; model && row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex cell = model->index(row, column);
            const ColumnKind *kind = kindOf(column);
            if (kind && kind->isButton && !(buttonAt(cell) && !isNew)) {
                const bool isFree = isNew || !view->indexWidget(cell);
                (isFree ? free : edited).append(cell);
            }
        }
    }
    if (isNew) {
        withButton.clear();
        if (view->model()) {
            disconnect(view->model(), nullptr, this, nullptr);
        }
    }
    view->setModel(model);
    if (model && isNew) {
        connect(model, SIGNAL(rowsInserted(QModelIndex,int,int)), SLOT(noteRows(QModelIndex,int)));
        connect(model, SIGNAL(modelReset()), SLOT(noteReset()));
        connect(model, SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(noteWrite(QModelIndex)));
    }
    withButton += free;
    for (const QPersistentModelIndex &cell : edited) {
        if (buttonAt(cell)) {
            withButton.append(cell);
        }
    }
}

void ColumnMonkey::expectButton(int row, int column)
{
    const QPersistentModelIndex cell = view->model()->index(row, column);
    if (cell.isValid()) {
        withButton.append(cell);
    }
}

void ColumnMonkey::lookAtButtons()
{
    int expected = 0;
    for (int i = static_cast<int>(withButton.size()) - 1; i >= 0; --i) {
        if (!withButton.at(i).isValid()) {
            withButton.removeAt(i);
        } else {
            ++expected;
            expect(buttonAt(withButton.at(i)), "a button is missing");
        }
    }
    expectEqual(static_cast<int>(buttonsInCells().size()), expected, "buttons");
}

void ColumnMonkey::lookAtDelegates()
{
    for (int column = 0; column < mostDeclarations; ++column) {
        const ColumnKind *kind = kindOf(column);
        const QAbstractItemDelegate *delegate = view->itemDelegateForColumn(column);
        const char *name = delegate ? delegate->metaObject()->className() : nullptr;
        expectEqual(QString::fromLatin1(name), QString::fromLatin1(kind ? kind->delegate : nullptr),
                    "delegate");
    }
}

// Only Qt's own delegate, that of plain columns, takes a cell of the former model for one of this.
void ColumnMonkey::lookAtWrites()
{
    const int column = grid ? grid->takeForeignColumn() : -1;
    const ColumnKind *kind = column < 0 ? nullptr : kindOf(column);
    expect(!kind || !kind->delegate, "a cell of another model was written");
}

const ColumnKind *ColumnMonkey::kindOf(int column) const
{
    return column < declared.size() ? &kinds[declared.at(column)] : nullptr;
}

// Not among those of all support: only this monkey's test is linked with the table.
#include "moc_ColumnMonkey.cpp"
