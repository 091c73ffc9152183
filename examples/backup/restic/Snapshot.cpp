// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Snapshot.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

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

QList<Snapshot> Snapshot::allIn(const QJsonDocument &message)
{
    QList<Snapshot> snapshots;
    const QJsonArray array = message.array();
    for (const QJsonValue &value : array) {
        const QJsonObject object = value.toObject();
        Snapshot snapshot;
        snapshot.id = textOf(object, "id");
        snapshot.shortId = textOf(object, "short_id");
        snapshot.time = timeOf(object, "time");
        snapshot.host = textOf(object, "hostname");
        snapshot.paths = object.value("paths").toVariant().toStringList();
        if (!snapshot.id.isEmpty()) {
            snapshots.append(snapshot);
        }
    }
    return snapshots;
}

bool SnapshotFile::read(const QByteArray &line, SnapshotFile *file)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    file->path = textOf(object, "path");
    file->type = textOf(object, "type");
    file->permissions = textOf(object, "permissions");
    file->size = static_cast<qint64>(object.value("size").toDouble());
    file->modified = timeOf(object, "mtime");
    return textOf(object, "struct_type") == "node" && !file->path.isEmpty();
}
