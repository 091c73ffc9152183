// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileListTableView.h"

#include "ButtonFocus.h"
#include "CellButton.h"
#include "QtCompat.h"

#include <QAbstractItemDelegate>
#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>

namespace {

// In pixels. The fixed columns need 310; 5 more are left free beside the first one.
const int fixedWidths[] = {120, 70, 55, 65};
const int reservedWidth = 315;
const int initialFirstWidth = 320;
const int fixedHeight = 18;

} // namespace

FileListTableView::FileListTableView(QWidget *parent)
    : QTableView(parent)
    , loading(false)
    , lastWidth(0)
    , fixedRowHeight(fixedHeight)
    , attached(false)
    , detaching(false)
    , startPutOff(false)
{
    compat::setSectionResizeMode(horizontalHeader(), QHeaderView::Interactive);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSortIndicatorShown(false);
    connect(horizontalHeader(), SIGNAL(sectionClicked(int)), SLOT(SortByColumn(int)));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    verticalHeader()->hide();
    // Since Qt 5 the style's minimum, which is higher, would win.
    verticalHeader()->setMinimumSectionSize(fixedRowHeight);
    verticalHeader()->setDefaultSectionSize(fixedRowHeight);
    setWordWrap(false);
    setShowGrid(false);
    setSortingEnabled(true);
}

FileListTableView::~FileListTableView()
{
    delete nextButton;
}

// clazy:excludeall=connect-not-normalized (the signatures are written as the models declare them)
void FileListTableView::setModel(QAbstractItemModel *model)
{
    const QPointer<FileListTableView> self(this);
    detach(model);
    if (!self) {
        return; // a call that was on its way was to delete it
    }
    standardModel = qobject_cast<QStandardItemModel *>(model);
    attached = standardModel;
    if (!model) {
        return; // on purpose without the base class: what is shown stays
    }
    if (model != this->model()) {
        loading = false; // what another model was asked for does not come any more
    }
    QTableView::setModel(model);
    horizontalHeader()->setSortIndicatorShown(false);
    setWidths(initialFirstWidth);
    connect(model, SIGNAL(pageLoaded(qint64, bool)), SLOT(FinishLoadingData(qint64, bool)));
    connect(model, SIGNAL(dataChanged()), SLOT(SessionChanged()));
    connect(this, SIGNAL(requestItems()), model, SLOT(LoadItems()));
    if (!standardModel) {
        // It is shown without paging, whatever it offers: nothing would cut it off again.
        disconnect(model, nullptr, this, SLOT(FinishLoadingData(qint64, bool)));
        disconnect(model, nullptr, this, SLOT(SessionChanged()));
        disconnect(this, SIGNAL(requestItems()), model, nullptr);
    }
    AddButtons();
}

void FileListTableView::rowsInserted(const QModelIndex &rParentIndex, int start, int end)
{
    // With a widget in one of its cells the base class would lay out all rows at each insertion.
    // Held back, that is done once, when the event loop turns, however many pages came.
    const State current = state();
    if (compat::collapsingHoldsLayout) {
        setState(CollapsingState);
    }
    QAbstractItemView::rowsInserted(rParentIndex, start, end);
    setState(current);

    forgetReleasedButton();
    if (!standardModel || !nextButton || rParentIndex.isValid()) {
        return; // rows below another row are not in the list
    }
    const QModelIndex cell = model()->index(standardModel->rowCount() - 1, 0, rParentIndex);
    const bool isInPlace = nextButton->index == cell; // as when a page came in before its row
    if (!cell.isValid() || isInPlace || indexWidget(cell)) {
        return;
    }
    if (nextButton->parentWidget()) {
        // A view can't move a widget from cell to cell, so the old one gives way to its like.
        const QModelIndex previous = nextButton->index;
        createButton(nextButton->text());
        setIndexWidget(previous, nullptr);
    }
    nextButton->index = cell;
    setIndexWidget(cell, nextButton);
    // Since Qt 5 the view would scroll to a button that gets the focus, under the user's mouse.
    nextButton->removeEventFilter(this);
}

void FileListTableView::StartLoadingData()
{
    if (detaching) {
        startPutOff = true;
        return;
    }
    if (loading) {
        return;
    }
    loading = true;
    if (nextButton) {
        nextButton->setText(tr("loading..."));
    }
    emit requestItems(); // the model may answer at once, and the button be gone
}

