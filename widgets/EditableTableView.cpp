// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditableTableView.h"

#include "ButtonFocus.h"
#include "CellButton.h"
#include "CheckItemDelegate.h"
#include "ColumnDeclaration.h"
#include "EditComboItemDelegate.h"
#include "OpenEditors.h"
#include "PasswordItemDelegate.h"
#include "QtCompat.h"
#include "SectionSizing.h"

#include <QAbstractItemDelegate>
#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QHeaderView>
#include <QItemDelegate>
#include <QPointer>

namespace {

// None has a parent: delegates live from one setColumns() to the next, whatever becomes of the
// view.
QItemDelegate *createDelegate(const ColumnDeclaration &declaration)
{
    switch (declaration.type) {
    case ColumnDeclaration::Combo:
        return new ComboItemDelegate;
    case ColumnDeclaration::EditCombo:
        return new EditComboItemDelegate;
    case ColumnDeclaration::Edit:
        return new EditItemDelegate;
    case ColumnDeclaration::Password:
        return new PasswordItemDelegate;
    case ColumnDeclaration::Check:
        return new CheckItemDelegate(declaration.text);
    case ColumnDeclaration::Button:
    case ColumnDeclaration::Plain:
        break;
    }
    return nullptr;
}

} // namespace

// Columns

EditableTableView::EditableTableView(QWidget *parent)
    : QTableView(parent)
    , stretchSection(0)
    , resizing(false)
{
    connect(horizontalHeader(),
            SIGNAL(sectionResized(int,int,int)), SLOT(sectionResized(int,int,int)));
    connect(this, SIGNAL(resizeView()), SLOT(resized()));

    horizontalHeader()->setStretchLastSection(false);
    compat::setSectionResizeMode(horizontalHeader(), QHeaderView::Interactive);
    horizontalHeader()->setHighlightSections(false);
    compat::setSectionsClickable(horizontalHeader(), false);
    verticalHeader()->hide();
}

EditableTableView::~EditableTableView() = default;

QStringList EditableTableView::getColumns() const
{
    return columns;
}

void EditableTableView::setColumns(const QStringList &declarations)
{
    const QPointer<EditableTableView> self(this);
    finishEditing();
    if (!self) { // a slot that heard of a commit has deleted it
        return;
    }
    columns = declarations;
    discardDelegates();
    for (int column = 0; column < columns.size(); ++column) {
        declareColumn(column, columns.at(column));
    }
}

int EditableTableView::getStretchSection() const
{
    return stretchSection;
}

void EditableTableView::setStretchSection(int section)
{
    stretchSection = section;
}

void EditableTableView::setModel(QAbstractItemModel *model)
{
    if (model && model == this->model()) {
        // With a layout to come, the base class does not place all widgets anew for each row.
        scheduleDelayedItemsLayout();
    }
    QTableView::setModel(model);
    const int rowCount = model ? model->rowCount() : 0;
    for (int row = 0; row < rowCount; ++row) {
        rowsInserted(QModelIndex(), row, row);
    }
}

void EditableTableView::setHorizontalHeaderClickable(bool clickable)
{
    compat::setSectionsClickable(horizontalHeader(), clickable);
}

void EditableTableView::finishEditing()
{
    OpenEditors::finish(this, delegates, [this](QWidget *editor) {
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    });
}

void EditableTableView::discardDelegates()
{
    const QMap<int, QItemDelegate *> discarded = delegates;
    delegates.clear();
    buttonCaptions.clear();
    for (auto entry = discarded.begin(); entry != discarded.end(); ++entry) {
        // The view would follow a deleted delegate at the next paint, so it must let go first.
        if (itemDelegateForColumn(entry.key()) == entry.value()) {
            setItemDelegateForColumn(entry.key(), nullptr);
        }
        OpenEditors::discard(entry.value(), *this);
    }
}

void EditableTableView::declareColumn(int column, const QString &declaration)
{
    const ColumnDeclaration declared(declaration);
    if (declared.type == ColumnDeclaration::Button) {
        buttonCaptions.insert(column, declared.text);
    } else if (QItemDelegate *delegate = createDelegate(declared)) {
        delegates.insert(column, delegate);
        setItemDelegateForColumn(column, delegate);
    }
}

// Sections

void EditableTableView::resizeEvent(QResizeEvent *event)
{
    QAbstractItemView::resizeEvent(event);
    emit resizeView();
}

void EditableTableView::resizeSection(int section, int size)
{
    resizing = true;
    compat::resizeSection(horizontalHeader(), section, size);
    resizing = false;
}

