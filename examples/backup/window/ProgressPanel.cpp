// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ProgressPanel.h"

#include "BackupEngine.h"
#include "ReportText.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSizePolicy>
#include <QTreeWidget>
#include <QTreeWidgetItem>

namespace {

const int barSteps = 1000; // bytes alone would overflow a progress bar's int

int barPosition(const BackupProgress &progress)
{
    const double done = double(progress.bytesDone + progress.filesDone);
    const double total = double(progress.bytesTotal + progress.filesTotal);
    return total > 0 ? int(done / total * barSteps) : 0;
}

} // namespace

ProgressPanel::ProgressPanel(BackupEngine *engine, QWidget *parent)
    : QWidget(parent)
    , m_headline(new QLabel(tr("No backup is running.")))
    , m_bar(new QProgressBar)
    , m_cancel(new QPushButton(tr("&Cancel")))
    , m_details(new QLabel)
    , m_problems(new QTreeWidget)
{
    m_bar->setRange(0, barSteps);
    m_bar->setValue(0);
    m_bar->setAccessibleName(tr("Progress"));
    m_cancel->setEnabled(false);
    // A long file name shall not widen the window.
    m_details->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_details->setTextFormat(Qt::PlainText);
    m_headline->setTextFormat(Qt::PlainText);
    m_headline->setWordWrap(true);
    m_problems->setHeaderLabels({tr("File"), tr("Problem")});
    m_problems->setRootIsDecorated(false);
    m_problems->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_problems->setAccessibleName(tr("Problems"));
    m_problems->hide();

    QGridLayout *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_headline, 0, 0, 1, 2);
    layout->addWidget(m_bar, 1, 0);
    layout->addWidget(m_cancel, 1, 1);
    layout->addWidget(m_details, 2, 0, 1, 2);
    layout->addWidget(m_problems, 3, 0, 1, 2);

    connect(m_cancel, &QPushButton::clicked, engine, &BackupEngine::cancel);
    connect(engine, &BackupEngine::progressChanged, this, &ProgressPanel::showProgress);
    connect(engine, &BackupEngine::problemFound, this, &ProgressPanel::showProblem);
    connect(engine, &BackupEngine::finished, this, &ProgressPanel::showSummary);
}

void ProgressPanel::begin(const QString &jobName)
{
    m_jobName = jobName;
    m_headline->setText(tr("Backing up \"%1\"").arg(jobName));
    m_bar->setValue(0);
    m_cancel->setEnabled(true);
    m_details->clear();
    m_problems->clear();
    m_problems->hide();
}

void ProgressPanel::showRefusal(const QString &reason)
{
    m_headline->setText(reason);
}

void ProgressPanel::showProgress(const BackupProgress &progress)
{
    m_bar->setValue(barPosition(progress));
    m_details->setText(ReportText::progress(progress));
}

void ProgressPanel::showProblem(const BackupProblem &problem)
{
    m_problems->addTopLevelItem(new QTreeWidgetItem({problem.path, problem.text}));
    m_problems->show();
}

void ProgressPanel::showSummary(const BackupSummary &summary)
{
    m_cancel->setEnabled(false);
    m_bar->setValue(summary.cancelled ? m_bar->value() : barSteps);
    m_details->setText(ReportText::summary(summary));
    m_headline->setText((summary.cancelled          ? tr("\"%1\" was cancelled.")
                             : summary.isComplete() ? tr("\"%1\" is complete.")
                                                    : tr("\"%1\" has problems."))
                            .arg(m_jobName));
}
