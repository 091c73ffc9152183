// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_EDITABLETABLEVIEW_H
#define TESSALINE_EDITABLETABLEVIEW_H

#include "Export.h"

#include <QMap>
#include <QStringList>
#include <QTableView>

class QItemDelegate;

/// A table view whose columns are declared by strings.
///
/// Each string says how the cells of one column are edited: "combobox", "editcombobox", "editbox",
/// "passwordbox", "checkbox:Label" or "button:Caption". Keywords are matched without regard to
/// case; any other string, the empty one included, leaves its column a plain one. Header titles
/// come from the model.
///
/// Values travel through the model's Qt::EditRole as strings. A check box is checked by any text
/// and writes "1" or the empty text. A "passwordbox" writes the clear text under Qt::UserRole + 1
/// and only a mask under Qt::DisplayRole.
///
/// Captions and labels are translated when they are shown, in the contexts "EditableTableView" and
/// "CheckItemDelegate"; characters outside Latin-1 become "?". Each widget in a cell has an
/// accessible description: "EditableTableViewButton column", "...Combo column", "...Edit column",
/// "...Password column" or "...CheckBox column", directly followed by the column's number.
///
/// Reach for it where a form needs a small table to fill in. A button is a widget of its own in
/// each row: for very long tables a delegate that paints a button is the better choice.
///
/// \code
/// EditableTableView view;
/// view.setColumns(QStringList() << "editbox" << "checkbox:Verify" << "button:Run");
/// view.setModel(&jobs);
/// connect(&view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)),
///         SLOT(run(QWidget*,int,int,QStringList)));
/// \endcode
class TESSALINE_EXPORT EditableTableView : public QTableView
{
    Q_OBJECT
    // The signals, and their names, are part of a fixed interface.
    // clazy:excludeall=qproperty-without-notify,overloaded-signal

    /// The declarations, one string a column, exactly as they were given. Empty by default.
    /// Declare the columns before setting the model: rows that are already shown get no buttons.
    Q_PROPERTY(QStringList columns READ getColumns WRITE setColumns)

    /// The logical index of the section that takes up the difference when the view is resized; 0 by
    /// default. Takes effect with the next resize. An index that no section has turns that off.
    Q_PROPERTY(int stretchSection READ getStretchSection WRITE setStretchSection)

public:
    /// Makes a view without declarations. It has no row header, and its columns fill it.
    explicit EditableTableView(QWidget *parent = nullptr);

    /// Deliberately leaves the delegates that setColumns() made alone: only the next setColumns()
    /// deletes them.
    ~EditableTableView() override;

    /// The declarations as they were given, blanks and case included.
    QStringList getColumns() const;

    /// Replaces all declarations. Open editors are committed and closed, persistent ones too; then
    /// the old delegates are deleted and with them every binding that bindModel() made. A delegate
    /// that the application installed itself stays where no editor is declared. Buttons that exist
    /// stay until their rows go.
    void setColumns(const QStringList &declarations);

    /// What setStretchSection() was given; 0 at first.
    int getStretchSection() const;

    /// Names the section that takes up differences of width. Unchecked; nothing moves before the
    /// next resize.
    void setStretchSection(int section);

    /// Shows `model`, which is not owned, and gives each of its rows a button in every button
    /// column. A null model leaves the view empty. The model that is already shown gets the buttons
    /// that are missing, and nothing else changes.
    void setModel(QAbstractItemModel *model) override;

    /// Sets the width of one section, in pixels from 0 up, and no other: unlike a section that the
    /// user drags, its neighbour does not make up for it.
    void resizeSection(int section, int size);

    using QTableView::resize;

Q_SIGNALS:
    /// A button was clicked. `rowData` holds the Qt::EditRole texts of the row's editable cells,
    /// those declared with one of the five editor keywords, in ascending order of columns.
    void buttonClicked(QWidget *button, int row, int column, QStringList rowData);

    /// The view was resized. Its sections have been adjusted when an application's slot is called.
    void resizeView();

public Q_SLOTS:
    /// Makes editors opened from now on in a "combobox" or "editcombobox" column list the column
    /// `modelColumn` of `model`, a QAbstractItemModel that is not owned; with a null model they
    /// list nothing. A text that is typed in an "editcombobox" and ended with the Return key is
    /// added to `model`, unless that refuses it. Does nothing for other columns and other objects.
    /// Lasts until the next setColumns().
    void bindModel(int columnIndex, QObject *model, int modelColumn = 0);

    /// Whether the horizontal header can be clicked; off by default.
    void setHorizontalHeaderClickable(bool clickable);

    /// The widget in a cell: the push button of a button column, or an editor that is open there;
    /// null for other cells and without a model. Owned by the view.
    QWidget *button(int row, int column);

protected:
    /// Announces resizeView() when the headers are laid out.
    void resizeEvent(QResizeEvent *event) override;

    /// Places the widgets in the cells, after the rows and columns.
    void updateEditorGeometries() override;

    /// Leaves the current cell alone when one of the buttons takes the focus from the table.
    bool event(QEvent *event) override;

    /// Leaves the current cell alone when an editor is closed because a button takes the focus.
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

protected Q_SLOTS:
    /// Gives the row `start` its buttons. When a model inserts several rows at once only the first
    /// of them gets buttons; models for this view insert row by row, or are set again afterwards.
    void rowsInserted(const QModelIndex &parent, int start, int end) override;

    /// From the first removal on, Tab no longer moves between cells.
    void rowsAboutToBeRemoved(const QModelIndex &parent, int start, int end) override;

    /// Reports the click of the button that sent it.
    void buttonClicked();

private Q_SLOTS:
    void resized();
    void sectionResized(int index, int oldSize, int newSize);

private:
    void resize(int section);
    void finishEditing();
    void discardDelegates();
    void declareColumn(int column, const QString &declaration);
    void addButton(int column, const QModelIndex &cell);
    QStringList rowData(const QModelIndex &cell) const;

    QStringList columns;
    QMap<int, QItemDelegate *> delegates; ///< Of the editor columns; ours, but without parent.
    QMap<int, QString> buttonCaptions; ///< Of the button columns; untranslated.
    int stretchSection;
    bool resizing; ///< Keeps a resize that the view makes itself from starting another one.
};

#endif
