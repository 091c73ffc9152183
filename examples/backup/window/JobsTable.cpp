// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobsTable.h"

#include "JobModel.h"

#include <QChildEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStringListModel>
#include <QVBoxLayout>

namespace {

// Captions and labels are translated by the table, in these contexts, when it shows them.
const char *const verifyLabel = QT_TRANSLATE_NOOP("CheckItemDelegate", "Verify");
const char *const runCaption = QT_TRANSLATE_NOOP("EditableTableView", "Run");
const char *const cancelCaption = QT_TRANSLATE_NOOP("EditableTableView", "Cancel");
const char *const removeCaption = QT_TRANSLATE_NOOP("EditableTableView", "Remove");

QString declaration(const char *keyword, const char *text)
{
    return QLatin1String(keyword) + QLatin1Char(':') + QLatin1String(text);
}

void offer(QStringList *folders, const QString &folder)
{
    if (!folder.isEmpty() && !folders->contains(folder)) {
        folders->append(folder);
    }
}

} // namespace

JobsTable::JobsTable(JobModel *jobs, QWidget *parent)
    : EditableTableView(parent)
    , m_jobs(jobs)
    , m_sources(new QStringListModel(QStringList(QDir::homePath()), this))
    , m_repositories(new QStringListModel(this))
    , m_hint(new QLabel(viewport()))
{
    setUpColumns();
    setUpWidths();
    setUpHint();
    setUpSignals();
    collectFolders();
    dressButtons();
}

// What the library's table is told: how each column is edited, which lists its combo boxes show,
// and which column takes the width that is left. The columns come before the model.
void JobsTable::setUpColumns()
{
    setColumns({QStringLiteral("editbox"), QStringLiteral("combobox"),
                QStringLiteral("editcombobox"), QStringLiteral("passwordbox"),
                declaration("checkbox", verifyLabel), declaration("button", runCaption),
                declaration("button", removeCaption)});
    bindModel(JobModel::Source, m_sources);
    bindModel(JobModel::Repository, m_repositories);
    setStretchSection(JobModel::Repository);
    connect(this, &EditableTableView::resizeView, this, &JobsTable::shareWidth);
    EditableTableView::setModel(m_jobs);

    // The rest is as with any table view.
    setEditTriggers(SelectedClicked | DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionMode(SingleSelection);
    setTextElideMode(Qt::ElideMiddle);
    setWordWrap(false);
    setAccessibleName(tr("Backups"));
    // The arrow keys go from cell to cell; Tab goes on to the buttons and out of the table.
    setTabKeyNavigation(false);
}

// As wide as the longest text; the two columns of paths share the rest.
void JobsTable::setUpWidths()
{
    const QString check = QCoreApplication::translate("CheckItemDelegate", verifyLabel);
    const QStringList texts = {QStringLiteral("Some documents"),
                               QString(),
                               QString(),
                               m_jobs->headerData(JobModel::Password, Qt::Horizontal).toString(),
                               QStringLiteral("[x]") + check,
                               EditableTableView::tr(cancelCaption),
                               EditableTableView::tr(removeCaption)};
    for (int column = 0; column < texts.size(); ++column) {
        const QString spaced = texts.at(column) + QStringLiteral("--");
        resizeSection(column, fontMetrics().horizontalAdvance(spaced));
    }
}

void JobsTable::setUpHint()
{
    m_hint->setText(tr("There is nothing to back up yet.\n\n\"New backup\" adds a row. Choose the "
                       "folder to back up and the repository that is to keep the backups: another "
                       "folder, or any address that restic takes. Then press \"Run\"."));
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    QVBoxLayout *layout = new QVBoxLayout(viewport());
    layout->addWidget(m_hint);
}

void JobsTable::setUpSignals()
{
    connect(m_jobs, &JobModel::itemChanged, this, &JobsTable::collectFolders);
    connect(m_jobs, &JobModel::dataChanged, this, &JobsTable::dressButtons);
    connect(m_jobs, &JobModel::rowsInserted, this, &JobsTable::dressButtons);
    connect(m_jobs, &JobModel::rowsRemoved, this, &JobsTable::dressButtons);
    // Not while the editor that says so is still writing.
    connect(m_jobs, &JobModel::sourceWanted, this, &JobsTable::chooseSource, Qt::QueuedConnection);
}

void JobsTable::setModel(QAbstractItemModel *model)
{
    EditableTableView::setModel(model);
    dressButtons();
}

void JobsTable::editCell(int row, int column)
{
    const QModelIndex cell = m_jobs->index(row, column);
    setFocus();
    setCurrentIndex(cell);
    edit(cell);
}

// A choice in a combo box is made by choosing: nobody expects to have to press Enter as well.
bool JobsTable::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ChildPolished) {
        QObject *editor = static_cast<QChildEvent *>(event)->child();
        if (QComboBox *box = qobject_cast<QComboBox *>(editor)) {
            connect(box, QOverload<int>::of(&QComboBox::activated), this, [this] {
                setFocus();
            });
        }
    }
    return EditableTableView::viewportEvent(event);
}

// The library gives the width that is left to one column; there are paths in two.
void JobsTable::shareWidth()
{
    const int width = horizontalHeader()->sectionSize(JobModel::Source)
        + horizontalHeader()->sectionSize(JobModel::Repository);
    resizeSection(JobModel::Source, width / 2);
    resizeSection(JobModel::Repository, width - width / 2);
}

// Buttons come with the caption of their column; which one cancels, and what each is for, is ours.
void JobsTable::dressButtons()
{
    for (int row = 0; model() && row < m_jobs->rowCount(); ++row) {
        const char *const caption = row == m_jobs->runningRow() ? cancelCaption : runCaption;
        if (QPushButton *run = qobject_cast<QPushButton *>(button(row, JobModel::Run))) {
            run->setText(EditableTableView::tr(caption));
            run->setAccessibleName(m_jobs->runText(row));
        }
        if (QWidget *remove = button(row, JobModel::Remove)) {
            remove->setAccessibleName(m_jobs->removeText(row));
        }
    }
    m_hint->setVisible(m_jobs->rowCount() == 0);
}

void JobsTable::collectFolders()
{
    QStringList sources = m_sources->stringList();
    QStringList repositories = m_repositories->stringList();
    sources.removeAll(JobModel::chooseEntry());
    const QList<BackupJob> jobs = m_jobs->jobs();
    for (const BackupJob &job : jobs) {
        offer(&sources, job.source);
        offer(&repositories, job.repository);
    }
    sources.append(JobModel::chooseEntry());
    m_sources->setStringList(sources);
    m_repositories->setStringList(repositories);
}

void JobsTable::chooseSource(int row)
{
    const QPersistentModelIndex cell(m_jobs->index(row, JobModel::Source));
    const QString folder
        = QFileDialog::getExistingDirectory(this, tr("Folder to back up"), m_jobs->job(row).source);
    if (!folder.isEmpty() && cell.isValid()) {
        m_jobs->setData(cell, QDir::cleanPath(folder));
    }
}
