// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_FILELISTTABLEVIEW_H
#define TESSALINE_FILELISTTABLEVIEW_H

#include "Export.h"

#include <QPointer>
#include <QTableView>

class CellButton;
class QStandardItemModel;

/// A table of files that the application's model delivers page by page.
///
/// While there is more, the last row holds a button, "Next >>", that asks the model for the next
/// page; it reads "loading..." until the page has come. The first of the five columns takes the
/// width that the others, which are fixed, leave over; in a view of less than 316 pixels nothing is
/// left for it and the button. A click on a header sorts.
///
/// The model is a QStandardItemModel that has its columns before it is set, and
///  - a slot LoadItems(), which makes it insert the rows of one page before the last row, best all
///    at once, and then emit pageLoaded() once, at once or later; the rows in the thread of the
///    view, the signal from any;
///  - a signal pageLoaded(qint64 count, bool completed), `completed` with the last page;
///  - a signal dataChanged() without parameters, which makes the list start anew.
///
/// No page is asked for until StartLoadingData() is called or the model emits dataChanged().
///
/// \code
/// FileListTableView list;
/// list.setModel(&files);
/// list.StartLoadingData();
/// \endcode
class TESSALINE_EXPORT FileListTableView : public QTableView
{
    Q_OBJECT

public:
    /// Makes a list for reading: it neither edits nor selects, and shows no grid.
    explicit FileListTableView(QWidget *parent = nullptr);

    /// Deletes the button. Its row stays in the model.
    ~FileListTableView() override;

    /// Shows a model, which is not owned, and appends the row with the button to it. Null leaves
    /// the rows on screen as they are and only cuts the model off. A model that is no
    /// QStandardItemModel is shown without paging. Slots that were queued for the view run before
    /// a model is replaced, except that StartLoadingData() waits and asks the next one.
    void setModel(QAbstractItemModel *model) override;

public Q_SLOTS:
    /// Puts the button into the last row, unless that has a widget.
    void rowsInserted(const QModelIndex &rParentIndex, int start, int end) override;

    /// Asks for the next page. Does nothing while one is on its way.
    void StartLoadingData();

    /// Takes note of a page that is in the model; `count` is ignored. After the last page the row
    /// with the button goes.
    void FinishLoadingData(qint64 count, bool completed);

    /// Removes all rows and asks for the first page; if one is on its way, that is the first.
    void SessionChanged();

    /// Hides the sort arrow. The sorting itself is QTableView's.
    void SortByColumn(int column);

Q_SIGNALS:
    /// The next page is wanted.
    void requestItems();

protected:
    /// Leaves the current cell alone when the button takes the focus from the list.
    bool event(QEvent *event) override;

    /// Leaves the current cell alone when an editor is closed because the button takes the focus.
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    void AddButtons();
    void RemoveButtons();
    void AdjustColumnswidth();
    void resizeEvent(QResizeEvent *event) override;

    void detach(const QAbstractItemModel *next);
    void receiveQueuedCalls();
    void createButton(const QString &text);
    void forgetReleasedButton();
    void setWidths(int firstColumn);

    QPointer<QStandardItemModel> standardModel;
    QPointer<CellButton> nextButton; ///< Guarded: a reset of the model makes the view delete it.
    bool loading;
    int lastWidth;
    int fixedRowHeight;
    bool attached; ///< To a standard model, which may have been deleted since.
    bool detaching; ///< Queued calls are carried out before their time.
    bool startPutOff; ///< One of them was StartLoadingData().
};

#endif
