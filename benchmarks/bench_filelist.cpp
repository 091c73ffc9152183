// SPDX-License-Identifier: LGPL-3.0-or-later
// What a FileListTableView costs: its construction, and a page that arrives when it already holds
// many rows, beside the toolkit's lists, which have no button.
#include "FileLists.h"
#include "RatioReporter.h"
#include "measure.h"

#include <QApplication>

#include <map>

namespace {

enum class Position { Top, End };

/// What of a page is measured: all until it is painted, or the insertion alone, as a model sees it.
enum class Extent { UntilPainted, InsertionAlone };

/// A view on so many rows. It has had a page before, so nothing is done for the first time.
template <class View> class ShownList
{
public:
    explicit ShownList(int rowCount)
    {
        view.resize(600, 400);
        view.fill(rowCount);
        view.show();
        settle();
        insertPage(Insertion::AtOnce);
        settle();
        removePage();
    }

    void scrollTo(Position position)
    {
        QScrollBar *bar = view.verticalScrollBar();
        bar->setValue(position == Position::Top ? 0 : bar->maximum());
        settle();
    }

    void insertPage(Insertion insertion)
    {
        view.insertPage(insertion);
    }

    void removePage()
    {
        view.removePage();
        settle();
    }

private:
    View view;
};

/// A list of that size, made when it is first asked for: half a million rows take a while. They are
/// never destroyed, because the application goes first.
template <class View> ShownList<View> &listOf(int rowCount)
{
    static std::map<int, ShownList<View> *> lists;
    ShownList<View> *&list = lists[rowCount];
    if (!list) {
        list = new ShownList<View>(rowCount);
    }
    return *list;
}

template <class View>
void measurePage(const std::string &name, int rowCount, int iterations,
                 Insertion insertion = Insertion::AtOnce, Position position = Position::End,
                 Extent extent = Extent::UntilPainted)
{
    measure(
        name,
        [insertion, position, extent](benchmark::State &state) {
            ShownList<View> &list = listOf<View>(static_cast<int>(state.range(0)));
            list.scrollTo(position);
            for (auto _ : state) {
                list.insertPage(insertion);
                if (extent == Extent::UntilPainted) {
                    settle();
                }
                const Pause pause(state);
                settle();
                list.removePage();
                list.scrollTo(position);
            }
        },
        {rowCount}, iterations);
}

/// What of our construction is the toolkit's own: by far the most is switching the sorting on.
class SortedTable : public QTableView
{
public:
    SortedTable()
    {
        setSortingEnabled(true);
    }
};

/// What a row costs in memory, with the model.
template <class View> void memory(benchmark::State &state)
{
    const int rowCount = static_cast<int>(state.range(0));
    fileText(0, 0);
    for (auto _ : state) {
        {
            const ShownList<View> first(100); // fills the style's and the fonts' caches
        }
        const double before = bytesInUse();
        const ShownList<View> list(rowCount);
        state.counters["bytes"] = (bytesInUse() - before) / rowCount;
    }
}

template <class View> void measureList(const std::string &name)
{
    measurePage<View>(name + "/page", 100000, 20);
    measure(name + "/memory", memory<View>, {10000}, 1);
}

void measureInsertions(int rowCount)
{
    const Insertion rowByRow = Insertion::RowByRow;
    measurePage<FileLists::Paged>("list/insertion", rowCount, 20, rowByRow, Position::End,
                                  Extent::InsertionAlone);
    measurePage<FileLists::Paged>("list/rowByRow", rowCount, 20, rowByRow);
    measurePage<FileLists::Plain>("plain/rowByRow", rowCount, 20, rowByRow);
}

/// The lines that hold our list against another.
void compare(std::vector<Comparison> *comparisons, const std::string &title,
             const std::string &name, double most)
{
    comparisons->push_back({"a page at 100,000 rows, until painted / " + title, "list/page/100000",
                            name + "/page/100000", most});
    comparisons->push_back({"bytes per list row / " + title, "list/memory/10000:bytes",
                            name + "/memory/10000:bytes", 0});
}

} // namespace

int main(int argc, char **argv)
{
    prepareProcess();
    QApplication application(argc, argv);
    const std::vector<int> sizes = {1000, 10000, 100000, 500000};

    measureConstruction<FileListTableView>("list/construction");
    measureConstruction<QTableView>("plain/construction");
    measureConstruction<SortedTable>("sorted/construction");
    measureList<FileLists::Paged>("list");
    measureList<FileLists::Plain>("plain");
    measureList<FileLists::OfVector>("vector");
    measureList<FileLists::OfTableItems>("tableItems");
    measureList<FileLists::OfTreeItems>("treeItems");
    for (int rowCount : sizes) {
        measureInsertions(rowCount);
    }
    measurePage<FileLists::Paged>("list/pageAtTop", 100000, 40, Insertion::AtOnce, Position::Top);
    measurePage<FileLists::Plain>("plain/pageAtTop", 100000, 40, Insertion::AtOnce, Position::Top);

    // Inserting is the list's part and has to be flat. That painting is not is the header's doing:
    // after an insertion it adds up all rows once, in the plain view too.
    std::vector<Comparison> comparisons = {
        {"construction / QTableView", "list/construction", "plain/construction", 0},
        {"construction / QTableView, sorting on", "list/construction", "sorted/construction", 1.1},
        {"a page row by row at 100,000 rows, until painted / QTableView", "list/rowByRow/100000",
         "plain/rowByRow/100000", 1.15},
        {"the insertion alone, at 500,000 rows / at 10,000", "list/insertion/500000",
         "list/insertion/10000", 1.1},
        {"until painted, at 500,000 rows / at 10,000", "list/rowByRow/500000",
         "list/rowByRow/10000", 0},
        {"the same in a QTableView", "plain/rowByRow/500000", "plain/rowByRow/10000", 0},
        {"a page at 100,000 rows, the view at the top / QTableView", "list/pageAtTop/100000",
         "plain/pageAtTop/100000", 1.15}};
    compare(&comparisons, "QTableView", "plain", 1.15);
    compare(&comparisons, "QAbstractTableModel", "vector", 0);
    compare(&comparisons, "QTableWidget", "tableItems", 0);
    compare(&comparisons, "QTreeWidget", "treeItems", 0);
    return runBenchmarks(
        argc, argv, comparisons,
        {{"insertion of a page, 1,000 to 500,000 list rows", "list/insertion", sizes, 0},
         {"until painted", "list/rowByRow", sizes, 0},
         {"until painted in a QTableView", "plain/rowByRow", sizes, 0}});
}
