// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"
#include "FileListTableView.h"
#include "PageThread.h"
#include "PagedModel.h"
#include "TableMonkey.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStringListModel>

namespace {

const int mostRows = 40;
const int pagedColumns = 5;

/// Tells what only derived classes may know.
class OpenList : public FileListTableView
{
public:
    bool isHeldBack() const
    {
        return state() == CollapsingState;
    }
};

} // namespace

/// Plays with a file list and its models, and keeps by other means what its button should be like.
class FileListMonkey : public TableMonkey
{
    Q_OBJECT

public:
    explicit FileListMonkey(quint32 seed);
    ~FileListMonkey() override;

protected:
    QTableView *table() const override;
    void look() override;

private Q_SLOTS:
    void notePage(qint64 count, bool completed);
    void noteSession();
    void noteRows(const QModelIndex &parent);
    void noteRequest();

private:
    void startLoading();
    void clickButton();
    void deliver();
    void announceTwice();
    void finishByCall();
    void changeSession();
    void changeSessionByCall();
    void announceFromThread();
    void answerAtOnce();
    void letFormerModelSpeak();

    void removeRows();
    void removePagingRow();
    void changeRow();
    void sortModel();
    void clearModel();
    void changeColumns();
    void replaceModel();
    void takeModelAway();
    void showOtherModel();
    void deleteModel();
    void replaceView();
    void resizeTwice();
    void showSortArrow();

    void forgetModel();
    void deliverToMonkey();
    bool hasPagingRow() const;
    void lookAtButton();
    void lookAtLook();
    void lookAtWidths();

    QPointer<OpenList> view;
    QPointer<PagedModel> model;
    QList<QPointer<PagedModel>> formerModels;
    QStringListModel otherModel;

    // What the view should be in.
    bool attached; ///< To `model`; else its signals are nobody's business.
    bool loading;
    bool hasButton;
    bool isPlaced; ///< The button stands in a cell; it has to wait while there is none.
    QString label;

    bool replacesWhenAsked; ///< The model, from the slot that its request calls.
};

FileListMonkey::FileListMonkey(quint32 seed)
    : TableMonkey(seed)
    , otherModel(QStringList() << "a"
                               << "b")
    , attached(false)
    , loading(false)
    , hasButton(false)
    , isPlaced(false)
    , replacesWhenAsked(false)
{
    replaceView();

    canUseTheTable();
    can(60, "startLoading", &FileListMonkey::startLoading);
    can(100, "clickButton", &FileListMonkey::clickButton);
    can(150, "deliver", &FileListMonkey::deliver);
    can(20, "announceTwice", &FileListMonkey::announceTwice);
    can(10, "finishByCall", &FileListMonkey::finishByCall);
    can(50, "changeSession", &FileListMonkey::changeSession);
    can(10, "changeSessionByCall", &FileListMonkey::changeSessionByCall);
    can(15, "announceFromThread", &FileListMonkey::announceFromThread);
    can(30, "answerAtOnce", &FileListMonkey::answerAtOnce);
    can(30, "letFormerModelSpeak", &FileListMonkey::letFormerModelSpeak);
    can(40, "removeRows", &FileListMonkey::removeRows);
    can(10, "removePagingRow", &FileListMonkey::removePagingRow);
    can(40, "changeRow", &FileListMonkey::changeRow);
    can(40, "sortModel", &FileListMonkey::sortModel);
    can(5, "clearModel", &FileListMonkey::clearModel);
    can(5, "changeColumns", &FileListMonkey::changeColumns);
    can(20, "replaceModel", &FileListMonkey::replaceModel);
    can(8, "takeModelAway", &FileListMonkey::takeModelAway);
    can(3, "showOtherModel", &FileListMonkey::showOtherModel);
    can(8, "deleteModel", &FileListMonkey::deleteModel);
    can(3, "replaceView", &FileListMonkey::replaceView);
    can(10, "resizeTwice", &FileListMonkey::resizeTwice);
    can(5, "showSortArrow", &FileListMonkey::showSortArrow);
}

FileListMonkey::~FileListMonkey()
{
    deliverToMonkey();
    delete view;
    delete model;
    for (const QPointer<PagedModel> &former : formerModels) {
        delete former;
    }
}