void EditableTableView::resized()
{
    resize(stretchSection);
}

void EditableTableView::sectionResized(int index, int, int)
{
    const int count = model() ? model()->columnCount() : 0;
    resize(SectionSizing::absorberOf(*horizontalHeader(), index, count));
}

void EditableTableView::resize(int section)
{
    // Without a model the header may still report sections, while a model comes or goes.
    if (resizing || !model() || horizontalHeader()->visualIndex(section) == -1) {
        return;
    }
    resizing = true; // by now: to tell a size the header may carry out a resize that it put off
    const int count = model()->columnCount();
    const int size = SectionSizing::absorbingWidth(*horizontalHeader(), section, count);
    compat::resizeSection(horizontalHeader(), section, size);
    resizing = false;
}

// Buttons and binding

void EditableTableView::bindModel(int columnIndex, QObject *model, int modelColumn)
{
    ComboItemDelegate *delegate = qobject_cast<ComboItemDelegate *>(delegates.value(columnIndex));
    QAbstractItemModel *items = qobject_cast<QAbstractItemModel *>(model);
    if (delegate && (items || !model)) {
        delegate->bindModel(items, modelColumn);
    }
}

QWidget *EditableTableView::button(int row, int column)
{
    return model() ? indexWidget(model()->index(row, column)) : nullptr;
}

void EditableTableView::updateEditorGeometries()
{
    if (!compat::layoutPrecedesEditors) {
        executeDelayedItemsLayout();
    }
    QTableView::updateEditorGeometries();
}

bool EditableTableView::event(QEvent *event)
{
    if (ButtonFocus::isTaken(*this, *event)) {
        // All but the item view's part. NOLINTNEXTLINE(bugprone-parent-virtual-call)
        return QAbstractScrollArea::event(event);
    }
    return QTableView::event(event);
}

void EditableTableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const ButtonFocus::Disguise disguise(this);
    QTableView::closeEditor(editor, hint);
}

void EditableTableView::rowsInserted(const QModelIndex &parent, int start, int end)
{
    // Each button posts a layout of the whole view, and the base class would carry out the one that
    // the previous row posted: quadratic in a view that is shown. Held back, it is done once, when
    // the event loop turns.
    const State current = state();
    if (compat::collapsingHoldsLayout) {
        setState(CollapsingState);
    }
    QAbstractItemView::rowsInserted(parent, start, end);
    setState(current);

    for (auto caption = buttonCaptions.begin(); caption != buttonCaptions.end(); ++caption) {
        const QModelIndex cell
            = model() ? model()->index(start, caption.key(), parent) : QModelIndex();
        if (cell.isValid() && !indexWidget(cell)) {
            addButton(caption.key(), cell);
        }
    }
}

void EditableTableView::rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end)
{
    setTabKeyNavigation(false); // for good: nothing switches it on again, on purpose
    QAbstractItemView::rowsAboutToBeRemoved(parent, start, end);
}

void EditableTableView::buttonClicked()
{
    CellButton *source = dynamic_cast<CellButton *>(sender());
    // Until it is deleted, the button of a model that was replaced can still be released.
    if (!source || !source->index.isValid() || source->index.model() != model()) {
        return;
    }
    const QPersistentModelIndex cell = source->index;
    emit buttonClicked(source, cell.row(), cell.column(), rowData(cell));
}

void EditableTableView::addButton(int column, const QModelIndex &cell)
{
    const QString caption = tr(compat::trSource(buttonCaptions.value(column)).constData());
    CellButton *button = new CellButton(caption, true, nullptr);
    connect(button, SIGNAL(clicked()), SLOT(buttonClicked()));
    button->setAccessibleDescription(QLatin1String("EditableTableViewButton column")
                                     + QString::number(column));
    button->index = cell;
    // A size of its own, even none, saves a size hint that the layout would throw away.
    button->resize(0, 0);
    setIndexWidget(cell, button);
    // Since Qt 5 the view would make the cell of a button that gets the focus current, and scroll
    // to it under the mouse. A click is only to be reported.
    button->removeEventFilter(this);
    // What was posted to the button so far is done or moot: it is polished, and too small to paint.
    // Left there it makes Qt search an ever longer queue, once a button.
    QCoreApplication::removePostedEvents(button);
}

QStringList EditableTableView::rowData(const QModelIndex &cell) const
{
    QStringList texts;
    for (auto entry = delegates.begin(); entry != delegates.end(); ++entry) {
        const QModelIndex sibling = cell.sibling(cell.row(), entry.key());
        texts.append(compat::text(sibling.data(Qt::EditRole)));
    }
    return texts;
}
