// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_RECORDINGMODEL_H
#define TESSALINE_RECORDINGMODEL_H

#include <QStandardItemModel>
#include <QStringList>

/// A standard item model that writes down what is written into it while `writes` is watched.
class RecordingModel : public QStandardItemModel
{
public:
    RecordingModel(int rows, int columns);

    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

    /// Fills a cell without recording that.
    void put(int row, int column, const QVariant &value, int role = Qt::EditRole);

    /// One entry a write, such as "edit abc" or "secret abc"; "not a string" where it was none.
    QStringList writes;
};

#endif
