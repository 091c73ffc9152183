// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Restic.h"

#include "JobStore.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

QString Restic::program()
{
    const QSettings settings(JobStore::defaultFilePath(), QSettings::IniFormat);
    return settings.value(QStringLiteral("restic"), QStringLiteral("restic")).toString();
}

QVersionNumber Restic::minimumVersion()
{
    return QVersionNumber(0, 14);
}

bool Restic::isNewEnough(const QString &version)
{
    const QString number = version.section(QLatin1Char(' '), 1, 1);
    return version.startsWith(QLatin1String("restic "))
        && QVersionNumber::fromString(number) >= minimumVersion();
}

QProcessEnvironment Restic::environment(const QString &repository)
{
    QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"RESTIC_PASSWORD", "RESTIC_PASSWORD_FILE", "RESTIC_PASSWORD_COMMAND",
                             "RESTIC_REPOSITORY_FILE"}) {
        result.remove(QLatin1String(name));
    }
    // Not as an argument: all users see those, and an address may have a server's password in it.
    result.insert(QStringLiteral("RESTIC_REPOSITORY"), address(repository));
    result.insert(QStringLiteral("RESTIC_PROGRESS_FPS"), QStringLiteral("4"));
    return result;
}

QString Restic::address(const QString &typed)
{
    const QString text = typed.trimmed();
    const bool isAtHome = text == QLatin1String("~") || text.startsWith(QLatin1String("~/"));
    return isAtHome ? QDir::homePath() + text.mid(1) : text;
}

QString Restic::sourcePath(const QString &typed)
{
    const QFileInfo source(address(typed));
    return source.exists() ? source.canonicalFilePath() : source.absoluteFilePath();
}

QStringList Restic::backUpArguments(const BackupJob &job, int kibibytesPerSecond)
{
    const QString source = sourcePath(job.source);
    QStringList result = {QStringLiteral("backup"), QStringLiteral("--json")};
    if (kibibytesPerSecond > 0) {
        result += {QStringLiteral("--limit-upload"), QString::number(kibibytesPerSecond)};
    }
    // A repository inside the source would grow by itself with each run.
    QString repository = sourcePath(job.repository);
    if (QFileInfo::exists(repository) && repository != source) {
        const QRegularExpression special(QStringLiteral("([*?\\[\\\\])"));
        result
            += {QStringLiteral("--exclude"), repository.replace(special, QStringLiteral("\\\\1"))};
    }
    return result << QStringLiteral("--") << source;
}
