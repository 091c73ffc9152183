// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TARGETFOLDER_H
#define TARGETFOLDER_H

#include <QByteArray>

/// The layout of a target folder and the moves inside it:
///   data/                  the copy of the source tree
///   manifest.sha256        the checksums of the files in data/
///   manifest.sha256.hmac   the manifest's signature, if there is a passphrase
///   data.unfinished/       exists during a run only: what is not yet, or no longer, in data/
/// Relative paths are relative to data/, which itself is the empty path. The functions that return
/// an int return 0 or the system's error number.
class TargetFolder
{
public:
    explicit TargetFolder(const QByteArray &path);

    QByteArray dataPath(const QByteArray &relative = QByteArray()) const;
    QByteArray manifestPath() const;
    QByteArray signaturePath() const;
    QByteArray workFolder() const;
    QByteArray workPath(const QByteArray &name) const;

    /// Makes sure that there is a folder that can be written to, moving aside what else is there.
    int openFolder(const QByteArray &relative);
    /// Moves a completed copy out of the work folder, over what is there.
    int place(const QByteArray &standIn, const QByteArray &relative);
    /// Moves a file or a whole folder from data/ to the work folder, however much there is in it.
    int moveAside(const QByteArray &relative);

private:
    QByteArray m_path;
    qint64 m_asideCount = 0;
};

#endif
