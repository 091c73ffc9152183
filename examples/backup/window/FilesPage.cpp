// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FilesPage.h"

#include "FileListModel.h"
#include "Question.h"

#include <FileListTableView.h>
#include <SpinBox.h>

#include <QComboBox>
#include <QFileDialog>
#include <QFont>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSizePolicy>
#include <QVBoxLayout>

namespace {

const int smallestPage = 10;
const int largestPage = 10000;
const int usualPage = 500;

QString describe(const Snapshot &snapshot)
{
    return QStringLiteral("%1  %2  %3")
        .arg(QLocale().toString(snapshot.time, QLocale::ShortFormat), snapshot.shortId,
             snapshot.paths.join(QStringLiteral(", ")));
}

// A repository may keep other folders, too. Where none is the job's, as on a new computer, all are
// offered.
QList<Snapshot> snapshotsOf(const BackupJob &job, const QList<Snapshot> &all)
{
    const QString source = Restic::sourcePath(job.source);
    QList<Snapshot> some;
    for (const Snapshot &snapshot : all) {
        if (snapshot.paths.contains(source)) {
            some.append(snapshot);
        }
    }
    return some.isEmpty() ? all : some;
}

} // namespace

FilesPage::FilesPage(BackupRun *run, QWidget *parent)
    : QWidget(parent)
    , m_run(run)
    , m_snapshots(new QComboBox)
    , m_restore(new QPushButton(tr("&Restore...")))
    , m_list(new FileListTableView)
    , m_model(new FileListModel(this))
    , m_hint(new QLabel)
    , m_pageSize(new SpinBox)
{
    setUpList();
    setUpPageSize();
    setUpLayout();
    connect(m_snapshots, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &FilesPage::listFiles);
    connect(m_model, &FileListModel::failed, this, &FilesPage::showOutcome);
    connect(m_restore, &QPushButton::clicked, this, &FilesPage::restore);
    connect(run, &BackupRun::finished, this, &FilesPage::followRun);
}

// The library's list asks the model for a page at a time, and starts over when the model says that
// its files are others.
void FilesPage::setUpList()
{
    m_list->setModel(m_model);
    m_list->setAccessibleName(tr("Files"));
    m_list->setTextElideMode(Qt::ElideMiddle);
    // Its rows are 18 pixels high and its columns as narrow, whatever the font.
    QFont font = m_list->font();
    font.setPixelSize(qMin(QFontInfo(font).pixelSize(), 13));
    m_list->setFont(font);
}

void FilesPage::setUpPageSize()
{
    m_pageSize->setRange(smallestPage, largestPage);
    m_pageSize->setSingleStep(smallestPage);
    m_pageSize->setValue(usualPage);
    connect(m_pageSize, QOverload<int>::of(&SpinBox::valueChanged), m_model,
            &FileListModel::setPageSize);
    // The library's spin box tells when the user comes to it.
    connect(m_pageSize, &SpinBox::focused, this, [this] {
        emit message(tr("How many files \"Next\" adds to the list, from %1 to %2")
                         .arg(smallestPage)
                         .arg(largestPage));
    });
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
    label->setBuddy(m_pageSize);

    QHBoxLayout *above = new QHBoxLayout;
    above->addWidget(m_snapshots, 1);
    above->addWidget(reload);
    above->addWidget(m_restore);
    QHBoxLayout *below = new QHBoxLayout;
    below->addWidget(m_hint, 1);
    below->addWidget(label);
    below->addWidget(m_pageSize);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addLayout(above);
    layout->addWidget(m_list);
    layout->addLayout(below);
}

void FilesPage::setJob(const BackupJob &job)
{
    const bool isOther = job.source != m_job.source || job.repository != m_job.repository
        || (job.password != m_job.password && !job.password.isEmpty());
    const QString password = isOther ? job.password : m_job.password;
    m_job = job;
    m_job.password = password; // one that was typed here is good until another job comes
    m_isStale = m_isStale || isOther;
    loadIfStale();
}

void FilesPage::reload()
{
    if (!m_job.password.isEmpty()) {
        load();
        return;
    }
    const QString question = tr("Password of the repository %1:").arg(m_job.repository);
    Question::askPassword(this, question, [this](const QString &password) {
        m_job.password = password;
        load();
    });
}

void FilesPage::restore()
{
    const QString folder
        = QFileDialog::getExistingDirectory(this, tr("Empty folder to restore into"));
    if (folder.isEmpty()) {
        return;
    }
    if (m_run->restore(m_job, m_snapshots->currentData().toString(), folder)) {
        emit started(tr("Restoring \"%1\" into %2").arg(m_job.name, folder));
    } else {
        emit message(tr("Nothing was restored: there is one run at a time."));
    }
}

void FilesPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    loadIfStale();
}

void FilesPage::listFiles()
{
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

void FilesPage::followRun(const Outcome &outcome)
{
    m_isStale = m_isStale || !outcome.snapshot.isEmpty();
    loadIfStale();
}

void FilesPage::loadIfStale()
{
    if (m_isStale && isVisible()) {
        load();
    }
}

void FilesPage::load()
{
    m_isStale = false;
    if (m_job.repository.isEmpty() || m_job.password.isEmpty()) {
        clear(m_job.repository.isEmpty()
                  ? tr("The backup has no repository yet.")
                  : tr("\"Show snapshots\" asks for the password of the repository."));
        return;
    }
    clear(tr("Looking for snapshots..."));
    m_reading.reset(new ResticRun);
    connect(m_reading.get(), &ResticRun::message, this, [this](const QJsonDocument &message) {
        offer(snapshotsOf(m_job, Snapshot::allIn(message)));
    });
    connect(m_reading.get(), &ResticRun::finished, this, &FilesPage::showOutcome);
    m_reading->start(
        m_job.repository, m_job.password,
        {QStringLiteral("snapshots"), QStringLiteral("--json"), QStringLiteral("--no-lock")});
}

void FilesPage::clear(const QString &hint)
{
    m_reading.reset();
    m_snapshots->clear();
    listFiles();
    m_hint->setText(hint);
}

// The newest first.
void FilesPage::offer(const QList<Snapshot> &snapshots)
{
    for (auto snapshot = snapshots.crbegin(); snapshot != snapshots.crend(); ++snapshot) {
        m_snapshots->addItem(describe(*snapshot), snapshot->id);
    }
}
