// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef OUTCOME_H
#define OUTCOME_H

#include <QCoreApplication>
#include <QMetaType>
#include <QStringList>

/// Bytes in the units of the chart, "1.50 MB" of 1024 KB, with the user's decimal point.
QString sizeText(qint64 bytes);

/// How a run of restic, or a chain of such runs, ended. A plain value.
struct Outcome
{
    Q_DECLARE_TR_FUNCTIONS(Outcome)

public:
    enum Kind {
        Done,
        Incomplete, ///< A snapshot was made, but some files could not be read.
        Cancelled,
        Missing, ///< There is no restic.
        TooOld,
        NoPassword,
        WrongPassword,
        NoRepository,
        Locked,
        NoSpace,
        NoSource,
        NotEmpty, ///< The folder to restore into has something in it.
        Damaged, ///< Verifying found errors.
        Crashed, ///< restic was killed, or died.
        Failed ///< Anything else: `details` tells.
    };

    Kind kind = Done;
    /// restic's own words, in English: the last lines of its error output.
    QString details;
    /// The id, if one was made.
    QString snapshot;
    /// A sentence for each thing done.
    QStringList achieved;
    /// Lines of restic's output that were no message.
    int skippedLines = 0;

    bool isGood() const
    {
        return kind == Done;
    }
    /// A sentence or two: what happened, and what to do.
    QString text() const;
    /// The program's own, without a window.
    int exitStatus() const;

    /// What restic's exit status and its error output mean.
    static Kind kindOf(int exitStatus, const QString &errors);
};

Q_DECLARE_METATYPE(Outcome)

#endif
