// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PAGINGMONKEY_H
#define TESSALINE_PAGINGMONKEY_H

#include "FileListTableView.h"
#include "OpenView.h"
#include "PagedModel.h"
#include "TableMonkey.h"

#include <QPointer>

/// Does to a file list's models what applications do to them, in pages and otherwise, and keeps by
/// other means what the list's button should be like.
class PagingMonkey : public TableMonkey
{
    Q_OBJECT

public:
    explicit PagingMonkey(quint32 seed);
    ~PagingMonkey() override;

protected:
    typedef OpenView<FileListTableView> OpenList;

    static const int pagedColumns = 5;

    void canPage();

    /// Gives the list a new model.
    virtual void replaceModel() = 0;

    void lookAtButton();

    QPointer<OpenList> view; ///< Deleted by the last class: what it says till then is answered.
    QPointer<PagedModel> model;
    QList<QPointer<PagedModel>> formerModels;

    // What the view should be in.
    bool attached; ///< To `model`; else its signals are nobody's business.
    bool loading;
    bool hasButton;
    bool isPlaced; ///< The button stands in a cell; it has to wait while there is none.
    QString label;

    bool replacesWhenAsked; ///< The model, from the slot that its request calls.

private Q_SLOTS:
    void notePage(qint64 count, bool completed);
    void noteSession();
    void noteRows(const QModelIndex &parent);
    void noteRequest();

private:
    void startLoading();
    void clickButton();
    void deliver();
    void announceTwice();
    void finishByCall();
    void changeSession();
    void changeSessionByCall();
    void announceFromThread();
    void answerAtOnce();
    void letFormerModelSpeak();

    void removeRows();
    void removePagingRow();
    void changeRow();
    void sortModel();
    void clearModel();
    void changeColumns();
    bool hasPagingRow() const;
};

#endif
