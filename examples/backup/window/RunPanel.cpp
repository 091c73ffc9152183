// SPDX-License-Identifier: LGPL-3.0-or-later
#include "RunPanel.h"

#include "Question.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSizePolicy>

namespace {

const int barSteps = 1000;

} // namespace

RunPanel::RunPanel(BackupRun *run, QWidget *parent)
    : QWidget(parent)
    , m_run(run)
    , m_headline(new QLabel(tr("Nothing is running.")))
    , m_bar(new QProgressBar)
    , m_cancel(new QPushButton(tr("&Cancel")))
    , m_progress(new QLabel)
    , m_details(new QPlainTextEdit)
{
    m_bar->setRange(0, barSteps);
    m_bar->setValue(0);
    m_bar->setAccessibleName(tr("Progress"));
    m_cancel->setEnabled(false);
    m_headline->setTextFormat(Qt::PlainText);
    m_headline->setWordWrap(true);
    // A long file name shall not widen the window.
    m_progress->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_progress->setTextFormat(Qt::PlainText);
    m_details->setReadOnly(true);
    m_details->setAccessibleName(tr("What restic said"));
    m_details->setMaximumHeight(4 * fontMetrics().lineSpacing());
    m_details->setMaximumBlockCount(1000);
    m_details->hide();

    QGridLayout *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_headline, 0, 0, 1, 2);
    layout->addWidget(m_bar, 1, 0);
    layout->addWidget(m_cancel, 1, 1);
    layout->addWidget(m_progress, 2, 0, 1, 2);
    layout->addWidget(m_details, 3, 0, 1, 2);

    connect(m_cancel, &QPushButton::clicked, run, &BackupRun::cancel);
    connect(run, &BackupRun::progressChanged, this, &RunPanel::showProgress);
    connect(run, &BackupRun::problemFound, this, &RunPanel::addDetail);
    connect(run, &BackupRun::asked, this, &RunPanel::ask);
    connect(run, &BackupRun::finished, this, &RunPanel::showOutcome);
}

void RunPanel::begin(const QString &headline)
{
    m_headline->setText(headline);
    m_cancel->setEnabled(true);
    m_progress->clear();
    m_details->clear();
    m_details->hide();
}

void RunPanel::showProgress(const BackupProgress &progress)
{
    const bool isKnown = progress.fraction >= 0;
    m_bar->setRange(0, isKnown ? barSteps : 0);
    m_bar->setValue(isKnown ? int(progress.fraction * barSteps) : -1);
    m_progress->setText(progress.text());
}

void RunPanel::showOutcome(const Outcome &outcome)
{
    m_cancel->setEnabled(false);
    m_bar->setRange(0, barSteps);
    m_bar->setValue(outcome.isGood() ? barSteps : 0);
    m_headline->setText(outcome.text());
    m_progress->clear();
    if (!outcome.isGood() && !outcome.details.isEmpty()) {
        addDetail(outcome.details);
    }
}

void RunPanel::addDetail(const QString &text)
{
    m_details->appendPlainText(text);
    m_details->show();
}

void RunPanel::ask(BackupRun::Question question)
{
    const QString text = question == BackupRun::CreateRepository
        ? tr("There is no repository there yet. Create one? Whoever loses its password loses the "
             "backups in it.")
        : tr("A program that is no longer there has left the repository locked. Remove the lock?");
    Question::ask(this, text, [this](bool yes) {
        m_run->answer(yes);
    });
}
