// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobsPage.h"

#include "JobModel.h"

#include <EditableTableView.h>
#include <SpinBox.h>

#include <QChildEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
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

} // namespace

JobsPage::JobsPage(JobModel *jobs, BackupRun *run, QWidget *parent)
    : QWidget(parent)
    , m_run(run)
    , m_jobs(jobs)
    , m_table(new EditableTableView)
    , m_hint(new QLabel(m_table->viewport()))
    , m_bandwidthLimit(new SpinBox)
{
    setUpTable();
    setUpWidths();
    setUpBandwidthLimit();
    setUpLayout();
    dressButtons();
    connect(m_jobs, &JobModel::itemChanged, this, &JobsPage::announceCurrentJob);
    connect(m_jobs, &JobModel::rowsRemoved, this, &JobsPage::announceCurrentJob);
    connect(m_jobs, &JobModel::dataChanged, this, &JobsPage::dressButtons);
    connect(m_jobs, &JobModel::rowsInserted, this, &JobsPage::dressButtons);
    connect(m_jobs, &JobModel::rowsRemoved, this, &JobsPage::dressButtons);
    // Not while the editor that says so is still writing.
    connect(m_jobs, &JobModel::sourceWanted, this, &JobsPage::chooseSource, Qt::QueuedConnection);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &JobsPage::announceCurrentJob);
    // The table may have been given new buttons meanwhile.
    connect(m_run, &BackupRun::progressChanged, this, &JobsPage::dressButtons);
    connect(m_run, &BackupRun::finished, this, &JobsPage::endRun);
}

// What the library's table is told: how each column is edited, which lists its combo boxes show,
// which column takes the width that is left, and who hears which button was clicked. The columns
// come before the model.
void JobsPage::setUpTable()
{
    m_table->setColumns({QStringLiteral("editbox"), QStringLiteral("combobox"),
                         QStringLiteral("editcombobox"), QStringLiteral("passwordbox"),
                         declaration("checkbox", verifyLabel), declaration("button", runCaption),
                         declaration("button", removeCaption)});
    m_table->bindModel(JobModel::Source, m_jobs->sources());
    m_table->bindModel(JobModel::Repository, m_jobs->repositories());
    m_table->setStretchSection(JobModel::Repository);
    m_table->setModel(m_jobs);
    connect(m_table, &EditableTableView::resizeView, this, &JobsPage::shareWidth);
    connect(m_table,
            SIGNAL(buttonClicked(QWidget*,int,int,QStringList)),
                   SLOT(actOnClick(QWidget*,int,int)));

    // The rest is as with any table view.
    m_table->setEditTriggers(QTableView::SelectedClicked | QTableView::DoubleClicked
                             | QTableView::EditKeyPressed | QTableView::AnyKeyPressed);
    m_table->setSelectionMode(QTableView::SingleSelection);
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->setWordWrap(false);
    m_table->setAccessibleName(tr("Backups"));
    // The arrow keys go from cell to cell; Tab goes on to the buttons and out of the table.
    m_table->setTabKeyNavigation(false);
    m_table->viewport()->installEventFilter(this);
}

// As wide as the longest text; the two columns of paths share the rest.
void JobsPage::setUpWidths()
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
        m_table->resizeSection(column, fontMetrics().horizontalAdvance(spaced));
    }
}

BackupJob JobsPage::currentJob() const
{
    const int row = qMax(0, m_table->currentIndex().row());
    return row < m_jobs->rowCount() ? m_jobs->job(row) : BackupJob();
}

void JobsPage::actOnClick(QWidget *, int row, int column)
{
    if (column == JobModel::Run) {
        runJob(row);
    } else {
        removeJob(row);
    }
}

void JobsPage::announceCurrentJob()
{
    emit currentJobChanged(currentJob());
}

// A choice in a combo box is made by choosing: nobody expects to have to press Enter as well.
bool JobsPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildPolished) {
        QObject *editor = static_cast<QChildEvent *>(event)->child();
        if (QComboBox *box = qobject_cast<QComboBox *>(editor)) {
            connect(box, QOverload<int>::of(&QComboBox::activated), m_table, [this] {
                m_table->setFocus();
            });
        }
    }
    return QWidget::eventFilter(watched, event);
}

// The library gives the width that is left to one column; there are paths in two.
void JobsPage::shareWidth()
{
    const int width
        = m_table->columnWidth(JobModel::Source) + m_table->columnWidth(JobModel::Repository);
    m_table->resizeSection(JobModel::Source, width / 2);
    m_table->resizeSection(JobModel::Repository, width - width / 2);
}

// Buttons come with the caption of their column; which one cancels, and what each is for, is ours.
void JobsPage::dressButtons()
{
    for (int row = 0; row < m_jobs->rowCount(); ++row) {
        for (int column : {JobModel::Run, JobModel::Remove}) {
            if (QWidget *button = m_table->button(row, column)) {
                const QModelIndex cell = m_jobs->index(row, column);
                button->setAccessibleName(cell.data(Qt::AccessibleTextRole).toString());
            }
        }
        const char *const caption = row == m_jobs->runningRow() ? cancelCaption : runCaption;
        if (QPushButton *run = qobject_cast<QPushButton *>(m_table->button(row, JobModel::Run))) {
            run->setText(EditableTableView::tr(caption));
        }
    }
    m_hint->setVisible(m_jobs->rowCount() == 0);
}

void JobsPage::setUpBandwidthLimit()
{
    m_bandwidthLimit->setRange(0, 10000000);
    m_bandwidthLimit->setSingleStep(100);
    m_bandwidthLimit->setSuffix(tr(" KB/s"));
    m_bandwidthLimit->setSpecialValueText(tr("none"));
    // The library's spin box tells when the user comes to it.
    connect(m_bandwidthLimit, &SpinBox::focused, this, [this] {
        emit message(tr("How much the next run writes to the repository in a second at most"));
    });
}

void JobsPage::setUpLayout()
{
    m_hint->setText(tr("There is nothing to back up yet.\n\n\"New backup\" adds a row. Choose the "
                       "folder to back up and the repository that is to keep the backups: another "
                       "folder, or any address that restic takes. Then press \"Run\"."));
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    QVBoxLayout *onTable = new QVBoxLayout(m_table->viewport());
    onTable->addWidget(m_hint);

    QPushButton *add = new QPushButton(tr("&New backup"));
    connect(add, &QPushButton::clicked, this, &JobsPage::addJob);
    QLabel *limit = new QLabel(tr("Bandwidth &limit:"));
    limit->setBuddy(m_bandwidthLimit);

    QHBoxLayout *below = new QHBoxLayout;
    below->addWidget(add);
    below->addStretch();
    below->addWidget(limit);
    below->addWidget(m_bandwidthLimit);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    layout->addLayout(below);
}
