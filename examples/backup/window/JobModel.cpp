// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobModel.h"

namespace {

// Where the table's password column keeps what was typed; the cell itself holds the mask only.
const int passphraseRole = Qt::UserRole + 1;

// Captions and labels are translated by the table, in these contexts, when it shows them.
const char *const verifyLabel = QT_TRANSLATE_NOOP("CheckItemDelegate", "Verify");
const char *const runCaption = QT_TRANSLATE_NOOP("EditableTableView", "Run");
const char *const removeCaption = QT_TRANSLATE_NOOP("EditableTableView", "Remove");

QStandardItem *textItem(const QString &text)
{
    return new QStandardItem(text);
}

// A button covers its cell, so the cell says to screen readers what the button does.
QStandardItem *buttonItem(const QString &description)
{
    QStandardItem *cell = new QStandardItem;
    cell->setAccessibleText(description);
    cell->setEditable(false);
    return cell;
}

} // namespace

JobModel::JobModel(QObject *parent)
    : QStandardItemModel(0, ColumnCount, parent)
{
    setHorizontalHeaderLabels({tr("Name"), tr("Source"), tr("Target"), tr("Passphrase"),
                               tr("Check"), QString(), QString()});
}

QStringList JobModel::columnDeclarations()
{
    const QLatin1Char colon(':');
    return {QStringLiteral("editbox"),
            QStringLiteral("combobox"),
            QStringLiteral("editcombobox"),
            QStringLiteral("passwordbox"),
            QStringLiteral("checkbox") + colon + QLatin1String(verifyLabel),
            QStringLiteral("button") + colon + QLatin1String(runCaption),
            QStringLiteral("button") + colon + QLatin1String(removeCaption)};
}

void JobModel::appendJob(const BackupJob &job)
{
    const QString verify = job.verifiesAfterRun ? QStringLiteral("1") : QString();
    appendRow({textItem(job.name), textItem(job.sourceFolder), textItem(job.targetFolder),
               textItem(QString()), textItem(verify), buttonItem(tr("Run this backup")),
               buttonItem(tr("Remove this backup from the list"))});
}

BackupJob JobModel::job(int row) const
{
    BackupJob job;
    job.name = text(row, Name);
    job.sourceFolder = text(row, Source);
    job.targetFolder = text(row, Target);
    job.passphrase = index(row, Passphrase).data(passphraseRole).toString();
    job.verifiesAfterRun = !text(row, Verify).isEmpty();
    return job;
}

QList<BackupJob> JobModel::jobs() const
{
    QList<BackupJob> all;
    for (int row = 0; row < rowCount(); ++row) {
        all.append(job(row));
    }
    return all;
}

QString JobModel::text(int row, Column column) const
{
    return index(row, column).data(Qt::EditRole).toString();
}
