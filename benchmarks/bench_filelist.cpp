// SPDX-License-Identifier: LGPL-3.0-or-later
// What a page costs that arrives in a FileListTableView which already holds many rows, beside a
// plain table view, without a button, whose model gets the same rows.
#include "RatioReporter.h"
#include "settle.h"

#include <FileListTableView.h>

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>

#include <array>
#include <map>
#include <memory>

namespace {

const int columns = 5;
const int pageRows = 1000;
const int fixedWidths[] = {120, 70, 55, 65};

/// A page in one insertion of rows without items, or each row with its items, as a simple
/// application inserts them.
enum class Insertion { AtOnce, RowByRow };

enum class Position { Top, End };

/// What of a page is measured: all until it is painted, or the insertion alone, as a model sees it.
enum class Extent { UntilPainted, InsertionAlone };

} // namespace

/// A list of files without an item per cell, so that as little as possible of what is measured is
/// the model's own doing.
class FileModel : public QStandardItemModel
{
    Q_OBJECT

public:
    FileModel()
        : QStandardItemModel(0, columns)
        , insertion(Insertion::AtOnce)
    {
        for (int i = 0; i < pageRows; ++i) {
            texts.push_back({{QStringLiteral("photograph-%1.jpg").arg(i),
                              QStringLiteral("2021-03-%1 10:20").arg(i % 28 + 1),
                              QStringLiteral("%1 KB").arg(i), QStringLiteral("copied"),
                              QStringLiteral("0644")}});
        }
    }

    void appendEmptyRow()
    {
        appendRow(QList<QStandardItem *>());
    }

    void insertFiles(int count)
    {
        for (int i = 0; i < count; ++i) {
            files.push_back(static_cast<int>(files.size()) % pageRows);
        }
        if (insertion == Insertion::AtOnce) {
            insertRows(rowCount() - 1, count);
            return;
        }
        for (int i = 0; i < count; ++i) {
            QList<QStandardItem *> items;
            for (const QString &text : texts[static_cast<std::size_t>(i % pageRows)]) {
                items.append(new QStandardItem(text));
            }
            insertRow(rowCount() - 1, items);
        }
    }

    void removePage()
    {
        removeRows(rowCount() - 1 - pageRows, pageRows);
        files.resize(files.size() - pageRows);
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const std::size_t row = static_cast<std::size_t>(index.row());
        if (role != Qt::DisplayRole || row >= files.size()) {
            return QVariant();
        }
        const std::array<QString, columns> &fileTexts = texts[static_cast<std::size_t>(files[row])];
        return fileTexts[static_cast<std::size_t>(index.column())];
    }

    Insertion insertion;

public Q_SLOTS:
    void LoadItems()
    {
        insertFiles(pageRows);
        emit pageLoaded(pageRows, false);
    }

Q_SIGNALS:
    void pageLoaded(qint64 count, bool completed);
    void dataChanged();

private:
    std::vector<std::array<QString, columns>> texts;
    std::vector<int> files; ///< Which of the texts a row has.
};

namespace {

/// Our list.
class PagedList : public FileListTableView
{
public:
    void fill(FileModel *model, int rowCount)
    {
        setModel(model);
        model->insertFiles(rowCount);
    }

    void loadPage(FileModel *)
    {
        StartLoadingData();
    }
};

/// The baseline: a table view that is set up the same way, once and for all.
class PlainList : public QTableView
{
public:
    void fill(FileModel *model, int rowCount)
    {
        horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
        horizontalHeader()->setHighlightSections(false);
        setEditTriggers(QAbstractItemView::NoEditTriggers);
        setSelectionMode(QAbstractItemView::NoSelection);
        setSelectionBehavior(QAbstractItemView::SelectRows);
        verticalHeader()->hide();
        verticalHeader()->setMinimumSectionSize(18);
        verticalHeader()->setDefaultSectionSize(18);
        setWordWrap(false);
        setShowGrid(false);
        setSortingEnabled(true);

        setModel(model);
        horizontalHeader()->setSortIndicatorShown(false);
        horizontalHeader()->resizeSection(0, width() - verticalScrollBar()->width() - 315);
        int column = 0;
        for (int sectionWidth : fixedWidths) {
            horizontalHeader()->resizeSection(++column, sectionWidth);
        }
        model->appendEmptyRow();
        model->insertFiles(rowCount);
    }