void FileListTableView::FinishLoadingData(qint64, bool completed)
{
    loading = false;
    // A key rather than a text, on purpose: without a translation a plain word takes its place.
    QString label = tr("Common::Next");
    if (label == QLatin1String("Common::Next")) {
        label = QLatin1String("Next");
    }
    if (nextButton) {
        nextButton->setText(label + QLatin1String(" >>"));
    }
    const QPointer<FileListTableView> self(this);
    if (completed) {
        RemoveButtons();
    }
    if (self) { // a slot that heard of the removal may have deleted it
        AdjustColumnswidth();
    }
}

// A slot that hears of the rows may set another model, whose rows are none of this session's, or
// delete the list.
void FileListTableView::SessionChanged()
{
    const QPointer<FileListTableView> self(this);
    const QPointer<QStandardItemModel> changed = standardModel;
    const auto goesOn = [self, changed]() {
        return self && changed && self->standardModel == changed;
    };
    RemoveButtons();
    if (goesOn()) {
        changed->removeRows(0, changed->rowCount());
    }
    if (goesOn()) {
        AddButtons();
    }
    if (goesOn() && !detaching) {
        StartLoadingData();
    }
}

void FileListTableView::SortByColumn(int)
{
    horizontalHeader()->setSortIndicatorShown(false);
}

void FileListTableView::detach(const QAbstractItemModel *next)
{
    if (standardModel) {
        disconnect(standardModel,
                   SIGNAL(pageLoaded(qint64, bool)), this, SLOT(FinishLoadingData(qint64, bool)));
        disconnect(standardModel, SIGNAL(dataChanged()), this, SLOT(SessionChanged()));
        disconnect(this, SIGNAL(requestItems()), standardModel, SLOT(LoadItems()));
    }
    if (attached && (!next || next != standardModel)) {
        receiveQueuedCalls();
    }
}

// What the old model said from another thread is for it, and must not come late. Nobody is left to
// be asked for a page, though: one that the application wants is the next model's.
void FileListTableView::receiveQueuedCalls()
{
    const QPointer<FileListTableView> self(this);
    detaching = true;
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    if (!self) {
        return;
    }
    detaching = false;
    if (startPutOff) {
        startPutOff = false;
        QMetaObject::invokeMethod(this, "StartLoadingData", Qt::QueuedConnection);
    }
}

void FileListTableView::AddButtons()
{
    if (!standardModel) {
        return;
    }
    forgetReleasedButton();
    if (!nextButton) {
        createButton(QString());
    }
    standardModel->appendRow(QList<QStandardItem *>());
}

void FileListTableView::RemoveButtons()
{
    forgetReleasedButton();
    if (!nextButton || !standardModel) {
        return;
    }
    const int row = nextButton->index.row();
    disconnect(nextButton, SIGNAL(clicked()), this, SLOT(StartLoadingData()));
    // The view holds on to the deleted button until its row goes: nothing may come between.
    delete nextButton;
    standardModel->removeRows(row, 1);
}

void FileListTableView::AdjustColumnswidth()
{
    if (!standardModel) {
        return;
    }
    int width = rect().width();
    // Header and frame are left out of account, on purpose.
    if (standardModel->rowCount() * fixedRowHeight > rect().height()) {
        width -= verticalScrollBar()->width();
    }
    if (width != lastWidth) {
        lastWidth = width;
        setWidths(width - reservedWidth);
    }
}

void FileListTableView::resizeEvent(QResizeEvent *event)
{
    AdjustColumnswidth();
    // On purpose not the item view's. NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QWidget::resizeEvent(event);
}

bool FileListTableView::event(QEvent *event)
{
    if (ButtonFocus::isTaken(*this, *event)) {
        // All but the item view's part. NOLINTNEXTLINE(bugprone-parent-virtual-call)
        return QAbstractScrollArea::event(event);
    }
    return QTableView::event(event);
}

void FileListTableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const ButtonFocus::Disguise disguise(this);
    QTableView::closeEditor(editor, hint);
}

void FileListTableView::createButton(const QString &text)
{
    nextButton = new CellButton(text, false, nullptr);
    connect(nextButton, SIGNAL(clicked()), SLOT(StartLoadingData()));
}

// A button that the view has released, as after a reset of the model, is hidden and about to be
// deleted; one whose column went it releases with the next layout, and until then must find it
// alive. A button without a parent has not been given to the view yet.
void FileListTableView::forgetReleasedButton()
{
    if (nextButton && nextButton->parentWidget() && indexWidget(nextButton->index) != nextButton) {
        disconnect(nextButton, SIGNAL(clicked()), this, SLOT(StartLoadingData()));
        nextButton = nullptr;
    }
}

void FileListTableView::setWidths(int firstColumn)
{
    int column = 0;
    compat::resizeSection(horizontalHeader(), column, firstColumn);
    for (int width : fixedWidths) {
        compat::resizeSection(horizontalHeader(), ++column, width);
    }
}
