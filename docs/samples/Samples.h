// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef SAMPLES_H
#define SAMPLES_H

#include <QObject>
#include <QStringList>

class EditableTableView;
class FileListTableView;
class QAbstractItemModel;
class QApplication;
class QModelIndex;
class QSortFilterProxyModel;
class QStandardItemModel;
class QString;
class QTranslator;
class QWidget;
class SpinBox;
class UpdatablePlot;

/// The samples of the manual's pages, each in a function.
namespace samples {

void declare(EditableTableView *view, QAbstractItemModel *jobs);
void bind(EditableTableView *view, QAbstractItemModel *folders);
void declareAgain(EditableTableView *view, const QStringList &columns, QAbstractItemModel *folders);
void setSizes(EditableTableView *view);
void editAtOneClick(EditableTableView *view);
QString secretOf(const QModelIndex &cell);
void setSecret(QAbstractItemModel *jobs, const QModelIndex &cell, const QString &secret);

class JobsWindow : public QObject
{
    Q_OBJECT

public:
    JobsWindow(EditableTableView *table, QAbstractItemModel *jobsModel);

    QString lastRun;

public Q_SLOTS:
    void act(QWidget *button, int row, int column, const QStringList &rowData);

private:
    void run(const QString &name);

    QAbstractItemModel *jobs;
};

void connectByPointer(EditableTableView *table, JobsWindow *window);

QStringList translatedColumns();
bool installTranslators(QTranslator *library, QTranslator *application, const QString &language);
void paintButtons(EditableTableView *view, int column, QObject *receiver, const char *slot);
void nameButtons(EditableTableView *view, const QAbstractItemModel *jobs, int column);
void showJobsWith(const QString &text, QSortFilterProxyModel *jobs, EditableTableView *view);
void keepAllButtons(EditableTableView *view);
void showHint(SpinBox *limit, QObject *hint);
void feed(UpdatablePlot *chart);
void feedThroughForm(QWidget *form);

} // namespace samples

#endif
