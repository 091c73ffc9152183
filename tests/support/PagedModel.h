// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PAGEDMODEL_H
#define TESSALINE_PAGEDMODEL_H

#include <QStandardItemModel>

/// A model as FileListTableView wants it: five columns, pages on request. It answers when the test
/// says so, which may as well be late, twice or never.
class PagedModel : public QStandardItemModel
{
    Q_OBJECT

public:
    explicit PagedModel(QObject *parent = nullptr);

    /// Inserts a page of so many rows before the last row, in one insertion, and announces it.
    void deliver(int count, bool completed);

    /// Inserts the rows and announces nothing.
    void insertPage(int count);

    /// Announces a page.
    void announce(qint64 count, bool completed);

    /// Announces that another data set is to be listed.
    void changeSession();

    int requests; ///< How often a page was asked for.

    /// If not negative, each request is answered at once with so many rows and no more to come.
    int answersAtOnce;

public Q_SLOTS:
    void LoadItems();

Q_SIGNALS:
    void pageLoaded(qint64 count, bool completed);
    void dataChanged();

private:
    int delivered;
};

#endif