QTableView *FileListMonkey::table() const
{
    return view;
}

// What the view should make of what happens

void FileListMonkey::notePage(qint64, bool completed)
{
    loading = false;
    label = QLatin1String(isTranslated() ? "<Common::Next> >>" : "Next >>");
    if (completed && attached) {
        hasButton = false;
    }
}

void FileListMonkey::noteSession()
{
    if (attached) {
        hasButton = true;
        isPlaced = model->columnCount() > 0;
        label = QString();
    }
}

void FileListMonkey::noteRows(const QModelIndex &parent)
{
    if (attached && !parent.isValid() && model->columnCount() > 0) {
        isPlaced = true;
    }
}

void FileListMonkey::noteRequest()
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

void FileListMonkey::startLoading()
{
    const QPointer<PagedModel> asked = model;
    view->StartLoadingData();
    expect(loading || asked != model || (model && model->answersAtOnce >= 0), "no page asked for");
}

void FileListMonkey::clickButton()
{
    replacesWhenAsked = dice.oneIn(20);
    const QList<CellButton *> buttons = buttonsInCells();
    if (!buttons.isEmpty() && buttons.first()->isVisible()) {
        clickOn(buttons.first());
    }
    replacesWhenAsked = false;
}

void FileListMonkey::deliver()
{
    if (model && model->rowCount() < mostRows) {
        model->deliver(dice.below(5), dice.oneIn(4));
    }
}

void FileListMonkey::announceTwice()
{
    if (model) {
        model->announce(dice.between(-1, 5), dice.oneIn(2));
        model->announce(dice.between(-1, 5), dice.oneIn(2));
    }
}

void FileListMonkey::finishByCall()
{
    const bool completed = dice.oneIn(2);
    notePage(0, completed);
    view->FinishLoadingData(0, completed);
}

void FileListMonkey::changeSession()
{
    if (model) {
        model->changeSession();
    }
}

void FileListMonkey::changeSessionByCall()
{
    noteSession();
    view->SessionChanged();
}

void FileListMonkey::announceFromThread()
{
    if (model) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); // one is on its way at most
        PageThread thread(model, dice.oneIn(3), dice.oneIn(2));
        thread.start();
        expect(thread.join(), "a thread that does not end");
    }
}

void FileListMonkey::answerAtOnce()
{
    if (model) {
        model->answersAtOnce = dice.oneIn(2) ? -1 : dice.below(4);
    }
}

void FileListMonkey::letFormerModelSpeak()
{
    formerModels.removeAll(QPointer<PagedModel>());
    if (!formerModels.isEmpty()) {
        const QPointer<PagedModel> former = dice.oneOf(formerModels);
        former->deliver(1, dice.oneIn(2));
        former->changeSession();
        former->LoadItems();
    }
}

void FileListMonkey::removeRows()
{
    const int files = model ? model->rowCount() - (hasButton ? 1 : 0) : 0;
    if (files > 0) {
        const int first = dice.below(files);
        model->removeRows(first, dice.between(1, files - first));
    }
}

void FileListMonkey::removePagingRow()
{
    if (hasPagingRow()) {
        model->removeRow(model->rowCount() - 1);
        hasButton = false;
    }
}

void FileListMonkey::changeRow()
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

