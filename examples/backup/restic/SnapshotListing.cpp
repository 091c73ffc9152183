// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SnapshotListing.h"

#include <QJsonArray>

namespace {

// So few that a window goes on answering in between.
const int linesAtOnce = 500;

QString textOf(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

// restic writes nanoseconds and any offset.
QDateTime timeOf(const QJsonObject &object, const char *key)
{
    return QDateTime::fromString(textOf(object, key), Qt::ISODateWithMs).toLocalTime();
}

} // namespace

QList<Snapshot> Snapshot::allIn(const QJsonDocument &message, const QString &path)
{
    QList<Snapshot> snapshots;
    const QJsonArray array = message.array();
    for (const QJsonValue &value : array) {
        const QJsonObject object = value.toObject();
        Snapshot snapshot;
        snapshot.id = textOf(object, "id");
        snapshot.time = timeOf(object, "time");
        snapshot.host = textOf(object, "hostname");
        snapshot.paths = object.value("paths").toVariant().toStringList();
        if (!snapshot.id.isEmpty() && (path.isEmpty() || snapshot.paths.contains(path))) {
            snapshots.append(snapshot);
        }
    }
    return snapshots;
}

bool SnapshotFile::read(const QJsonObject &object, SnapshotFile *file)
{
    file->path = textOf(object, "path");
    file->type = textOf(object, "type");
    file->permissions = static_cast<qint64>(object.value("mode").toDouble()) & 0777;
    file->size = static_cast<qint64>(object.value("size").toDouble());
    file->modified = timeOf(object, "mtime");
    return textOf(object, "struct_type") == "node" && !file->path.isEmpty();
}

SnapshotListing::SnapshotListing(QObject *parent)
    : QObject(parent)
    , m_file(m_folder.filePath("files"))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &SnapshotListing::readOn);
}

void SnapshotListing::open(const BackupJob &job, const QString &snapshot)
{
    m_run.reset(new ResticRun);
    m_file.close();
    m_file.remove();
    m_unfinishedLine.clear();
    m_files.clear();
    m_outcome = Outcome();
    m_isWritten = snapshot.isEmpty();
    connect(m_run.get(), &ResticRun::finished, this, [this](const Outcome &outcome) {
        m_outcome.kind = outcome.kind;
        m_outcome.details = outcome.details;
        m_isWritten = true;
    });
    if (!snapshot.isEmpty()) {
        m_run->start(job, {"ls", "--json", "--no-lock", "--", snapshot}, m_file.fileName());
    }
}

void SnapshotListing::requestPage(int count)
{
    m_pageSize = count;
    m_timer.start(0);
}

void SnapshotListing::readOn()
{
    const bool wasWritten = m_isWritten;
    bool isAtEnd = !m_file.isOpen() && !m_file.open(QIODevice::ReadOnly);
    for (int line = 0; line < linesAtOnce && !isAtEnd && m_files.size() <= m_pageSize; ++line) {
        m_unfinishedLine += m_file.readLine();
        isAtEnd = !m_unfinishedLine.endsWith('\n');
        if (!isAtEnd || wasWritten) {
            SnapshotFile file;
            const QJsonDocument node = Restic::messageIn(m_unfinishedLine, &m_outcome.skippedLines);
            if (SnapshotFile::read(node.object(), &file)) {
                m_files.append(file);
            }
            m_unfinishedLine.clear();
        }
    }
    const bool isLast = m_files.size() <= m_pageSize;
    if (isLast && !(wasWritten && isAtEnd)) {
        m_timer.start(isAtEnd ? 50 : 0); // the end, for now
        return;
    }
    const QList<SnapshotFile> page = m_files.mid(0, m_pageSize);
    m_files = m_files.mid(m_pageSize);
    emit pageRead(page, isLast);
    if (isLast && !m_outcome.text().isEmpty()) {
        emit failed(m_outcome);
    }
}