    void loadPage(FileModel *model)
    {
        model->LoadItems();
    }
};

/// A view on so many rows. It has had a page before, so nothing is done for the first time.
template <class View> class ShownList
{
public:
    explicit ShownList(int rowCount)
    {
        view.resize(600, 400);
        view.fill(&model, rowCount);
        view.show();
        settle();
        loadPage();
        removePage();
    }

    void prepare(Insertion insertion, Position position)
    {
        model.insertion = insertion;
        QScrollBar *bar = view.verticalScrollBar();
        bar->setValue(position == Position::Top ? 0 : bar->maximum());
        settle();
    }

    void loadPage()
    {
        insertPage();
        settle();
    }

    void insertPage()
    {
        view.loadPage(&model);
    }

    void removePage()
    {
        model.removePage();
        settle();
    }

private:
    FileModel model;
    View view;
};

/// Lists of all sizes, each made when it is first asked for: half a million rows take a while.
template <class View> class Lists
{
public:
    ShownList<View> &withRows(int rowCount)
    {
        std::unique_ptr<ShownList<View>> &list = lists[rowCount];
        if (!list) {
            list.reset(new ShownList<View>(rowCount));
        }
        return *list;
    }

private:
    std::map<int, std::unique_ptr<ShownList<View>>> lists;
};

template <class View>
void measure(const char *name, Lists<View> &lists, int rowCount, Insertion insertion,
             Position position, int iterations, Extent extent = Extent::UntilPainted)
{
    benchmark::RegisterBenchmark(name,
                                 [&lists, insertion, position, extent](benchmark::State &state) {
                                     ShownList<View> &list
                                         = lists.withRows(static_cast<int>(state.range(0)));
                                     for (auto _ : state) {
                                         state.PauseTiming();
                                         list.prepare(insertion, position);
                                         state.ResumeTiming();

                                         if (extent == Extent::UntilPainted) {
                                             list.loadPage();
                                         } else {
                                             list.insertPage();
                                         }
                                         state.PauseTiming();
                                         settle();
                                         list.removePage();
                                         state.ResumeTiming();
                                     }
                                 })
        ->Arg(rowCount)
        ->Iterations(iterations)
        ->MeasureProcessCPUTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    Lists<PagedList> lists;
    Lists<PlainList> plainLists;

    for (int rowCount : {10000, 100000, 500000}) {
        measure("list/insertion", lists, rowCount, Insertion::RowByRow, Position::End, 20,
                Extent::InsertionAlone);
        measure("list/rowByRow", lists, rowCount, Insertion::RowByRow, Position::End, 20);
        measure("plain/rowByRow", plainLists, rowCount, Insertion::RowByRow, Position::End, 20);
        measure("list/page", lists, rowCount, Insertion::AtOnce, Position::End, 40);
        measure("plain/page", plainLists, rowCount, Insertion::AtOnce, Position::End, 40);
        measure("list/pageAtTop", lists, rowCount, Insertion::AtOnce, Position::Top, 40);
        measure("plain/pageAtTop", plainLists, rowCount, Insertion::AtOnce, Position::Top, 40);
    }

    // Inserting is the list's part and has to be flat. That painting is not is the header's doing:
    // after an insertion it adds up all rows once, in the plain view too.
    return runBenchmarks(
        argc, argv,
        {{"a page row by row at 100,000 rows, until painted", "list/rowByRow/100000",
          "plain/rowByRow/100000", 1.15, 0},
         {"the insertion alone, 500,000 rows beside 10,000", "list/insertion/500000",
          "list/insertion/10000", 1.1, 0},
         {"until painted, 500,000 rows beside 10,000", "list/rowByRow/500000",
          "list/rowByRow/10000", 0, 0},
         {"the same in the plain view", "plain/rowByRow/500000", "plain/rowByRow/10000", 0, 0},
         {"a page at once at 100,000 rows", "list/page/100000", "plain/page/100000", 1.15, 0},
         {"at the top, where the button is out of sight", "list/pageAtTop/100000",
          "plain/pageAtTop/100000", 1.15, 0},
         {"at 500,000 rows", "list/page/500000", "plain/page/500000", 1.15, 0},
         {"at 500,000 rows, beside 10,000", "list/page/500000", "list/page/10000", 0, 0},
         {"the same in the plain view", "plain/page/500000", "plain/page/10000", 0, 0}});
}

#include "bench_filelist.moc"
