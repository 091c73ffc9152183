// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef SPOKENJOBS_H
#define SPOKENJOBS_H

#include <QStandardItemModel>

//! [spoken header]
/// Jobs whose cells say to a screen reader what they show: a name, a check box, a button.
class SpokenJobs : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Column { Name, Verify, Run };

    using QStandardItemModel::QStandardItemModel;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
};
//! [spoken header]

#endif
