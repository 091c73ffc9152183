// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupReport.h"

#include "PosixFile.h"

void BackupObserver::report(BackupProblem::Kind kind, const QByteArray &path, const QString &text)
{
    BackupProblem problem;
    problem.kind = kind;
    // The root folder itself has an empty path, which would be no help to a reader.
    problem.path = path.isEmpty() ? QString(QLatin1Char('.')) : PosixFile::displayName(path);
    problem.text = text;
    problemNoticed(problem);
}
