// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_DISGUISEDMODEL_H
#define TESSALINE_DISGUISEDMODEL_H

#include "RecordingModel.h"

/// A row of cells of which each shows "shown", whatever it holds; the first holds `held`.
class DisguisedModel : public RecordingModel
{
public:
    explicit DisguisedModel(const QString &held, int columns = 1)
        : RecordingModel(1, columns)
    {
        put(0, 0, held);
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(QString::fromLatin1("shown"))
                                       : RecordingModel::data(index, role);
    }
};

#endif
