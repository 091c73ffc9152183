// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_TABLEINEDIT_H
#define TESSALINE_TABLEINEDIT_H

#include "EditableTableView.h"
#include "RecordingModel.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QPointer>

inline QStringList declarations()
{
    return QStringList() << "editbox"
                         << "button:Go"
                         << "passwordbox";
}

/// A model that announces each write, even of what it holds already, as many do.
class TalkativeModel : public RecordingModel
{
public:
    TalkativeModel()
        : RecordingModel(3, 3)
    {
    }

    bool setData(const QModelIndex &index, const QVariant &value, int role) override
    {
        const bool done = RecordingModel::setData(index, value, role);
        emit dataChanged(index, index);
        return done;
    }
};

/// A shown table with an editor open in a cell of its first row, which held `stored`, and into
/// which "typed" was typed.
struct TableInEdit
{
    explicit TableInEdit(int column = 0, const QVariant &stored = QVariant())
        : model(new TalkativeModel)
    {
        model->put(0, column, stored);
        view.setColumns(declarations());
        view.setModel(model);
        showWindow(&view, 400, 200);
        editor = openEditor(&view, model->index(0, column));
        QTest::keyClicks(editor, "typed");
        model->writes.clear();
    }

    ~TableInEdit()
    {
        delete model;
    }

    QPointer<RecordingModel> model;
    EditableTableView view;
    QPointer<QWidget> editor;
};

inline void addRowsForTheEditors()
{
    QTest::addColumn<QString>("declaration");

    const QStringList editors = QStringList() << "combobox"
                                              << "editcombobox"
                                              << "editbox"
                                              << "passwordbox"
                                              << "checkbox";
    for (const QString &declaration : editors) {
        QTest::newRow(qPrintable(declaration)) << declaration;
    }
}

#endif
