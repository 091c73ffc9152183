// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FilesPage.h"

#include "FileListModel.h"
#include "JobsPage.h"

#include <FileListTableView.h>
#include <SpinBox.h>

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

FilesPage::FilesPage(BackupRun *run, QWidget *parent)
    : QWidget(parent)
    , m_run(run)
    , m_snapshots(new QComboBox)
    , m_restore(new QPushButton(tr("&Restore...")))
    , m_model(new FileListModel(this))
    , m_hint(new QLabel)
{
    setUpLayout();
    connect(m_snapshots, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &FilesPage::listFiles);
    connect(m_model, &FileListModel::failed, this, &FilesPage::showOutcome);
    connect(m_restore, &QPushButton::clicked, this, &FilesPage::restore);
    connect(run, &BackupRun::finished, this, [this](const Outcome &outcome) {
        if (!outcome.snapshot.isEmpty() && m_run->source() == m_job.source) {
            load();
        }
    });
}

// The library's list asks the model for a page at a time, and starts over when the model says that
// its files are others.
QWidget *FilesPage::makeList()
{
    FileListTableView *list = new FileListTableView;
    list->setModel(m_model);
    list->setAccessibleName(tr("Files"));
    list->setTextElideMode(Qt::ElideMiddle);
    // Its rows are 18 pixels high and its columns as narrow, whatever the font.
    QFont font = list->font();
    font.setPixelSize(qMin(QFontInfo(font).pixelSize(), 13));
    list->setFont(font);
    return list;
}

QWidget *FilesPage::makePageSize()
{
    SpinBox *pageSize = new SpinBox;
    pageSize->setRange(10, 10000);
    pageSize->setSingleStep(10);
    pageSize->setValue(500);
    connect(pageSize, QOverload<int>::of(&SpinBox::valueChanged), m_model,
            &FileListModel::setPageSize);
    // The library's spin box tells when the user comes to it.
    connect(pageSize, &SpinBox::focused, this, [this] {
        emit message(tr("How many files \"Next\" adds to the list, from 10 to 10000"));
    });
    return pageSize;
}

void FilesPage::setUpLayout()
{
    QPushButton *reload = new QPushButton(tr("&Show snapshots"));
    connect(reload, &QPushButton::clicked, this, &FilesPage::reload);
    m_snapshots->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_snapshots->setAccessibleName(tr("Snapshots"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    QLabel *label = new QLabel(tr("Files in a &page:"));
    QWidget *pageSize = makePageSize();
    label->setBuddy(pageSize);

    QHBoxLayout *above = new QHBoxLayout;
    above->addWidget(m_snapshots, 1);
    above->addWidget(reload);
    above->addWidget(m_restore);
    QHBoxLayout *below = new QHBoxLayout;
    below->addWidget(m_hint, 1);
    below->addWidget(label);
    below->addWidget(pageSize);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addLayout(above);
    layout->addWidget(makeList());
    layout->addLayout(below);
}

void FilesPage::setJob(const BackupJob &job)
{
    // A password that was typed here is good until another job comes.
    const bool isSame = job.source == m_job.source && job.repository == m_job.repository
        && (job.password == m_job.password || job.password.isEmpty());
    if (!isSame) {
        m_job = job;
        load();
    }
    m_job.name = job.name;
}

void FilesPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isStale) {
        load();
    }
}

void FilesPage::reload()
{
    JobsPage::askForPassword(this, &m_job);
    load();
}

void FilesPage::load()
{
    m_isStale = !isVisible();
    if (m_isStale) {
        return;
    }
    if (m_job.repository.isEmpty() || m_job.password.isEmpty()) {
        clear(m_job.repository.isEmpty()
                  ? tr("The backup has no repository yet.")
                  : tr("\"Show snapshots\" asks for the password of the repository."));
        return;
    }
    clear(tr("Looking for snapshots..."));
    m_reading.reset(new ResticRun);
    connect(m_reading.get(), &ResticRun::message, this, &FilesPage::offer);
    connect(m_reading.get(), &ResticRun::finished, this, &FilesPage::showOutcome);
    m_reading->start(m_job, {"snapshots", "--json", "--no-lock"});
}

void FilesPage::clear(const QString &hint)
{
    m_reading.reset();
    m_snapshots->clear();
    listFiles();
    m_hint->setText(hint);
}

// The newest first.
void FilesPage::offer(const QJsonDocument &message)
{
    const QString path = Restic::sourcePath(m_job.source);
    QList<Snapshot> snapshots = Snapshot::allIn(message, QDir::toNativeSeparators(path));
    if (snapshots.isEmpty() && !QFileInfo::exists(path)) {
        // A link that led to what is lost does not tell any more under which path it was stored.
        snapshots = Snapshot::allIn(message);
    }
    for (auto snapshot = snapshots.crbegin(); snapshot != snapshots.crend(); ++snapshot) {
        const QStringList texts = {QLocale().toString(snapshot->time, QLocale::ShortFormat),
                                   snapshot->id.left(8), snapshot->paths.join(", ")};
        m_snapshots->addItem(texts.join("  "), snapshot->id);
    }
}

void FilesPage::listFiles()
{
    m_hint->clear();
    m_model->setSnapshot(m_job, m_snapshots->currentData().toString());
    m_restore->setEnabled(m_snapshots->currentIndex() >= 0);
}

void FilesPage::showOutcome(const Outcome &outcome)
{
    if (outcome.kind == Outcome::WrongPassword) {
        m_job.password.clear(); // the next time it is asked for
    }
    const bool isEmpty = outcome.isGood() && m_snapshots->count() == 0;
    m_hint->setText(isEmpty ? tr("There is no snapshot yet.") : outcome.text());
}

void FilesPage::restore()
{
    // Now: the list may start over while the dialog is open.
    const QString snapshot = m_snapshots->currentData().toString();
    const QString folder
        = QFileDialog::getExistingDirectory(this, tr("Empty folder to restore into"));
    if (!folder.isEmpty() && m_run->restore(m_job, snapshot, folder)) {
        emit started(tr("Restoring \"%1\" into %2").arg(m_job.name, folder));
    } else if (!folder.isEmpty()) {
        emit message(tr("Nothing was restored: there is one run at a time."));
    }
}
