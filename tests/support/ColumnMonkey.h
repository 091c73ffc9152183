// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_COLUMNMONKEY_H
#define TESSALINE_COLUMNMONKEY_H

#include "SectionMonkey.h"

class QSortFilterProxyModel;
class QStringListModel;

/// How a column is declared, and what that makes it.
struct ColumnKind
{
    const char *declaration;
    const char *delegate; ///< Null for a plain column.
    bool isButton;
};

/// Declares the columns of an editable table and shows it ever other models, and keeps by other
/// means where its buttons should be.
class ColumnMonkey : public SectionMonkey
{
    Q_OBJECT

public:
    explicit ColumnMonkey(quint32 seed);
    ~ColumnMonkey() override;

protected:
    void canDeclareColumns();

    void declareColumns();
    void replaceModel();
    void replaceView();

    /// What the application does when it hears of a row: by a click, or by a write.
    virtual void react(int row) = 0;

    void lookAtButtons();
    void lookAtDelegates();
    void lookAtWrites();

    /// Null beyond the declared columns.
    const ColumnKind *kindOf(int column) const;

    QList<int> declared; ///< By kind.
    int clicks; ///< How often the application has heard of one.

private Q_SLOTS:
    void noteRows(const QModelIndex &parent, int start);
    void noteReset();
    void noteWrite(const QModelIndex &cell);
    void noteClick(QWidget *button, int row, int column, const QStringList &rowData);

private:
    void bindList();
    void showSorted();
    void setModelAgain();
    void takeModelAway();
    void deleteModel();

    void show(QAbstractItemModel *model);
    void expectButton(int row, int column);

    QSortFilterProxyModel *proxy;
    QPointer<QStringListModel> list;
    QList<QPersistentModelIndex> withButton;
};

#endif
