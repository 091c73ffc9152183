// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FilesPage.h"

#include "BackupEngine.h"
#include "FileListModel.h"

#include <FileListTableView.h>
#include <SpinBox.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QSizePolicy>
#include <QVBoxLayout>

namespace {

const int smallestPage = 10;
const int largestPage = 10000;
const int usualPage = 500;

} // namespace

FilesPage::FilesPage(BackupEngine *engine, QWidget *parent)
    : QWidget(parent)
    , m_headline(new QLabel)
    , m_pageSize(new SpinBox)
    , m_list(new FileListTableView)
    , m_model(new FileListModel(this))
{
    m_headline->setTextFormat(Qt::PlainText);
    m_headline->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_pageSize->setRange(smallestPage, largestPage);
    m_pageSize->setSingleStep(smallestPage);
    m_pageSize->setValue(usualPage);
    QLabel *label = new QLabel(tr("Files in a &page:"));
    label->setBuddy(m_pageSize);
    m_list->setModel(m_model);
    m_list->setAccessibleName(tr("Files"));

    QHBoxLayout *top = new QHBoxLayout;
    top->addWidget(m_headline, 1);
    top->addWidget(label);
    top->addWidget(m_pageSize);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_list);

    connect(m_pageSize, QOverload<int>::of(&SpinBox::valueChanged), m_model,
            &FileListModel::setPageSize);
    connect(m_pageSize, &SpinBox::focused, this, &FilesPage::showPageSizeHint);
    connect(engine, &BackupEngine::fileDone, m_model, &FileListModel::noteFile);
}

void FilesPage::setJob(const BackupJob &job)
{
    const bool isOther
        = job.sourceFolder != m_job.sourceFolder || job.targetFolder != m_job.targetFolder;
    m_job = job;
    m_headline->setText(tr("%1: %2").arg(job.name, job.sourceFolder));
    m_isStale = m_isStale || isOther;
    if (isVisible()) {
        listJob();
    }
}

void FilesPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    listJob();
}

void FilesPage::showPageSizeHint()
{
    emit message(tr("How many files \"Next\" adds to the list, from %1 to %2")
                     .arg(smallestPage)
                     .arg(largestPage));
}

void FilesPage::listJob()
{
    if (m_isStale) {
        m_isStale = false;
        m_model->setJob(m_job);
    }
}
