// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef OUTCOME_H
#define OUTCOME_H

#include <QCoreApplication>
#include <QMetaType>
#include <QString>
#include <QStringList>

/// How a run of restic, or a chain of such runs, ended. A plain value.
struct Outcome
{
    Q_DECLARE_TR_FUNCTIONS(Outcome)

public:
    enum Kind {
        Done,
        /// A snapshot was made, but some files could not be read.
        Incomplete,
        Cancelled,
        /// There is no restic.
        Missing,
        TooOld,
        WrongPassword,
        NoPassword,
        NoRepository,
        Locked,
        NoSpace,
        NoSource,
        /// The folder to restore into has something in it.
        NotEmpty,
        /// Verifying found errors.
        Damaged,
        /// restic was killed, or died.
        Crashed,
        /// Anything else: `details` tells.
        Failed
    };

    Kind kind = Done;
    /// restic's own words, in English: the last lines of its error output.
    QString details;
    /// Id of the snapshot made, if any.
    QString snapshot;
    /// What was restored is below this folder; empty if nothing was.
    QString restoredInto;
    bool wasVerified = false;
    qint64 newFiles = 0;
    qint64 changedFiles = 0;
    qint64 unchangedFiles = 0;
    /// Of the source; and what the repository grew by.
    qint64 bytesRead = 0;
    qint64 bytesAdded = 0;
    /// Lines of restic's output that were no message.
    int skippedLines = 0;

    /// What restic's exit status and the last lines of its error output mean. The texts are for
    /// versions before 0.17, which end with 1 whatever happens.
    static Outcome ofExit(int exitStatus, const QStringList &errors);

    bool isGood() const
    {
        return kind == Done;
    }
    /// A sentence or two: what happened, and what to do.
    QString text() const;
};

Q_DECLARE_METATYPE(Outcome)

#endif
