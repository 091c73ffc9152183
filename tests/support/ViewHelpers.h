// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_VIEWHELPERS_H
#define TESSALINE_VIEWHELPERS_H

#include <QModelIndex>
#include <QString>
#include <QStringList>

class QAbstractItemModel;
class QAbstractItemView;
class QColor;
class QPoint;
class QPushButton;
class QTableView;
class QWidget;

/// Turn what a view shows into short texts, and drive it as a user would.

/// Shows a window of this size and gives it the focus.
void showWindow(QWidget *window, int width, int height);

/// The widths of a view's columns, such as "100,200,100".
QString widths(const QTableView &view);

/// Sets all widths of a view from such a text, without its compensation.
void setWidths(QTableView *view, const QString &text);

/// Where in one column a view shows an index widget, a mark a row: "x.x".
QString buttonMarks(const QTableView &view, int column);

/// The Qt::EditRole texts of one column, such as "a,b".
QString texts(const QAbstractItemModel &model, int column);

/// All push buttons that a view holds, those about to be deleted left out.
int buttonCount(const QAbstractItemView &view);

/// The text of the newest push button that a view holds; "none" without one.
QString labelOfButton(const QAbstractItemView &view);

/// The colour that a widget shows at a place in its own coordinates, however many pixels of the
/// screen make up one of those.
QColor colorAt(QWidget *widget, const QPoint &place);

/// Opens a cell's editor with the edit key and returns it; null if none opens.
QWidget *openEditor(QTableView *view, const QModelIndex &index);

/// Handles what is posted, deferred deletes included.
void goThroughEvents();

/// Does to a view what a user may do at any time: resizes it, presses keys, clicks, looks at it.
void use(QTableView *view);

/// Ends an edit with the Return key and waits until the view has taken the value.
void commitEditor(QWidget *editor);

#endif
