// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PagingMonkey.h"

#include "CellButton.h"
#include "PageThread.h"

namespace {

const int mostRows = 40;

} // namespace

PagingMonkey::PagingMonkey(quint32 seed)
    : TableMonkey(seed)
    , attached(false)
    , loading(false)
    , hasButton(false)
    , isPlaced(false)
    , replacesWhenAsked(false)
{
}

PagingMonkey::~PagingMonkey()
{
    delete model;
    for (const QPointer<PagedModel> &former : formerModels) {
        delete former;
    }
}

void PagingMonkey::canPage()
{
    can(60, "startLoading", &PagingMonkey::startLoading);
    can(100, "clickButton", &PagingMonkey::clickButton);
    can(150, "deliver", &PagingMonkey::deliver);
    can(20, "announceTwice", &PagingMonkey::announceTwice);
    can(10, "finishByCall", &PagingMonkey::finishByCall);
    can(50, "changeSession", &PagingMonkey::changeSession);
    can(10, "changeSessionByCall", &PagingMonkey::changeSessionByCall);
    can(15, "announceFromThread", &PagingMonkey::announceFromThread);
    can(30, "answerAtOnce", &PagingMonkey::answerAtOnce);
    can(30, "letFormerModelSpeak", &PagingMonkey::letFormerModelSpeak);
    can(40, "removeRows", &PagingMonkey::removeRows);
    can(10, "removePagingRow", &PagingMonkey::removePagingRow);
    can(40, "changeRow", &PagingMonkey::changeRow);
    can(40, "sortModel", &PagingMonkey::sortModel);
    can(5, "clearModel", &PagingMonkey::clearModel);
    can(5, "changeColumns", &PagingMonkey::changeColumns);
}

// What the view should make of what happens

void PagingMonkey::notePage(qint64, bool completed)
{
    loading = false;
    label = QLatin1String(isTranslated() ? "<Common::Next> >>" : "Next >>");
    if (completed && attached) {
        hasButton = false;
    }
}

void PagingMonkey::noteSession()
{
    if (attached) {
        hasButton = true;
        isPlaced = model->columnCount() > 0;
        label = QString();
    }
}

void PagingMonkey::noteRows(const QModelIndex &parent)
{
    if (attached && !parent.isValid() && model->columnCount() > 0) {
        isPlaced = true;
    }
}

void PagingMonkey::noteRequest()
{
    expect(!loading, "a page was asked for twice");
    loading = true;
    label = QLatin1String(isTranslated() ? "<loading...>" : "loading...");
    if (replacesWhenAsked) {
        replacesWhenAsked = false;
        replaceModel();
    }
}

// What an application and its models do

void PagingMonkey::startLoading()
{
    const QPointer<PagedModel> asked = model;
    view->StartLoadingData();
    expect(loading || asked != model || (model && model->answersAtOnce >= 0), "no page asked for");
}

void PagingMonkey::clickButton()
{
    replacesWhenAsked = dice.oneIn(20);
    const QList<CellButton *> buttons = buttonsInCells();
    if (!buttons.isEmpty() && buttons.first()->isVisible()) {
        clickOn(buttons.first());
    }
    replacesWhenAsked = false;
}

void PagingMonkey::deliver()
{
    if (model && model->rowCount() < mostRows) {
        model->deliver(dice.below(5), dice.oneIn(4));
    }
}

void PagingMonkey::announceTwice()
{
    if (model) {
        model->announce(dice.between(-1, 5), dice.oneIn(2));
        model->announce(dice.between(-1, 5), dice.oneIn(2));
    }
}

void PagingMonkey::finishByCall()
{
    const bool completed = dice.oneIn(2);
    notePage(0, completed);
    view->FinishLoadingData(0, completed);
}

void PagingMonkey::changeSession()
{
    if (model) {
        model->changeSession();
    }
}

void PagingMonkey::changeSessionByCall()
{
    noteSession();
    view->SessionChanged();
}

void PagingMonkey::announceFromThread()
{
    if (model) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); // one is on its way at most
        PageThread thread(model, dice.oneIn(3), dice.oneIn(2));
        thread.start();
        expect(thread.join(), "a thread that does not end");
    }
}

void PagingMonkey::answerAtOnce()
{
    if (model) {
        model->answersAtOnce = dice.oneIn(2) ? -1 : dice.below(4);
    }
}

void PagingMonkey::letFormerModelSpeak()
{
    formerModels.removeAll(QPointer<PagedModel>());
    if (!formerModels.isEmpty()) {
        const QPointer<PagedModel> former = dice.oneOf(formerModels);
        former->deliver(1, dice.oneIn(2));
        former->changeSession();
        former->LoadItems();
    }
}

void PagingMonkey::removeRows()
{
    const int files = model ? model->rowCount() - (hasButton ? 1 : 0) : 0;
    if (files > 0) {
        const int first = dice.below(files);
        model->removeRows(first, dice.between(1, files - first));
    }
}

void PagingMonkey::removePagingRow()
{
    if (hasPagingRow()) {
        model->removeRow(model->rowCount() - 1);
        hasButton = false;
    }
}

void PagingMonkey::changeRow()
{
    if (!model || model->rowCount() == 0) {
        return;
    }
    QStandardItem *item = model->item(dice.below(model->rowCount()), 0);
    if (item && dice.oneIn(20)) {
        while (item->rowCount() < model->rowCount()) {
            item->appendRow(new QStandardItem("child"));
        }
    } else if (item) {
        item->setText(QString::number(dice.below(1000)));
    }
}

void PagingMonkey::sortModel()
{
    if (model) {
        const bool isAscending = dice.oneIn(2);
        model->sort(dice.below(pagedColumns),
                    isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
}

// Not while a button waits for a column: its row would go, and the next one be a file's.
void PagingMonkey::clearModel()
{
    if (model && (isPlaced || !hasButton)) {
        hasButton = false;
        model->clear();
        model->setColumnCount(pagedColumns);
    }
}

void PagingMonkey::changeColumns()
{
    if (model) {
        hasButton = hasButton && !isPlaced;
        model->setColumnCount(0);
        model->setColumnCount(dice.oneIn(4) ? 0 : pagedColumns);
    }
}

// What always holds

bool PagingMonkey::hasPagingRow() const
{
    return model && view->model() == model && hasButton && isPlaced;
}

void PagingMonkey::lookAtButton()
{
    const QList<CellButton *> buttons = buttonsInCells();
    const int expected = hasPagingRow() ? 1 : 0;
    expectEqual(static_cast<int>(buttons.size()), expected, "paging buttons");
    if (buttons.size() == 1 && expected == 1) {
        const CellButton *button = buttons.first();
        expectEqual(button->index.row(), model->rowCount() - 1, "row of the button");
        expectEqual(button->index.column(), 0, "column of the button");
        expectEqual(button->text(), label, "label");
        expect(button->isEnabled(), "button disabled");
    }
}

// Not among those of all support: only this monkey's test is linked with the list.
#include "moc_PagingMonkey.cpp"