void FileListMonkey::sortModel()
{
    if (model) {
        const bool isAscending = dice.oneIn(2);
        model->sort(dice.below(pagedColumns),
                    isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
}

// Not while a button waits for a column: its row would go, and the next one be a file's.
void FileListMonkey::clearModel()
{
    if (model && (isPlaced || !hasButton)) {
        hasButton = false;
        model->clear();
        model->setColumnCount(pagedColumns);
    }
}

void FileListMonkey::changeColumns()
{
    if (model) {
        hasButton = hasButton && !isPlaced;
        model->setColumnCount(0);
        model->setColumnCount(dice.oneIn(4) ? 0 : pagedColumns);
    }
}

void FileListMonkey::replaceModel()
{
    forgetModel();
    model = new PagedModel;
    connect(model, SIGNAL(pageLoaded(qint64,bool)), SLOT(notePage(qint64,bool)));
    connect(model, SIGNAL(dataChanged()), SLOT(noteSession()));
    view->setModel(model);
    connect(model, SIGNAL(rowsInserted(QModelIndex,int,int)), SLOT(noteRows(QModelIndex)));
    attached = true;
    loading = false;
    label = hasButton && !isPlaced ? label : QString();
    hasButton = true;
    isPlaced = true;
}

void FileListMonkey::takeModelAway()
{
    deliverToMonkey();
    if (model) {
        disconnect(model, nullptr, this, nullptr);
    }
    view->setModel(nullptr);
    attached = false;
}

void FileListMonkey::showOtherModel()
{
    forgetModel();
    const bool isNew = view->model() != &otherModel;
    view->setModel(&otherModel);
    loading = loading && !isNew;
    attached = false;
    hasButton = hasButton && !isPlaced;
}

void FileListMonkey::deleteModel()
{
    if (model) {
        delete model;
        attached = false;
        hasButton = hasButton && !isPlaced;
    }
}

void FileListMonkey::replaceView()
{
    forgetModel();
    delete view;
    view = new OpenList;
    connect(view, SIGNAL(requestItems()), SLOT(noteRequest()));
    hasButton = false;
    replaceModel();
    showWindow(view, 400, 200);
}

void FileListMonkey::resizeTwice()
{
    const int width = dice.between(1, 600);
    view->resize(width + 100, 100);
    goThroughEvents();
    view->resize(width, 100);
    goThroughEvents();
    goThroughEvents();
    lookAtWidths();
}

// Switching the sorting on anew shows the arrow, until the next click.
void FileListMonkey::showSortArrow()
{
    view->setSortingEnabled(true);
    if (header()->count() > 0 && header()->sectionSize(1) > 10) {
        QMetaObject::invokeMethod(header(), "sectionClicked", Q_ARG(int, 1));
    } else {
        header()->setSortIndicatorShown(false);
    }
}

void FileListMonkey::forgetModel()
{
    deliverToMonkey();
    if (model) {
        disconnect(model, nullptr, this, nullptr);
        formerModels.append(model);
        if (formerModels.size() > 3) {
            delete formerModels.takeFirst();
        }
    }
    model = nullptr;
}

// What other threads said of a model that goes is heard before it goes.
void FileListMonkey::deliverToMonkey()
{
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

bool FileListMonkey::hasPagingRow() const
{
    return model && view->model() == model && hasButton && isPlaced;
}

// What always holds

void FileListMonkey::look()
{
    lookAtButton();
    lookAtLook();
}

void FileListMonkey::lookAtButton()
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

void FileListMonkey::lookAtLook()
{
    expect(!header()->isSortIndicatorShown(), "a sort arrow is shown");
    expect(!view->isHeldBack(), "the layout is held back for good");
    for (int row = 0; row < rowCount(); ++row) {
        expectEqual(view->rowHeight(row), 18, "row height");
    }
}

void FileListMonkey::lookAtWidths()
{
    const bool hasBar = rowCount() * 18 > view->height();
    const int width = view->width() - (hasBar ? view->verticalScrollBar()->width() : 0);
    const int widths[pagedColumns] = {qMax(0, width - 315), 120, 70, 55, 65};
    for (int column = 0; attached && column < columnCount(); ++column) {
        if (!header()->isSectionHidden(column)) {
            expectEqual(view->columnWidth(column), widths[column], "width of a column");
        }
    }
}

class FileListMonkeyTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void survivesAMonkey_data();
    void survivesAMonkey();
};

void FileListMonkeyTest::survivesAMonkey_data()
{
    addMonkeyRounds();
}

void FileListMonkeyTest::survivesAMonkey()
{
    tolerateWarnings("QItemSelectionModel: "); // on a click when the model is deleted
    // A model of another kind has neither pages nor sessions.
    tolerateWarnings("QObject::connect: No such signal QStringListModel");
    tolerateWarnings("QObject::connect: No such slot QStringListModel");
    tolerateWarnings("Object::connect: No such signal QStringListModel");
    tolerateWarnings("Object::connect: No such slot QStringListModel");
    playMonkeyRound<FileListMonkey>();
}

TESSALINE_TEST_MAIN(FileListMonkeyTest)
#include "tst_filelistmonkey.moc"
