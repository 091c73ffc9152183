// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupProgress.h"

#include "SizeText.h"

#include <QJsonArray>
#include <QLocale>

void BackupProgress::read(const QJsonObject &status)
{
    const auto number = [&status](const char *key) {
        return static_cast<qint64>(status.value(QLatin1String(key)).toDouble());
    };
    fraction = status.value("percent_done").toDouble();
    bytesDone = number("bytes_done");
    bytesTotal = number("total_bytes");
    filesDone = number("files_done");
    filesTotal = number("total_files");
    currentFile = status.value("current_files").toArray().first().toString();
}

QString BackupProgress::text() const
{
    const QLocale locale;
    const QString percent = fraction < 0 ? QString() : locale.toString(int(fraction * 100));
    switch (phase) {
    case BackingUp:
        return tr("Backing up: %1 of %2 files, %3 of %4  %5")
            .arg(locale.toString(filesDone), locale.toString(filesTotal), sizeText(bytesDone),
                 sizeText(bytesTotal), currentFile);
    case Verifying:
        return percent.isEmpty() ? tr("Verifying") : tr("Verifying: %1 %").arg(percent);
    case Restoring:
        return percent.isEmpty() ? tr("Restoring") : tr("Restoring: %1 %").arg(percent);
    case Preparing:
        break;
    }
    return tr("Preparing");
}
