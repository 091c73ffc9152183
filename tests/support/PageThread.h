// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PAGETHREAD_H
#define TESSALINE_PAGETHREAD_H

#include "JoinedThread.h"
#include "PagedModel.h"

/// Announces a page, or another session, from a thread of its own.
class PageThread : public JoinedThread
{
public:
    PageThread(PagedModel *pagedModel, bool changesSession, bool isLastPage = true)
        : model(pagedModel)
        , isSessionChange(changesSession)
        , completed(isLastPage)
    {
    }

protected:
    void work() override
    {
        if (isSessionChange) {
            model->changeSession();
        } else {
            model->announce(7, completed);
        }
    }

private:
    PagedModel *model;
    bool isSessionChange;
    bool completed;
};

#endif
