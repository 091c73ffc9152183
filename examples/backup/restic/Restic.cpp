// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Restic.h"

#include "JobStore.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

QString Restic::program()
{
    const QSettings settings(JobStore::defaultFilePath(), QSettings::IniFormat);
    return settings.value("restic", "restic").toString();
}

QVersionNumber Restic::minimumVersion()
{
    return QVersionNumber(0, 14);
}

bool Restic::isNewEnough(const QString &version)
{
    const QString number = version.section(QLatin1Char(' '), 1, 1);
    return version.startsWith("restic ") && QVersionNumber::fromString(number) >= minimumVersion();
}

QProcessEnvironment Restic::environment(const QString &repository)
{
    QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"RESTIC_PASSWORD", "RESTIC_PASSWORD_FILE", "RESTIC_PASSWORD_COMMAND",
                             "RESTIC_REPOSITORY_FILE"}) {
        result.remove(QLatin1String(name));
    }
    // Not as an argument: all users see those, and an address may have a server's password in it.
    result.insert("RESTIC_REPOSITORY", address(repository));
    result.insert("RESTIC_PROGRESS_FPS", "4");
    return result;
}

QStringList Restic::globalOptions()
{
    for (const char *name : {"RESTIC_CACHE_DIR", "XDG_CACHE_HOME", "HOME", "LOCALAPPDATA"}) {
        if (!qEnvironmentVariableIsEmpty(name)) {
            return QStringList();
        }
    }
    // Without a place for its cache, as at the start of a system, restic 0.18 does not work.
    return {"--no-cache"};
}

QString Restic::address(const QString &typed)
{
    const bool isAtHome = typed == "~" || typed.startsWith("~/");
    return isAtHome ? QDir::homePath() + typed.mid(1) : typed;
}

QString Restic::sourcePath(const QString &typed)
{
    const QFileInfo source(address(typed));
    return source.exists() ? source.canonicalFilePath() : source.absoluteFilePath();
}

QString Restic::creationLock(const QString &repository)
{
    const QByteArray name
        = QCryptographicHash::hash(sourcePath(repository).toUtf8(), QCryptographicHash::Sha1);
    return QDir::temp().filePath("tessaline-" + QString::fromLatin1(name.toHex()) + ".lock");
}

QStringList Restic::backUpArguments(const BackupJob &job, int kibibytesPerSecond)
{
    const QString source = sourcePath(job.source);
    QStringList result = {"backup", "--json"};
    if (kibibytesPerSecond > 0) {
        result += {"--limit-upload", QString::number(kibibytesPerSecond)};
    }
    // A repository inside the source would grow by itself with each run.
    QString repository = sourcePath(job.repository);
    if (QFileInfo::exists(repository) && repository != source) {
        static const QRegularExpression special("([*?\\[\\\\])");
        result += {"--exclude", repository.replace(special, "\\\\1")};
    }
    return result << "--" << source;
}
