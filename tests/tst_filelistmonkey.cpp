// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PagingMonkey.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStringListModel>

/// Plays with a file list: shows it other models, and looks at its columns.
class FileListMonkey : public PagingMonkey
{
public:
    explicit FileListMonkey(quint32 seed);
    ~FileListMonkey() override;

protected:
    QTableView *table() const override;
    void look() override;

private:
    void replaceModel() override;
    void takeModelAway();
    void showOtherModel();
    void deleteModel();
    void replaceView();
    void resizeTwice();
    void showSortArrow();

    void forgetModel();
    void deliverToMonkey();
    void lookAtLook();
    void lookAtWidths();

    QStringListModel otherModel;
};

FileListMonkey::FileListMonkey(quint32 seed)
    : PagingMonkey(seed)
    , otherModel(QStringList() << "a"
                               << "b")
{
    replaceView();

    canUseTheTable();
    canPage();
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
}

QTableView *FileListMonkey::table() const
{
    return view;
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

// What always holds

void FileListMonkey::look()
{
    lookAtButton();
    lookAtLook();
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
